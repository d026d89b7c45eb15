#include "host/FileStyles.h"

#include <algorithm>

#include "platform/NamedFiles.h"
#include "platform/Numbers.h"
#include "platform/Text.h"
#include "platform/Xml.h"

namespace xrpt {
namespace {

constexpr std::size_t kLimit = 1u << 20;

FontStyle StyleOfWord(std::wstring_view word) {
  if (word == L"ITALICBOLD") return FontStyle::ItalicBold;
  if (word == L"BOLD") return FontStyle::Bold;
  return word == L"ITALIC" ? FontStyle::Italic : FontStyle::Normal;
}

StyleFont ReadFont(const XmlNode& node) {
  StyleFont font;
  font.name = node.Value("/name", font.name);
  font.style = StyleOfWord(node.Value("/style"));
  if (const XmlNode size = node.Node("/size")) font.size = ParseDecimal(size.RawText());
  font.orientation = ParseDecimal(node.Node("/orientation").RawText());
  const XmlNode color = node.Node("/color");
  font.hasColor = static_cast<bool>(color);
  if (font.hasColor) font.color = ParseColor(color.RawText());
  return font;
}

std::wstring IdOfFile(const Path& file) {
  const std::wstring name = FromUtf8(file.filename().string());
  return name.substr(0, name.find(L'.'));
}

}  // namespace

bool FileStyles::StyleId2Name(std::wstring_view id, std::wstring& name) {
  const std::lock_guard guard(lock_);
  const Entry* entry = FindById(id);
  if (!entry) return false;
  name = entry->name;
  return true;
}

bool FileStyles::StyleName2Id(std::wstring_view name, std::wstring& id) {
  const std::lock_guard guard(lock_);
  const Entry* entry = FindByName(name);
  if (!entry || !entry->isValid) return false;
  id = entry->id;
  return true;
}

std::optional<StyleFont> FileStyles::Font(std::wstring_view name) {
  const std::lock_guard guard(lock_);
  const Entry* entry = FindByName(name);
  return entry ? entry->font : std::nullopt;
}

void FileStyles::Forget() {
  const std::lock_guard guard(lock_);
  isListed_ = false;
}

FileStyles::Entry* FileStyles::FindByName(std::wstring_view name) {
  Refresh();
  const auto found = byName_.find(name);
  if (name.empty() || found == byName_.end()) return nullptr;
  Read(entries_[found->second]);
  return &entries_[found->second];
}

// The file's name tells its identifier; only when none fits, the contents are asked.
FileStyles::Entry* FileStyles::FindById(std::wstring_view id) {
  Refresh();
  if (id.empty()) return nullptr;
  const auto holdsId = [this, id](Entry& entry) {
    if (entry.id != id) return false;
    Read(entry);
    return entry.isValid && entry.id == id;
  };
  auto found = std::find_if(entries_.begin(), entries_.end(), holdsId);
  if (found != entries_.end()) return &*found;
  for (Entry& entry : entries_) Read(entry);
  found = std::find_if(entries_.begin(), entries_.end(), holdsId);
  return found == entries_.end() ? nullptr : &*found;
}

void FileStyles::Read(Entry& entry) {
  if (std::exchange(entry.isRead, true)) return;
  XmlDocument document;
  std::optional<std::string> bytes = host_.files->Read(entry.file, kLimit);
  entry.isValid = bytes && document.Parse(std::move(*bytes));
  if (!entry.isValid) return;
  entry.id = document.Root().Value("/id", entry.id);
  if (const XmlNode font = document.Node("/font")) entry.font = ReadFont(font);
}

void FileStyles::Refresh() {
  const Clock::time_point now = Clock::now();
  if (isListed_ && now - lookedAt_ < interval_) return;
  lookedAt_ = now;
  const Path folder = host_.setup->CfgPath();
  const FileStamp stamp = host_.files->Stamp(folder);
  if (isListed_ && folder == folder_ && stamp == folderStamp_) return;
  folder_ = folder;
  folderStamp_ = stamp;
  ListFolder();
  isListed_ = true;
}

void FileStyles::ListFolder() {
  entries_.clear();
  byName_.clear();
  for (const Path& file : host_.files->List(folder_, kEnding)) {
    entries_.push_back({file, NameOfFile(file, kEnding), IdOfFile(file), {}, false, false});
  }
  AddNames();
}

// A style answers to the whole text after its file's first point, and, where no other is called so, to what follows a
// later point.
void FileStyles::AddNames() {
  for (std::size_t i = 0; i < entries_.size(); ++i) byName_.emplace(entries_[i].name, i);
  for (std::size_t i = 0; i < entries_.size(); ++i) {
    const std::wstring& name = entries_[i].name;
    for (std::size_t at = name.find(L'.'); at != name.npos; at = name.find(L'.', at + 1)) {
      byName_.emplace(name.substr(at + 1), i);
    }
  }
}

}  // namespace xrpt
