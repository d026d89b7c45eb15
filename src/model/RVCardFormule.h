// The result of a formula or variable, shown by a number format.
#pragma once

#include "model/RVCardLabel.h"

namespace xrpt {

class RVCardFormule : public RVCardLabel {
 public:
  using RVCardLabel::RVCardLabel;

  static const CardClass& Class();
  const CardClass& GetRuntimeClass() const override { return Class(); }
  std::unique_ptr<RVCardControl> GetClone() const override { return std::make_unique<RVCardFormule>(*this); }

  // Takes a format text such as 05.02: digits of the integer and of the decimal part, a leading 0 of either asking for
  // padding with zeros. Without a point the defaults (-1, 3, no padding) stand.
  static void ParseFormat(std::wstring_view format, std::int32_t& integers, std::int32_t& decimals, bool& leftPadding,
                          bool& rightPadding);

  // The value by the number format when it reads as a number, else as it stands.
  std::wstring ShownText() const override;
  bool ShowsItsText() const override { return false; }

  std::wstring value;  // the expression; the canvas shows it, as a number when it reads as one
  bool thousandSeparator = false;
  bool leftPadding = false;
  bool rightPadding = false;
  std::int32_t integers = -1;  // -1: free
  std::int32_t decimals = 3;   // -1: free
  bool enableVariableDefaultValue = false;

 private:
  static std::span<const CardRow> Rows();
  bool HasVariableDefault() const { return enableVariableDefaultValue; }
  void ReadLeftPadding(const XmlNode& count);
  void WriteLeftPadding(XmlWriter& out) const;
  void ReadRightPadding(const XmlNode& count);
  void WriteRightPadding(XmlWriter& out) const;
};

}  // namespace xrpt
