#include "desktop/dialogs/search/SearchDialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QTabBar>
#include <QTreeView>

#include "desktop/TextIds.h"
#include "desktop/dialogs/DialogParts.h"
#include "desktop/dialogs/DialogSize.h"
#include "desktop/dialogs/DialogTexts.h"
#include "desktop/dialogs/search/MatchDelegate.h"
#include "desktop/dialogs/search/MatchModel.h"
#include "desktop/look/Texts.h"
#include "editor/RVEditControlWnd.h"
#include "platform/Text.h"

namespace xrpt {

namespace {
constexpr int kIdleMilliseconds = 150;
constexpr int kReplacePage = 1;
}  // namespace

SearchDialog::SearchDialog(RVEditControlWnd& frame, QWidget* parent)
    : QDialog(parent, Qt::Tool), search_(frame), idle_(new QTimer(this)), changes_(new QTimer(this)) {
  setWindowTitle(Translated(text::kFindAndReplace));
  auto* column = new QVBoxLayout(this);
  tabs_ = new QTabBar(this);
  tabs_->setObjectName(QStringLiteral("ribbonTabs"));
  tabs_->setAccessibleName(Translated(text::kFindAndReplace));
  tabs_->addTab(Translated(text::kSearchWord));
  tabs_->addTab(Translated(text::kReplaceWord));
  column->addWidget(tabs_);
  BuildFields(*column);
  BuildList(*column);
  BuildButtons(*column);
  idle_->setSingleShot(true);
  idle_->setInterval(kIdleMilliseconds);
  connect(idle_, &QTimer::timeout, this, [this] { SearchAnew(); });
  changes_->setSingleShot(true);
  changes_->setInterval(kIdleMilliseconds);
  connect(changes_, &QTimer::timeout, this, [this] {
    if (isVisible() && search_.Refresh()) FillList();
  });
  connect(tabs_, &QTabBar::currentChanged, this, [this] { ShowReplacing(); });
  KeepSize(*this, L"search", {560, 420});
  ShowReplacing();
}

void SearchDialog::BuildFields(QBoxLayout& column) {
  const auto field = [this](int textId) {
    auto* edit = new QLineEdit(this);
    edit->setAccessibleName(Translated(textId));
    edit->installEventFilter(this);
    connect(edit, &QLineEdit::textEdited, this, [this] { idle_->start(); });
    return edit;
  };
  find_ = field(text::kFindWhat);
  find_->setClearButtonEnabled(true);
  replaceWith_ = field(text::kReplaceWith);
  scope_ = new QComboBox(this);
  scope_->setAccessibleName(Translated(text::kSearchIn));
  scope_->addItems({Translated(text::kThisPage), Translated(text::kWholeReport)});
  matchCase_ = new QCheckBox(Translated(text::kMatchCase), this);
  connect(scope_, &QComboBox::currentIndexChanged, this, [this] { SearchAnew(); });
  connect(matchCase_, &QCheckBox::toggled, this, [this] { SearchAnew(); });
  auto* row = new QHBoxLayout();
  row->addWidget(scope_);
  row->addWidget(matchCase_);
  row->addStretch(1);
  fields_ = new QFormLayout();
  fields_->addRow(Translated(text::kFindWhat), find_);
  fields_->addRow(Translated(text::kReplaceWith), replaceWith_);
  fields_->addRow(Translated(text::kSearchIn), row);
  column.addLayout(fields_);
}

void SearchDialog::BuildList(QBoxLayout& column) {
  model_ = new MatchModel(search_, this);
  list_ = new QTreeView(this);
  list_->setModel(model_);
  list_->setItemDelegate(new MatchDelegate(list_));
  list_->setAccessibleName(Translated(text::kMatches));
  list_->header()->setAccessibleName(Translated(text::kMatches));
  list_->setRootIsDecorated(false);
  list_->setUniformRowHeights(true);
  list_->setAllColumnsShowFocus(true);
  list_->header()->resizeSection(MatchModel::kWhere, 170);
  list_->installEventFilter(this);
  connect(list_, &QTreeView::clicked, this, [this](const QModelIndex& index) { GoToRow(index, false); });
  connect(list_, &QTreeView::doubleClicked, this, [this](const QModelIndex& index) { GoToRow(index, true); });
  state_ = new QLabel(this);
  state_->setObjectName(QStringLiteral("muted"));
  column.addWidget(list_, 1);
  column.addWidget(state_);
}

QPushButton* SearchDialog::AddButton(QBoxLayout& row, int textId, void (SearchDialog::*run)()) {
  auto* button = new QPushButton(Translated(textId), this);
  button->setAutoDefault(false);
  connect(button, &QPushButton::clicked, this, run);
  row.addWidget(button);
  return button;
}

void SearchDialog::BuildButtons(QBoxLayout& column) {
  auto* row = new QHBoxLayout();
  next_ = AddButton(*row, text::kFindNext, &SearchDialog::FindNext);
  next_->setDefault(true);
  previous_ = AddButton(*row, text::kFindPrevious, &SearchDialog::FindPrevious);
  replace_ = AddButton(*row, text::kReplaceWord, &SearchDialog::Replace);
  replaceAll_ = AddButton(*row, text::kReplaceAllMatches, &SearchDialog::ReplaceAll);
  row->addStretch(1);
  column.addLayout(row);
}

// --- What is looked for ---

bool SearchDialog::Replaces() const { return tabs_->currentIndex() == kReplacePage; }

void SearchDialog::Open(bool replaces) {
  tabs_->setCurrentIndex(replaces ? kReplacePage : 0);
  show();
  raise();
  activateWindow();
  find_->selectAll();
  find_->setFocus();
  SearchAnew();
}

void SearchDialog::ShowReplacing() {
  const bool replaces = Replaces();
  replaceWith_->setVisible(replaces);
  fields_->labelForField(replaceWith_)->setVisible(replaces);
  replace_->setVisible(replaces);
  replaceAll_->setVisible(replaces);
  TakeFields();
  FillList();
}

void SearchDialog::TakeFields() {
  search_.text = find_->text().toStdWString();
  search_.replacement = replaceWith_->text().toStdWString();
  search_.matchCase = matchCase_->isChecked();
  search_.wholeReport = scope_->currentIndex() == 1;
}

void SearchDialog::SearchAnew() {
  idle_->stop();
  said_.clear();
  TakeFields();
  search_.Restart();
  FillList();
}

// Not at once: a drag or somebody who types changes it many times.
void SearchDialog::ReportChanged() {
  if (isVisible() && !changes_->isActive()) changes_->start();
}

void SearchDialog::FillList() {
  Replaces() ? model_->ShowChanges() : model_->ShowMatches();
  list_->header()->setStretchLastSection(true);
  if (Replaces()) list_->header()->resizeSection(MatchModel::kText, list_->width() / 3);
  ShowCurrent();
}

// --- The current match ---

void SearchDialog::ShowCurrent() {
  const auto hit = search_.Current();
  const QModelIndex row = model_->index(hit ? model_->RowOf(*hit) : -1, 0);
  list_->setCurrentIndex(row);
  if (row.isValid()) list_->scrollTo(row);
  ShowState();
}

void SearchDialog::ShowState() {
  const std::size_t count = search_.Hits().size();
  const auto hit = search_.Current();
  next_->setEnabled(count > 0);
  previous_->setEnabled(count > 0);
  replaceAll_->setEnabled(count > 0);
  replace_->setEnabled(hit.has_value());
  if (!said_.isEmpty()) return state_->setText(said_);
  if (search_.text.empty()) return state_->clear();
  if (count == 0) return state_->setText(Translated(text::kTextNotFound));
  const std::wstring total = std::to_wstring(count);
  if (hit) return state_->setText(ToQString(FillIn(HostText(text::kMatchOf), {std::to_wstring(*hit + 1), total})));
  state_->setText(count == 1 ? Translated(text::kOneMatch) : Translated(text::kMatchCount, ToQString(total)));
}

void SearchDialog::Arrived() {
  ShowCurrent();
  if (search_.Current() && matchShown) move(PlaceClearOf(matchShown(), frameGeometry(), screen()->availableGeometry()));
}

void SearchDialog::FindNext() {
  if (idle_->isActive()) SearchAnew();
  said_.clear();
  search_.Next();
  Arrived();
}

void SearchDialog::FindPrevious() {
  if (idle_->isActive()) SearchAnew();
  said_.clear();
  search_.Previous();
  Arrived();
}

void SearchDialog::GoToRow(const QModelIndex& index, bool opens) {
  if (!index.isValid()) return;
  said_.clear();
  const std::size_t hit = model_->HitOf(index.row());
  search_.GoTo(hit);
  Arrived();
  if (hit >= search_.Hits().size()) return;
  const SearchHit found = search_.Hits()[hit];
  if (opens && found.place.page == TextPlace::kFormulas && formulaChosen) formulaChosen(found.in->owner.id);
}

// --- Replacing ---

void SearchDialog::Replace() {
  if (idle_->isActive()) TakeFields();
  idle_->stop();
  if (search_.Replace()) search_.Next();
  FillList();
  Arrived();
}

void SearchDialog::ReplaceAll() {
  if (idle_->isActive()) SearchAnew();
  const std::vector<TextChange> chosen = model_->ChosenChanges();
  const std::size_t replaced = search_.ReplaceAll(chosen);
  said_ = Translated(text::kReplacedCount, QString::number(replaced));
  FillList();
}

// Enter finds (with Shift, backwards) from the fields; in the list it goes to the card.
bool SearchDialog::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return QDialog::eventFilter(watched, event);
  const auto* key = static_cast<QKeyEvent*>(event);
  if (key->key() != Qt::Key_Return && key->key() != Qt::Key_Enter) return QDialog::eventFilter(watched, event);
  if (watched == list_) {
    GoToRow(list_->currentIndex(), true);
  } else {
    key->modifiers() & Qt::ShiftModifier ? FindPrevious() : FindNext();
  }
  return true;
}

}  // namespace xrpt
