#include "platform/Files.h"

#include <functional>

#include "platform/FileTexts.h"
#include "platform/Host.h"
#include "platform/Text.h"

namespace xrpt {

FileVersion::FileVersion(const FileStamp& before, std::string_view bytes)
    : stamp(before), hash(std::hash<std::string_view>()(bytes)) {}

// A clock that was set back can make two stamps equal, so that only the content is believed.
bool HasChanged(FileService& files, const Path& file, const FileVersion& since) {
  const FileStamp now = files.Stamp(file);
  if (now.exists != since.stamp.exists) return true;
  if (!now.exists) return false;
  if (now.size != since.stamp.size) return true;
  const std::optional<std::string> bytes = files.Read(file, static_cast<std::size_t>(now.size));
  return !bytes || FileVersion(now, *bytes).hash != since.hash;
}

std::wstring TextOf(const SaveResult& result) {
  const std::wstring file = FromUtf8(result.file.filename().string());
  switch (result.outcome) {
    case SaveOutcome::Saved:
      break;
    case SaveOutcome::Failed:
      return FillIn(HostText(text::kNotSaved), {file, FromUtf8(result.reason)});
    case SaveOutcome::Changed:
      return FormatText(HostText(text::kChangedOnDisk), file);
    case SaveOutcome::Taken:
      return FormatText(HostText(text::kFileIsAnothers), file);
    case SaveOutcome::BadName:
      return HostText(text::kNameIsNoFile);
    case SaveOutcome::Locked:
      return FormatText(HostText(text::kOpenElsewhere), file);
    case SaveOutcome::Cancelled:
      return HostText(text::kSaveCancelled);
  }
  return {};
}

}  // namespace xrpt
