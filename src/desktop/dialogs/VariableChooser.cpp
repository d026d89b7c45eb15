#include "desktop/dialogs/VariableChooser.h"

#include <QListView>

#include "desktop/TextIds.h"
#include "desktop/dialogs/DialogSize.h"
#include "desktop/look/Texts.h"

namespace xrpt {

namespace {

QString LabelOf(const std::wstring& name, const Device& device, const DeviceVariable& variable) {
  QStringList words;
  for (const std::wstring& word : {device.name, variable.name}) {
    if (!word.empty()) words.append(ToQString(word));
  }
  const QString id = ToQString(name);
  return words.isEmpty() ? id : QStringLiteral("%1   %2").arg(id, words.join(QStringLiteral(" · ")));
}

class VariablesModel final : public NamesModel {
 public:
  VariablesModel() : NamesModel(nullptr) {
    for (const Device& device : CurrentHost().devices->Devices()) {
      for (const DeviceVariable& variable : device.variables) {
        std::wstring name = CurrentHost().variables->JoinDriverVariable({device.id, variable.id, {}, {}});
        const QString label = LabelOf(name, device, variable);
        Add(std::move(name), label);
      }
    }
    FilterAgain();
  }
};

}  // namespace

VariableChooser::VariableChooser(const std::wstring& current, QWidget* parent)
    : NameChooser(*new VariablesModel, {text::kChooseVariable, text::kFilterVariables, text::kVariables}, parent) {
  List().model()->setParent(this);
  NameChooser::Choose(current);
  KeepSize(*this, L"Variables", {520, 480});
}

std::optional<std::wstring> VariableChooser::Choose(const std::wstring& current, QWidget* parent) {
  VariableChooser dialog(current, parent);
  if (dialog.exec() != Accepted || dialog.Chosen().empty()) return std::nullopt;
  return dialog.Chosen();
}

}  // namespace xrpt
