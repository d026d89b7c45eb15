#include "model/RVReport.h"

#include "platform/NamedFiles.h"
#include "platform/Numbers.h"
#include "platform/Text.h"

namespace xrpt {
namespace {

void CopyChildren(const XmlNode& from, std::string_view tag, const XmlDocument& to) {
  for (const XmlNode& child : from) {
    if (child.Tag() == tag) to.Root().Append(child);
  }
}

bool HasChildren(const XmlDocument& document) { return document.Root().Size() > 0; }

void WriteCopy(XmlWriter& out, std::string_view tag, const XmlDocument& document) {
  if (document.Root()) out.Copy(tag, document.Root());
}

}  // namespace

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
  LoadResult result{file, false, {}};
  XmlDocument document;
  result.loaded = document.Load(*host_->files, file, &result.error);
  if (!result.loaded) document.Create("reportLayout");
  ReadTemplate(document.Root(), askedName, &RVReportPage::TakeTemplate);
  modified = false;
  return result;
}

void RVReport::ReadTemplate(const XmlNode& root, const std::wstring* askedName, PageReader readPage) {
  pages.clear();
  ReadIdentity(root, askedName);
  version = root.Value("version", kFormatVersion);
  ReadFontScale(root);
  ReadVirtualLists(root);
  ReadPages(root, readPage);
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

void RVReport::ReadPages(const XmlNode& root, PageReader readPage) {
  for (const XmlNode& element : root) {
    if (element.Tag() == "page") (AddPage().*readPage)(element);
    if (element.Tag() == "formules") formules.Create("formules").Assign(element);
  }
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

bool RVReport::EnsureName() {
  for (int n = 1; name.empty(); ++n) {
    const std::wstring candidate = L"report" + std::to_wstring(n);
    if (!FindNamedFile(*host_->files, ConfigFolder(), candidate, kReportEnding)) name = candidate;
  }
  return IsSafeFileName(name);
}

SaveResult RVReport::Save() {
  if (!EnsureName()) {
    modified = true;
    return {SaveOutcome::BadName, {}, {}, {}};
  }
  host_->settings->SetRegistryText(kLastReportValue, name);
  host_->files->CreateFolder(ConfigFolder());
  return SaveTo(FilePath());
}

Path RVReport::FilePath() const { return NamedFilePath(ConfigFolder(), id, name, kReportEnding); }

SaveResult RVReport::SaveTo(const Path& file) {
  SaveResult result = WriteTo(file);
  modified = !result;
  return result;
}

SaveResult RVReport::WriteTo(const Path& file) const {
  std::string text;
  XmlWriter out(text);
  WriteTemplate(out);
  return SaveText(file, out);
}

std::string RVReport::TemplateText(XmlError* fault) const {
  std::string text;
  XmlWriter out(text);
  WriteTemplate(out);
  if (fault) *fault = out.Check();
  return text;
}

void RVReport::WriteTemplate(XmlWriter& out) const {
  out.Declaration();
  const XmlElement root(out, "reportLayout");
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
