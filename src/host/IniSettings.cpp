#include "host/IniSettings.h"

#include <algorithm>

#include "host/SetAside.h"
#include "platform/Numbers.h"
#include "platform/Text.h"

namespace xrpt {
namespace {

constexpr std::size_t kLimit = 4u << 20;

// What would end a name, a section or a line is written as a backslash and a letter.
constexpr struct {
  wchar_t plain;
  wchar_t letter;
} kEscapes[] = {{L'\\', L'\\'}, {L'\n', L'n'}, {L'\r', L'r'}, {L'=', L'e'}, {L']', L'b'}, {L'[', L'a'}, {L';', L's'}};

std::wstring Escaped(std::wstring_view text) {
  std::wstring out;
  for (wchar_t c : text) {
    const auto* found = std::find_if(std::begin(kEscapes), std::end(kEscapes), [c](auto e) { return e.plain == c; });
    if (found != std::end(kEscapes)) out += L'\\';
    out += found != std::end(kEscapes) ? found->letter : c;
  }
  return out;
}

std::wstring Unescaped(std::wstring_view text) {
  std::wstring out;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool escape = text[i] == L'\\' && i + 1 < text.size();
    const wchar_t c = text[escape ? ++i : i];
    const auto* found = std::find_if(std::begin(kEscapes), std::end(kEscapes), [c](auto e) { return e.letter == c; });
    out += escape && found != std::end(kEscapes) ? found->plain : c;
  }
  return out;
}

std::wstring_view CutLine(std::wstring_view& rest) {
  const std::size_t end = rest.find(L'\n');
  std::wstring_view line = rest.substr(0, end);
  rest = end == std::wstring_view::npos ? std::wstring_view() : rest.substr(end + 1);
  if (!line.empty() && line.back() == L'\r') line.remove_suffix(1);
  return line;
}

}  // namespace

IniSections ParseIni(std::string_view bytes, bool* isWhole) {
  bool whole = FindInvalidUtf8(bytes) == std::string_view::npos;
  IniSections sections;
  std::wstring section;
  const std::wstring text = FromUtf8(bytes);
  for (std::wstring_view rest = text; !rest.empty();) {
    const std::wstring_view line = CutLine(rest);
    const std::size_t equals = line.find(L'=');
    if (line.size() > 1 && line.front() == L'[' && line.back() == L']') {
      section = Unescaped(line.substr(1, line.size() - 2));
    } else if (!line.empty() && line.front() != L';') {
      whole = whole && equals != std::wstring_view::npos;
      if (equals == std::wstring_view::npos) continue;
      sections[section][Unescaped(line.substr(0, equals))] = Unescaped(line.substr(equals + 1));
    }
  }
  if (isWhole) *isWhole = whole;
  return sections;
}

std::string WriteIni(const IniSections& sections) {
  std::wstring text;
  for (const auto& [section, values] : sections) {
    text += L"[" + Escaped(section) + L"]\n";
    for (const auto& [name, value] : values) text += Escaped(name) + L"=" + Escaped(value) + L"\n";
  }
  return ToUtf8(text);
}

IniSections IniSettings::Load(bool* isWhole) const {
  const std::optional<std::string> bytes = host_.files->Read(file_, kLimit);
  if (bytes) return ParseIni(*bytes, isWhole);
  if (isWhole) *isWhole = !host_.files->Stamp(file_).exists;
  return {};
}

const std::wstring* IniSettings::Find(std::wstring_view section, std::wstring_view name) const {
  if (!values_) values_ = Load();
  const auto values = values_->find(section);
  if (values == values_->end()) return nullptr;
  const auto value = values->second.find(name);
  return value == values->second.end() ? nullptr : &value->second;
}

std::wstring IniSettings::RegistryText(std::wstring_view name) const {
  return ProfileText(host_.setup->RegisterKey(), name);
}

void IniSettings::SetRegistryText(std::wstring_view name, std::wstring_view text) {
  SetProfileText(host_.setup->RegisterKey(), name, text);
  Flush();
}

int IniSettings::ProfileInt(std::wstring_view section, std::wstring_view name, int missing) const {
  const std::lock_guard lock(mutex_);
  const std::wstring* value = Find(section, name);
  return value ? ParseInteger(*value) : missing;
}

void IniSettings::SetProfileInt(std::wstring_view section, std::wstring_view name, int value) {
  SetProfileText(section, name, std::to_wstring(value));
}

std::wstring IniSettings::ProfileText(std::wstring_view section, std::wstring_view name) const {
  const std::lock_guard lock(mutex_);
  const std::wstring* value = Find(section, name);
  return value ? *value : std::wstring();
}

void IniSettings::SetProfileText(std::wstring_view section, std::wstring_view name, std::wstring_view text) {
  const std::lock_guard lock(mutex_);
  const std::wstring* value = Find(section, name);
  if (value && *value == text) return;
  (*values_)[std::wstring(section)][std::wstring(name)] = text;
  changed_[std::wstring(section)][std::wstring(name)] = text;
}

void IniSettings::Flush() {
  const std::lock_guard lock(mutex_);
  if (changed_.empty()) return;
  bool isWhole = true;
  IniSections all = Load(&isWhole);
  if (!isWhole && !SetAside(file_, *host_.logger)) return;
  for (const auto& [section, values] : changed_) {
    for (const auto& [name, value] : values) all[section][name] = value;
  }
  host_.files->CreateFolder(file_.parent_path());
  if (host_.files->Write(file_, WriteIni(all))) changed_.clear();
}

}  // namespace xrpt
