#include "model/draw/CardDrawing.h"

#include <optional>

#include "model/draw/Marquee.h"
#include "model/draw/TextLayout.h"

namespace xrpt {
namespace {

// Beyond these a device has nothing to show, or no font for it.
constexpr double kSmallestText = 0.2;
constexpr double kLargestText = 50000.0;
constexpr double kClipTolerance = 0.01;

constexpr Color kPlaceholderLine = Rgb(0xB4, 0xBA, 0xC2);
constexpr Color kPlaceholderText = Rgb(0x6C, 0x74, 0x7E);
constexpr Color kPlaceholderGround = Rgb(0xF4, 0xF5, 0xF7);

bool Exceeds(const RectD& inner, SizeD box) {
  return inner.left < -kClipTolerance || inner.top < -kClipTolerance || inner.right > box.width + kClipTolerance ||
         inner.bottom > box.height + kClipTolerance;
}

void MoveAlong(RectD& bounds, PointD& shift, const Animation& animation, std::int32_t time, const RectD& track) {
  if (MovesSideways(animation)) {
    const double rest = bounds.left - track.left;
    shift.x = MarqueePosition(animation, time, {rest, bounds.Width(), track.Width()}) - rest;
  } else {
    const double rest = bounds.top - track.top;
    shift.y = MarqueePosition(animation, time, {rest, bounds.Height(), track.Height()}) - rest;
  }
  bounds = {bounds.left + shift.x, bounds.top + shift.y, bounds.right + shift.x, bounds.bottom + shift.y};
}

bool IsTurned(double degrees) { return std::isfinite(degrees) && std::remainder(degrees, 360.0) != 0.0; }

// The card's area in a frame turned about its middle, from which places count.
CardArea TurnedArea(const CardArea& area) {
  CardArea turned = area;
  turned.device = {};
  return turned;
}

// What a text moves through: the card or, turned, what of its own axes lies in the card.
RectD TrackOf(const CardArea& area, double degrees) {
  if (!IsTurned(degrees)) return area.Box();
  const SizeD room = TurnedRoom(area.points, degrees);
  return {-room.width * 0.5, -room.height * 0.5, room.width * 0.5, room.height * 0.5};
}

// On a plate of its own, so that the crossed lines do not strike it out.
void DrawMissingName(Graphics& graphics, const CardArea& area, std::wstring_view name) {
  FontService& fonts = *area.fonts;
  const Font font{L"Arial", 7.0, FontStyle::Normal};
  const double margin = 2.0;
  const std::wstring label = FitText(fonts, font, name, area.points.width - 2.0 * margin);
  const TextLayout layout = LayOutText(fonts, font, label, {area.points});
  if (layout.lines.empty() || layout.bounds.Height() > area.points.height) return;
  RectD plate = layout.bounds;
  plate.left -= margin;
  plate.right += margin;
  graphics.FillRect(area.ToDevice(plate), kPlaceholderGround);
  DrawTextLine(graphics, area, font, kPlaceholderText, layout.lines.front());
}

bool IsMoving(const Animation& animation, std::int32_t time) {
  return time > 0 && animation.behavior != Behavior::None;
}

}  // namespace

void DrawGround(Graphics& graphics, const CardArea& area, Color color) {
  if (color != kNoColor && !area.IsEmpty()) graphics.FillRect(area.device, color);
}

RectD StrokedInside(const RectD& rect, double penWidth) {
  const double before = (penWidth - 1.0) * 0.5;
  const double after = (penWidth + 1.0) * 0.5;
  return {rect.left + before, rect.top + before, std::max(rect.left + before, rect.right - after),
          std::max(rect.top + before, rect.bottom - after)};
}

void DrawTextLine(Graphics& graphics, const CardArea& area, const Font& pageFont, Color color, const TextLine& line,
                  PointD shift) {
  const double pixelSize = pageFont.size * area.scale.y;
  if (line.text.empty() || !(pixelSize >= kSmallestText && pixelSize <= kLargestText)) return;
  TextRun run;
  run.text = line.text;
  run.font = &pageFont;
  run.pixelSize = pixelSize;
  run.origin = area.ToDevice(PointD{line.left + shift.x, line.baseline + shift.y});
  run.width = line.width * area.scale.x;
  run.stretch = area.scale.x / area.scale.y;
  run.color = color;
  graphics.DrawText(run);
}

void DrawTextBox(Graphics& graphics, const CardArea& area, const TextStyle& style, std::wstring_view text,
                 std::int32_t time) {
  if (text.empty() || area.IsEmpty()) return;
  FontService& fonts = *area.fonts;
  const Font font = PageFont(style.font, area.scale);
  const bool moving = IsMoving(style.animation, time);
  const bool wrap = !moving || !MovesSideways(style.animation);
  const TextBox box{area.points, style.horizontalAlign, style.verticalAlign, wrap};
  const bool turned = IsTurned(style.orientation);
  const TextLayout layout =
      turned ? LayOutTurnedText(fonts, font, text, box, style.orientation) : LayOutText(fonts, font, text, box);
  RectD bounds = layout.bounds;
  PointD shift;
  if (moving) MoveAlong(bounds, shift, style.animation, time, TrackOf(area, style.orientation));

  std::optional<GraphicsState> state;
  if (turned || Exceeds(bounds, area.points)) {
    state.emplace(graphics);
    graphics.ClipRect(area.device);
  }
  if (turned) {
    graphics.Translate(area.device.Center().x, area.device.Center().y);
    graphics.Rotate(style.orientation);
  }
  const CardArea frame = turned ? TurnedArea(area) : area;
  for (const TextLine& line : layout.lines) DrawTextLine(graphics, frame, font, style.color, line, shift);
}

void DrawPictureBox(Graphics& graphics, const CardArea& area, const PicturePtr& picture, const PictureFit& fit,
                    std::wstring_view name, const Animation& animation, std::int32_t time) {
  if (area.IsEmpty()) return;
  if (!picture) {
    if (area.editing) DrawPlaceholder(graphics, area, name);
    return;
  }
  RectD target = PlacePicture(*picture, area.points, fit);
  PointD shift;
  if (IsMoving(animation, time)) MoveAlong(target, shift, animation, time, area.Box());
  const GraphicsState state(graphics);
  if (Exceeds(target, area.points)) graphics.ClipRect(area.device);
  graphics.DrawPicture(picture, area.ToDevice(target));
}

void DrawPlaceholder(Graphics& graphics, const CardArea& area, std::wstring_view name) {
  if (area.IsEmpty()) return;
  const RectD& box = area.device;
  const Pen pen{kPlaceholderLine, area.scale.PenWidth(0.5)};
  const GraphicsState state(graphics);
  graphics.ClipRect(box);
  graphics.FillRect(box, kPlaceholderGround);
  graphics.DrawLine({box.left, box.top}, {box.right, box.bottom}, pen);
  graphics.DrawLine({box.left, box.bottom}, {box.right, box.top}, pen);
  graphics.DrawRect(StrokedInside(box, pen.width), pen);
  DrawMissingName(graphics, area, name);
}

}  // namespace xrpt
