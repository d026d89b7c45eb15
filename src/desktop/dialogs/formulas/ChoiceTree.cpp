#include "desktop/dialogs/formulas/ChoiceTree.h"

#include <QComboBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTreeWidget>

#include "desktop/dialogs/DialogTexts.h"
#include "desktop/look/Texts.h"

namespace xrpt {

namespace {

constexpr int kFewGroups = 12;  // so many open by themselves while the list is filtered

int TitleOf(ChoiceKind kind) {
  switch (kind) {
    case ChoiceKind::Formula:
      return text::kFormulas;
    case ChoiceKind::Variable:
      return text::kVariableChoices;
    case ChoiceKind::VirtualDevice:
      return text::kVirtualDevices;
    case ChoiceKind::HourType:
      return text::kHourTypes;
    case ChoiceKind::Function:
      return text::kFunctions;
    default:
      return text::kOperators;
  }
}

QTreeWidgetItem* ChildOf(QTreeWidgetItem* parent, const QString& title) {
  const int last = parent->childCount() - 1;
  if (last >= 0 && parent->child(last)->text(0) == title) return parent->child(last);
  auto* child = new QTreeWidgetItem(parent, {title});
  child->setFirstColumnSpanned(true);
  return child;
}

}  // namespace

ChoiceTree::ChoiceTree(const ExpressionSources& sources, QWidget* parent)
    : QWidget(parent), choices_(ExpressionChoices(sources)), filter_(new QLineEdit(this)) {
  filter_->setPlaceholderText(Translated(text::kFilterChoices));
  filter_->setAccessibleName(Translated(text::kFilterChoices));
  filter_->setClearButtonEnabled(true);
  filter_->installEventFilter(this);
  BuildTree();
  BuildGoBacks(sources.goBacks);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  auto* top = new QHBoxLayout();
  top->addWidget(filter_, 1);
  top->addWidget(goBack_);
  column->addLayout(top);
  column->addWidget(tree_, 1);
  column->addWidget(help_);
  connect(filter_, &QLineEdit::textChanged, this, [this](const QString& typed) { Fill(typed); });
  Fill({});
}

void ChoiceTree::BuildTree() {
  tree_ = new QTreeWidget(this);
  tree_->setAccessibleName(Translated(text::kChoices));
  tree_->setColumnCount(2);
  tree_->setHeaderHidden(true);
  tree_->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
  tree_->header()->setAccessibleName(Translated(text::kChoices));
  tree_->setUniformRowHeights(true);
  tree_->installEventFilter(this);
  connect(tree_, &QTreeWidget::itemDoubleClicked, this, [this] { Choose(); });
  connect(tree_, &QTreeWidget::currentItemChanged, this, [this] { ShowHelp(); });
  help_ = new QLabel(this);
  help_->setObjectName(QStringLiteral("muted"));
  help_->setTextFormat(Qt::PlainText);
  help_->setWordWrap(true);
  help_->setMinimumHeight(help_->fontMetrics().lineSpacing() * 2);
  help_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
}

void ChoiceTree::BuildGoBacks(const SourceList& goBacks) {
  goBack_ = new QComboBox(this);
  goBack_->setAccessibleName(Translated(text::kGoBackTo));
  goBack_->setToolTip(Translated(text::kGoBackTo));
  goBack_->addItem(Translated(text::kPresentValue), QString());
  for (std::size_t i = 0; i < goBacks.Size(); ++i)
    goBack_->addItem(ToQString(goBacks.names[i]), ToQString(goBacks.ids[i]));
  goBack_->setVisible(goBacks.Size() > 0);
}

void ChoiceTree::FocusFilter() { filter_->setFocus(); }

// --- The tree ---

void ChoiceTree::Fill(const QString& typed) {
  const std::wstring wanted = typed.toStdWString();
  tree_->clear();
  for (std::size_t i = 0; i < choices_.size(); ++i) {
    if (!IsFoundBy(choices_[i], wanted)) continue;
    auto* item = new QTreeWidgetItem(ParentOf(choices_[i]), {ToQString(choices_[i].name), ToQString(choices_[i].help)});
    item->setData(0, Qt::UserRole, static_cast<qulonglong>(i));
  }
  Open(!typed.isEmpty());
}

QTreeWidgetItem* ChoiceTree::ParentOf(const ExpressionChoice& choice) {
  QTreeWidgetItem* kind = ChildOf(tree_->invisibleRootItem(), Translated(TitleOf(choice.kind)));
  return choice.group.empty() ? kind : ChildOf(kind, ToQString(choice.group));
}

// The first thing that was found is the current one.
void ChoiceTree::Open(bool all) {
  int opened = 0;
  for (int i = 0; i < tree_->topLevelItemCount(); ++i) {
    QTreeWidgetItem* kind = tree_->topLevelItem(i);
    kind->setExpanded(all);
    for (int j = 0; all && j < kind->childCount() && opened < kFewGroups; ++j) {
      if (kind->child(j)->childCount() == 0) continue;
      kind->child(j)->setExpanded(true);
      ++opened;
    }
  }
  QTreeWidgetItem* first = tree_->topLevelItem(0);
  while (all && first && first->childCount() > 0) first = first->child(0);
  tree_->setCurrentItem(first);
  if (first) tree_->scrollToItem(first);
}

const ExpressionChoice* ChoiceTree::CurrentChoice() const {
  const QTreeWidgetItem* item = tree_->currentItem();
  if (!item || !item->data(0, Qt::UserRole).isValid()) return nullptr;
  return &choices_[static_cast<std::size_t>(item->data(0, Qt::UserRole).toULongLong())];
}

void ChoiceTree::ShowHelp() {
  const ExpressionChoice* choice = CurrentChoice();
  help_->setText(choice ? ToQString(choice->help) : QString());
}

// A group opens and closes instead.
void ChoiceTree::Choose() {
  const ExpressionChoice* choice = CurrentChoice();
  if (choice) {
    if (chosen) chosen(InsertedText(*choice, goBack_->currentData().toString().toStdWString()), choice->caretBack);
  } else if (QTreeWidgetItem* group = tree_->currentItem()) {
    group->setExpanded(!group->isExpanded());
  }
}

// The filter keeps the keyboard while the list is walked; Enter chooses and leaves the dialog open.
bool ChoiceTree::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return QWidget::eventFilter(watched, event);
  const int key = static_cast<QKeyEvent*>(event)->key();
  if (key == Qt::Key_Return || key == Qt::Key_Enter) {
    Choose();
    return true;
  }
  const bool walks = key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp || key == Qt::Key_PageDown;
  if (watched != filter_ || !walks) return QWidget::eventFilter(watched, event);
  QApplication::sendEvent(tree_, event);
  return true;
}

}  // namespace xrpt
