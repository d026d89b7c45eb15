// A page as a small picture, for previews: what paper shows.
#pragma once

#include <QImage>
#include <QSize>

namespace xrpt {

class RVReportPage;

// As large as fits into the room (pixels); null for a page without a size.
QImage PictureOf(const RVReportPage& page, const QSize& room);

}  // namespace xrpt
