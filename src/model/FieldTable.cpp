#include "model/FieldTable.h"

#include <cstring>

namespace xrpt {
namespace {

bool SameGroup(const FieldRow& left, const FieldRow& right) {
  if (left.group == right.group) return true;  // as most do, one literal being kept once
  return left.group && right.group && std::strcmp(left.group, right.group) == 0;
}

bool IsWritten(const FieldRow& row, const void* object) {
  return (row.name || row.writeNode) && row.Applies(object) && (!row.isWritten || row.isWritten(object));
}

void ReadRow(const FieldRow& row, void* object, XmlCursor& cursor, const XmlNode& node) {
  if (!row.Applies(object)) return;
  if (row.readNode) return row.readNode(object, row.name ? cursor.Find(row.key) : node);
  if (!row.name || !row.assign) return;
  const XmlNode element = cursor.Find(row.key);
  std::string joined;
  if (element) {
    row.assign(object, element.WholeText(joined));
  } else if (row.missing) {
    row.assign(object, row.missing);
  }
}

void WriteRow(const FieldRow& row, const void* object, XmlWriter& out) {
  if (!IsWritten(row, object)) return;
  if (row.writeNode) return row.writeNode(object, out);
  row.write(object, out, row.name);
}

// The rows from `first` on that stand in one group with it.
std::span<const FieldRow> GroupFrom(std::span<const FieldRow> rows, std::size_t first) {
  std::size_t end = first + 1;
  while (end < rows.size() && rows[end].group && SameGroup(rows[first], rows[end])) ++end;
  return rows.subspan(first, end - first);
}

// A group's rows leave their fields alone when the file has no such group.
void ReadGroup(std::span<const FieldRow> rows, void* object, XmlCursor& cursor) {
  const XmlNode element = cursor.Find(rows.front().groupKey);
  if (!element) return;
  XmlCursor inside(element);
  for (const FieldRow& row : rows) ReadRow(row, object, inside, element);
}

void WriteGroup(std::span<const FieldRow> rows, const void* object, XmlWriter& out) {
  const auto written = [object](const FieldRow& row) { return IsWritten(row, object); };
  if (std::none_of(rows.begin(), rows.end(), written)) return;
  const XmlElement element(out, rows.front().group);
  for (const FieldRow& row : rows) WriteRow(row, object, out);
}

void ReadTables(const FieldTable& table, void* object, XmlCursor& cursor, const XmlNode& node) {
  if (table.base) ReadTables(*table.base, object, cursor, node);
  ReadRows(table.rows, object, cursor, node);
}

// A row that counts only when it is the only one.
struct OneOfSeveral {
  void Add(const FieldRow& row) {
    first = &row;
    ++count;
  }
  const FieldRow* Only() const { return count == 1 ? first : nullptr; }

  const FieldRow* first = nullptr;
  int count = 0;
};

}  // namespace

std::string FieldRow::FullName() const {
  std::string full = group ? std::string(group) + "/" : std::string();
  return full + (name ? name : "");
}

void ReadRows(std::span<const FieldRow> rows, void* object, XmlCursor& cursor, const XmlNode& node) {
  for (std::size_t at = 0; at < rows.size();) {
    if (!rows[at].group) {
      ReadRow(rows[at++], object, cursor, node);
      continue;
    }
    const std::span<const FieldRow> group = GroupFrom(rows, at);
    ReadGroup(group, object, cursor);
    at += group.size();
  }
}

void WriteRows(std::span<const FieldRow> rows, const void* object, XmlWriter& out) {
  for (std::size_t at = 0; at < rows.size();) {
    if (!rows[at].group) {
      WriteRow(rows[at++], object, out);
      continue;
    }
    const std::span<const FieldRow> group = GroupFrom(rows, at);
    WriteGroup(group, object, out);
    at += group.size();
  }
}

void ReadFields(const FieldTable& table, void* object, const XmlNode& node) {
  XmlCursor cursor(node);
  ReadTables(table, object, cursor, node);
}

void WriteFields(const FieldTable& table, const void* object, XmlWriter& out) {
  WriteFields(table, object, object, out);
}

void WriteFields(const FieldTable& table, const void* object, const void* rootObject, XmlWriter& out) {
  if (!table.base) return WriteRows(table.rows, rootObject, out);
  if (table.writesOwnFirst) WriteRows(table.rows, object, out);
  WriteFields(*table.base, object, rootObject, out);
  if (!table.writesOwnFirst) WriteRows(table.rows, object, out);
}

bool EqualFields(const FieldTable& table, const void* left, const void* right) {
  if (table.base && !EqualFields(*table.base, left, right)) return false;
  const auto same = [left, right](const FieldRow& row) { return !row.counts || row.equal(left, right); };
  return std::all_of(table.rows.begin(), table.rows.end(), same);
}

const FieldRow* FindField(const FieldTable& table, std::string_view name) {
  const FieldRow* whole = nullptr;
  OneOfSeveral bare;
  OneOfSeveral grouped;
  ForEachField(table, [&](const FieldRow& row) {
    if (!row.name || !row.assign) return;
    if (!whole && row.FullName() == name) whole = &row;
    if (name == row.name) bare.Add(row);
    if (row.group && name == row.group) grouped.Add(row);
  });
  if (whole) return whole;
  return bare.Only() ? bare.Only() : grouped.Only();
}

}  // namespace xrpt
