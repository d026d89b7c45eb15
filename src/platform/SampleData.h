// What stands in for live values while a report is laid out: numbers that look like the plant's, and are the same every
// time, for they follow from the variable's name alone.
#pragma once

#include <string_view>
#include <vector>

namespace xrpt {

struct SampleRange {
  double low = 0.0;
  double high = 100.0;
};

// What a variable of that name usually measures: P is hundreds of kilowatts, PF just below one, THDV a few percent.
SampleRange SampleRangeOf(std::wstring_view variable);

// The one value that stands for a variable where a single number is wanted.
double SampleReading(std::wstring_view variable);

// Between 0 and 1, rising and falling like a load does. A variable of the past (GOBACK) runs beside its own present.
double SampleShape(std::wstring_view variable, std::size_t index);

// That many values inside the range.
std::vector<double> SampleValues(std::wstring_view variable, std::size_t count, const SampleRange& range);

}  // namespace xrpt
