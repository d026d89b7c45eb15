#include "desktop/dialogs/DialogSize.h"

#include <QDialog>
#include <QScreen>

#include "platform/Host.h"

namespace xrpt {

namespace {
constexpr wchar_t kWidth[] = L"width";
constexpr wchar_t kHeight[] = L"height";
constexpr int kGap = 12;  // between a dialog and what it leaves free
}  // namespace

void KeepSize(QDialog& dialog, const wchar_t* name, const QSize& first) {
  const std::wstring section = std::wstring(L"Dialog-") + name;
  const SettingsService& settings = *CurrentHost().settings;
  const QSize stored(settings.ProfileInt(section, kWidth, first.width()),
                     settings.ProfileInt(section, kHeight, first.height()));
  dialog.resize(stored.boundedTo(dialog.screen()->availableSize()).expandedTo(dialog.minimumSizeHint()));
  QObject::connect(&dialog, &QDialog::finished, &dialog, [&dialog, section] {
    CurrentHost().settings->SetProfileInt(section, kWidth, dialog.width());
    CurrentHost().settings->SetProfileInt(section, kHeight, dialog.height());
  });
}

QPoint PlaceClearOf(const QRect& shown, const QRect& dialog, const QRect& screen) {
  if (!dialog.intersects(shown)) return dialog.topLeft();
  const QPoint right(shown.right() + kGap, dialog.top());
  const QPoint left(shown.left() - kGap - dialog.width(), dialog.top());
  const QPoint below(dialog.left(), shown.bottom() + kGap);
  const QPoint above(dialog.left(), shown.top() - kGap - dialog.height());
  const bool nearerRight = dialog.center().x() >= shown.center().x();
  for (const QPoint& place : {nearerRight ? right : left, nearerRight ? left : right, below, above}) {
    if (screen.contains(QRect(place, dialog.size()))) return place;
  }
  return dialog.topLeft();
}

}  // namespace xrpt
