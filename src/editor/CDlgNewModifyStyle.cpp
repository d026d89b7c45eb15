#include "editor/CDlgNewModifyStyle.h"

#include "editor/CDlgAddRemoveStyle.h"

namespace xrpt {

CDlgNewModifyStyle::CDlgNewModifyStyle(StylesPort& port, tagStyleCfg opened)
    : style(std::move(opened)), port_(port), opened_(style) {
  edit_.openedName = style.name;
}

bool CDlgNewModifyStyle::IsValid() {
  fieldToMend_ = Field::None;
  const int problem = CheckStyle(style, edit_);
  if (problem == 0) return true;
  if (problem == kAskOverwriteStyle) return port_.Ask(problem) != Answer::No;
  fieldToMend_ = problem == kStyleSizeNotPositive ? Field::Size : Field::Name;
  port_.Tell(problem);
  return false;
}

CDlgNewModifyStyle::Outcome CDlgNewModifyStyle::OnOK() {
  if (!IsValid()) return Outcome::StaysOpen;
  if (!HasChanged()) return Outcome::Cancelled;
  const SaveResult saved = SaveStyle(style, edit_);
  if (!saved) {
    port_.TellFailure(TextOf(saved));
    return Outcome::StaysOpen;
  }
  savedName_ = style.name;
  return Outcome::Saved;
}

}  // namespace xrpt
