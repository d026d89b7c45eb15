#include "desktop/dialogs/DialogSize.h"

#include <QDialog>
#include <QScreen>

#include "platform/Host.h"

namespace xrpt {

namespace {
constexpr wchar_t kWidth[] = L"width";
constexpr wchar_t kHeight[] = L"height";
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

}  // namespace xrpt
