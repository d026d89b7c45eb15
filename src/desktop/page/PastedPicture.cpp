#include "desktop/page/PastedPicture.h"

#include <QAction>
#include <QBuffer>
#include <QClipboard>
#include <QCursor>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>
#include <QWidget>
#include <algorithm>
#include <string>

#include "canvas/RVEditTemplateWnd.h"
#include "desktop/look/Texts.h"
#include "desktop/panels/MessageBar.h"
#include "desktop/ribbon/Actions.h"
#include "editor/Drops.h"
#include "editor/RVEditControlWnd.h"

namespace xrpt {

namespace {

constexpr char kPng[] = "image/png";

bool HoldsPicture(const QMimeData* data) {
  if (!data || data->hasText()) return false;
  const QStringList formats = data->formats();
  return data->hasImage() || std::any_of(formats.begin(), formats.end(), [](const QString& format) {
           return format.startsWith(QLatin1String("image/"));
         });
}

// As the other program wrote it where that can be stored, so that nothing huge is decoded only to be refused.
std::string BytesOf(const QMimeData& data) {
  if (data.hasFormat(QLatin1String(kPng))) return data.data(QLatin1String(kPng)).toStdString();
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  qvariant_cast<QImage>(data.imageData()).save(&buffer, "PNG");
  return buffer.data().toStdString();
}

}  // namespace

PastedPicture::PastedPicture(RVEditControlWnd& frame, Actions& actions, MessageBar& messages, QWidget& view)
    : QObject(&view), frame_(frame), actions_(actions), messages_(messages), view_(view) {
  for (const char* name : {"Paste", "PasteInPlace"}) {
    QAction* action = actions_.Find(name);
    connect(action, &QAction::triggered, this, [this] { Paste(); });
    connect(action, &QAction::enabledChanged, this, [this, action] { KeepEnabled(*action); });
    connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, this, [this, action] {
      isPicture_.reset();
      KeepEnabled(*action);
    });
  }
}

bool PastedPicture::IsOffered() {
  if (!isPicture_) isPicture_ = HoldsPicture(QGuiApplication::clipboard()->mimeData());
  return *isPicture_ && frame_.PageCount() > 0 && !frame_.CurrentPage().IsActionPasteEnabled();
}

// The catalogue knows of cards and texts only.
void PastedPicture::KeepEnabled(QAction& action) {
  if (!action.isEnabled() && IsOffered()) action.setEnabled(true);
}

// Where the pointer is, or in the middle of what is seen.
void PastedPicture::Paste() {
  if (!IsOffered()) return;
  const QMimeData* data = QGuiApplication::clipboard()->mimeData();
  if (!data) return;
  const QPoint pointer = view_.mapFromGlobal(QCursor::pos());
  const QPoint at = view_.rect().contains(pointer) ? pointer : view_.rect().center();
  const std::wstring problem = DropPictureBytes(frame_, BytesOf(*data), {at.x(), at.y()});
  if (!problem.empty()) messages_.Show(ToQString(problem), true);
  if (actions_.afterRun) actions_.afterRun();
}

}  // namespace xrpt
