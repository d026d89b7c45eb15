// Goes through an object's rows: reading, writing, comparing. For the few sources that do so for a class tree.
#pragma once

#include <type_traits>

#include "model/FieldTable.h"

namespace xrpt {

// Whether the rows stand in one element of the file.
bool SameGroup(const FieldRow& left, const FieldRow& right);

// The rows from `first` on that stand in one group with it; a row without one stands alone.
template <class Row>
std::span<const Row> GroupFrom(std::span<const Row> rows, std::size_t first) {
  std::size_t end = first + 1;
  while (end < rows.size() && rows[first].group && SameGroup(rows[first], rows[end])) ++end;
  return rows.subspan(first, end - first);
}

// Calls `visit` with each group of rows in turn.
template <class Row, class Visit>
void ForEachGroup(std::span<const Row> rows, const Visit& visit) {
  for (std::size_t at = 0; at < rows.size();) {
    const std::span<const Row> group = GroupFrom(rows, at);
    visit(group);
    at += group.size();
  }
}

namespace detail {

template <class Root>
bool IsWritten(const FieldOf<Root>& row, const Root& object) {
  return (row.name || row.writeNode) && row.Applies(object) && (!row.isWritten || row.isWritten(object));
}

template <class Root>
void ReadRow(const FieldOf<Root>& row, Root& object, XmlCursor& cursor, const XmlNode& node) {
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

// A group's rows leave their fields alone when the file has no such group.
template <class Root>
void ReadGroup(std::span<const FieldOf<Root>> rows, Root& object, XmlCursor& cursor) {
  const XmlNode element = cursor.Find(rows.front().groupKey);
  if (!element) return;
  XmlCursor inside(element);
  for (const FieldOf<Root>& row : rows) ReadRow(row, object, inside, element);
}

template <class Root>
void ReadTables(const FieldTable<Root>& table, Root& object, XmlCursor& cursor, const XmlNode& node) {
  if (table.base) ReadTables(*table.base, object, cursor, node);
  ForEachGroup(table.rows, [&](std::span<const FieldOf<Root>> group) {
    if (group.front().group) return ReadGroup(group, object, cursor);
    ReadRow(group.front(), object, cursor, node);
  });
}

template <class Root>
void WriteRow(const FieldOf<Root>& row, const Root& object, XmlWriter& out) {
  if (!IsWritten(row, object)) return;
  if (row.writeNode) return row.writeNode(object, out);
  row.write(object, out, row.name);
}

template <class Root>
void WriteGroup(std::span<const FieldOf<Root>> rows, const Root& object, XmlWriter& out) {
  const auto written = [&object](const FieldOf<Root>& row) { return IsWritten(row, object); };
  if (std::none_of(rows.begin(), rows.end(), written)) return;
  const XmlElement element(out, rows.front().group);
  for (const FieldOf<Root>& row : rows) WriteRow(row, object, out);
}

template <class Root>
void WriteRows(std::span<const FieldOf<Root>> rows, const Root& object, XmlWriter& out) {
  ForEachGroup(rows, [&](std::span<const FieldOf<Root>> group) {
    if (group.front().group) return WriteGroup(group, object, out);
    WriteRow(group.front(), object, out);
  });
}

}  // namespace detail

template <class Root>
void ReadFields(const FieldTable<Root>& table, std::type_identity_t<Root>& object, const XmlNode& node) {
  XmlCursor cursor(node);
  detail::ReadTables(table, object, cursor, node);
}

// The rows of the root of the class tree are taken from another object.
template <class Root>
void WriteFields(const FieldTable<Root>& table, const std::type_identity_t<Root>& object,
                 const std::type_identity_t<Root>& rootObject, XmlWriter& out) {
  if (!table.base) return detail::WriteRows(table.rows, rootObject, out);
  if (table.writesOwnFirst) detail::WriteRows(table.rows, object, out);
  WriteFields(*table.base, object, rootObject, out);
  if (!table.writesOwnFirst) detail::WriteRows(table.rows, object, out);
}

template <class Root>
void WriteFields(const FieldTable<Root>& table, const std::type_identity_t<Root>& object, XmlWriter& out) {
  WriteFields(table, object, object, out);
}

// The fields that count.
template <class Root>
bool EqualFields(const FieldTable<Root>& table, const std::type_identity_t<Root>& left,
                 const std::type_identity_t<Root>& right) {
  if (table.base && !EqualFields(*table.base, left, right)) return false;
  const auto equal = [&](const FieldOf<Root>& row) { return !row.counts || row.equal(left, right); };
  return std::all_of(table.rows.begin(), table.rows.end(), equal);
}

// All fields, to the last bit.
template <class Root>
bool SameFields(const FieldTable<Root>& table, const std::type_identity_t<Root>& left,
                const std::type_identity_t<Root>& right) {
  if (table.base && !SameFields(*table.base, left, right)) return false;
  const auto same = [&](const FieldOf<Root>& row) { return !row.same || row.same(left, right); };
  return std::all_of(table.rows.begin(), table.rows.end(), same);
}

}  // namespace xrpt
