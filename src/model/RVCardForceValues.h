// A button that writes values to device variables. Stands in conditioned cards only.
#pragma once

#include "model/ListTable.h"
#include "model/RVCardButton.h"

namespace xrpt {

class RVCardForceValues : public RVCardButton {
 public:
  using RVCardButton::RVCardButton;

  static const CardClass& Class();
  const CardClass& GetRuntimeClass() const override { return Class(); }
  std::unique_ptr<RVCardControl> GetClone() const override { return std::make_unique<RVCardForceValues>(*this); }

  // Removes one variable; false for an index that names none.
  bool DeleteVariable(std::int32_t index);
  // Removes all variables.
  void Clear();
  static const ListTable<RVCardControl>& Variables();

  // Entry i of each belongs to variable i.
  std::vector<std::wstring> variables;  // names in brackets: "[DEVICE.VARIABLE]"
  std::vector<std::wstring> values;     // text, may be empty
  std::vector<bool> direct;             // type DIRECT, else USER
  std::vector<std::int32_t> decimals;
  std::int32_t current = -1;  // the one selected in the editor, -1: none

 private:
  static std::span<const CardRow> Rows();
  void ReadVariables(const XmlNode& node);
};

}  // namespace xrpt
