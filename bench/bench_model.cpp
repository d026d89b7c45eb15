// What loading, saving and cloning a report cost beside the bare XML work, in one run: medians of several repetitions
// over a page of 10,000 mixed cards and a report of 200 pages with 100,000.
#include <malloc.h>
#include <unistd.h>
#include <pugixml.hpp>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>

#include "host/DefaultHost.h"
#include "model/CardRegistry.h"
#include "model/RVCardConditioned.h"
#include "model/RVCardForceValues.h"
#include "model/RVCardFormule.h"
#include "model/RVCardImage.h"
#include "model/RVCardReportGraph.h"
#include "model/RVReport.h"

namespace xrpt {
namespace {

// Processor time, so that a busy machine does not spoil the figures. The memory that earlier work left is given back
// first, so that each run asks the system for its own, as a program does that opens one report. What `work` returns is
// freed after the clock has stopped.
template <class Work>
double MedianMs(int repetitions, const Work& work) {
  std::vector<double> times;
  for (int i = 0; i < repetitions; ++i) {
    ::malloc_trim(0);
    const std::clock_t start = std::clock();
    [[maybe_unused]] const auto result = work();
    times.push_back(static_cast<double>(std::clock() - start) * 1000.0 / CLOCKS_PER_SEC);
  }
  std::sort(times.begin(), times.end());
  return times[times.size() / 2];
}

// Ours, what our XML layer takes alone, and what the XML library takes with its own defaults.
template <class Ours, class Layer, class Library>
void Compare(const char* what, int repetitions, const Ours& ours, const Layer& layer, const Library& library) {
  const double our = MedianMs(repetitions, ours);
  const double bare = MedianMs(repetitions, layer);
  const double plain = MedianMs(repetitions, library);
  std::printf("  %-6s %8.2f ms | XML layer alone %8.2f ms, ratio %5.2f | XML library alone %8.2f ms, ratio %5.2f\n",
              what, our, bare, our / bare, plain, our / plain);
}

std::unique_ptr<RVReport> LoadReport(const Path& file) {
  auto report = std::make_unique<RVReport>();
  report->LoadFile(file);
  return report;
}

std::unique_ptr<XmlDocument> LoadBare(const Path& file) {
  auto document = std::make_unique<XmlDocument>();
  document->Load(file);
  return document;
}

void AddSeries(RVCardReportGraph& graph) {
  for (int i = 0; i < 3; ++i) {
    graph.variables.push_back(L"PLANT.ENERGY" + std::to_wstring(i));
    graph.colors.push_back(0x204080);
    graph.types.push_back(SeriesType::Bar);
    graph.lineStyles.push_back(i);
    graph.widths.push_back(2);
    graph.fminBind.push_back(false);
    graph.fmaxBind.push_back(true);
    graph.minBind.push_back(-1.0);
    graph.maxBind.push_back(1250.5);
  }
}

void AddAlternatives(RVCardConditioned& card) {
  for (const char* tag : {"label", "forceValues"}) {
    card.conditions.push_back(L"[PLANT.STATE] > 0 && [PLANT.ALARM] < 1");
    card.cards.push_back(NewInnerCard(tag));
  }
}

void Fill(RVCardControl& card, int n) {
  card.x = n % 200;
  card.y = n / 200 * 1.5;
  card.field = n % 3 == 0 ? L"PLANT.POWER" : L"";
  if (auto* label = dynamic_cast<RVCardLabel*>(&card)) {
    label->text = L"Potencia máxima & mínima " + std::to_wstring(n);
    if (n % 4 == 0) label->styleName = L"Data";
  }
  if (auto* formule = dynamic_cast<RVCardFormule*>(&card)) formule->value = L"[PLANT.ENERGY] / 1000 + OFFSET";
  if (auto* image = dynamic_cast<RVCardImage*>(&card)) image->LoadOriginalImage(L"logo", L"./");
  if (auto* graph = dynamic_cast<RVCardReportGraph*>(&card)) AddSeries(*graph);
  if (auto* conditioned = dynamic_cast<RVCardConditioned*>(&card)) AddAlternatives(*conditioned);
}

// Texts are what reports are mostly made of; every kind is there.
void FillPage(RVReportPage& page, int cards) {
  static const char* const kinds[] = {"label", "label",       "formule",   "date",      "label",
                                      "label", "staticImage", "analogBar", "primitive", "formule",
                                      "label", "conditioned", "label",     "formule",   "reportGraph"};
  for (int n = 0; n < cards; ++n) {
    RVCardControl& card = page.cards.PushBack(NewPageCard(kinds[static_cast<std::size_t>(n) % std::size(kinds)]));
    card.SetParent(&page);
    Fill(card, n);
  }
}

std::unique_ptr<pugi::xml_document> LoadPlain(const Path& file) {
  auto document = std::make_unique<pugi::xml_document>();
  document->load_file(file.c_str());
  return document;
}

struct StringWriter final : pugi::xml_writer {
  void write(const void* data, std::size_t size) override { text.append(static_cast<const char*>(data), size); }
  std::string text;
};

std::string TextOf(const pugi::xml_document& document) {
  StringWriter out;
  document.save(out, "  ");
  return std::move(out.text);
}

using Cards = std::vector<std::unique_ptr<RVCardControl>>;

Cards CloneOf(const RVReport& report) {
  Cards clones;
  for (const auto& page : report.pages) {
    for (std::size_t i = 0; i < page->cards.Size(); ++i) clones.push_back(page->cards[i].GetClone());
  }
  return clones;
}

void Measure(const Path& file, int pages, int cardsPerPage, int repetitions) {
  RVReport report;
  for (int i = 1; i < pages; ++i) report.AddPage();
  for (const auto& page : report.pages) FillPage(*page, cardsPerPage);
  report.SaveTo(file);
  XmlDocument document;
  document.Load(file);
  std::printf("%d cards on %d pages, %.1f MB\n", pages * cardsPerPage, pages,
              static_cast<double>(report.TemplateText().size()) / 1e6);

  RVReport loaded;
  Compare(
      "load", repetitions, [&] { return LoadReport(file); }, [&] { return LoadBare(file); },
      [&] { return LoadPlain(file); });
  const std::unique_ptr<pugi::xml_document> plain = LoadPlain(file);
  Compare(
      "save", repetitions, [&] { return report.TemplateText(); }, [&] { return document.Text(); },
      [&] { return TextOf(*plain); });
  std::printf("  %-6s %8.2f ms\n", "clone", MedianMs(repetitions, [&] { return CloneOf(report); }));
}

int Run(int repetitions) {
  std::string pattern = (std::filesystem::temp_directory_path() / "xrpt-bench-XXXXXX").string();
  const Path folder = ::mkdtemp(pattern.data());
  HostOptions options;
  options.cfgFolder = options.imagesFolder = options.stateFolder = folder;
  options.settingsFile = folder / "settings.ini";
  options.dpi = 96;
  const std::unique_ptr<Host> host = MakeDefaultHost(options);
  InstallHost(host.get());
  host->files->Write(folder / "S1.Data.XSTY",
                     "<style><id>S1</id><name>Data</name><font><name>Arial</name><size>9.00</size></font></style>");
  Measure(folder / "page.xrpt", 1, 10000, repetitions);
  Measure(folder / "report.xrpt", 200, 500, repetitions / 3 + 1);
  std::error_code ignored;
  std::filesystem::remove_all(folder, ignored);
  return 0;
}

}  // namespace
}  // namespace xrpt

// Takes the number of repetitions.
int main(int argc, char** argv) { return xrpt::Run(argc > 1 ? std::atoi(argv[1]) : 15); }
