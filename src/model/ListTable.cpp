#include "model/ListTable.h"

#include <cstring>

namespace xrpt {
namespace {

bool SameGroup(const ListRow& left, const ListRow& right) {
  return left.group == right.group || (left.group && right.group && std::strcmp(left.group, right.group) == 0);
}

// The rows from `first` on that stand in one group with it.
std::span<const ListRow> GroupFrom(std::span<const ListRow> rows, std::size_t first) {
  std::size_t end = first + 1;
  while (end < rows.size() && SameGroup(rows[first], rows[end])) ++end;
  return rows.subspan(first, end - first);
}

void ReadEntry(const ListRow& row, void* object, XmlCursor& cursor) {
  const XmlNode element = cursor.Find(row.key);
  std::string joined;
  if (element) {
    row.append(object, element.WholeText(joined));
  } else if (row.missing) {
    row.append(object, row.missing);
  }
}

void WriteGroup(std::span<const ListRow> rows, const void* object, std::size_t index, XmlWriter& out) {
  const auto has = [object, index](const ListRow& row) { return row.Has(object, index); };
  if (std::none_of(rows.begin(), rows.end(), has)) return;
  const bool grouped = rows.front().group != nullptr;
  if (grouped) out.Start(rows.front().group);
  for (const ListRow& row : rows) {
    if (has(row)) row.write(object, index, out, row.name);
  }
  if (grouped) out.End(rows.front().group);
}

void WriteItem(const ListTable& table, const void* object, std::size_t index, XmlWriter& out) {
  const XmlElement element(out, table.element);
  for (std::size_t at = 0; at < table.rows.size();) {
    const std::span<const ListRow> group = GroupFrom(table.rows, at);
    WriteGroup(group, object, index, out);
    at += group.size();
  }
}

}  // namespace

// Entries of a missing group read as missing ones do: there is nothing to leave alone yet.
void AppendItem(const ListTable& table, void* object, const XmlNode& element) {
  XmlCursor cursor(element);
  for (std::size_t at = 0; at < table.rows.size();) {
    const std::span<const ListRow> group = GroupFrom(table.rows, at);
    const ListRow& first = group.front();
    at += group.size();
    if (first.needs && !element.Node(first.needs)) continue;
    if (!first.group) {
      for (const ListRow& row : group) ReadEntry(row, object, cursor);
      continue;
    }
    XmlCursor inside(cursor.Find(first.groupKey));
    for (const ListRow& row : group) ReadEntry(row, object, inside);
  }
}

void ReadItems(const ListTable& table, void* object, const XmlNode& node) {
  for (const XmlNode& element : node) {
    if (element.Tag() == table.element) AppendItem(table, object, element);
  }
}

void WriteItems(const ListTable& table, const void* object, XmlWriter& out) {
  const std::size_t count = table.Size(object);
  for (std::size_t index = 0; index < count; ++index) WriteItem(table, object, index, out);
}

bool RemoveItem(const ListTable& table, void* object, std::int32_t index) {
  if (index < 0 || static_cast<std::size_t>(index) >= table.Size(object)) return false;
  const auto at = static_cast<std::size_t>(index);
  for (const ListRow& row : table.rows) {
    if (row.removed && row.Has(object, at)) row.erase(object, at);
  }
  return true;
}

void ClearItems(const ListTable& table, void* object) {
  for (const ListRow& row : table.rows) row.clear(object);
}

bool EqualItems(const ListTable& table, const void* left, const void* right) {
  const auto same = [left, right](const ListRow& row) { return !row.counts || row.equal(left, right); };
  return std::all_of(table.rows.begin(), table.rows.end(), same);
}

}  // namespace xrpt
