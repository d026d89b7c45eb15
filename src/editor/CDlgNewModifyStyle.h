// One text style being written: what the dialog decides, without the dialog.
#pragma once

#include "editor/TextStyles.h"

namespace xrpt {

class StylesPort;

class CDlgNewModifyStyle {
 public:
  // A style without a name is a new one. The port must outlive the dialog.
  CDlgNewModifyStyle(StylesPort& port, tagStyleCfg opened);

  // An existing style of the new name may be replaced, after asking.
  void SetOverWrite(bool on) { edit_.overWrite = on; }
  // The style is saved beside the one that was opened.
  void SetForceNewStyle(bool on) { edit_.forceNew = on; }

  bool HasChanged() const { return !(style == opened_); }
  // Says what is wrong, or asks what must be asked. False: the dialog stays open.
  bool IsValid();
  // Where the user has to go to mend what `IsValid` said last.
  enum class Field { None, Name, Size };
  Field FieldToMend() const { return fieldToMend_; }

  enum class Outcome { StaysOpen, Cancelled, Saved };
  Outcome OnOK();
  // Under which it was saved; empty before.
  const std::wstring& StyleName() const { return savedName_; }
  const std::wstring& OpenedName() const { return edit_.openedName; }

  tagStyleCfg style;  // as it is edited

 private:
  StylesPort& port_;
  tagStyleCfg opened_;
  StyleEdit edit_;
  Field fieldToMend_ = Field::None;
  std::wstring savedName_;
};

}  // namespace xrpt
