// What dialogs have in common: their closing buttons, and texts with several places.
#pragma once

#include <QDialogButtonBox>
#include <QStringList>

#include "formulas/ReportTexts.h"

class QAction;
class QDialog;
class QPushButton;

namespace xrpt {

// OK, which Enter presses, and Cancel.
QDialogButtonBox* AddClosingButtons(QDialog& dialog);

// A button that does what an action does, and is enabled with it.
QPushButton* ButtonFor(QAction& action, QWidget* parent);

// "Page 2 · Label", "Formula · Peak".
QString TextOfPlace(const TextPlace& place, const TextOwner& owner);

}  // namespace xrpt
