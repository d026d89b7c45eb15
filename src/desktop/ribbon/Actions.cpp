#include "desktop/ribbon/Actions.h"

#include <QAction>
#include <QVariant>
#include <QWidget>

#include "desktop/look/Icons.h"
#include "desktop/look/Texts.h"
#include "editor/CommandHelp.h"
#include "editor/RVEditControlWnd.h"

namespace xrpt {

namespace {

QList<QKeySequence> ShortcutsOf(const Command& command) {
  QList<QKeySequence> keys;
  for (const QString& key : QString::fromLatin1(command.keys).split(QLatin1Char(' '), Qt::SkipEmptyParts))
    keys.append(QKeySequence::fromString(key, QKeySequence::PortableText));
  return keys;
}

bool IsPlainKey(const QKeySequence& key) {
  const Qt::KeyboardModifiers modifiers = key.isEmpty() ? Qt::NoModifier : key[0].keyboardModifiers();
  const bool isFunctionKey = !key.isEmpty() && key[0].key() >= Qt::Key_F1 && key[0].key() <= Qt::Key_F35;
  return modifiers == Qt::NoModifier && !isFunctionKey;
}

QString TooltipOf(const Command& command, const QList<QKeySequence>& keys, const QString& detail = {}) {
  const QString label = Translated(command.textId) + (detail.isEmpty() ? detail : QStringLiteral(": ") + detail);
  QString tip = QStringLiteral("<b>%1</b>").arg(label.toHtmlEscaped());
  if (!keys.isEmpty())
    tip += QStringLiteral("&nbsp;&nbsp;%1").arg(keys[0].toString(QKeySequence::NativeText).toHtmlEscaped());
  return tip + QStringLiteral("<br>%1").arg(Translated(command.HintTextId()).toHtmlEscaped());
}

}  // namespace

Actions::Actions(RVEditControlWnd& frame, QWidget& window, QWidget& page) : frame_(frame) {
  for (const Command& command : CommandCatalogue()) actions_.push_back(MakeAction(command, window, page));
  Refresh();
}

QAction* Actions::MakeAction(const Command& command, QWidget& window, QWidget& page) {
  auto* action = new QAction(ThemedIcon(QLatin1String(command.icon)), Translated(command.textId), &window);
  const QList<QKeySequence> keys = ShortcutsOf(command);
  action->setObjectName(QLatin1String(command.name));
  action->setData(QVariant::fromValue(static_cast<const void*>(&command)));
  action->setShortcuts(keys);
  action->setToolTip(TooltipOf(command, keys));
  action->setStatusTip(Translated(command.HintTextId()));
  action->setCheckable(command.isChecked != nullptr);
  const bool isForPage = !keys.isEmpty() && IsPlainKey(keys[0]);
  action->setShortcutContext(isForPage ? Qt::WidgetWithChildrenShortcut : Qt::WindowShortcut);
  (isForPage ? page : window).addAction(action);
  QObject::connect(action, &QAction::triggered, &window, [this, &command, action] {
    if (beforeRun) beforeRun();
    RunCommand(frame_, command);
    RefreshOne(*action);
    if (afterRun) afterRun();
  });
  return action;
}

QAction* Actions::Find(std::string_view name) const {
  for (QAction* action : actions_) {
    if (name == CommandOf(*action).name) return action;
  }
  return nullptr;
}

const Command& Actions::CommandOf(const QAction& action) {
  return *static_cast<const Command*>(action.data().value<const void*>());
}

QString Actions::FullLabelOf(const QAction& action) {
  return QStringLiteral("%1: %2").arg(Translated(CommandOf(action).groupTextId), action.text());
}

std::wstring Actions::WhyUnavailable(const QAction& action) const {
  return xrpt::WhyUnavailable(CommandOf(action), frame_);
}

void Actions::Refresh() {
  for (QAction* action : actions_) RefreshOne(*action);
}

void Actions::RefreshOne(QAction& action) const {
  const Command& command = CommandOf(action);
  action.setEnabled(command.isEnabled(frame_));
  if (command.isChecked) action.setChecked(command.isChecked(frame_));
  if (!command.detail) return;
  const QString detail = ToQString(command.detail(frame_));
  action.setToolTip(TooltipOf(command, action.shortcuts(), detail));
  action.setStatusTip(detail.isEmpty() ? Translated(command.HintTextId()) : detail);
}

}  // namespace xrpt
