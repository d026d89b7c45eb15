#include "platform/SampleData.h"

#include <cmath>
#include <cstdint>
#include <numbers>

namespace xrpt {
namespace {

constexpr std::wstring_view kPast = L".GOBACK";

struct Measure {
  std::wstring_view start;  // of the variable's name
  SampleRange range;
};

// The longest start that fits counts.
constexpr Measure kMeasures[] = {
    {L"PF", {0.88, 0.99}},      {L"COS", {0.88, 0.99}},  {L"THDV", {1.2, 3.4}},   {L"THDU", {1.2, 3.4}},
    {L"THDI", {6.0, 17.0}},     {L"THD", {1.5, 5.0}},    {L"H", {0.4, 5.2}},      {L"F", {49.95, 50.06}},
    {L"U", {227.0, 236.0}},     {L"V", {227.0, 236.0}},  {L"I", {180.0, 420.0}},  {L"P", {380.0, 1150.0}},
    {L"PMAX", {820.0, 1420.0}}, {L"Q", {90.0, 380.0}},   {L"S", {420.0, 1250.0}}, {L"AE", {820.0, 2600.0}},
    {L"RE", {160.0, 720.0}},    {L"E", {820.0, 2600.0}}, {L"T", {14.0, 29.0}},    {L"HUM", {38.0, 72.0}},
};

std::uint64_t Hash(std::wstring_view text, std::uint64_t seed = 0) {
  std::uint64_t hash = 1469598103934665603ull ^ (seed * 0x9E3779B97F4A7C15ull);
  for (wchar_t c : text) hash = (hash ^ static_cast<std::uint32_t>(c)) * 1099511628211ull;
  hash ^= hash >> 29;
  hash *= 0xBF58476D1CE4E5B9ull;
  return hash ^ hash >> 32;
}

// 0 to 1.
double Fraction(std::uint64_t hash) { return static_cast<double>(hash >> 11) * 0x1p-53; }

std::wstring_view PresentName(std::wstring_view variable) { return variable.substr(0, variable.find(kPast)); }

std::wstring_view VariablePart(std::wstring_view variable) {
  const std::wstring_view present = PresentName(variable);
  const std::size_t dot = present.find(L'.');
  return dot == present.npos ? present : present.substr(dot + 1);
}

}  // namespace

SampleRange SampleRangeOf(std::wstring_view variable) {
  const std::wstring_view name = VariablePart(variable);
  const Measure* best = nullptr;
  for (const Measure& measure : kMeasures) {
    const bool fits = name.substr(0, measure.start.size()) == measure.start;
    if (fits && (!best || measure.start.size() > best->start.size())) best = &measure;
  }
  if (best) return best->range;
  const double scale = std::pow(10.0, std::floor(1.0 + 3.0 * Fraction(Hash(name))));
  return {scale * 0.3, scale * (0.7 + Fraction(Hash(name, 1)))};
}

double SampleReading(std::wstring_view variable) { return SampleValues(variable, 1, SampleRangeOf(variable)).front(); }

double SampleShape(std::wstring_view variable, std::size_t index) {
  const std::wstring_view present = PresentName(variable);
  const auto i = static_cast<double>(index);
  const double phase = Fraction(Hash(present));
  const double cycle = 9.0 + 6.0 * Fraction(Hash(present, 2));
  const double wave = std::sin(2.0 * std::numbers::pi * (i / cycle + phase));
  const double ripple = Fraction(Hash(variable, index + 7)) - 0.5;
  return 0.5 + 0.36 * wave + 0.26 * ripple;
}

std::vector<double> SampleValues(std::wstring_view variable, std::size_t count, const SampleRange& range) {
  std::vector<double> values;
  for (std::size_t i = 0; i < count; ++i) {
    values.push_back(range.low + (range.high - range.low) * SampleShape(variable, i));
  }
  return values;
}

}  // namespace xrpt
