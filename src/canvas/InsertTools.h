// The insert tools by the codes the canvas knows them by.
#pragma once

namespace xrpt::tool {

inline constexpr int kLabel = 0;
inline constexpr int kImage = 1;
inline constexpr int kPointer = 2;  // inserts nothing; a press on empty page starts a rubber band
inline constexpr int kDate = 3;
inline constexpr int kFormule = 4;
inline constexpr int kConditioned = 8;
inline constexpr int kReportGraph = 9;
inline constexpr int kAnalogBar = 10;
inline constexpr int kPrimitive = 136;

}  // namespace xrpt::tool
