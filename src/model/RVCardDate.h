// A date and time shown by a pattern.
#pragma once

#include "model/RVCardLabel.h"

namespace xrpt {

class RVCardDate : public RVCardLabel {
 public:
  explicit RVCardDate(ModelServices& services = InstalledServices());

  static const CardClass& Class();
  const CardClass& GetRuntimeClass() const override { return Class(); }
  std::unique_ptr<RVCardControl> GetClone() const override { return std::make_unique<RVCardDate>(*this); }

  // The sample value by the pattern; this moment when the value names none.
  std::wstring ShownText() const override;
  bool ShowsItsText() const override { return false; }

  std::wstring pattern = L"dd/MM/yyyy HH:mm:ss";
  std::wstring value;  // sample shown while editing: the moment the card was made, as the user writes dates

 private:
  static std::span<const CardRow> Rows();
};

}  // namespace xrpt
