#include "host/SvgGraphics.h"

#include <cmath>
#include <numbers>

#include "host/PngEncoder.h"
#include "platform/Base64.h"
#include "platform/Numbers.h"
#include "platform/Text.h"

namespace xrpt {
namespace {

constexpr double kFarAway = 1e9;

// At most three decimals, no more digits than needed.
std::string Number(double value) {
  if (std::isnan(value)) return "0";
  std::string text = FormatFixed(std::clamp(value, -kFarAway, kFarAway), 3);
  text.erase(text.find_last_not_of('0') + 1);
  if (text.back() == '.') text.pop_back();
  return text == "-0" ? "0" : text;
}

std::string Attribute(std::string_view name, std::string_view value) {
  std::string text = " ";
  text += name;
  text += "=\"";
  text += value;
  text += '"';
  return text;
}

std::string Attribute(std::string_view name, double value) { return Attribute(name, Number(value)); }

// Characters that no XML text may hold are left out; a tab or line end is a space.
void AppendEscaped(std::string& out, wchar_t c) {
  switch (c) {
    case L'&':
      out += "&amp;";
      return;
    case L'<':
      out += "&lt;";
      return;
    case L'>':
      out += "&gt;";
      return;
    case L'"':
      out += "&quot;";
      return;
    case L'\t':
    case L'\n':
    case L'\r':
      out += ' ';
      return;
    default:
      break;
  }
  if (c >= 0x20 && c != 0xFFFE && c != 0xFFFF) out += ToUtf8(std::wstring_view(&c, 1));
}

std::string Escaped(std::wstring_view text) {
  std::string out;
  for (wchar_t c : text) AppendEscaped(out, c);
  return out;
}

std::string ColorText(Color color) {
  return "#" + FormatColor(RedOf(color) * 0x10000u + GreenOf(color) * 0x100u + BlueOf(color));
}

std::string Fill(Color color) { return Attribute("fill", ColorText(color)); }

// In pen widths.
std::string_view DashesOf(PenStyle style) {
  switch (style) {
    case PenStyle::Dash:
      return "42";
    case PenStyle::Dot:
      return "12";
    case PenStyle::DashDot:
      return "4212";
    case PenStyle::DashDotDot:
      return "421212";
    default:
      return {};
  }
}

std::string Stroke(const Pen& pen) {
  const double width = pen.width > 0.0 ? pen.width : 1.0;
  std::string text = Attribute("fill", "none") + Attribute("stroke", ColorText(pen.color));
  text += Attribute("stroke-width", width);
  if (pen.width <= 0.0) text += Attribute("vector-effect", "non-scaling-stroke");
  std::string dashes;
  for (char length : DashesOf(pen.style)) dashes += (dashes.empty() ? "" : " ") + Number((length - '0') * width);
  if (!dashes.empty()) text += Attribute("stroke-dasharray", dashes);
  return text;
}

bool IsVisible(const Pen& pen) { return pen.style != PenStyle::None && pen.color != kNoColor; }

std::string RectShape(const RectD& rect, double radiusX = 0.0, double radiusY = 0.0) {
  std::string text = "rect" + Attribute("x", std::min(rect.left, rect.right));
  text += Attribute("y", std::min(rect.top, rect.bottom));
  text += Attribute("width", std::abs(rect.Width())) + Attribute("height", std::abs(rect.Height()));
  if (radiusX > 0.0 && radiusY > 0.0) text += Attribute("rx", radiusX) + Attribute("ry", radiusY);
  return text;
}

std::string EllipseShape(const RectD& rect) {
  const PointD center = rect.Center();
  std::string text = "ellipse" + Attribute("cx", center.x) + Attribute("cy", center.y);
  return text + Attribute("rx", std::abs(rect.Width()) * 0.5) + Attribute("ry", std::abs(rect.Height()) * 0.5);
}

std::string PointsShape(const char* tag, std::span<const PointD> points) {
  std::string list;
  for (const PointD& p : points) list += (list.empty() ? "" : " ") + Number(p.x) + "," + Number(p.y);
  return tag + Attribute("points", list);
}

PointD OnEllipse(const RectD& rect, double degrees) {
  const double angle = degrees * std::numbers::pi / 180.0;
  const PointD center = rect.Center();
  return {center.x + rect.Width() * 0.5 * std::cos(angle), center.y - rect.Height() * 0.5 * std::sin(angle)};
}

std::string PieShape(const RectD& rect, double start, double sweep) {
  const PointD from = OnEllipse(rect, start);
  const PointD to = OnEllipse(rect, start + sweep);
  const auto pair = [](PointD p) { return Number(p.x) + " " + Number(p.y); };
  std::string path = "M" + pair(rect.Center()) + "L" + pair(from);
  path += "A" + Number(std::abs(rect.Width()) * 0.5) + " " + Number(std::abs(rect.Height()) * 0.5);
  path += std::string(" 0 ") + (std::abs(sweep) > 180.0 ? "1 " : "0 ") + (sweep > 0.0 ? "0 " : "1 ") + pair(to) + "Z";
  return "path" + Attribute("d", path);
}

// A face's name between single quotes; one that would end them is no face's.
std::string Family(std::wstring_view face) {
  std::wstring name(face);
  std::erase_if(name, [](wchar_t c) { return c == L'\'' || c == L'\\'; });
  return name.empty() ? "sans-serif" : "'" + Escaped(name) + "', sans-serif";
}

std::string FontAttributes(const Font& font, double pixelSize) {
  std::string text = Attribute("font-family", Family(font.face)) + Attribute("font-size", pixelSize);
  if (font.IsBold()) text += Attribute("font-weight", "bold");
  if (font.IsItalic()) text += Attribute("font-style", "italic");
  return text;
}

}  // namespace

SvgGraphics::SvgGraphics(SizeD size, SizeD millimetres) {
  out_ = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<svg xmlns=\"http://www.w3.org/2000/svg\"";
  out_ += Attribute("xmlns:xlink", "http://www.w3.org/1999/xlink") + Attribute("version", "1.1");
  out_ += Attribute("width", Number(millimetres.width) + "mm") + Attribute("height", Number(millimetres.height) + "mm");
  out_ += Attribute("viewBox", "0 0 " + Number(size.width) + " " + Number(size.height)) + ">\n";
}

std::string SvgGraphics::Finish() {
  while (!groups_.empty()) CloseGroups();
  return std::move(out_) + "</svg>\n";
}

void SvgGraphics::OpenGroup(const std::string& attributes) {
  out_ += "<g" + attributes + ">\n";
  ++groups_.back();
}

void SvgGraphics::CloseGroups() {
  for (int open = groups_.back(); open > 0; --open) out_ += "</g>\n";
  groups_.pop_back();
}

void SvgGraphics::Element(const std::string& shape, const std::string& paint) { out_ += "<" + shape + paint + "/>\n"; }

void SvgGraphics::Save() { groups_.push_back(0); }

void SvgGraphics::Restore() {
  if (groups_.size() > 1) CloseGroups();
}

void SvgGraphics::ClipRect(const RectD& rect) { ClipRoundRect(rect, 0.0, 0.0); }

void SvgGraphics::ClipRoundRect(const RectD& rect, double radiusX, double radiusY) {
  const std::string name = "c" + std::to_string(++clips_);
  out_ += "<clipPath" + Attribute("id", name) + "><" + RectShape(rect, radiusX, radiusY) + "/></clipPath>\n";
  OpenGroup(Attribute("clip-path", "url(#" + name + ")"));
}

void SvgGraphics::Translate(double dx, double dy) {
  OpenGroup(Attribute("transform", "translate(" + Number(dx) + " " + Number(dy) + ")"));
}

void SvgGraphics::Rotate(double degrees) { OpenGroup(Attribute("transform", "rotate(" + Number(-degrees) + ")")); }

void SvgGraphics::FillRect(const RectD& rect, Color color) {
  if (color != kNoColor) Element(RectShape(rect), Fill(color));
}

void SvgGraphics::FillRoundRect(const RectD& rect, double radiusX, double radiusY, Color color) {
  if (color != kNoColor) Element(RectShape(rect, radiusX, radiusY), Fill(color));
}

void SvgGraphics::FillEllipse(const RectD& rect, Color color) {
  if (color != kNoColor) Element(EllipseShape(rect), Fill(color));
}

void SvgGraphics::FillPolygon(std::span<const PointD> points, Color color) {
  if (color != kNoColor) Element(PointsShape("polygon", points), Fill(color) + Attribute("fill-rule", "evenodd"));
}

void SvgGraphics::FillPie(const RectD& rect, double start, double sweep, Color color) {
  if (color == kNoColor || sweep == 0.0) return;
  if (std::abs(sweep) >= 360.0) return FillEllipse(rect, color);
  Element(PieShape(rect, start, sweep), Fill(color));
}

void SvgGraphics::DrawLine(PointD from, PointD to, const Pen& pen) {
  if (!IsVisible(pen)) return;
  const std::string shape = "line" + Attribute("x1", from.x) + Attribute("y1", from.y) + Attribute("x2", to.x);
  Element(shape + Attribute("y2", to.y), Stroke(pen));
}

void SvgGraphics::DrawPolyline(std::span<const PointD> points, const Pen& pen) {
  if (IsVisible(pen)) Element(PointsShape("polyline", points), Stroke(pen));
}

void SvgGraphics::DrawPolygon(std::span<const PointD> points, const Pen& pen) {
  if (IsVisible(pen)) Element(PointsShape("polygon", points), Stroke(pen));
}

void SvgGraphics::DrawRect(const RectD& rect, const Pen& pen) {
  if (IsVisible(pen)) Element(RectShape(rect), Stroke(pen));
}

void SvgGraphics::DrawRoundRect(const RectD& rect, double radiusX, double radiusY, const Pen& pen) {
  if (IsVisible(pen)) Element(RectShape(rect, radiusX, radiusY), Stroke(pen));
}

void SvgGraphics::DrawEllipse(const RectD& rect, const Pen& pen) {
  if (IsVisible(pen)) Element(EllipseShape(rect), Stroke(pen));
}

void SvgGraphics::DrawText(const TextRun& run) {
  if (run.text.empty() || run.color == kNoColor) return;
  out_ += "<text" + Attribute("x", run.origin.x) + Attribute("y", run.origin.y);
  out_ += FontAttributes(run.font ? *run.font : Font(), run.pixelSize);
  if (run.width > 0.0) out_ += Attribute("textLength", run.width) + Attribute("lengthAdjust", "spacingAndGlyphs");
  out_ += Fill(run.color) + Attribute("xml:space", "preserve") + ">" + Escaped(run.text) + "</text>\n";
}

std::string SvgGraphics::NameOf(const PicturePtr& picture) {
  const auto [found, isNew] = pictures_.try_emplace(picture);
  if (!isNew) return found->second;
  const PicturePtr pixels = WithPixels(picture);
  const std::string png = pixels ? EncodePng(*pixels) : std::string();
  if (png.empty()) return {};
  found->second = "p" + std::to_string(pictures_.size());
  out_ += "<defs><image" + Attribute("id", found->second) + Attribute("width", picture->width);
  out_ += Attribute("height", picture->height) + Attribute("preserveAspectRatio", "none");
  out_ += Attribute("xlink:href", "data:image/png;base64," + EncodeBase64(png)) + "/></defs>\n";
  return found->second;
}

void SvgGraphics::DrawPicture(const PicturePtr& picture, const RectD& target) {
  const std::string name = picture ? NameOf(picture) : std::string();
  if (name.empty()) return;
  std::string place = "translate(" + Number(target.left) + " " + Number(target.top) + ") scale(";
  place += FormatExact(target.Width() / picture->width) + " " + FormatExact(target.Height() / picture->height) + ")";
  Element("use" + Attribute("xlink:href", "#" + name), Attribute("transform", place));
}

}  // namespace xrpt
