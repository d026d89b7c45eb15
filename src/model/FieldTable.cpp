#include "model/FieldTable.h"

#include <cstring>

#include "model/FieldWalk.h"

namespace xrpt {

std::string FieldRow::FullName() const {
  std::string full = group ? std::string(group) + "/" : std::string();
  return full + (name ? name : "");
}

bool SameGroup(const FieldRow& left, const FieldRow& right) {
  if (left.group == right.group) return true;  // as most do, one literal being kept once
  return left.group && right.group && std::strcmp(left.group, right.group) == 0;
}

void FieldFinder::OneOfSeveral::Add(const FieldRow& row) {
  first = &row;
  ++count;
}

void FieldFinder::Add(const FieldRow& row) {
  if (!whole_ && row.FullName() == name_) whole_ = &row;
  if (name_ == row.name) bare_.Add(row);
  if (row.group && name_ == row.group) grouped_.Add(row);
}

const FieldRow* FieldFinder::Found() const {
  if (whole_) return whole_;
  return bare_.Only() ? bare_.Only() : grouped_.Only();
}

}  // namespace xrpt
