#include "desktop/look/Theme.h"

#include <QApplication>
#include <QFile>

#include "desktop/look/FieldStyle.h"
#include "platform/Host.h"

namespace xrpt {

namespace {

const ThemeColors kLight{0xF5F7F8, 0xFFFFFF, 0xE4E9EC, 0xD9DFE3, 0xFFFFFF, 0xBAC5CB, 0x1C2830, 0x62727C, 0xE2ECF0,
                         0xCADEE6, 0x17708F, 0xFFFFFF, 0xE0218A, 0xE6F1F5, 0xFCEFD9, 0xFFFFFF, 0xC62828};
const ThemeColors kDark{0x24292D, 0x1C2023, 0x14171A, 0x363E44, 0x2B3136, 0x4B555C, 0xE2E7EA, 0x95A3AC, 0x323A40,
                        0x3F4A51, 0x4FB3D4, 0x0C1E26, 0xE0218A, 0x243742, 0x46391F, 0x3F4A51, 0xFF7B72};

bool g_dark = false;

bool SystemIsDark(const QApplication& application) {
  static const bool dark = application.palette().color(QPalette::Window).lightness() < 128;
  return dark;
}

void SetAllGroups(QPalette& palette, QPalette::ColorRole role, const QColor& color) { palette.setColor(role, color); }

QPalette PaletteOf(const ThemeColors& colors) {
  QPalette palette(colors.text, colors.window, colors.panel.lighter(g_dark ? 160 : 100), colors.border.darker(120),
                   colors.border, colors.text, Qt::white, colors.panel, colors.window);
  SetAllGroups(palette, QPalette::Highlight, colors.accent);
  SetAllGroups(palette, QPalette::HighlightedText, colors.onAccent);
  SetAllGroups(palette, QPalette::Link, colors.accent);
  SetAllGroups(palette, QPalette::PlaceholderText, colors.muted);
  SetAllGroups(palette, QPalette::AlternateBase, colors.window);
  SetAllGroups(palette, QPalette::ToolTipBase, colors.tip);
  SetAllGroups(palette, QPalette::ToolTipText, colors.text);
  SetAllGroups(palette, QPalette::Button, g_dark ? QColor(0x30373C) : QColor(0xFBFCFC));
  SetAllGroups(palette, QPalette::Mid, colors.border);
  SetAllGroups(palette, QPalette::Light, g_dark ? colors.hover : QColor(Qt::white));
  const QColor faint = g_dark ? QColor(0x69757D) : QColor(0xA3AFB6);
  for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText, QPalette::HighlightedText})
    palette.setColor(QPalette::Disabled, role, faint);
  palette.setColor(QPalette::Disabled, QPalette::Highlight, colors.border);
  return palette;
}

// The style sheet names its colours "@accent" and so on.
QString StyleSheetOf(const ThemeColors& colors) {
  QFile file(QStringLiteral(":/look/theme.qss"));
  if (!file.open(QIODevice::ReadOnly)) return {};
  QString sheet = QString::fromUtf8(file.readAll());
  const std::pair<const char*, QColor> names[] = {
      {"@window", colors.window},     {"@panel", colors.panel},       {"@surround", colors.surround},
      {"@border", colors.border},     {"@text", colors.text},         {"@muted", colors.muted},
      {"@hover", colors.hover},       {"@thumb", colors.fieldBorder}, {"@notice", colors.notice},
      {"@warning", colors.warning},   {"@tip", colors.tip},           {"@pressed", colors.pressed},
      {"@onAccent", colors.onAccent}, {"@accent", colors.accent},     {"@wrong", colors.wrong}};
  for (const auto& [name, color] : names) sheet.replace(QLatin1String(name), color.name());
  return sheet;
}

}  // namespace

const ThemeColors& CurrentTheme() { return g_dark ? kDark : kLight; }

Color ThemeSurround(bool isDark) {
  const QRgb color = (isDark ? kDark : kLight).surround.rgb();
  return Rgb(static_cast<unsigned>(qRed(color)), static_cast<unsigned>(qGreen(color)),
             static_cast<unsigned>(qBlue(color)));
}

bool IsDarkTheme() { return g_dark; }

ThemeChoice StoredThemeChoice() {
  const int stored = CurrentHost().settings->ProfileInt(L"Desktop", L"theme", 0);
  return stored == 1 || stored == 2 ? static_cast<ThemeChoice>(stored) : ThemeChoice::System;
}

void StoreThemeChoice(ThemeChoice choice) {
  CurrentHost().settings->SetProfileInt(L"Desktop", L"theme", static_cast<int>(choice));
}

void ApplyTheme(QApplication& application, ThemeChoice choice) {
  const bool systemIsDark = SystemIsDark(application);
  g_dark = choice == ThemeChoice::Dark || (choice == ThemeChoice::System && systemIsDark);
  application.setStyle(new FieldStyle());
  application.setPalette(PaletteOf(CurrentTheme()));
  application.setStyleSheet(StyleSheetOf(CurrentTheme()));
}

}  // namespace xrpt
