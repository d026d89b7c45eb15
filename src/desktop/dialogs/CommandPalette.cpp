#include "desktop/dialogs/CommandPalette.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QScreen>

#include "desktop/TextIds.h"
#include "desktop/look/Texts.h"
#include "desktop/ribbon/Actions.h"
#include "editor/CommandHelp.h"

namespace xrpt {

int MatchScore(const QString& label, const QString& typed) {
  int score = 1;
  qsizetype last = -1;
  for (const QChar letter : typed) {
    const qsizetype at = label.indexOf(letter, last + 1, Qt::CaseInsensitive);
    if (at < 0) return 0;
    const bool startsWord = at == 0 || !label[at - 1].isLetterOrNumber();
    score += startsWord ? 8 : 1;
    if (at == last + 1) score += 5;
    last = at;
  }
  return score;
}

int SenseScore(const QString& words, const QString& typed) {
  constexpr qsizetype kLeast = 3;
  if (typed.size() < kLeast) return 0;
  for (const QString& word : words.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
    if (word.startsWith(typed, Qt::CaseInsensitive)) return 5 * static_cast<int>(typed.size());
  }
  return 0;
}

CommandPalette::CommandPalette(const Actions& actions, QWidget* parent)
    : QDialog(parent, Qt::Popup | Qt::FramelessWindowHint), actions_(actions) {
  setObjectName(QStringLiteral("palettePopup"));
  setAttribute(Qt::WA_DeleteOnClose);
  setAccessibleName(Translated(text::kFindCommand));
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(8, 8, 8, 8);
  field_ = new QLineEdit(this);
  field_->setPlaceholderText(Translated(text::kFindCommand));
  field_->setAccessibleName(Translated(text::kFindCommand));
  field_->setClearButtonEnabled(true);
  field_->installEventFilter(this);
  list_ = new QListWidget(this);
  list_->setAccessibleName(Translated(text::kCommands));
  list_->setFocusPolicy(Qt::NoFocus);
  list_->setIconSize({18, 18});
  column->addWidget(field_);
  column->addWidget(list_);
  connect(field_, &QLineEdit::textChanged, this, [this](const QString& typed) { Fill(typed); });
  connect(list_, &QListWidget::itemClicked, this, [this] { RunChosen(); });
  resize(std::clamp(parent->width() - 80, 320, 520), std::clamp(parent->height() - 120, 200, 380));
  const QPoint place = parent->mapToGlobal(QPoint((parent->width() - width()) / 2, 90));
  move(std::max(place.x(), screen()->availableGeometry().left()), place.y());
  Fill({});
  field_->setFocus();
}

void CommandPalette::Fill(const QString& typed) {
  std::vector<std::pair<int, QAction*>> found;
  for (QAction* action : actions_.All()) {
    const int byLabel = MatchScore(Actions::FullLabelOf(*action), typed.trimmed());
    const int bySense = SenseScore(ToQString(OtherWordsFor(Actions::CommandOf(*action))), typed.trimmed());
    if (const int score = std::max(byLabel, bySense)) found.emplace_back(score, action);
  }
  std::stable_sort(found.begin(), found.end(), [](const auto& a, const auto& b) { return a.first > b.first; });
  list_->clear();
  for (const auto& [score, action] : found) {
    const QString key = action->shortcut().toString(QKeySequence::NativeText);
    const QString why = ToQString(actions_.WhyUnavailable(*action));
    const QString label = Actions::FullLabelOf(*action) + (why.isEmpty() ? why : QStringLiteral(" — ") + why);
    auto* item =
        new QListWidgetItem(action->icon(), key.isEmpty() ? label : label + QStringLiteral("    ") + key, list_);
    item->setData(Qt::UserRole, QVariant::fromValue(static_cast<QObject*>(action)));
    if (!action->isEnabled()) item->setFlags(Qt::NoItemFlags);
  }
  for (int row = 0; row < list_->count(); ++row) {
    if (!(list_->item(row)->flags() & Qt::ItemIsEnabled)) continue;
    list_->setCurrentRow(row);
    break;
  }
}

void CommandPalette::RunChosen() {
  QListWidgetItem* item = list_->currentItem();
  auto* action = item ? qobject_cast<QAction*>(item->data(Qt::UserRole).value<QObject*>()) : nullptr;
  close();
  if (action) action->trigger();
}

// The field keeps the keyboard; the list takes from it what walks a list.
bool CommandPalette::eventFilter(QObject* watched, QEvent* event) {
  if (watched != field_ || event->type() != QEvent::KeyPress) return QDialog::eventFilter(watched, event);
  switch (static_cast<QKeyEvent*>(event)->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
      QApplication::sendEvent(list_, event);
      return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      RunChosen();
      return true;
    default:
      return false;
  }
}

}  // namespace xrpt
