// Dialogs open as large as they were closed last, and get out of the way of what they show.
#pragma once

class QDialog;
class QPoint;
class QRect;
class QSize;

namespace xrpt {

// `name` tells dialogs apart in the settings; `first` is the size before there is one. Never larger than the screen.
void KeepSize(QDialog& dialog, const wchar_t* name, const QSize& first);

// Where a dialog's frame goes that would cover what it leads to: to the nearer side of that, or below or above,
// whichever lies on the screen; where it is when it covers nothing, or when no place is free. Screen pixels.
QPoint PlaceClearOf(const QRect& shown, const QRect& dialog, const QRect& screen);

}  // namespace xrpt
