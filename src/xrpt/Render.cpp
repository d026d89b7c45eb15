// xrpt render: pages as PNG, SVG and PDF.
#include "xrpt/Render.h"

#include <CLI/CLI.hpp>

#include "canvas/RenderPage.h"
#include "host/SvgGraphics.h"
#include "xrpt/Commands.h"
#include "xrpt/Options.h"
#ifdef XRPT_QT
#include "host/qt/QtHost.h"
#include "xrpt/qt/PagePictures.h"
#endif

namespace xrpt {
namespace {

// Lines and texts have no resolution; a fine unit keeps rounding to units out of sight.
constexpr double kVectorDpi = 720.0;

#ifdef XRPT_QT
constexpr const char* kWritten = "the output's name must end in .png, .svg or .pdf";
#else
constexpr const char* kWritten = "the output's name must end in .svg; this build paints no pictures";
#endif

struct RenderOptions : CommonOptions {
  std::string output;
  int page = 0;
};

std::string EndingOf(const Path& output) {
  std::string ending = output.extension().string();
  for (char& c : ending) c = c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
  return ending;
}

std::string RenderSvg(const RVReportPage& page) {
  const SizeD millimetres{page.properties.width, page.properties.height};
  if (!(millimetres.width > 0.0 && millimetres.height > 0.0)) return {};
  SvgGraphics graphics(OutputSize(page, kVectorDpi), millimetres);
  RenderPage(graphics, page, kVectorDpi);
  return graphics.Finish();
}

#ifdef XRPT_QT
std::string RenderAllPdf(const RVReport& report, int only) {
  std::vector<const RVReportPage*> pages;
  for (std::size_t i = 0; i < report.pages.size(); ++i) {
    if (only == 0 || only == static_cast<int>(i) + 1) pages.push_back(report.pages[i].get());
  }
  return RenderPdf(report.name, pages, kVectorDpi);
}
#else
std::string RenderPng(const RVReportPage&, double) { return {}; }
std::string RenderAllPdf(const RVReport&, int) { return {}; }
#endif

// The first page takes the name itself, the others their number behind it: report.png, report-2.png ...
Path PictureOfPage(const Path& output, int page) {
  if (page == 1) return output;
  Path numbered = output;
  numbered.replace_filename(output.stem().string() + "-" + std::to_string(page) + output.extension().string());
  return numbered;
}

int RenderOne(const RenderOptions& options, const RVReport& report, const RenderRequest& request) {
  std::string reason;
  const std::string bytes = RenderReport(report, request, reason);
  if (bytes.empty()) {
    PrintError(options.report, reason);
    return kCouldNotRun;
  }
  return WriteOutput(request.output.string(), bytes) ? kNothingToReport : kCouldNotRun;
}

int Render(const RenderOptions& options) {
  if (!IsRenderable(options.output)) {
    PrintError(options.output, kWritten);
    return kCouldNotRun;
  }
  const HostSession session(MakeRenderHost(HostOptionsOf(options)));
  RVReport report;
  if (!OpenReport(options, report)) return kCouldNotRun;
  const auto pages = static_cast<int>(report.pages.size());
  if (options.page != 0 || EndingOf(options.output) == ".pdf" || pages == 1) {
    return RenderOne(options, report, {options.output, options.page, options.dpi});
  }
  for (int page = 1; page <= pages; ++page) {
    const int status = RenderOne(options, report, {PictureOfPage(options.output, page), page, options.dpi});
    if (status != kNothingToReport) return status;
  }
  return kNothingToReport;
}

}  // namespace

std::unique_ptr<Host> MakeRenderHost(HostOptions options) {
#ifdef XRPT_QT
  return MakeQtHost(std::move(options));
#else
  return MakeDefaultHost(std::move(options));
#endif
}

bool IsRenderable(const Path& output) {
  const std::string ending = EndingOf(output);
#ifdef XRPT_QT
  if (ending == ".png" || ending == ".pdf") return true;
#endif
  return ending == ".svg";
}

std::string RenderReport(const RVReport& report, const RenderRequest& request, std::string& reason) {
  const auto count = static_cast<int>(report.pages.size());
  if (request.page < 0 || request.page > count) {
    reason = "there is no page " + std::to_string(request.page) + ", the report has " + std::to_string(count);
    return {};
  }
  reason = "a page has no size, or is too large to paint";
  const std::string ending = EndingOf(request.output);
  if (ending == ".pdf") return RenderAllPdf(report, request.page);
  const RVReportPage& page = *report.pages[static_cast<std::size_t>(std::max(request.page - 1, 0))];
  return ending == ".png" ? RenderPng(page, request.dpi) : RenderSvg(page);
}

void AddRender(CLI::App& program, int& status) {
  CLI::App* command = program.add_subcommand("render", "Paint a report's pages as PNG, SVG or PDF");
  const auto options = std::make_shared<RenderOptions>();
  options->AddReport(*command);
  command->add_option("-o,--output", options->output, "Where to write: a name ending in .png, .svg or .pdf")
      ->required()
      ->type_name("FILE");
  command
      ->add_option("--page", options->page,
                   "Only this page (default: all; pictures after the first are numbered: report-2.png)")
      ->type_name("N")
      ->check(CLI::Range(1, 1000000));
  command->add_option("--dpi", options->dpi, "Dots per inch of a PNG")
      ->type_name("N")
      ->check(CLI::Range(1, 4800))
      ->capture_default_str();
  options->AddFolders(*command);
  command->footer(
      "Examples:\n  xrpt render examples/config/report.xrpt -o report.pdf --images examples/images\n"
      "  xrpt render Power_quality --config examples/config -o page2.png --page 2 --dpi 150");
  command->callback([options, &status] { status = Render(*options); });
}

}  // namespace xrpt
