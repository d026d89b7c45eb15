#include "model/RVCardLabel.h"

#include "model/StyleReference.h"

namespace xrpt {

std::span<const CardRow> RVCardLabel::Rows() {
  using Label = RVCardLabel;
  static constexpr auto kRows = JoinRows(
      AlignmentRows<Label, &Label::horizontalAlign, &Label::verticalAlign>(),
      RowsOf(
          // Cards that show a value keep the text, but nobody sees it.
          OfUse<Label, &Label::ShowsItsText>(Holding(
              TextRole::Words, WhenNotEmpty<Label, &Label::text>(Field<Label, codec::String, &Label::text>(
                                   "text", "textStr", "", {text::kText, FieldGroup::Content, FieldEditor::Lines})))),
          FontNameRow<Label, &Label::font>(), FontStyleRow<Label, &Label::font>(),
          Field<Label, codec::Decimal, &Label::orientation>(
              "font", "orientation", "", {text::kOrientation, FieldGroup::Font, FieldEditor::Angle, -360.0, 360.0}),
          FontSizeRow<Label, &Label::font>(),
          // The text's colour is the card's own, written a second time where fonts are looked for.
          NotCompared(Field<Label, codec::Colour, &Label::color>("font", "color", nullptr)),
          // Read after the font, because the style's font overrides the one in the file.
          ReadBy<Label, &Label::ReadStyle>(
              WriteBy<Label, &Label::WriteStyle>(Field<Label, codec::String, &Label::styleName>(
                  nullptr, "style", nullptr, {text::kStyle, FieldGroup::Font, FieldEditor::Style})))),
      AnimationRows<Label, &Label::animation, &Label::IsAnimated>());
  return kRows;
}

const CardClass& RVCardLabel::Class() {
  static const CardClass kind = DeriveCard<RVCardLabel>("label", text::kLabelCard, RVCardControl::Class(), Rows());
  return kind;
}

bool RVCardLabel::GetStyleFromFile(const std::wstring& name) {
  return TakeStyle(*Services().styles, name, font, color);
}

void RVCardLabel::ReadStyle(const XmlNode& reference) {
  if (ReadStyleReference(*this, reference, styleName, parent)) GetStyleFromFile(styleName);
}

void RVCardLabel::WriteStyle(XmlWriter& out) const { WriteStyleReference(*Services().styles, out, styleName); }

}  // namespace xrpt
