// How a date card shows its moment: a pattern of letters, "dd/MM/yyyy HH:mm:ss" and the like.
#pragma once

#include <ctime>
#include <string>
#include <string_view>

#include "platform/Host.h"

namespace xrpt {

// y M d E H m s are fields whose run length sets the width; text between single quotes stands as it is, two quotes give
// one; all else is copied. Month and day names come from the locale.
std::wstring ParseDate(std::wstring_view pattern, const std::tm& moment, const LocaleService& locale);

// The patterns the editor offers.
inline constexpr const wchar_t* kDatePatterns[] = {
    L"dd/MM/yyyy HH:mm:ss", L"dd/MM/yy HH:mm:ss", L"dd/MM/yyyy", L"dd/MM/yy", L"MM/dd/yyyy HH:mm:ss",
    L"MM/dd/yy HH:mm:ss",   L"MM/dd/yyyy",        L"MM/dd/yy",   L"HH:mm:ss"};

}  // namespace xrpt
