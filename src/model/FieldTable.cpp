#include "model/FieldTable.h"

#include <cstring>

#include "model/FieldWalk.h"
#include "platform/Host.h"
#include "platform/Text.h"

namespace xrpt {

const Word* WordOf(std::span<const Word> words, int value) {
  const auto found =
      std::find_if(words.begin(), words.end(), [value](const Word& word) { return word.value == value; });
  return found == words.end() ? nullptr : &*found;
}

const Word* WordOf(std::span<const Word> words, std::wstring_view text) {
  const auto isIt = [text](const Word& word) { return FromUtf8(word.text) == text; };
  const auto found = std::find_if(words.begin(), words.end(), isIt);
  return found == words.end() ? nullptr : &*found;
}

std::wstring NameOf(const Word& word) {
  if (word.textId == 0) return FromUtf8(word.text);
  return FormatText(HostText(word.textId), std::to_wstring(word.number));
}

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
