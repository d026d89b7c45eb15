#include "host/expressions/Functions.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>
#include <unordered_map>

#include "host/expressions/ExpressionTexts.h"

namespace xrpt {
namespace {

using Arguments = std::span<const double>;

double Sign(double x) { return std::isnan(x) ? x : static_cast<double>((x > 0.0) - (x < 0.0)); }

// The remainder has the sign of the divisor, so that an hour before midnight is 23.
double Modulo(double x, double divisor) {
  const double rest = std::fmod(x, divisor);
  return rest != 0.0 && (rest < 0.0) != (divisor < 0.0) ? rest + divisor : rest;
}

// To so many decimals; half away from zero. Beyond what a double holds nothing is rounded away.
double RoundTo(double x, double decimals) {
  const double scale = std::pow(10.0, std::trunc(decimals));
  const double scaled = std::round(x * scale);
  return std::isfinite(scaled) && scale > 0.0 ? scaled / scale : x;
}

double Sum(Arguments a) { return std::accumulate(a.begin(), a.end(), 0.0); }

// What is no number makes the result none, wherever it stands.
template <class Better>
double Best(Arguments a, Better better) {
  double best = a.front();
  for (double x : a) {
    if (std::isnan(x) || better(x, best)) best = x;
  }
  return best;
}

template <double (*Compute)(double)>
double Of(Arguments a) {
  return Compute(a[0]);
}

constexpr int Help(int row) { return text::kFirstFunction + 2 * row; }

constexpr Function kFunctions[] = {
    {L"abs", L"abs(x)", 1, 1, Help(0), Of<std::fabs>},
    {L"sqrt", L"sqrt(x)", 1, 1, Help(1), Of<std::sqrt>},
    {L"exp", L"exp(x)", 1, 1, Help(2), Of<std::exp>},
    {L"ln", L"ln(x)", 1, 1, Help(3), Of<std::log>},
    {L"log10", L"log10(x)", 1, 1, Help(4), Of<std::log10>},
    {L"sin", L"sin(x)", 1, 1, Help(5), Of<std::sin>},
    {L"cos", L"cos(x)", 1, 1, Help(6), Of<std::cos>},
    {L"tan", L"tan(x)", 1, 1, Help(7), Of<std::tan>},
    {L"asin", L"asin(x)", 1, 1, Help(8), Of<std::asin>},
    {L"acos", L"acos(x)", 1, 1, Help(9), Of<std::acos>},
    {L"atan", L"atan(x)", 1, 1, Help(10), Of<std::atan>},
    {L"atan2", L"atan2(y, x)", 2, 2, Help(11), [](Arguments a) { return std::atan2(a[0], a[1]); }},
    {L"floor", L"floor(x)", 1, 1, Help(12), Of<std::floor>},
    {L"ceil", L"ceil(x)", 1, 1, Help(13), Of<std::ceil>},
    {L"round", L"round(x) / round(x, decimals)", 1, 2, Help(14),
     [](Arguments a) { return a.size() == 1 ? std::round(a[0]) : RoundTo(a[0], a[1]); }},
    {L"trunc", L"trunc(x)", 1, 1, Help(15), Of<std::trunc>},
    {L"sign", L"sign(x)", 1, 1, Help(16), Of<Sign>},
    {L"min", L"min(x, y, ...)", 1, kAnyNumber, Help(17), [](Arguments a) { return Best(a, std::less<>()); }},
    {L"max", L"max(x, y, ...)", 1, kAnyNumber, Help(18), [](Arguments a) { return Best(a, std::greater<>()); }},
    {L"mod", L"mod(x, y)", 2, 2, Help(19), [](Arguments a) { return Modulo(a[0], a[1]); }},
    {L"avg", L"avg(x, y, ...)", 1, kAnyNumber, Help(20),
     [](Arguments a) { return Sum(a) / static_cast<double>(a.size()); }},
    {L"sum", L"sum(x, y, ...)", 1, kAnyNumber, Help(21), Sum},
    {L"if", L"if(condition, then, otherwise)", 3, 3, Help(22), [](Arguments a) { return a[0] != 0.0 ? a[1] : a[2]; },
     true},
};

}  // namespace

std::span<const Function> Functions() { return kFunctions; }

int FindFunction(std::wstring_view name) {
  static const auto places = [] {
    std::unordered_map<std::wstring_view, int> all;
    for (const Function& function : kFunctions) all.emplace(function.name, static_cast<int>(all.size()));
    return all;
  }();
  const auto at = places.find(name);
  return at == places.end() ? -1 : at->second;
}

}  // namespace xrpt
