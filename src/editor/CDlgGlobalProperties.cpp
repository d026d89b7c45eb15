#include "editor/CDlgGlobalProperties.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

#include "editor/EditorTexts.h"
#include "model/RVCardImage.h"

namespace xrpt {
namespace {

constexpr PaperFormat kFormats[] = {{"A3", 0, 297.0, 420.0},
                                    {"A4", 0, 210.0, 297.0},
                                    {"A5", 0, 148.0, 210.0},
                                    {"", text::kLetterPaper, 215.9, 279.4},
                                    {"", text::kLegalPaper, 215.9, 355.6}};

// Files hold two decimals.
bool IsAbout(double left, double right) { return std::abs(left - right) < 0.05; }

bool IsOf(const PaperFormat& format, double width, double height) {
  return IsAbout(format.width, std::min(width, height)) && IsAbout(format.height, std::max(width, height));
}

constexpr double kFirstStep = 3.0;  // millimetres; what a page without a step begins with

double Signed(double step, bool on) { return on ? step : -step; }

double Shown(double step) { return step == 0.0 ? kFirstStep : std::abs(step); }

}  // namespace

std::span<const PaperFormat> CDlgGlobalProperties::Formats() { return kFormats; }

std::size_t CDlgGlobalProperties::Format() const {
  const auto found = std::find_if(std::begin(kFormats), std::end(kFormats), [this](const PaperFormat& format) {
    return IsOf(format, properties.width, properties.height);
  });
  return found == std::end(kFormats) ? kOwnFormat : static_cast<std::size_t>(found - std::begin(kFormats));
}

void CDlgGlobalProperties::SetFormat(std::size_t format) {
  if (format >= std::size(kFormats)) return;
  const bool lies = IsLandscape();
  const bool covers = CoversPage();
  properties.width = lies ? kFormats[format].height : kFormats[format].width;
  properties.height = lies ? kFormats[format].width : kFormats[format].height;
  if (covers) CoverPage();
}

void CDlgGlobalProperties::SetLandscape(bool on) {
  if (on == IsLandscape()) return;
  const bool covers = CoversPage();
  std::swap(properties.width, properties.height);
  if (covers) CoverPage();
}

void CDlgGlobalProperties::ShowGrid(bool on) {
  properties.xgrid = Signed(Shown(properties.xgrid), on);
  properties.ygrid = Signed(Shown(properties.ygrid), on);
}

double CDlgGlobalProperties::GridX() const { return Shown(properties.xgrid); }

double CDlgGlobalProperties::GridY() const { return Shown(properties.ygrid); }

void CDlgGlobalProperties::SetGrid(double x, double y) {
  const bool on = IsGridShown();
  properties.xgrid = Signed(Shown(x), on);
  properties.ygrid = Signed(Shown(y), on);
}

bool CDlgGlobalProperties::HasPicture() const { return !Picture().empty(); }

std::wstring CDlgGlobalProperties::Picture() const { return properties.Background().PictureName(); }

void CDlgGlobalProperties::SetPicture(std::string_view name) {
  const bool isFirst = !HasPicture();
  properties.Background().AssignPicture(name);
  if (isFirst) CoverPage();
}

bool CDlgGlobalProperties::CoversPage() const {
  const RVCardImage& background = properties.Background();
  return background.x == 0.0 && background.y == 0.0 && background.width == properties.width &&
         background.height == properties.height;
}

void CDlgGlobalProperties::CoverPage() {
  RVCardImage& background = properties.Background();
  background.x = 0.0;
  background.y = 0.0;
  background.width = properties.width;
  background.height = properties.height;
}

void CDlgGlobalProperties::GivePaper(RVGlobalProperties& page) const {
  page.width = properties.width;
  page.height = properties.height;
  page.rounded = properties.rounded;
  page.xgrid = properties.xgrid;
  page.ygrid = properties.ygrid;
}

}  // namespace xrpt
