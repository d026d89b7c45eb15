#include "desktop/dialogs/formulas/UseQuestions.h"

#include "desktop/dialogs/DialogTexts.h"
#include "desktop/dialogs/QuestionBox.h"
#include "editor/EditorTexts.h"
#include "platform/FileTexts.h"
#include "platform/Host.h"
#include "platform/Text.h"

namespace xrpt {

bool AskToUpdateUses(const std::wstring& from, const std::wstring& to, std::size_t uses, QWidget* parent) {
  const Question question{.textId = text::kUpdateUses,
                          .text = FillIn(HostText(text::kUpdateUses), {from, std::to_wstring(uses), to}),
                          .detail = {},
                          .answers = {text::kUpdateThem, text::kLeaveThem},
                          .yes = 0,
                          .no = 1};
  return AskInBox(question, parent) == question.yes;
}

bool AskToRemoveUsed(const std::wstring& name, std::size_t uses, const std::wstring& places, QWidget* parent) {
  const Question question{.textId = text::kRemoveUsed,
                          .text = FillIn(HostText(text::kRemoveUsed), {name, std::to_wstring(uses)}),
                          .detail = places,
                          .answers = {text::kDeleteAnswer, text::kCancelAnswer},
                          .yes = 0,
                          .no = 1,
                          .isAlarming = true,
                          .usual = 1};
  return AskInBox(question, parent) == question.yes;
}

}  // namespace xrpt
