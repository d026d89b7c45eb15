// How a field's value becomes the text of its element and comes back, one codec a kind of value. Reading never fails:
// it takes what it can, as the format has always been read.
#pragma once

#include <limits>
#include <string>
#include <string_view>

#include "model/FieldTable.h"
#include "platform/Color.h"
#include "platform/Numbers.h"
#include "platform/Text.h"

namespace xrpt::codec {

// What numbers, words and colours share: they are plain ASCII in the file.
template <class Self>
struct PlainCodec {
  static constexpr std::span<const Word> Words() { return {}; }
  template <class T>
  static void Write(const T& value, XmlWriter& out, const char* name) {
    out.Plain(name, Self::Show(value));
  }
  template <class T>
  static std::wstring Text(const T& value) {
    return FromUtf8(Self::Show(value));
  }
};

struct String {
  static constexpr std::span<const Word> Words() { return {}; }
  static void Assign(std::wstring& value, std::string_view text) { AssignUtf8(value, text); }
  static void Write(const std::wstring& value, XmlWriter& out, const char* name) { out.Value(name, value); }
  static std::wstring Text(const std::wstring& value) { return value; }
  static std::wstring_view View(const std::wstring& value) { return value; }
};

// True for exactly "T".
struct Bool : PlainCodec<Bool> {
  static void Assign(bool& value, std::string_view text) { value = text == "T"; }
  static std::string_view Show(bool value) { return value ? "T" : "F"; }
};

// "%.2f".
struct Decimal : PlainCodec<Decimal> {
  static void Assign(double& value, std::string_view text) { value = ParseDecimal(text); }
  static std::string Show(double value) { return FormatDecimal(value); }
};

struct Integer : PlainCodec<Integer> {
  static void Assign(std::int32_t& value, std::string_view text) { value = ParseInteger(text); }
  static std::string Show(std::int32_t value) { return std::to_string(value); }
};

// An integer that the file never holds below 1: smaller ones are written as `Instead`.
template <int Instead>
struct Positive : PlainCodec<Positive<Instead>> {
  static void Assign(std::int32_t& value, std::string_view text) { value = ParseInteger(text); }
  static std::string Show(std::int32_t value) { return std::to_string(value < 1 ? Instead : value); }
};

// A decimal that reads back exactly.
struct Exact : PlainCodec<Exact> {
  static void Assign(double& value, std::string_view text) { value = ParseDecimal(text); }
  static std::string Show(double value) { return FormatExact(value); }
};

// Written as an integer, read as a decimal whose fraction is cut off.
struct Truncated : PlainCodec<Truncated> {
  static void Assign(std::int32_t& value, std::string_view text) {
    const double decimal = ParseDecimal(text);
    const bool fits = decimal > -2147483649.0 && decimal < 2147483648.0;  // not so for NaN
    value = fits ? static_cast<std::int32_t>(decimal) : 0;
  }
  static std::string Show(std::int32_t value) { return std::to_string(value); }
};

// "%06X" of 0x00BBGGRR.
struct Colour : PlainCodec<Colour> {
  static void Assign(Color& value, std::string_view text) { value = ParseColor(text); }
  static std::string Show(Color value) { return FormatColor(value); }
};

inline constexpr int kNone = std::numeric_limits<int>::min();

// One of a list of words. A text outside the list reads as `UnknownReads` (kNone: the field keeps its value); a value
// outside it is written as the word of `UnknownWrites` (kNone: the element is left out).
template <const auto& List, int UnknownReads, int UnknownWrites>
struct OneOf {
  static constexpr std::span<const Word> Words() { return List; }

  template <class T>
  static void Assign(T& value, std::string_view text) {
    for (const Word& word : List) {
      if (text == word.text) {
        value = static_cast<T>(word.value);
        return;
      }
    }
    if constexpr (UnknownReads != kNone) value = static_cast<T>(UnknownReads);
  }
  template <class T>
  static void Write(const T& value, XmlWriter& out, const char* name) {
    if (const char* word = Show(static_cast<int>(value))) out.Plain(name, word);
  }
  template <class T>
  static std::wstring Text(const T& value) {
    const char* word = Show(static_cast<int>(value));
    return word ? FromUtf8(word) : std::wstring();
  }

 private:
  static const char* Find(int value) {
    for (const Word& word : List) {
      if (word.value == value) return word.text;
    }
    return nullptr;
  }
  static const char* Show(int value) {
    const char* word = Find(value);
    return word || UnknownWrites == kNone ? word : Find(UnknownWrites);
  }
};

}  // namespace xrpt::codec
