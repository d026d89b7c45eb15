#include "desktop/dialogs/search/MatchModel.h"

#include "desktop/dialogs/DialogParts.h"
#include "desktop/dialogs/DialogTexts.h"
#include "desktop/look/Texts.h"

namespace xrpt {

namespace {

constexpr std::size_t kBeforeMatch = 24;  // characters of a text that stand before its match
constexpr std::size_t kShownText = 200;

const TextOwner& OwnerOf(const SearchHit& hit) { return hit.in->owner; }
const TextOwner& OwnerOf(const TextChange& change) { return change.owner; }

template <class Found>
QString Place(const Found& found) {
  return TextOfPlace(found.place, OwnerOf(found));
}

// One line, however many the text has.
QString OneLine(std::wstring text) {
  std::replace(text.begin(), text.end(), L'\n', L' ');
  return ToQString(text);
}

}  // namespace

void MatchModel::ShowMatches() {
  beginResetModel();
  showsChanges_ = false;
  changes_.clear();
  endResetModel();
}

void MatchModel::ShowChanges() {
  beginResetModel();
  showsChanges_ = true;
  changes_ = search_.Preview();
  chosen_.assign(changes_.size(), true);
  endResetModel();
}

std::vector<TextChange> MatchModel::ChosenChanges() const {
  std::vector<TextChange> chosen;
  for (std::size_t i = 0; i < changes_.size(); ++i) {
    if (chosen_[i]) chosen.push_back(changes_[i]);
  }
  return chosen;
}

const TextPlace& MatchModel::PlaceOf(int row) const {
  const auto at = static_cast<std::size_t>(row);
  return showsChanges_ ? changes_[at].place : search_.Hits()[at].place;
}

std::size_t MatchModel::HitOf(int row) const {
  if (!showsChanges_) return static_cast<std::size_t>(row);
  const auto& hits = search_.Hits();
  const auto first = std::lower_bound(hits.begin(), hits.end(), PlaceOf(row),
                                      [](const SearchHit& hit, const TextPlace& place) { return hit.place < place; });
  return static_cast<std::size_t>(first - hits.begin());
}

int MatchModel::RowOf(std::size_t hit) const {
  if (!showsChanges_ || hit >= search_.Hits().size()) return static_cast<int>(hit);
  const TextPlace& place = search_.Hits()[hit].place;
  const auto at = std::lower_bound(changes_.begin(), changes_.end(), place,
                                   [](const TextChange& change, const TextPlace& to) { return change.place < to; });
  return at == changes_.end() || at->place != place ? -1 : static_cast<int>(at - changes_.begin());
}

int MatchModel::rowCount(const QModelIndex& parent) const {
  if (parent.isValid()) return 0;
  return static_cast<int>(showsChanges_ ? changes_.size() : search_.Hits().size());
}

int MatchModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : showsChanges_ ? 3 : 2; }

QString MatchModel::WhereOf(int row) const {
  const auto at = static_cast<std::size_t>(row);
  return showsChanges_ ? Place(changes_[at]) : Place(search_.Hits()[at]);
}

// The match and what is round it.
MatchModel::Shown MatchModel::MatchOf(int row) const {
  const SearchHit& hit = search_.Hits()[static_cast<std::size_t>(row)];
  const std::wstring& whole = hit.in->text;
  const std::size_t from = hit.position > kBeforeMatch ? hit.position - kBeforeMatch : 0;
  const QString before =
      (from > 0 ? QString(QChar(0x2026)) : QString()) + OneLine(whole.substr(from, hit.position - from));
  const QString match = OneLine(whole.substr(hit.position, search_.text.size()));
  const QString after = OneLine(whole.substr(std::min(whole.size(), hit.position + search_.text.size()), kShownText));
  return {before + match + after, static_cast<int>(before.size()), static_cast<int>(match.size())};
}

MatchModel::Shown MatchModel::TextOf(const QModelIndex& index) const {
  if (index.column() == kWhere) return {WhereOf(index.row())};
  if (!showsChanges_) return MatchOf(index.row());
  const TextChange& change = changes_[static_cast<std::size_t>(index.row())];
  const std::wstring& text = index.column() == kAfter ? change.after : change.before;
  return {OneLine(text.substr(0, kShownText))};
}

QVariant MatchModel::data(const QModelIndex& index, int role) const {
  if (index.row() >= rowCount()) return {};
  switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole:
      return TextOf(index).text;
    case kMatchBegin:
      return TextOf(index).begin;
    case kMatchLength:
      return TextOf(index).length;
    case Qt::CheckStateRole:
      if (!showsChanges_ || index.column() != kWhere) return {};
      return chosen_[static_cast<std::size_t>(index.row())] ? Qt::Checked : Qt::Unchecked;
    default:
      return {};
  }
}

bool MatchModel::setData(const QModelIndex& index, const QVariant& value, int role) {
  if (role != Qt::CheckStateRole || !showsChanges_) return false;
  chosen_[static_cast<std::size_t>(index.row())] = value.toInt() == Qt::Checked;
  emit dataChanged(index, index);
  return true;
}

Qt::ItemFlags MatchModel::flags(const QModelIndex& index) const {
  const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
  return showsChanges_ && index.column() == kWhere ? flags | Qt::ItemIsUserCheckable : flags;
}

QVariant MatchModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
  if (section == kWhere) return Translated(text::kWhere);
  if (!showsChanges_) return Translated(text::kTextColumn);
  return Translated(section == kText ? text::kBefore : text::kAfter);
}

}  // namespace xrpt
