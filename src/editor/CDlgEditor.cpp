#include "editor/CDlgEditor.h"

#include "editor/EditorTexts.h"

namespace xrpt {
void CDlgEditor::Save() {
  if (frame_.IsModified() && port_.Ask(text::kSaveChanges) == Answer::Yes) frame_.Save();
  frame_.SetModified(false);
}

bool CDlgEditor::OnCommand(int id) {
  if (id != kSaveCommand) return false;
  if (frame_.IsModified()) frame_.Save();
  frame_.SetModified(false);
  return true;
}

}  // namespace xrpt
