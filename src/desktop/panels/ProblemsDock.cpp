#include "desktop/panels/ProblemsDock.h"

#include <QHeaderView>

#include "desktop/TextIds.h"
#include "desktop/look/Icons.h"
#include "desktop/look/Texts.h"

namespace xrpt {

namespace {

constexpr int kCardRole = Qt::UserRole;

QString IconOf(ProblemSeverity severity) {
  switch (severity) {
    case ProblemSeverity::Information:
      return QStringLiteral("information");
    case ProblemSeverity::Error:
      return QStringLiteral("error");
    case ProblemSeverity::Warning:
      break;
  }
  return QStringLiteral("warning");
}

}  // namespace

ProblemsList::ProblemsList(QWidget* parent) : QTreeWidget(parent) {
  setAccessibleName(Translated(text::kProblems));
  setHeaderHidden(true);
  header()->setAccessibleName(Translated(text::kProblems));
  setRootIsDecorated(false);
  setColumnCount(1);
  setUniformRowHeights(false);
  setWordWrap(true);
  connect(this, &QTreeWidget::itemActivated, this, [this](QTreeWidgetItem* item) {
    const std::wstring id = item->data(0, kCardRole).toString().toStdWString();
    if (!id.empty() && cardChosen) cardChosen(id);
  });
  ShowNothingFound();
}

void ProblemsList::ShowNothingFound() {
  auto* item = new QTreeWidgetItem(this, {Translated(text::kNoProblems)});
  item->setFlags(Qt::NoItemFlags);
}

void ProblemsList::Add(const Problem& problem) {
  if (topLevelItemCount() == 1 && topLevelItem(0)->flags() == Qt::NoItemFlags) clear();
  auto* item = new QTreeWidgetItem(this, {problem.text});
  item->setIcon(0, ThemedIcon(IconOf(problem.severity)));
  item->setToolTip(0, problem.text);
  item->setData(0, kCardRole, ToQString(problem.cardId));
  scrollToItem(item);
  if (countChanged) countChanged(topLevelItemCount());
}

void ProblemsList::Clear() {
  clear();
  ShowNothingFound();
  if (countChanged) countChanged(0);
}

}  // namespace xrpt
