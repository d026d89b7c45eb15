// What exported files are called. Pure.
#pragma once

#include <QStringList>
#include <vector>

#include "editor/ExportChoice.h"
#include "platform/Files.h"

namespace xrpt {

// The name as typed when it ends in one of the endings (".png", ".svg"), in whichever case; otherwise with the first of
// them behind it.
QString WithEnding(const QString& typed, const QStringList& endings);

// page.png of one page is page.png; of several, by their numbers, page-1.png, page-3.png.
std::vector<Path> PageFiles(const Path& file, const PageNumbers& pages);

}  // namespace xrpt
