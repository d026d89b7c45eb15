// Base64 as picture files hold it, and the XML escapes around it.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace xrpt {

// White space is skipped; anything else that is not base64 ends in nothing.
std::optional<std::string> DecodeBase64(std::string_view text);
std::string EncodeBase64(std::string_view bytes);

// Undoes XML escapes: the five named ones and numeric ones below 128; others stay as they stand.
std::string Xml2Text(std::string_view escaped);

}  // namespace xrpt
