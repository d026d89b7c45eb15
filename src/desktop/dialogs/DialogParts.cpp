#include "desktop/dialogs/DialogParts.h"

#include <QAction>
#include <QDialog>
#include <QPushButton>

#include "desktop/TextIds.h"
#include "desktop/dialogs/DialogTexts.h"
#include "desktop/look/Texts.h"
#include "model/CardRegistry.h"

namespace xrpt {

QDialogButtonBox* AddClosingButtons(QDialog& dialog) {
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, &dialog);
  buttons->button(QDialogButtonBox::Ok)->setText(Translated(text::kAccept));
  buttons->button(QDialogButtonBox::Ok)->setDefault(true);
  for (QAbstractButton* button : buttons->buttons()) button->setIcon({});  // the base style's are of another world
  buttons->button(QDialogButtonBox::Cancel)->setText(Translated(text::kCancel));
  QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
  QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
  return buttons;
}

QPushButton* ButtonFor(QAction& action, QWidget* parent) {
  auto* button = new QPushButton(action.icon(), action.text(), parent);
  button->setToolTip(action.toolTip());
  button->setAutoDefault(false);
  button->setEnabled(action.isEnabled());
  QObject::connect(button, &QPushButton::clicked, &action, [&action] { action.trigger(); });
  QObject::connect(&action, &QAction::changed, button, [button, &action] { button->setEnabled(action.isEnabled()); });
  return button;
}

QString TextOfPlace(const TextPlace& place, const TextOwner& owner) {
  const QString separator = QStringLiteral(" · ");
  if (place.page == TextPlace::kFormulas) return Translated(text::kFormula) + separator + ToQString(owner.id);
  QString kind;
  for (const RegistryRow& row : CardRegistry()) {
    if (owner.tag == row.kind().tag) kind = Translated(row.kind().textId);
  }
  return Translated(text::kPageOfReport, QString::number(place.page + 1)) + separator + kind;
}

}  // namespace xrpt
