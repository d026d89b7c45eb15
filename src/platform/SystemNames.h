// Names and numbers that files, registry and texts of the whole system share.
#pragma once

#include <string_view>

namespace xrpt {

// Of files named identifier, point, name and ending; a picture's name is its identifier.
inline constexpr std::wstring_view kReportEnding = L".xrpt";
inline constexpr std::wstring_view kStyleEnding = L".XSTY";
inline constexpr std::wstring_view kImageEnding = L".img";

// Written into new reports and styles, carried along and never compared.
inline constexpr std::wstring_view kFormatVersion = L"24.11.17";

// The registry's value with the report to open next time.
inline constexpr std::wstring_view kLastReportValue = L"LastInforme";

// Text id: what a new button and a new label say.
inline constexpr int kNewCaptionText = 32426;

}  // namespace xrpt
