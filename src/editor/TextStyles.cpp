#include "editor/TextStyles.h"

#include <algorithm>

#include "model/CommonRows.h"
#include "model/FieldWalk.h"
#include "platform/Host.h"
#include "platform/NamedFiles.h"
#include "platform/UniqueNames.h"

namespace xrpt {
namespace {

constexpr std::string_view kClipboardRoot = "styleClipboard";
constexpr std::size_t kLongestName = 200;  // bytes; with identifier and ending a file name has 255

using Cfg = tagStyleCfg;

constexpr FieldOf<Cfg> kRows[] = {
    Field<Cfg, codec::String, &Cfg::font, &Font::face>("font", "name", "Arial",
                                                       {text::kFontFace, FieldGroup::Font, FieldEditor::FontFace}),
    FontStyleRow<Cfg, &Cfg::font>(),
    Field<Cfg, codec::Decimal, &Cfg::orientation>(
        "font", "orientation", nullptr, {text::kOrientation, FieldGroup::Font, FieldEditor::Angle, -360.0, 360.0}),
    Field<Cfg, codec::Decimal, &Cfg::font, &Font::size>(
        "font", "size", nullptr, {text::kFontSize, FieldGroup::Font, FieldEditor::Decimal, 0.5, 500.0}),
    Field<Cfg, codec::Colour, &Cfg::color>("font", "color", "000000",
                                           {text::kFontColor, FieldGroup::Font, FieldEditor::Color}),
};

Path Folder() { return CurrentHost().setup->CfgPath(); }

std::optional<Path> FileOf(const std::wstring& name) { return FindNamedFile(Folder(), name, kStyleEnding); }

bool LoadStyle(const std::wstring& name, XmlDocument& document) {
  const std::optional<Path> file = FileOf(name);
  return file && document.Load(*file);
}

void TellHost() { CurrentHost().identifiers->invalidateGuid(GuidKind::Styles, true); }

// Only the values of the style are touched: what else a file holds stays.
void WriteStyle(const tagStyleCfg& style, XmlNode root) {
  root.SetValue("revision", CurrentHost().guids->NewGuidText());
  root.SetValue("name", style.name);
  root.SetValue("version", kFormatVersion);
  XmlNode font = root.Node("font");
  if (!font) font = root.NewChild("font");
  for (const FieldOf<Cfg>& row : kRows) font.SetValue(row.name, row.text(style));
}

// The identifier is part of a file name, so one that could leave the folder gives way to a new one.
std::wstring KeepOrMakeId(XmlNode root) {
  std::wstring id = root.Value("id");
  if (IsSafeFileName(id)) return id;
  id = CurrentHost().guids->NewGuidText();
  root.SetValue("id", id);
  return id;
}

void MoveFile(const Path& from, const Path& to) {
  FileService& files = *CurrentHost().files;
  if (!files.Rename(from, to)) files.Remove(from);
}

SaveResult SaveDocument(XmlDocument& document, const std::wstring& id, const std::wstring& name) {
  CurrentHost().files->CreateFolder(Folder());
  document.SetFileName(NamedFilePath(Folder(), id, name, kStyleEnding));
  return document.Save();
}

// The name under which a style of the clipboard was saved; empty when its name cannot be a style's.
std::wstring PasteStyle(const XmlNode& style, const std::vector<std::wstring>& taken) {
  const std::wstring name = UniqueStyleName(style.Value("name"), taken);
  if (!IsValidId(name)) {
    LogMessage(3, L"PasteStyles(): a style on the clipboard has no valid name");
    return {};
  }
  XmlDocument document("style");
  document.Root().Assign(style);
  const std::wstring id = CurrentHost().guids->NewGuidText();
  document.Root().SetValue("id", id);
  document.Root().SetValue("name", name);
  return SaveDocument(document, id, name) ? name : std::wstring();
}

}  // namespace

const FieldTable<Cfg>& tagStyleCfg::Table() {
  static constexpr FieldTable<Cfg> kTable{nullptr, kRows};
  return kTable;
}

bool tagStyleCfg::operator==(const tagStyleCfg& other) const {
  return name == other.name && EqualFields(Table(), *this, other);
}

bool IsValidId(std::wstring_view name) { return IsSafeFileName(name) && ToUtf8(name).size() <= kLongestName; }

std::vector<tagStyleCfg> ListStyles() {
  std::vector<tagStyleCfg> rows;
  for (const Path& file : CurrentHost().files->List(Folder(), kStyleEnding)) {
    XmlDocument document;
    if (!document.Load(file) || !document.Node("font")) continue;
    tagStyleCfg& row = rows.emplace_back();
    row.name = document.Root().Value("name");
    ReadFields(tagStyleCfg::Table(), row, document.Root());
  }
  return rows;
}

std::vector<std::wstring> StyleNames() {
  std::vector<std::wstring> names;
  for (tagStyleCfg& row : ListStyles()) names.push_back(std::move(row.name));
  return names;
}

bool HasStyle(const std::wstring& name) { return FileOf(name).has_value(); }

tagStyleCfg OpenStyle(const std::wstring& name) {
  tagStyleCfg style;
  style.name = name;
  XmlDocument document;
  if (LoadStyle(name, document)) ReadFields(tagStyleCfg::Table(), style, document.Root());
  return style;
}

int CheckStyle(const tagStyleCfg& style, const StyleEdit& edit) {
  if (style.name.empty()) return kStyleNameMissing;
  if (!IsValidId(style.name)) return kStyleNameNotValid;
  if (!(style.font.size > 0.0)) return kStyleSizeNotPositive;
  const bool sameName = style.name == edit.openedName;
  if ((sameName && !(edit.forceNew && edit.overWrite)) || !FileOf(style.name)) return 0;
  return edit.overWrite ? kAskOverwriteStyle : kStyleExists;
}

// A copy under another name becomes a style of its own: two styles must not share an identifier. A style that another
// one takes the name of goes, for it could not be found any more.
SaveResult SaveStyle(const tagStyleCfg& style, const StyleEdit& edit) {
  const std::wstring& formerName = edit.openedName.empty() ? style.name : edit.openedName;
  const bool renamed = formerName != style.name;
  const std::optional<Path> replaced = renamed ? FileOf(style.name) : std::nullopt;
  XmlDocument document;
  const bool known = LoadStyle(formerName, document);
  if (!known) document.Create("style");
  if (edit.forceNew && renamed) document.Root().SetValue("id", L"");
  const std::wstring id = KeepOrMakeId(document.Root());
  WriteStyle(style, document.Root());
  if (known && renamed && !edit.forceNew) {
    MoveFile(NamedFilePath(Folder(), id, formerName, kStyleEnding),
             NamedFilePath(Folder(), id, style.name, kStyleEnding));
  }
  const SaveResult saved = SaveDocument(document, id, style.name);
  if (saved && replaced && *replaced != document.FileName()) CurrentHost().files->Remove(*replaced);
  TellHost();
  return saved;
}

int RemoveStyles(const std::vector<std::wstring>& names) {
  int removed = 0;
  for (const std::wstring& name : names) {
    const std::optional<Path> file = FileOf(name);
    if (file && CurrentHost().files->Remove(*file)) ++removed;
  }
  if (removed > 0) TellHost();
  return removed;
}

std::string CopyStyles(const std::vector<std::wstring>& names) {
  std::string text = "<styleClipboard>";
  for (const std::wstring& name : names) {
    XmlDocument document;
    if (LoadStyle(name, document)) text += document.Root().CreateXmlCode();
  }
  return text + "</styleClipboard>";
}

// Texts from elsewhere may end with a zero byte and hold a declaration before each style.
std::vector<std::wstring> PasteStyles(std::string clipboard) {
  std::vector<std::wstring> pasted;
  while (!clipboard.empty() && clipboard.back() == '\0') clipboard.pop_back();
  XmlDocument document;
  if (!document.Parse(std::move(clipboard)) || document.Root().Tag() != kClipboardRoot) return pasted;
  std::vector<std::wstring> taken = StyleNames();
  for (const XmlNode& child : document.Root()) {
    if (child.Tag() != "style") continue;
    const std::wstring name = PasteStyle(child, taken);
    if (name.empty()) continue;
    taken.push_back(name);
    pasted.push_back(name);
  }
  if (!pasted.empty()) TellHost();
  return pasted;
}

std::wstring UniqueStyleName(const std::wstring& name, const std::vector<std::wstring>& taken) {
  UniqueNames names;
  for (const std::wstring& other : taken) names.Add(other);
  return names.Take(name);
}

}  // namespace xrpt
