#include "model/RVCardReportGraph.h"

#include "model/ListRows.h"
#include "model/StyleReference.h"

namespace xrpt {
namespace {

using Graph = RVCardReportGraph;

constexpr FieldPanel SeriesPanel(int textId, FieldEditor editor) { return {textId, FieldGroup::Series, editor}; }

// A file's word from either list.
struct LineStyleCodec : codec::PlainCodec<LineStyleCodec> {
  static constexpr std::span<const Word> Words() { return kPenWords; }
  static void Assign(std::int32_t& value, std::string_view text) {
    value = 0;
    for (const std::span<const Word> words : {std::span<const Word>(kPenWords), std::span<const Word>(kMarkerWords)}) {
      for (const Word& word : words) {
        if (text == word.text) value = word.value;
      }
    }
  }
  static std::string Show(std::int32_t value) { return std::to_string(value); }
};

using TypeCodec = codec::OneOf<kSeriesTypeWords, 0, codec::kNone>;

template <auto Member>
constexpr CardRow Switch(const char* name, int textId) {
  return Field<Graph, codec::Bool, Member>(nullptr, name, nullptr, {textId, FieldGroup::Format, FieldEditor::Check});
}

template <class Codec, auto Member>
constexpr ListOf<RVCardControl> Bound(const char* name, const char* missing, int textId, FieldEditor editor) {
  return NotCompared(Needs("width", List<Graph, Codec, Member>("ybounds", name, missing, SeriesPanel(textId, editor))));
}

}  // namespace

// The line styles and widths deliberately stay when a series is removed, so that later entries of these two lists shift
// against the others. The bounds are read only from a series that has a width.
const ListTable<RVCardControl>& RVCardReportGraph::Series() {
  static constexpr ListOf<RVCardControl> kRows[] = {
      Holding(TextRole::Variable, List<Graph, codec::String, &Graph::variables>(
                                      nullptr, "id", nullptr, SeriesPanel(text::kVariable, FieldEditor::Variable))),
      List<Graph, codec::Colour, &Graph::colors>(nullptr, "color", nullptr,
                                                 SeriesPanel(text::kColor, FieldEditor::Color)),
      List<Graph, TypeCodec, &Graph::types>(nullptr, "type", nullptr,
                                            SeriesPanel(text::kSeriesType, FieldEditor::Choice)),
      NotRemoved(NotCompared(
          ShownBy<Graph, &Graph::LineStyleText, &Graph::LineStyleWords>(List<Graph, LineStyleCodec, &Graph::lineStyles>(
              nullptr, "style", nullptr, SeriesPanel(text::kLineStyle, FieldEditor::Choice))))),
      Beginning("1", NotRemoved(NotCompared(List<Graph, codec::Integer, &Graph::widths>(
                         nullptr, "width", nullptr, SeriesPanel(text::kLineWidth, FieldEditor::Integer))))),
      Bound<codec::Bool, &Graph::fminBind>("fminbind", "F", text::kFixMinimum, FieldEditor::Check),
      Bound<codec::Bool, &Graph::fmaxBind>("fmaxbind", "F", text::kFixMaximum, FieldEditor::Check),
      Bound<codec::Exact, &Graph::minBind>("minbind", "-1", text::kMinimum, FieldEditor::Decimal),
      Bound<codec::Exact, &Graph::maxBind>("maxbind", "-1", text::kMaximum, FieldEditor::Decimal),
  };
  static constexpr ListTable<RVCardControl> kTable{"variable", kRows};
  return kTable;
}

std::span<const CardRow> RVCardReportGraph::Rows() {
  static constexpr CardRow kRows[] = {
      Offering(kPeriodWords,
               Field<Graph, codec::String, &Graph::period>(nullptr, "period", nullptr,
                                                           {text::kPeriod, FieldGroup::Content, FieldEditor::Choice})),
      NotCompared(Field<Graph, codec::Integer, &Graph::values>(
          nullptr, "values", nullptr, {text::kValueCount, FieldGroup::Content, FieldEditor::Integer, 1, 1000})),
      Switch<&Graph::viewLegends>("viewLegends", text::kViewLegends),
      Switch<&Graph::viewTexts>("viewTexts", text::kViewTexts),
      Switch<&Graph::hideXAxisLabels>("hideXAxisLabels", text::kHideXAxisLabels),
      Switch<&Graph::transparent>("transparent", text::kTransparent),
      Field<Graph, codec::Colour, &Graph::foregroundColor>(
          nullptr, "foregroundColor", nullptr, {text::kGraphForeground, FieldGroup::Colors, FieldEditor::Color}),
      Field<Graph, codec::Colour, &Graph::backgroundColor>(
          nullptr, "backgroundColor", nullptr, {text::kGraphBackground, FieldGroup::Colors, FieldEditor::Color}),
      NotCompared(Switch<&Graph::justOneGraph>("justOneGraph", text::kOneGraph)),
      Items<&Graph::Series>(),
      // Written before the font, but read after it: the style's font overrides the one in the file.
      WrittenOnly(WriteBy<Graph, &Graph::WriteStyle>(Field<Graph, codec::String, &Graph::styleName>(
          nullptr, "style", nullptr, {text::kStyle, FieldGroup::Font, FieldEditor::Style}))),
      NotCompared(FontNameRow<Graph, &Graph::font>()),
      NotCompared(FontStyleRow<Graph, &Graph::font>()),
      // A graph's texts are never turned, but its font says so.
      Constant<Graph>("font", [](const RVCardControl&, XmlWriter& out) { out.Plain("orientation", "0.00"); }),
      NotCompared(FontSizeRow<Graph, &Graph::font>()),
      NotCompared(Field<Graph, codec::Colour, &Graph::fontColor>(
          "font", "color", nullptr, {text::kFontColor, FieldGroup::Font, FieldEditor::Color})),
      ReadAfter<Graph, &Graph::ReadStyle>(),
  };
  return kRows;
}

const CardClass& RVCardReportGraph::Class() {
  static const CardClass kind =
      DeriveCard<RVCardReportGraph>("reportGraph", text::kReportGraphCard, RVCardControl::Class(), Rows());
  return kind;
}

bool RVCardReportGraph::GetStyleFromFile(const std::wstring& name) {
  return TakeStyle(*Services().styles, name, font, fontColor);
}

void RVCardReportGraph::ReadStyle(const XmlNode& node) {
  if (ReadStyleReference(*this, node.Node("style"), styleName, parent)) GetStyleFromFile(styleName);
}

void RVCardReportGraph::WriteStyle(XmlWriter& out) const { WriteStyleReference(*Services().styles, out, styleName); }

bool RVCardReportGraph::DeleteVariable(std::int32_t index) { return RemoveItem(Series(), *this, index); }

void RVCardReportGraph::Clear() { ClearItems(Series(), *this); }

void RVCardReportGraph::SetDefaultStyle() {
  font = Font();
  fontColor = kBlack;
}

std::span<const Word> RVCardReportGraph::LineStyleWords(std::size_t index) const {
  return TypeOf(index) == SeriesType::Line ? std::span<const Word>(kPenWords) : kMarkerWords;
}

const char* RVCardReportGraph::LineStyleText(std::size_t index) const {
  for (const Word& word : LineStyleWords(index)) {
    if (word.value == lineStyles[index]) return word.text;
  }
  return nullptr;
}

}  // namespace xrpt
