#include "desktop/dialogs/ExportNames.h"

namespace xrpt {

QString WithEnding(const QString& typed, const QStringList& endings) {
  const bool hasOne = std::any_of(endings.begin(), endings.end(), [&typed](const QString& ending) {
    return typed.endsWith(ending, Qt::CaseInsensitive);
  });
  return hasOne ? typed : typed + endings.front();
}

std::vector<Path> PageFiles(const Path& file, const PageNumbers& pages) {
  if (pages.size() == 1) return {file};
  std::vector<Path> files;
  for (const std::size_t page : pages) {
    Path numbered = file;
    numbered.replace_filename(file.stem().wstring() + L"-" + std::to_wstring(page + 1) + file.extension().wstring());
    files.push_back(numbered);
  }
  return files;
}

}  // namespace xrpt
