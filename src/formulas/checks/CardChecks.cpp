// Checks of one card: its place on the page, its text, its picture, its style, its identity.
#include <algorithm>
#include <cmath>

#include "formulas/checks/CheckTexts.h"
#include "formulas/checks/EditorChecks.h"
#include "model/RVCardFormule.h"
#include "model/RVCardImage.h"
#include "model/draw/DrawScale.h"
#include "model/draw/PicturePlacement.h"
#include "model/draw/TextLayout.h"
#include "platform/Numbers.h"
#include "platform/Text.h"

namespace xrpt {
namespace {

// Files hold hundredths; a sum of two of them may be off by one.
constexpr double kFileStep = 0.011;
// Half the room a font leaves under its letters: what is cut of it nobody misses.
constexpr double kUnseen = 0.1;       // of the font's size
constexpr double kUnseenWidth = 0.5;  // points
// Below this the steps between pixels are seen on paper.
constexpr double kCoarseDpi = 120.0;
constexpr double kPointsPerInch = 72.0;

Change Set(const char* field, double value) { return {Change::Kind::SetField, field, FromUtf8(FormatDecimal(value))}; }

bool IsInside(double from, double to, double end) { return from >= -kFileStep && to <= end + kFileStep; }

// The place nearest to where it is at which a card of that length is inside.
double Inside(double from, double to, double end) { return std::max(0.0, std::min(from, end - (to - from))); }

// A text as the label draws it.
struct LabelText {
  Font font;  // in page points
  std::wstring text;
  const RVCardLabel& label;

  bool IsTurned() const { return std::fmod(label.orientation, 360.0) != 0.0; }
  SizeD BoxIn(const RectD& area) const {
    const SizeD card{area.Width() * kPointsPerMm, area.Height() * kPointsPerMm};
    return IsTurned() ? TurnedRoom(card, label.orientation) : card;
  }
  TextLayout LaidOutIn(const RectD& area) const {
    const SizeD card{area.Width() * kPointsPerMm, area.Height() * kPointsPerMm};
    const TextBox box{card, label.horizontalAlign, label.verticalAlign};
    FontService& fonts = *label.Services().fonts;
    return IsTurned() ? LayOutTurnedText(fonts, font, text, box, label.orientation)
                      : LayOutText(fonts, font, text, box);
  }
  bool FitsInto(const RectD& area) const {
    const SizeD box = BoxIn(area);
    const RectD bounds = LaidOutIn(area).bounds;
    return bounds.Width() <= box.width + kUnseenWidth && bounds.Height() <= box.height + font.size * kUnseen;
  }
};

// What scrolls shows all of itself in time, and a formula shows its value and not its text.
const RVCardLabel* StillLabel(const RVCardControl& card) {
  const auto* label = dynamic_cast<const RVCardLabel*>(&card);
  if (!label || label->IsAnimated() || dynamic_cast<const RVCardFormule*>(&card)) return nullptr;
  return label;
}

DrawScale ScaleOf(const CardView& view) { return {1.0, 1.0, view.page.fontScale}; }

// As high as the text is when it has the rest of the page below it, if that helps. A card inside another has no height
// of its own.
Remedy MakeHigher(const LabelText& text, const CardView& view) {
  constexpr double kStep = 0.5;  // millimetres
  if (view.isInner || text.label.orientation != 0.0) return {};
  RectD area = view.area;
  area.bottom = std::max(area.bottom, view.page.size.height);
  const double height = std::ceil(text.LaidOutIn(area).bounds.Height() / kPointsPerMm / kStep) * kStep;
  area.bottom = area.top + height;
  if (area.bottom > view.page.size.height || !text.FitsInto(area)) return {};
  return {text::kMakeHigher, {Set("height", height)}};
}

// Dots per inch of a picture where it is stretched least.
double PrintedDpi(const Picture& picture, const RVCardImage& card, const RectD& area) {
  const SizeD box{area.Width() * kPointsPerMm, area.Height() * kPointsPerMm};
  const PictureFit fit{card.horizontalAlign, card.verticalAlign, card.maintainAspectRatio, card.maintainRealSize};
  const RectD placed = PlacePicture(picture, box, fit);
  return std::min(picture.width * kPointsPerInch / placed.Width(), picture.height * kPointsPerInch / placed.Height());
}

std::wstring StyleOf(const RVCardControl& card) {
  std::wstring name;
  ForEachField(card.GetRuntimeClass().table, [&](const CardRow& row) {
    if (row.panel.editor == FieldEditor::Style) name = row.text(card);
  });
  return name;
}

// What the file of an open report has and the card has not, until it is given another style.
std::optional<std::wstring> LostStyleOf(const CardView& view) {
  if (!view.page.lostStyles || !StyleOf(view.card).empty()) return std::nullopt;
  const LostStyles& lost = *view.page.lostStyles;
  const CardKey key = view.card.Key();
  const auto at =
      std::lower_bound(lost.begin(), lost.end(), key, [](const LostStyle& one, CardKey k) { return one.card < k; });
  return at == lost.end() || at->card != key ? std::nullopt : std::optional(at->id);
}

std::optional<std::wstring> UnknownStyleOf(const CardView& view) {
  StyleTable& styles = *view.card.Services().styles;
  std::wstring found;
  const std::wstring stored = view.element.Value("style");
  if (!stored.empty() && !styles.StyleId2Name(stored, found)) return stored;
  const std::wstring name = StyleOf(view.card);
  if (name.empty() || styles.StyleName2Id(name, found)) return std::nullopt;
  return name;
}

}  // namespace

// A card larger than its page cannot be moved onto it.
std::optional<Note> OutsidePage(const CardView& view) {
  const RectD& area = view.area;
  const SizeD& page = view.page.size;
  if (IsInside(area.left, area.right, page.width) && IsInside(area.top, area.bottom, page.height)) return std::nullopt;
  Note note;
  if (area.Width() <= page.width && area.Height() <= page.height) {
    note.remedy = {
        text::kMoveOntoPage,
        {Set("x", Inside(area.left, area.right, page.width)), Set("y", Inside(area.top, area.bottom, page.height))}};
  }
  return note;
}

std::optional<Note> TextCutOff(const CardView& view) {
  const RVCardLabel* label = StillLabel(view.card);
  if (!label) return std::nullopt;
  const LabelText text{PageFont(label->font, ScaleOf(view)), label->ShownText(), *label};
  if (text.text.empty() || text.FitsInto(view.area)) return std::nullopt;
  return Note{.remedy = MakeHigher(text, view)};
}

// One shown at its own size is as coarse as its author wants it.
std::optional<Note> CoarsePicture(const CardView& view) {
  const auto* card = dynamic_cast<const RVCardImage*>(&view.card);
  if (!card || card->maintainRealSize) return std::nullopt;
  const PicturePtr picture = card->GetPicture();
  if (!picture || picture->isDrawing) return std::nullopt;
  const double dpi = PrintedDpi(*picture, *card, view.area);
  if (!(dpi < kCoarseDpi)) return std::nullopt;
  return Note{.detail = std::to_wstring(roundi(dpi))};
}

std::optional<Note> UnknownStyle(const CardView& view) {
  const std::optional<std::wstring> style = UnknownStyleOf(view);
  if (style) return Note{.detail = style, .remedy = {text::kDropStyle, {{Change::Kind::SetField, "style", L""}}}};
  const std::optional<std::wstring> lost = LostStyleOf(view);
  return lost ? std::optional(Note{.detail = lost}) : std::nullopt;
}

std::optional<Note> WithoutId(const CardView& view) {
  if (!view.card.id.empty()) return std::nullopt;
  return Note{.remedy = {text::kGiveNewId, {{Change::Kind::NewId, {}, {}}}}};
}

}  // namespace xrpt
