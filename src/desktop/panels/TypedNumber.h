// Numbers as people type them. Pure.
#pragma once

#include <QString>
#include <optional>

namespace xrpt {

// Comma and point both stand before the decimals, whatever the language; where several stand in a number, the last one
// does, and those of one kind that repeats stand between thousands. Nothing for what is no number (yet): "", "-",
// "1e3".
std::optional<double> NumberTyped(const QString& text);

// Whether more typing can make a number of it: "-", "12," and the like.
bool MayBecomeNumber(const QString& text);

}  // namespace xrpt
