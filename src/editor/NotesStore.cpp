#include "editor/NotesStore.h"

#include <algorithm>
#include <iterator>
#include <optional>

#include "platform/Host.h"
#include "platform/Numbers.h"
#include "platform/Text.h"
#include "platform/Xml.h"
#include "platform/XmlWriter.h"

namespace xrpt {
namespace {

constexpr std::size_t kMostBytes = 8u << 20;
constexpr std::size_t kLongestId = 80;
constexpr std::size_t kMostLines = 200;
constexpr double kFarthestLine = 10000.0;  // millimetres

constexpr char kRoot[] = "editorNotes";

bool IsPlain(wchar_t letter) {
  return (letter >= L'0' && letter <= L'9') || (letter >= L'a' && letter <= L'z') ||
         (letter >= L'A' && letter <= L'Z') || letter == L'-';
}

void ReadCard(const XmlNode& node, CardNotes& notes) {
  CardNote note;
  note.locked = node.Value("locked") == L"T";
  note.hidden = node.Value("hidden") == L"T";
  note.group = std::max(0, ParseInteger(node.Value("group")));
  note.name = node.Value("name");
  notes.Set(node.Value("id"), note);
}

void ReadPage(const XmlNode& node, CardNotes& notes) {
  PageLines lines;
  for (const XmlNode line : node) {
    const double at = ParseDecimal(line.Value());
    std::vector<double>* list = line.Tag() == "across" ? &lines.across : line.Tag() == "down" ? &lines.down : nullptr;
    if (list && list->size() < kMostLines && at >= 0.0 && at <= kFarthestLine) list->push_back(at);
  }
  notes.SetLines(node.Value("id"), std::move(lines));
}

void WriteLines(XmlWriter& out, std::string_view tag, const std::vector<double>& lines) {
  for (const double at : lines) out.Plain(tag, FormatDecimal(at));
}

void Write(XmlWriter& out, const CardNotes& notes) {
  const XmlElement root(out, kRoot);
  for (const auto& [id, note] : notes.Cards()) {
    const XmlElement card(out, "card");
    out.Value("id", id);
    if (note.locked) out.Bool("locked", true);
    if (note.hidden) out.Bool("hidden", true);
    if (note.group != 0) out.Plain("group", std::to_string(note.group));
    if (!note.name.empty()) out.Value("name", note.name);
  }
  for (const auto& [id, lines] : notes.Pages()) {
    const XmlElement page(out, "page");
    out.Value("id", id);
    WriteLines(out, "across", lines.across);
    WriteLines(out, "down", lines.down);
  }
}

}  // namespace

Path NotesFile(const Path& folder, std::wstring_view reportId) {
  std::wstring name;
  std::copy_if(reportId.begin(), reportId.end(), std::back_inserter(name), IsPlain);
  if (folder.empty() || name.empty() || name.size() > kLongestId) return {};
  return folder / (ToUtf8(name) + ".xml");
}

CardNotes ReadNotes(const Path& file) {
  CardNotes notes;
  FileService& files = *CurrentHost().files;
  if (file.empty() || !files.Stamp(file).exists) return notes;
  const std::optional<std::string> text = files.Read(file, kMostBytes);
  XmlDocument document;
  if (!text || !document.Parse(*text) || document.Root().Tag() != kRoot) return notes;
  for (const XmlNode node : document.Root()) {
    if (node.Tag() == "card") ReadCard(node, notes);
    if (node.Tag() == "page") ReadPage(node, notes);
  }
  return notes;
}

void WriteNotes(const Path& file, const CardNotes& notes) {
  if (file.empty()) return;
  FileService& files = *CurrentHost().files;
  if (!notes.IsEmpty()) {
    files.CreateFolder(file.parent_path());
    std::string text;
    XmlWriter out(text);
    out.Declaration();
    Write(out, notes);
    files.Write(file, text);
  } else if (files.Stamp(file).exists) {
    files.Remove(file);
  }
}

}  // namespace xrpt
