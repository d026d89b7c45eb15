#include "desktop/panels/Outline.h"

#include <QApplication>
#include <QItemSelectionModel>
#include <QListView>
#include <QPainter>
#include <QSplitter>

#include "canvas/RVEditTemplateWnd.h"
#include "desktop/TextIds.h"
#include "desktop/look/Icons.h"
#include "desktop/look/Texts.h"
#include "desktop/look/Theme.h"
#include "desktop/panels/CardMarks.h"
#include "editor/RVEditControlWnd.h"
#include "editor/SelectedFields.h"

namespace xrpt {

QString CardIconName(const char* tag) {
  QString name;
  for (const QChar letter : QString::fromLatin1(tag ? tag : "")) {
    if (letter.isUpper()) name += QLatin1Char('-');
    name += letter.toLower();
  }
  // A kind of image without a drawing of its own has that of all images.
  return HasIcon(name) ? name : name.mid(name.lastIndexOf(QLatin1Char('-')) + 1);
}

// --- Pages ---

int PagesModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(frame_.PageCount());
}

QVariant PagesModel::data(const QModelIndex& index, int role) const {
  const auto page = static_cast<std::size_t>(index.row());
  if (page >= frame_.PageCount()) return {};
  const RVGlobalProperties& properties = frame_.Page(page).Page().properties;
  if (role == Qt::DecorationRole) return Picture(page);
  if (role != Qt::DisplayRole && role != Qt::ToolTipRole) return {};
  const QString number = Translated(text::kPageNumber, QString::number(index.row() + 1));
  // A page nobody has named bears its identifier.
  const bool isNamed = !properties.name.empty() && properties.name != properties.id;
  return !isNamed ? number : QStringLiteral("%1 · %2").arg(number, ToQString(properties.name));
}

PagesModel::PagesModel(RVEditControlWnd& frame, QObject* parent)
    : DraggedRows(parent), frame_(frame), pictures_(nullptr) {
  pictures_.painted = [this] { emit dataChanged(index(0), index(std::max(0, rowCount() - 1)), {Qt::DecorationRole}); };
}

// Before it is painted, whichever way the page lies. All are of one size, so that lines are as high as each other.
QVariant PagesModel::Picture(std::size_t page) const {
  const RVReportPage& shown = frame_.Page(page).Page();
  const QPixmap picture = pictures_.Of(shown, frame_.ResourcesSerial(), qApp->devicePixelRatio());
  QPixmap square(QSize(Thumbnails::kSide, Thumbnails::kSide) * qApp->devicePixelRatio());
  square.setDevicePixelRatio(qApp->devicePixelRatio());
  square.fill(Qt::transparent);
  QPainter painter(&square);
  if (picture.isNull()) {
    const QString name = shown.properties.IsLandscape() ? QStringLiteral("landscape") : QStringLiteral("portrait");
    ThemedIcon(name).paint(&painter, {0, 0, Thumbnails::kSide, Thumbnails::kSide});
  } else {
    const QSizeF size = picture.deviceIndependentSize();
    painter.drawPixmap(QPointF((Thumbnails::kSide - size.width()) / 2, (Thumbnails::kSide - size.height()) / 2),
                       picture);
  }
  return square;
}

void PagesModel::Repaint() { pictures_.painted(); }

void PagesModel::Reset() {
  beginResetModel();
  endResetModel();
}

// --- Cards ---

namespace {

QString WithState(const QString& name, const CardNote& note) {
  if (note.locked && note.hidden) return Translated(text::kLockedHiddenCard, name);
  if (note.locked) return Translated(text::kLockedCard, name);
  return note.hidden ? Translated(text::kHiddenCard, name) : name;
}

}  // namespace

Qt::ItemFlags CardsModel::flags(const QModelIndex& index) const {
  const Qt::ItemFlags plain = DraggedRows::flags(index);
  return index.isValid() ? plain | Qt::ItemIsEditable : plain;
}

// A name that says what the card says anyway is none.
bool CardsModel::setData(const QModelIndex& index, const QVariant& value, int role) {
  const CardList& cards = frame_.CurrentPage().Page().cards;
  const auto at = static_cast<std::size_t>(index.row());
  if (role != Qt::EditRole || at >= cards.Size()) return false;
  const std::wstring name = value.toString().trimmed().toStdWString();
  frame_.CurrentPage().NameCard(at, name == CardCaption(cards[at]) ? std::wstring() : name);
  return true;
}

int CardsModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : count_; }

QVariant CardsModel::data(const QModelIndex& index, int role) const {
  const CardList& cards = frame_.CurrentPage().Page().cards;
  const auto at = static_cast<std::size_t>(index.row());
  if (at >= cards.Size()) return {};
  const CardNote& note = frame_.CurrentPage().NoteOf(cards[at]);
  const QString name = ToQString(note.name.empty() ? CardCaption(cards[at]) : note.name);
  if (role == Qt::EditRole) return name;
  if (role == Qt::DisplayRole || role == Qt::ToolTipRole) return WithState(name, note);
  if (role == CardMarks::kNoteRole) return CardMarks::Code(note);
  if (role == Qt::ForegroundRole && note.hidden) return CurrentTheme().muted;
  if (role == Qt::DecorationRole) return ThemedIcon(CardIconName(cards[at].GetRuntimeClass().tag));
  return {};
}

void CardsModel::Reset() {
  const int count = frame_.PageCount() == 0 ? 0 : static_cast<int>(frame_.CurrentPage().Page().cards.Size());
  if (count == count_) {
    emit dataChanged(index(0), index(std::max(0, count - 1)));
    return;
  }
  beginResetModel();
  count_ = count;
  endResetModel();
}

// --- Both ---

namespace {

constexpr int kMoment = 400;  // milliseconds

// In ascending order.
std::vector<std::size_t> ChosenRows(const QListView& list) {
  std::vector<std::size_t> rows;
  for (const QItemSelectionRange& range : list.selectionModel()->selection()) {
    for (int row = range.top(); row <= range.bottom(); ++row) rows.push_back(static_cast<std::size_t>(row));
  }
  std::sort(rows.begin(), rows.end());
  return rows;
}

// Neighbours in one range: the toolkit takes its time over many.
QItemSelection RangesOf(const QAbstractItemModel& model, const std::vector<std::size_t>& rows) {
  QItemSelection ranges;
  for (std::size_t first = 0; first < rows.size();) {
    std::size_t last = first;
    while (last + 1 < rows.size() && rows[last + 1] == rows[last] + 1) ++last;
    ranges.append(QItemSelectionRange(model.index(static_cast<int>(rows[first]), 0),
                                      model.index(static_cast<int>(rows[last]), 0)));
    first = last + 1;
  }
  return ranges;
}

}  // namespace

Outline::Outline(RVEditControlWnd& frame, QWidget* parent)
    : QWidget(parent), frame_(frame), pageModel_(new PagesModel(frame, this)), cardModel_(new CardsModel(frame, this)) {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  auto* split = new QSplitter(Qt::Vertical, this);
  split->setChildrenCollapsible(false);
  repaint_.setSingleShot(true);
  repaint_.setInterval(kMoment);
  connect(&repaint_, &QTimer::timeout, this, [this] { pageModel_->Repaint(); });
  pages_ = MakeList(pageModel_, text::kPages, &Outline::pageMenuWanted);
  cards_ = MakeList(cardModel_, text::kCards, &Outline::cardMenuWanted);
  pageModel_->dropped = [this](const std::vector<std::size_t>& rows, std::size_t before) {
    if (pageDropped) pageDropped(rows.front(), before);
  };
  cardModel_->dropped = [this](const std::vector<std::size_t>& rows, std::size_t before) {
    if (cardsDropped) cardsDropped(rows, before);
  };
  pages_->setIconSize({Thumbnails::kSide, Thumbnails::kSide});
  cards_->setSelectionMode(QAbstractItemView::ExtendedSelection);
  AddMarks();
  split->addWidget(pages_);
  split->addWidget(cards_);
  split->setSizes({260, 340});
  column->addWidget(split);
  connect(pages_->selectionModel(), &QItemSelectionModel::currentChanged, this, [this](const QModelIndex& index) {
    if (!isFilling_ && pageChosen && index.isValid()) pageChosen(static_cast<std::size_t>(index.row()));
  });
  connect(cards_->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
    if (!isFilling_ && cardsChosen) TellCards();
  });
}

void Outline::AddMarks() {
  auto* marks = new CardMarks(*cards_);
  cards_->setItemDelegate(marks);
  marks->hidden = [this](std::size_t card, bool on) {
    frame_.CurrentPage().SelectPlaces({card});
    on ? frame_.CurrentPage().HideSelected() : frame_.CurrentPage().HideCard(card, false);
  };
  marks->locked = [this](std::size_t card, bool on) {
    frame_.CurrentPage().SelectPlaces({card});
    frame_.CurrentPage().LockSelected(on);
  };
}

QListView* Outline::MakeList(DraggedRows* model, int nameTextId, std::function<void(QPoint)> Outline::*menuWanted) {
  auto* list = new QListView(this);
  list->setModel(model);
  list->setAccessibleName(Translated(nameTextId));
  list->setFrameShape(QFrame::NoFrame);
  list->setUniformItemSizes(true);
  list->setIconSize({16, 16});
  list->setTextElideMode(Qt::ElideRight);
  list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  list->setDragDropMode(QAbstractItemView::InternalMove);
  list->setContextMenuPolicy(Qt::CustomContextMenu);
  connect(list, &QListView::customContextMenuRequested, this, [this, list, menuWanted](QPoint at) {
    if (this->*menuWanted && list->indexAt(at).isValid()) (this->*menuWanted)(list->viewport()->mapToGlobal(at));
  });
  return list;
}

void Outline::RefreshPages() {
  isFilling_ = true;
  pageModel_->Reset();
  pages_->setCurrentIndex(pageModel_->index(static_cast<int>(frame_.CurrentPageIndex())));
  isFilling_ = false;
  RefreshCards();
}

void Outline::RefreshCards() {
  repaint_.start();
  isFilling_ = true;
  cardModel_->Reset();
  ShowSelection();
  isFilling_ = false;
}

// A line chosen with Ctrl or Shift joins those before it, so that the card chosen last is the one others align to.
void Outline::TellCards() {
  std::vector<std::size_t> added = ChosenRows(*cards_);
  std::vector<std::size_t> chosen;
  for (const std::size_t before : SelectedIndexes(frame_.CurrentPage())) {
    if (std::erase(added, before) > 0) chosen.push_back(before);
  }
  chosen.insert(chosen.end(), added.begin(), added.end());
  cardsChosen(chosen);
}

// Where list and page agree the list's place is left alone: keys walk on from where they were.
void Outline::ShowSelection() {
  const std::vector<std::size_t> selected = SelectedIndexes(frame_.CurrentPage());
  std::vector<std::size_t> rows = selected;
  std::sort(rows.begin(), rows.end());
  if (rows == ChosenRows(*cards_)) return;
  cards_->selectionModel()->select(RangesOf(*cardModel_, rows), QItemSelectionModel::ClearAndSelect);
  const QModelIndex last = selected.empty() ? QModelIndex() : cardModel_->index(static_cast<int>(selected.back()));
  cards_->selectionModel()->setCurrentIndex(last, QItemSelectionModel::NoUpdate);
  if (last.isValid()) cards_->scrollTo(last);
}

bool Outline::RenameChosen() {
  if (!cards_->hasFocus() || !cards_->currentIndex().isValid()) return false;
  cards_->edit(cards_->currentIndex());
  return true;
}

void Outline::FocusCards() { cards_->setFocus(Qt::ShortcutFocusReason); }

}  // namespace xrpt
