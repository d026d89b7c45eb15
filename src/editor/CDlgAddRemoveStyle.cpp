#include "editor/CDlgAddRemoveStyle.h"

#include <algorithm>

#include "platform/Characters.h"
#include "platform/Host.h"

namespace xrpt {
namespace {

// Names are compared as the user's eye does it: without their case first.
bool ComesBefore(const tagStyleCfg& left, const tagStyleCfg& right, StyleColumn column) {
  switch (column) {
    case StyleColumn::Name:
      return FoldCase(left.name) < FoldCase(right.name);
    case StyleColumn::Face:
      return left.font.face < right.font.face;
    case StyleColumn::Size:
      return left.font.size < right.font.size;
  }
  return false;
}

}  // namespace

void CDlgAddRemoveStyle::UpdateList() {
  rows_ = ListStyles();
  Sort();
}

void CDlgAddRemoveStyle::OrderList(StyleColumn column) {
  isDescending_ = column == order_ && !isDescending_;
  order_ = column;
  Sort();
}

void CDlgAddRemoveStyle::Sort() {
  std::stable_sort(rows_.begin(), rows_.end(), [this](const tagStyleCfg& left, const tagStyleCfg& right) {
    return isDescending_ ? ComesBefore(right, left, order_) : ComesBefore(left, right, order_);
  });
}

std::vector<std::size_t> CDlgAddRemoveStyle::Selection() const {
  std::vector<std::size_t> rows;
  for (std::size_t row = 0; row < rows_.size(); ++row) {
    if (std::find(selected_.begin(), selected_.end(), rows_[row].name) != selected_.end()) rows.push_back(row);
  }
  return rows;
}

void CDlgAddRemoveStyle::Select(const std::vector<std::size_t>& rows) {
  selected_.clear();
  for (const std::size_t row : rows) {
    if (row < rows_.size()) selected_.push_back(rows_[row].name);
  }
}

CDlgAddRemoveStyle::Buttons CDlgAddRemoveStyle::UpdateButtons() const {
  const std::size_t count = Selection().size();
  return {count == 1, count > 0, count > 0};
}

bool CDlgAddRemoveStyle::NewModifyStyle(CDlgNewModifyStyle& dialog) {
  dialog.SetOverWrite(true);
  if (!port_.EditStyle(dialog)) return false;
  selected_ = {dialog.StyleName()};
  UpdateList();
  return true;
}

bool CDlgAddRemoveStyle::OnStyleNew() {
  CDlgNewModifyStyle dialog(port_, OpenStyle({}));
  return NewModifyStyle(dialog);
}

bool CDlgAddRemoveStyle::OnStyleModify() {
  const std::vector<std::size_t> rows = Selection();
  if (rows.size() != 1) return false;
  CDlgNewModifyStyle dialog(port_, OpenStyle(rows_[rows.front()].name));
  if (!NewModifyStyle(dialog)) return false;
  if (dialog.StyleName() != dialog.OpenedName()) renamings_.push_back({dialog.OpenedName(), dialog.StyleName()});
  return true;
}

bool CDlgAddRemoveStyle::OnStyleDuplicate() {
  const std::vector<std::size_t> rows = Selection();
  if (rows.size() != 1) return false;
  CDlgNewModifyStyle dialog(port_, OpenStyle(rows_[rows.front()].name));
  dialog.SetForceNewStyle(true);
  dialog.style.name = UniqueStyleName(rows_[rows.front()].name, StyleNames());
  return NewModifyStyle(dialog);
}

bool CDlgAddRemoveStyle::OnStyleRemove() {
  if (selected_.empty() || port_.Ask(kAskRemoveStyles) != Answer::Yes) return false;
  const int removed = RemoveStyles(std::exchange(selected_, {}));
  UpdateList();
  return removed > 0;
}

bool CDlgAddRemoveStyle::CopyToClipboard() const {
  if (selected_.empty()) return false;
  return CurrentHost().clipboard->PutToClipboard({CopyStyles(selected_), {}, {}});
}

bool CDlgAddRemoveStyle::PasteFromClipboard() {
  std::vector<std::wstring> pasted = PasteStyles(CurrentHost().clipboard->GetFromClipboard(kClipboardLimit));
  if (pasted.empty()) return false;
  selected_ = std::move(pasted);
  UpdateList();
  return true;
}

}  // namespace xrpt
