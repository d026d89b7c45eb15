#include "editor/CDlgEditor.h"

namespace xrpt {
namespace {

constexpr int kSaveChangesText = 32472;

}  // namespace

void CDlgEditor::Save() {
  if (frame_.IsModified() && port_.Ask(kSaveChangesText) == Answer::Yes) frame_.Save();
  frame_.SetModified(false);
}

bool CDlgEditor::OnCommand(int id) {
  if (id != kSaveCommand) return false;
  if (frame_.IsModified()) frame_.Save();
  frame_.SetModified(false);
  return true;
}

}  // namespace xrpt
