#include "editor/FileQuestions.h"

#include <ctime>

#include "editor/EditorTexts.h"
#include "platform/FileTexts.h"
#include "platform/Host.h"
#include "platform/Text.h"

namespace xrpt {
namespace {

std::wstring MomentText(std::int64_t seconds) {
  const auto when = static_cast<std::time_t>(seconds);
  std::tm local{};
  if (!::localtime_r(&when, &local)) return {};
  return CurrentHost().locale->DateTimeText(local);
}

std::wstring FileName(const Path& file) { return FromUtf8(file.filename().string()); }

}  // namespace

std::wstring HolderText(const LockHolder& holder) {
  return FillIn(HostText(text::kHolder), {holder.user, holder.machine, MomentText(holder.since)});
}

Question AskToSave(const std::wstring& report) {
  return {.textId = text::kSaveChanges,
          .text = FillIn(HostText(text::kSaveChangesTo), {report}),
          .detail = {},
          .answers = {text::kSaveAnswer, text::kDontSave, text::kCancelAnswer},
          .yes = 0,
          .no = 1};
}

Question AskToReplace(const SaveResult& refused) {
  const bool isGone = !CurrentHost().files->Stamp(refused.file).exists;
  const bool isAnothers = refused.outcome == SaveOutcome::Taken;
  const int textId = isGone ? text::kRemovedOnDisk : isAnothers ? text::kOverwriteAnother : text::kOverwriteChanged;
  const int detailId = isGone       ? text::kRemovedDetail
                       : isAnothers ? text::kOverwriteAnotherDetail
                                    : text::kOverwriteDetail;
  Question question{.textId = textId,
                    .text = FillIn(HostText(textId), {FileName(refused.file)}),
                    .detail = HostText(detailId),
                    .answers = {text::kOverwrite, text::kSaveAsAnswer, text::kShowDifferences, text::kCancelAnswer},
                    .yes = 0,
                    .no = 3,
                    .isAlarming = true,
                    .usual = 1};
  if (!isGone) return question;
  question.usual = 0;
  question.answers = {text::kSaveAnswer, text::kSaveAsAnswer, text::kCancelAnswer};
  question.no = 2;
  return question;
}

Question AskToSaveLocked(const std::wstring& report, const LockHolder& holder) {
  return {.textId = text::kSaveLocked,
          .text = FillIn(HostText(text::kSaveLocked), {report}),
          .detail = FillIn(HostText(text::kOpenLockedDetail), {HolderText(holder)}),
          .answers = {text::kSaveAsAnswer, text::kTakeOver, text::kCancelAnswer},
          .yes = 1,
          .no = 2,
          .isAlarming = true};
}

Question AskToOpenLocked(const std::wstring& report, const LockHolder& holder) {
  return {.textId = text::kOpenLocked,
          .text = FillIn(HostText(text::kOpenLocked), {report}),
          .detail = FillIn(HostText(text::kOpenLockedDetail), {HolderText(holder)}),
          .answers = {text::kOpenReadOnly, text::kTakeOver, text::kCancelAnswer},
          .yes = 1,
          .no = 0};
}

Question AskToLoseStyles(const std::wstring& report, int count) {
  return {.textId = text::kLoseStyles,
          .text = FillIn(HostText(text::kLoseStyles), {report}),
          .detail = FillIn(HostText(text::kLoseStylesDetail), {std::to_wstring(count)}),
          .answers = {text::kSaveAnyway, text::kCancelAnswer},
          .yes = 0,
          .no = 1,
          .isAlarming = true,
          .usual = 1};
}

}  // namespace xrpt
