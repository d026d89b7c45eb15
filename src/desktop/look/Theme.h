// The window's colours, light and dark. The page keeps its own.
#pragma once

#include <QColor>

#include "platform/Color.h"

class QApplication;

namespace xrpt {

enum class ThemeChoice { System = 0, Light = 1, Dark = 2 };

struct ThemeColors {
  QColor window;    // bars and docks
  QColor panel;     // lists and fields
  QColor surround;  // round the page
  QColor border;
  QColor field;        // inside of fields and buttons
  QColor fieldBorder;  // round them
  QColor text;
  QColor muted;  // captions
  QColor hover;
  QColor pressed;
  QColor accent;
  QColor onAccent;
  QColor guide;    // smart guides
  QColor notice;   // behind a message
  QColor warning;  // behind an alarming one
  QColor tip;      // behind a tooltip
  QColor wrong;    // what is not right
};

const ThemeColors& CurrentTheme();
bool IsDarkTheme();

// What lies round a page in the one theme or the other, as files hold colours.
Color ThemeSurround(bool isDark);

// What the user chose last, kept in the settings.
ThemeChoice StoredThemeChoice();
void StoreThemeChoice(ThemeChoice choice);

// Gives the whole application its colours. System is what the desktop had when the program started.
void ApplyTheme(QApplication& application, ThemeChoice choice);

}  // namespace xrpt
