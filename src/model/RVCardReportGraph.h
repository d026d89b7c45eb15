// One or more variables over a period, as lines, bars, points or pie charts.
#pragma once

#include "model/CommonRows.h"
#include "model/ListTable.h"
#include "model/RVCardControl.h"

namespace xrpt {

enum class SeriesType { Line = 0, Bar = 1, Point = 2, CheeseVariable = 3, CheesePeriod = 4 };

// What the editor offers, by seconds where it has some; any other text is kept too.
inline constexpr Word kPeriodWords[] = {{"AUTO", 0, 753},        {"DEFAULT", -2, 34126},     {"FILE", -3, 791},
                                        {"300", 300, 757, 5},    {"600", 600, 757, 10},      {"900", 900, 757, 15},
                                        {"1200", 1200, 757, 20}, {"1800", 1800, 757, 30},    {"3600", 3600, 762},
                                        {"86400", 86400, 60149}, {"2678400", 2678400, 60150}};
inline constexpr Word kSeriesTypeWords[] = {{"LINE", 0, 60151},
                                            {"BAR", 1, 60152},
                                            {"POINT", 2, 60153},
                                            {"CHEESE_VARIABLE", 3, 60154},
                                            {"CHEESE_PERIOD", 4, 60155}};

// A series' style is a pen for lines and a point marker for all else. Files may hold a word of either list for any
// series, so reading takes both.
inline constexpr Word kPenWords[] = {{"SOLID", 0, 60160},    {"DASH", 1, 60161},         {"DOT", 2, 60162},
                                     {"DASH_DOT", 3, 60163}, {"DASH_DOT_DOT", 4, 60164}, {"PLUS5X5", 5, 60170},
                                     {"CROSS3X3", 6, 60171}, {"PLUS3X3", 7, 60172}};
inline constexpr Word kMarkerWords[] = {{"POINT", 0, 60165},      {"CIRCLE5X5", 1, 60166}, {"BOX5X5", 2, 60167},
                                        {"DIAMOND5X5", 3, 60168}, {"CROSS5X5", 4, 60169},  {"PLUS5X5", 5, 60170},
                                        {"CROSS3X3", 6, 60171},   {"PLUS3X3", 7, 60172}};

class RVCardReportGraph : public RVCardControl {
 public:
  using RVCardControl::RVCardControl;

  static const CardClass& Class();
  const CardClass& GetRuntimeClass() const override { return Class(); }
  std::unique_ptr<RVCardControl> GetClone() const override { return std::make_unique<RVCardReportGraph>(*this); }

  bool GetStyleFromFile(const std::wstring& name) override;
  bool UpdateStyleFromFile() override { return GetStyleFromFile(styleName); }

  void Draw(Graphics& graphics, const tagDraw& draw) const override;

  // Removes one series; false for an index that names none.
  bool DeleteVariable(std::int32_t index);
  // Removes all series.
  void Clear();
  void SetDefaultStyle();
  static const ListTable<RVCardControl>& Series();
  // What a series that lacks its type is drawn and written as.
  SeriesType TypeOf(std::size_t index) const { return index < types.size() ? types[index] : SeriesType::Line; }

  std::wstring period = L"AUTO";
  std::int32_t values = 6;  // periods shown
  bool transparent = false;
  bool viewLegends = false;
  bool viewTexts = false;
  bool hideXAxisLabels = false;
  Color backgroundColor = kWhite;
  Color foregroundColor = kBlack;
  std::wstring styleName;
  bool justOneGraph = false;
  Font font;
  Color fontColor = kBlack;

  // Entry i of each belongs to series i. A file may leave any of them shorter than `variables`.
  std::vector<std::wstring> variables;
  std::vector<Color> colors;
  std::vector<SeriesType> types;
  std::vector<std::int32_t> lineStyles;
  std::vector<std::int32_t> widths;
  std::vector<bool> fminBind;
  std::vector<bool> fmaxBind;
  std::vector<double> minBind;
  std::vector<double> maxBind;

 private:
  static std::span<const CardRow> Rows();
  void ReadStyle(const XmlNode& node);
  void WriteStyle(XmlWriter& out) const;
  std::span<const Word> LineStyleWords(std::size_t index) const;
  const char* LineStyleText(std::size_t index) const;
};

}  // namespace xrpt
