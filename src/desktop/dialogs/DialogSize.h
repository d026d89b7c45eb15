// Dialogs open as large as they were closed last.
#pragma once

class QDialog;
class QSize;

namespace xrpt {

// `name` tells dialogs apart in the settings; `first` is the size before there is one. Never larger than the screen.
void KeepSize(QDialog& dialog, const wchar_t* name, const QSize& first);

}  // namespace xrpt
