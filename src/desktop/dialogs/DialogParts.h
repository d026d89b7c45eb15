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

// A question over the dialog, with more to know about it below; Enter says yes.
bool AskYesNo(QDialog& dialog, const QString& question, const QString& more = {});

// A catalogue text with its "%d" and "%s" replaced, in their order.
QString TranslatedWith(int textId, const QStringList& arguments);

// "Page 2 · Label", "Formula · Peak".
QString TextOfPlace(const TextPlace& place, const TextOwner& owner);

}  // namespace xrpt
