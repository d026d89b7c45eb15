#include "editor/RVEditControlWnd.h"

#include <cmath>

#include "editor/EditorTexts.h"
#include "model/RVCardImage.h"
#include "platform/Host.h"
#include "platform/NamedFiles.h"
#include "platform/Text.h"

namespace xrpt {
namespace {

constexpr double kZoomStep = 0.5;
constexpr int kPageMode = 0;
constexpr int kWidthMode = 101;

}  // namespace

RVEditControlWnd::RVEditControlWnd(EditorPort& port) : port_(port) { BuildPages(); }

RVEditControlWnd::~RVEditControlWnd() { DropPages(); }

std::wstring RVEditControlWnd::Caption() const {
  return report_.name.empty() ? HostText(text::kUntitled) : report_.name;
}

void RVEditControlWnd::SetModified(bool modified) {
  report_.modified = modified;
  port_.StateChanged();
}

// --- The report ---

LoadResult RVEditControlWnd::Setup(const std::wstring& nameOrPath) {
  DropPages();
  report_.ResetDocuments();
  LoadResult result = report_.Load(nameOrPath);
  BuildPages();
  port_.ReportOpened(result);
  return result;
}

LoadResult RVEditControlWnd::OpenFile(const Path& file, const std::wstring* askedName) {
  DropPages();
  report_.ResetDocuments();
  LoadResult result = report_.LoadFile(file, askedName);
  BuildPages();
  port_.ReportOpened(result);
  return result;
}

bool RVEditControlWnd::OpenFromList() {
  if (!LetGoOfChanges()) return false;
  const std::optional<std::wstring> chosen = port_.ChooseReport(report_.name);
  if (!chosen || *chosen == report_.name) return false;
  OpenByName(*chosen);
  CurrentHost().settings->SetRegistryText(kLastReportValue, report_.name);
  return true;
}

// A report of the list may be stored under its bare name, without an identifier before it.
LoadResult RVEditControlWnd::OpenByName(const std::wstring& name) {
  const Path folder = CurrentHost().setup->CfgPath();
  if (FindNamedFile(folder, name, kReportEnding)) return Setup(name);
  return Setup(FromUtf8((folder / ToUtf8(name + std::wstring(kReportEnding))).string()));
}

bool RVEditControlWnd::NewReport() {
  if (!LetGoOfChanges()) return false;
  DropPages();
  report_ = RVReport();
  BuildPages();
  return true;
}

bool RVEditControlWnd::LetGoOfChanges() {
  return !report_.modified || port_.Ask(text::kSaveChanges) == Answer::No || Save();
}

bool RVEditControlWnd::Save() {
  const bool saved = report_.Save();
  if (saved) ReportListChanged();
  port_.StateChanged();
  return saved;
}

bool RVEditControlWnd::SaveAs(const std::wstring& name) {
  report_.name = name;
  report_.id = CurrentHost().guids->NewGuidText();
  report_.modified = true;
  return Save();
}

bool RVEditControlWnd::SaveUnderGeneratedName() {
  const std::wstring former = std::exchange(report_.name, std::wstring());
  const bool saved = Save();
  if (!saved) report_.name = former;
  return saved;
}

void RVEditControlWnd::Rename(const std::wstring& name) {
  report_.name = name;
  SetModified(true);
}

void RVEditControlWnd::ReportListChanged() { CurrentHost().identifiers->invalidateGuid(GuidKind::Reports, true); }

// --- Pages ---

RVEditControlWnd::PageWindow& RVEditControlWnd::AttachWindow(RVReportPage& page) {
  PageWindow& added = pages_.emplace_back();
  added.port = port_.NewPageWindow();
  added.window = std::make_unique<RVEditTemplateWnd>(page, *added.port, queue_, *this);
  added.window->SetDpi(CurrentHost().screen->DpiX(), CurrentHost().screen->DpiY());
  added.window->SetFontFactor(page.fontFactor);
  added.window->SetInsertKind(tool_);
  added.window->InitializeScrollBars(false);
  port_.PageWindowReady(*added.port, *added.window);
  return added;
}

void RVEditControlWnd::DetachWindow(PageWindow& page) {
  port_.PageWindowGone(*page.port);
  page.window.reset();
}

void RVEditControlWnd::BuildPages() {
  for (const auto& page : report_.pages) AttachWindow(*page);
  current_ = 0;
  port_.PagesChanged();
  port_.StateChanged();
}

// Messages still on their way name pages and cards that are going.
void RVEditControlWnd::DropPages() {
  queue_.Forget(this);
  for (PageWindow& page : pages_) DetachWindow(page);
  pages_.clear();
}

bool RVEditControlWnd::ShowPage(std::size_t index) {
  if (index >= pages_.size() || index == current_) return false;
  CurrentPage().PauseTimer();
  current_ = index;
  CurrentPage().PlayTimer();
  port_.PagesChanged();
  port_.StateChanged();
  return true;
}

void RVEditControlWnd::AddPage() {
  AttachWindow(report_.AddPage());
  ShowPage(pages_.size() - 1);
  SetModified(true);
}

// A report keeps at least one page.
bool RVEditControlWnd::DeletePage() {
  if (pages_.size() < 2) return false;
  const auto at = static_cast<std::ptrdiff_t>(current_);
  queue_.Forget(this);
  DetachWindow(pages_[current_]);
  pages_.erase(pages_.begin() + at);
  report_.pages.erase(report_.pages.begin() + at);
  current_ = std::min(current_, pages_.size() - 1);
  port_.PagesChanged();
  SetModified(true);
  return true;
}

bool RVEditControlWnd::SetOrientation(int orientation) {
  const bool swapped = CurrentPage().SetOrientation(orientation);
  if (!swapped) return false;
  CurrentPage().InitializeScrollBars(false);
  SetModified(true);
  return true;
}

bool RVEditControlWnd::IsGridOn() const {
  const RVGlobalProperties& page = CurrentPage().Page().properties;
  return page.xgrid > 0.0 || page.ygrid > 0.0;
}

bool RVEditControlWnd::ToggleGrid() {
  RVGlobalProperties& page = CurrentPage().Page().properties;
  const double sign = IsGridOn() ? -1.0 : 1.0;
  page.xgrid = sign * std::abs(page.xgrid);
  page.ygrid = sign * std::abs(page.ygrid);
  CurrentPage().RedrawBackground();
  SetModified(true);
  return true;
}

void RVEditControlWnd::SetTool(int tool) {
  tool_ = tool;
  for (PageWindow& page : pages_) page.window->SetInsertKind(tool);
  port_.StateChanged();
}

// --- Zoom ---

double NextZoomIn(double zoom) {
  if (zoom >= 0.0) return zoom + kZoomStep;
  const double next = (std::floor(-zoom / kZoomStep) + 1.0) * kZoomStep;
  return std::max(next, RVEditControlWnd::kSmallestZoom) <= RVEditControlWnd::kLargestZoom
             ? std::max(next, RVEditControlWnd::kSmallestZoom)
             : -zoom;
}

double NextZoomOut(double zoom) {
  if (zoom >= 0.0) return zoom - kZoomStep;
  const double next = std::min((std::ceil(-zoom / kZoomStep) - 1.0) * kZoomStep, RVEditControlWnd::kLargestZoom);
  return next >= RVEditControlWnd::kSmallestZoom ? next : -zoom;
}

bool RVEditControlWnd::ZoomIn() { return SetZoom(NextZoomIn(CurrentPage().Zoom())); }

bool RVEditControlWnd::ZoomOut() { return SetZoom(NextZoomOut(CurrentPage().Zoom())); }

bool RVEditControlWnd::SetZoom(double zoom) {
  if (!(zoom >= kSmallestZoom && zoom <= kLargestZoom)) return false;
  if (!CurrentPage().SetZoom(zoom)) return false;
  port_.StateChanged();
  return true;
}

bool RVEditControlWnd::FitPage() { return Fit(kPageMode, false); }

bool RVEditControlWnd::FitWidth() { return Fit(kWidthMode, true); }

bool RVEditControlWnd::Fit(int mode, bool width) {
  pages_[current_].fitsWidth = width;
  const bool changed = CurrentPage().SetMode(mode);
  CurrentPage().InitializeScrollBars(false);
  CurrentPage().RedrawBackground();
  port_.StateChanged();
  return changed;
}

int RVEditControlWnd::ZoomEntry() const {
  const double zoom = CurrentPage().Zoom();
  if (zoom < 0.0) return pages_[current_].fitsWidth ? kFitWidthEntry : kFitPageEntry;
  return roundi(2.0 * zoom + 1.0);
}

bool RVEditControlWnd::SetZoomEntry(int entry) {
  if (entry == kFitPageEntry) return FitPage();
  if (entry == kFitWidthEntry) return FitWidth();
  return SetZoom((entry - 1) * kZoomStep);
}

// --- What changed elsewhere ---

void RVEditControlWnd::StylesModified() {
  for (PageWindow& page : pages_) page.window->StylesModified();
  port_.StateChanged();
}

void RVEditControlWnd::ImagesModified() {
  RVCardImage::ReLoadAllOriginalImages();
  for (PageWindow& page : pages_) page.window->ImagesManagerModified();
}

bool RVEditControlWnd::SelectControlById(const std::wstring& id) {
  for (std::size_t i = 0; i < pages_.size(); ++i) {
    if (!report_.pages[i]->cards.Find(id)) continue;
    ShowPage(i);
    return CurrentPage().SelectControlById(id);
  }
  return false;
}

void RVEditControlWnd::OnMessage(const MessageData& message) {
  switch (message.message) {
    case Message::SelectionOrGeometryChanged:
      if (message.value == 0) report_.modified = true;
      break;
    case Message::CardInserted:
      report_.modified = true;
      if (returnsToPointer_) SetTool(tool::kPointer);
      break;
    case Message::CardChanged:
    case Message::CardAboutToBeDeleted:
      report_.modified = true;
      break;
    default:
      return;
  }
  port_.StateChanged();
}

}  // namespace xrpt
