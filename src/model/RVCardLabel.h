// A fixed text with its font, alignment, optional style and marquee-like animation. Dates and formulas derive from it.
#pragma once

#include "model/CommonRows.h"
#include "model/RVCardControl.h"

namespace xrpt {

class RVCardLabel : public RVCardControl {
 public:
  using RVCardControl::RVCardControl;
  RVCardLabel() = default;
  RVCardLabel(const RVCardLabel&) = default;
  RVCardLabel& operator=(const RVCardLabel&) = default;

  static const CardClass& Class();
  const CardClass& GetRuntimeClass() const override { return Class(); }
  std::unique_ptr<RVCardControl> GetClone() const override { return std::make_unique<RVCardLabel>(*this); }

  // Face, style, size and, when the style has one, colour; the orientation stays the card's own.
  bool GetStyleFromFile(const std::wstring& name) override;
  bool UpdateStyleFromFile() override { return GetStyleFromFile(styleName); }

  void Draw(Graphics& graphics, const tagDraw& draw) const override;
  // What the canvas shows.
  virtual std::wstring ShownText() const { return text; }
  // Whether that is the text written on the card, rather than a value.
  virtual bool ShowsItsText() const { return true; }

  bool IsAnimated() const override { return animation.behavior != Behavior::None; }

  Font font;                 // size in points, scaled by the page's font factor when drawn
  double orientation = 0.0;  // degrees, counter-clockwise
  std::int32_t horizontalAlign = kAlignCenter;
  std::int32_t verticalAlign = kAlignCenter;
  std::wstring styleName;
  Animation animation;
  std::wstring text;

 private:
  static std::span<const CardRow> Rows();
  void ReadStyle(const XmlNode& reference);
  void WriteStyle(XmlWriter& out) const;
};

}  // namespace xrpt
