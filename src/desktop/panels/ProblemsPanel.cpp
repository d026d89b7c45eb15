#include "desktop/panels/ProblemsPanel.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QMenu>
#include <QTreeView>

#include "desktop/ProblemTexts.h"
#include "desktop/TextIds.h"
#include "desktop/look/Icons.h"
#include "desktop/look/SeverityIcon.h"
#include "desktop/look/Texts.h"
#include "desktop/panels/ProblemsModel.h"
#include "desktop/panels/ProblemsWatch.h"
#include "editor/ProblemCards.h"
#include "editor/RVEditControlWnd.h"

namespace xrpt {

namespace {

constexpr Severity kSeverities[] = {Severity::Error, Severity::Warning, Severity::Information};
constexpr int kCardCharacters = 34;
constexpr int kFewestCardCharacters = 20;
constexpr int kPageCharacters = 8;

}  // namespace

ProblemsPanel::ProblemsPanel(RVEditControlWnd& frame, ProblemsWatch& watch, QWidget* parent)
    : QWidget(parent), frame_(frame), watch_(watch), model_(new ProblemsModel(frame, watch.Problems(), this)) {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  MakeList();
  column->addWidget(MakeBar());
  column->addWidget(list_, 1);
  setFocusProxy(list_);
  Refresh();
}

QWidget* ProblemsPanel::MakeBar() {
  auto* bar = new QWidget(this);
  auto* row = new QHBoxLayout(bar);
  row->setContentsMargins(4, 2, 4, 2);
  row->setSpacing(2);
  for (const Severity severity : kSeverities) row->addWidget(MakeFilter(severity));
  row->addStretch(1);
  putRight_ = new QToolButton(bar);
  putRight_->setProperty("flat", true);
  putRight_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  putRight_->setIcon(ThemedIcon(QStringLiteral("validate")));
  putRight_->setMinimumWidth(0);
  putRight_->setFocusPolicy(Qt::StrongFocus);
  row->addWidget(putRight_);
  connect(putRight_, &QToolButton::clicked, this, [this] { PutRight(); });
  return bar;
}

QToolButton* ProblemsPanel::MakeFilter(Severity severity) {
  auto* filter = new QToolButton(this);
  filter->setProperty("flat", true);
  filter->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  filter->setIcon(SeverityIcon(severity));
  filter->setFocusPolicy(Qt::StrongFocus);
  filter->setCheckable(true);
  filter->setChecked(watch_.Problems().Shows(severity));
  filters_.emplace(severity, filter);
  connect(filter, &QToolButton::toggled, this, [this, severity](bool on) { watch_.Show(severity, on); });
  return filter;
}

void ProblemsPanel::MakeList() {
  list_ = new QTreeView(this);
  list_->setModel(model_);
  list_->setAccessibleName(Translated(text::kProblemList));
  list_->header()->setAccessibleName(Translated(text::kProblemList));
  list_->setRootIsDecorated(false);
  list_->setUniformRowHeights(true);
  list_->setAllColumnsShowFocus(true);
  list_->setContextMenuPolicy(Qt::CustomContextMenu);
  list_->setTextElideMode(Qt::ElideRight);
  list_->header()->setStretchLastSection(false);
  list_->header()->setSectionResizeMode(ProblemsModel::kMessage, QHeaderView::Stretch);
  list_->header()->setHighlightSections(false);
  SizeColumns();
  connect(list_, &QTreeView::activated, this, [this] { ShowCard(); });
  connect(list_, &QTreeView::customContextMenuRequested, this, [this](QPoint at) { OpenMenu(at); });
  connect(list_->selectionModel(), &QItemSelectionModel::currentRowChanged, this, [this] { ShowChosen(); });
}

void ProblemsPanel::SizeColumns() {
  const int character = fontMetrics().averageCharWidth();
  const int card = std::min(character * kCardCharacters, width() * 3 / 10);
  list_->header()->resizeSection(ProblemsModel::kCard, card);
  list_->header()->resizeSection(ProblemsModel::kPage, character * kPageCharacters);
  list_->setColumnHidden(ProblemsModel::kCard, card < character * kFewestCardCharacters);
}

// What is wrong needs the room most; which card it is, the page shows when the row is chosen.
void ProblemsPanel::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  SizeColumns();
}

void ProblemsPanel::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::FontChange && list_) SizeColumns();
}

// --- Showing ---

void ProblemsPanel::Refresh() {
  const std::optional<Problem> chosen = chosen_;
  model_->Reset();
  ShowCounts();
  const std::optional<std::size_t> row = chosen ? watch_.Problems().RowOf(*chosen) : std::nullopt;
  if (row) Choose(static_cast<int>(*row));
  ShowChosen();
}

void ProblemsPanel::ShowCounts() {
  for (const auto& [severity, filter] : filters_) {
    const QString count = QString::number(watch_.Problems().Count(severity));
    const QString name = Translated(CountTextId(severity), count);
    filter->setText(count);
    filter->setAccessibleName(name);
    filter->setToolTip(name + QStringLiteral("\n") + Translated(text::kShowThese));
  }
}

void ProblemsPanel::ShowChosen() {
  const Problem* problem = Chosen();
  chosen_ = problem ? std::optional(*problem) : std::nullopt;
  const bool has = problem && problem->finding.remedy.textId != 0;
  const QString what = Translated(has ? problem->finding.remedy.textId : text::kPutRight);
  putRight_->setEnabled(has);
  putRight_->setText(what);
  putRight_->setAccessibleName(what);
  putRight_->setToolTip(what);
}

const Problem* ProblemsPanel::Chosen() const {
  const QModelIndex current = list_->currentIndex();
  if (!current.isValid() || static_cast<std::size_t>(current.row()) >= watch_.Problems().Size()) return nullptr;
  return watch_.Problems().ProblemOf(static_cast<std::size_t>(current.row()));
}

void ProblemsPanel::Choose(int row) { list_->setCurrentIndex(model_->index(row, ProblemsModel::kMessage)); }

// --- Doing ---

void ProblemsPanel::Step(int by) {
  const int rows = static_cast<int>(watch_.Problems().Size());
  if (rows == 0) return;
  const QModelIndex current = list_->currentIndex();
  const int first = by > 0 ? -1 : 0;
  Choose(((current.isValid() ? current.row() : first) + by + rows) % rows);
  ShowCard();
}

void ProblemsPanel::ShowCard() {
  if (beforeAct) beforeAct();
  const Problem* problem = Chosen();
  if (problem && ShowProblem(frame_, *problem) && acted) acted();
}

void ProblemsPanel::PutRight() {
  if (beforeAct) beforeAct();
  const Problem* problem = Chosen();
  if (problem && ApplyRemedy(frame_, *problem) && acted) acted();
  list_->setFocus();  // the button is about to have nothing to do
}

void ProblemsPanel::CopyMessage() {
  const QModelIndex current = list_->currentIndex();
  if (current.isValid()) QGuiApplication::clipboard()->setText(model_->data(current, Qt::DisplayRole).toString());
}

void ProblemsPanel::OpenMenu(QPoint at) {
  const QModelIndex under = list_->indexAt(at);
  if (!under.isValid() || model_->IsEmpty()) return;
  Choose(under.row());
  const Problem* problem = Chosen();
  QMenu menu(this);
  if (problem && problem->card != 0) menu.addAction(Translated(text::kShowCard), this, [this] { ShowCard(); });
  if (problem && problem->finding.remedy.textId != 0) {
    menu.addAction(Translated(problem->finding.remedy.textId), this, [this] { PutRight(); });
  }
  menu.addAction(Translated(text::kCopyMessage), this, [this] { CopyMessage(); });
  menu.exec(list_->viewport()->mapToGlobal(at));
}

}  // namespace xrpt
