// What dialogs have in common: their closing buttons, and texts with several places.
#pragma once

#include <QDialogButtonBox>
#include <QStringList>

class QAction;
class QDialog;
class QPushButton;

namespace xrpt {

// OK, which Enter presses, and Cancel.
QDialogButtonBox* AddClosingButtons(QDialog& dialog);

// A button that does what an action does, and is enabled with it.
QPushButton* ButtonFor(QAction& action, QWidget* parent);

// A question over the dialog; Enter says yes.
bool AskYesNo(QDialog& dialog, const QString& question);

// A catalogue text with its "%d" and "%s" replaced, in their order.
QString TranslatedWith(int textId, const QStringList& arguments);

}  // namespace xrpt
