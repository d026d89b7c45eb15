#include "model/RVReport.h"

#include <algorithm>

#include "model/ReportParts.h"
#include "platform/FileTexts.h"
#include "platform/NamedFiles.h"
#include "platform/Numbers.h"
#include "platform/Text.h"

namespace xrpt {
namespace {

constexpr std::string_view kRoot = "reportLayout";

void CopyChildren(const XmlNode& from, std::string_view tag, const XmlDocument& to) {
  for (const XmlNode& child : from) {
    if (child.Tag() == tag) to.Root().Append(child);
  }
}

// A document of another name is a report's all the same when it holds a page, a formula or a value of one. Documents of
// our own other kinds have identifiers and names, too.
bool MayBeReport(const XmlNode& root) {
  constexpr std::string_view kDistinct[] = {"page",    "formules",       "revision",       "dpiFont",
                                            "hasZoom", "virtualEnabled", "virtualDevices", "goBackVariables"};
  constexpr std::string_view kCommon[] = {"id", "name", "version"};
  constexpr std::string_view kOtherKinds[] = {"style",  "styleClipboard", "formulesClipboard", "controlClipboard",
                                              "device", "devices",        "warnings"};
  if (root.Tag() == kRoot) return true;
  const auto isOneOf = [](std::string_view tag, const auto& tags) {
    return std::find(std::begin(tags), std::end(tags), tag) != std::end(tags);
  };
  const bool isOtherKind = isOneOf(root.Tag(), kOtherKinds);
  return std::any_of(root.begin(), root.end(), [&](const XmlNode& child) {
    return isOneOf(child.Tag(), kDistinct) || (!isOtherKind && isOneOf(child.Tag(), kCommon));
  });
}

// What may stand in a file's name stays; an identifier read from a file may hold anything.
std::wstring FileNamePart(std::wstring text) {
  for (wchar_t& c : text) {
    if (!IsSafeFileName(std::wstring(1, c)) && c != L'.') c = L'_';
  }
  return text;
}

bool IsSameFile(const Path& a, const Path& b) {
  std::error_code ignored;
  return a == b || std::filesystem::equivalent(a, b, ignored);
}

bool HasChildren(const XmlDocument& document) { return document.Root().Size() > 0; }

void WriteCopy(XmlWriter& out, std::string_view tag, const XmlDocument& document) {
  if (document.Root()) out.Copy(tag, document.Root());
}

}  // namespace

std::wstring TextOf(const LoadResult& result) {
  constexpr int kTexts[] = {0, text::kUnreadable, text::kDamaged, text::kOtherDocument};
  if (result.loaded) return {};
  const std::wstring reason = FromUtf8(result.error.message);
  return FillIn(HostText(kTexts[static_cast<int>(result.fault)]), {FromUtf8(result.file.filename().string()), reason});
}

RVReport::RVReport(Host& host)
    : id(host.guids->NewGuidText()), version(kFormatVersion), dpiFont(host.screen->DpiY()), host_(&host) {
  AddPage();
}

LoadResult RVReport::Load(const std::wstring& nameOrPath) {
  if (const std::optional<Path> found = FindNamedFile(*host_->files, ConfigFolder(), nameOrPath, kReportEnding)) {
    return LoadFile(*found, &nameOrPath);
  }
  const Path file(ToUtf8(nameOrPath));
  const std::wstring ownName = NameOfFile(file, kReportEnding);
  return LoadFile(file, &ownName);
}

LoadResult RVReport::LoadFile(const Path& file, const std::wstring* askedName) {
  LoadResult result;
  result.file = file;
  file_.clear();
  pages.clear();
  const FileStamp stamp = host_->files->Stamp(file);
  FileError unreadable;
  std::optional<std::string> bytes = host_->files->Read(file, XmlDocument::kMaxBytes, &unreadable);
  const FileVersion version = bytes ? FileVersion(stamp, *bytes) : FileVersion();
  if (!bytes) {
    result.fault = LoadFault::Unreadable;
    result.error.message = unreadable.reason;
  }
  result.loaded = bytes && (ReadStretches(*bytes, askedName) || ReadDocument(std::move(*bytes), askedName, result));
  if (result.loaded) {
    Remember(file, version);
  } else {
    ReadTemplate(XmlDocument(kRoot).Root(), {}, askedName);
  }
  for (const auto& page : pages) {
    if (page->StylesLost()) result.lostStyles += static_cast<int>(page->StylesLost()->size());
  }
  fileName_ = name;
  modified = false;
  return result;
}

// What our saver wrote, a page after another and never as one tree.
bool RVReport::ReadStretches(std::string_view text, const std::wstring* askedName) {
  std::optional<ReportParts> parts = ReadReportParts(text, *host_);
  if (!parts) return false;
  ReadTemplate(parts->rest.Root(), std::move(parts->pages), askedName);
  return true;
}

// Everything else, and what is no report.
bool RVReport::ReadDocument(std::string text, const std::wstring* askedName, LoadResult& result) {
  XmlDocument document;
  if (!document.Parse(std::move(text), &result.error)) {
    result.fault = LoadFault::Damaged;
    return false;
  }
  const XmlNode root = document.Root();
  if (!MayBeReport(root)) {
    result.fault = LoadFault::OtherDocument;
    result.error.message = "not a report but a document of <" + std::string(root.Tag()) + ">";
    return false;
  }
  ReadTemplate(root, PagesOf(root, &RVReportPage::TakeTemplate), askedName);
  return true;
}

void RVReport::BelongTo(const Path& file) {
  FileService& files = *host_->files;
  const FileStamp stamp = file.empty() ? FileStamp() : files.Stamp(file);
  const std::optional<std::string> bytes = stamp.exists ? files.Read(file, XmlDocument::kMaxBytes) : std::nullopt;
  Remember(file, bytes ? FileVersion(stamp, *bytes) : FileVersion());
  modified = true;
}

void RVReport::Remember(const Path& file, const FileVersion& version) {
  file_ = file;
  onDisk_ = version;
  fileName_ = name;
}

RVReport::Pages RVReport::PagesOf(const XmlNode& root, PageReader readPage) const {
  Pages read;
  for (const XmlNode& element : root) {
    if (element.Tag() != "page") continue;
    ((*read.emplace_back(std::make_shared<RVReportPage>(*host_))).*readPage)(element);
  }
  return read;
}

// Takes the pages that were read, and all else from the root.
void RVReport::ReadTemplate(const XmlNode& root, Pages read, const std::wstring* askedName) {
  ReadIdentity(root, askedName);
  version = root.Value("version", kFormatVersion);
  ReadFontScale(root);
  ReadVirtualLists(root);
  for (const XmlNode& element : root) {
    if (element.Tag() == "formules") formules.Create("formules").Assign(element);
  }
  pages = std::move(read);
  for (const auto& page : pages) page->fontFactor = fontFactor;
  if (pages.empty()) AddPage();
}

void RVReport::ReadIdentity(const XmlNode& root, const std::wstring* askedName) {
  const XmlNode storedId = root.Node("id");
  id = storedId ? storedId.Value() : host_->guids->NewGuidText();
  const XmlNode storedName = root.Node("name");
  name = storedName.Value();
  if (!storedName || !askedName || name == *askedName) return;
  name = *askedName;
  id = host_->guids->NewGuidText();
}

// Text keeps the size it was laid out at on screens of another resolution. A resolution of 0 or less cannot be scaled
// from.
void RVReport::ReadFontScale(const XmlNode& root) {
  const int screenDpi = host_->screen->DpiY();
  const XmlNode stored = root.Node("dpiFont");
  dpiFont = stored ? ParseInteger(stored.RawText()) : screenDpi;
  fontFactor = dpiFont > 0 ? static_cast<double>(screenDpi) / dpiFont : 1.0;
}

// Switched off, the lists in the file are not taken over; the documents stay as whoever opens the report made them.
void RVReport::ReadVirtualLists(const XmlNode& root) {
  virtualEnabled = root.Node("virtualEnabled").RawText() == "T";
  if (!virtualEnabled) return;
  CopyChildren(root.Node("virtualDevices"), "virtualDevice", virtualDevices);
  CopyChildren(root.Node("goBackVariables"), "goBackVariable", goBackVariables);
}

RVReportPage& RVReport::AddPage() {
  RVReportPage& page = *pages.emplace_back(std::make_shared<RVReportPage>(*host_));
  page.fontFactor = fontFactor;
  return page;
}

void RVReport::ResetDocuments() {
  formules.Create("formules");
  virtualDevices.Create("virtualDevices");
  goBackVariables.Create("goBackVariables");
}

std::wstring RVReport::FreeName() const {
  for (int n = 1;; ++n) {
    std::wstring candidate = L"report" + std::to_wstring(n);
    if (!FindNamedFile(*host_->files, ConfigFolder(), candidate, kReportEnding)) return candidate;
  }
}

bool RVReport::EnsureName() {
  if (name.empty()) name = FreeName();
  return IsSafeFileName(name);
}

SaveResult RVReport::Save(const SaveRules& rules) {
  if (!GoesBack(rules) && !EnsureName()) {
    modified = true;
    return {SaveOutcome::BadName, {}, {}, {}};
  }
  host_->files->CreateFolder(ConfigFolder());
  if (const Path other = FileOfAnother(rules); !other.empty()) return {SaveOutcome::Taken, other, {}, {}};
  host_->settings->SetRegistryText(kLastReportValue, name);
  return SaveTo(FilePath(rules), rules);
}

// Two reports of one name: whichever is found first would hide the other.
Path RVReport::FileOfAnother(const SaveRules& rules) const {
  if (!rules.asksFirst || GoesBack(rules)) return {};
  std::vector<Path> files = FilesOfName(*host_->files, ConfigFolder(), name, kReportEnding);
  std::erase_if(files, [this](const Path& file) { return !file_.empty() && IsSameFile(file, file_); });
  return files.empty() ? Path() : files.front();
}

bool RVReport::GoesBack(const SaveRules& rules) const {
  return rules.backToItsFile && !file_.empty() && !name.empty() && name == fileName_;
}

Path RVReport::FilePath(const SaveRules& rules) const {
  if (GoesBack(rules)) return file_;
  return NamedFilePath(ConfigFolder(), FileNamePart(id), name, kReportEnding);
}

bool RVReport::HasChangedOnDisk() const { return !file_.empty() && HasChanged(*host_->files, file_, onDisk_); }

SaveResult RVReport::SaveTo(const Path& file, const SaveRules& rules) {
  const bool isOwn = !file_.empty() && IsSameFile(file, file_);
  const FileVersion none;
  std::string text = RoomForText();
  XmlWriter out(text);
  WriteTemplate(out);
  SaveResult result = SaveText(file, out, rules.asksFirst ? (isOwn ? &onDisk_ : &none) : nullptr);
  if (result.outcome == SaveOutcome::Changed && !isOwn) result.outcome = SaveOutcome::Taken;
  modified = !result;
  if (!result) return result;
  Remember(file, FileVersion(host_->files->Stamp(file), text));
  for (const auto& page : pages) page->ForgetLostStyles();
  return result;
}

SaveResult RVReport::WriteTo(const Path& file) const {
  std::string text = RoomForText();
  XmlWriter out(text);
  WriteTemplate(out);
  return SaveText(file, out);
}

std::string RVReport::TemplateText(XmlError* fault) const {
  std::string text = RoomForText();
  XmlWriter out(text);
  WriteTemplate(out);
  if (fault) *fault = out.Check();
  return text;
}

// As much as the file has and a little more: a text that outgrows its room is twice in memory while it moves.
std::string RVReport::RoomForText() const {
  std::string text;
  if (onDisk_.stamp.size < XmlDocument::kMaxBytes) text.reserve(onDisk_.stamp.size + onDisk_.stamp.size / 16);
  return text;
}

void RVReport::WriteTemplate(XmlWriter& out) const {
  out.Declaration();
  const XmlElement root(out, kRoot);
  out.Value("id", id);
  out.Value("name", name);
  out.Value("version", version);
  out.Value("revision", host_->guids->NewGuidText());
  out.Plain("dpiFont", std::to_string(dpiFont));
  out.Bool("hasZoom", true);
  for (const auto& page : pages) page->SaveTemplate(out);
  WriteDocuments(out);
}

// A file that carries devices or go-back variables always says that they are in use.
void RVReport::WriteDocuments(XmlWriter& out) const {
  WriteCopy(out, "formules", formules);
  out.Bool("virtualEnabled", virtualEnabled || HasChildren(virtualDevices) || HasChildren(goBackVariables));
  WriteCopy(out, "virtualDevices", virtualDevices);
  WriteCopy(out, "goBackVariables", goBackVariables);
}

}  // namespace xrpt
