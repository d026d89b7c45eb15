// What loading and saving a report cost beside the bare work of the XML library on the same file, and the memory that
// its cards take. Every figure is of a process of its own: the floor reads the same file, and begins with the same
// nothing.
#include <malloc.h>
#include <unistd.h>
#include <pugixml.hpp>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>

#include "Measure.h"
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
constexpr const char* kMixed[] = {"label", "label",       "formule",   "date",      "label",
                                  "label", "staticImage", "analogBar", "primitive", "formule",
                                  "label", "conditioned", "label",     "formule",   "reportGraph"};
constexpr const char* kLabels[] = {"label"};

void FillPage(RVReportPage& page, std::span<const char* const> kinds, int cards) {
  for (int n = 0; n < cards; ++n) {
    RVCardControl& card = page.cards.PushBack(NewPageCard(kinds[static_cast<std::size_t>(n) % kinds.size()]));
    card.SetParent(&page);
    Fill(card, n);
  }
}

// --- What is measured, each in milliseconds or bytes ---

std::string ReadBare(const Path& file) {
  std::string bytes(std::filesystem::file_size(file), '\0');
  std::ifstream in(file, std::ios::binary);
  in.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  return bytes;
}

double ParseInPlace(const Path& file) {
  const bench::Stopwatch watch;
  std::string bytes = ReadBare(file);
  pugi::xml_document document;
  document.load_buffer_inplace(bytes.data(), bytes.size());
  return watch.Milliseconds();
}

double LoadOurs(const Path& file) {
  const bench::Stopwatch watch;
  RVReport report;
  report.LoadFile(file);
  return watch.Milliseconds();
}

struct StringWriter final : pugi::xml_writer {
  void write(const void* data, std::size_t size) override { text.append(static_cast<const char*>(data), size); }
  std::string text;
};

double SaveBare(const Path& file) {
  pugi::xml_document document;
  document.load_file(file.c_str());
  const bench::Stopwatch watch;
  StringWriter out;
  document.save(out, "  ");
  return watch.Milliseconds();
}

double SaveOurs(const Path& file) {
  RVReport report;
  report.LoadFile(file);
  const bench::Stopwatch watch;
  const std::string text = report.TemplateText();
  return watch.Milliseconds();
}

double CloneAll(const Path& file) {
  RVReport report;
  report.LoadFile(file);
  const bench::Stopwatch watch;
  std::vector<std::unique_ptr<RVCardControl>> clones;
  for (const auto& page : report.pages) {
    for (std::size_t i = 0; i < page->cards.Size(); ++i) clones.push_back(page->cards[i].GetClone());
  }
  return watch.Milliseconds();
}

// What the report takes once it is open and all that loading needed is given back.
double BytesAtRest(const Path& file) {
  ::malloc_trim(0);
  const double before = bench::ResidentBytes();
  RVReport report;
  report.LoadFile(file);
  ::malloc_trim(0);
  return bench::ResidentBytes() - before;
}

double Resave(const Path& file) {
  RVReport report;
  report.LoadFile(file);
  report.WriteTo(file.string() + ".copy");
  return 0.0;
}

void Measure(const char* what, const Path& file, int cards, int repetitions) {
  const double megabytes = static_cast<double>(std::filesystem::file_size(file)) / 1048576.0;
  std::printf("%d %s, %.1f MB\n", cards, what, megabytes);
  std::fflush(stdout);
  std::vector<bench::Row> rows = {
      {"nothing", [] { return 0.0; }},
      {"parse in place", [&] { return ParseInPlace(file); }},
      {"load", [&] { return LoadOurs(file); }},
      {"save bare", [&] { return SaveBare(file); }},
      {"save", [&] { return SaveOurs(file); }},
      {"clone all", [&] { return CloneAll(file); }},
      {"at rest", [&] { return BytesAtRest(file); }},
      {"resave", [&] { return Resave(file); }},
  };
  bench::RunInTurns(rows, repetitions);
  const auto own = [&](std::size_t row) { return rows[row].Best(&bench::Figures::own); };
  const auto peak = [&](std::size_t row) {
    return rows[row].Best(&bench::Figures::megabytes) - rows[0].Best(&bench::Figures::megabytes);
  };
  std::printf("  load            %8.1f ms | the library's parse in place, reading included %8.1f ms, ratio %5.2f\n",
              own(2), own(1), own(2) / own(1));
  std::printf("  save            %8.1f ms | the library's writing of its tree              %8.1f ms, ratio %5.2f\n",
              own(4), own(3), own(4) / own(3));
  std::printf("  clone all       %8.1f ms\n", own(5));
  std::printf("  at rest         %8.0f bytes a card\n", own(6) / cards);
  std::printf("  peak of a load  %8.1f MB, of a resave %8.1f MB, ratio to the file %5.2f\n", peak(2), peak(7),
              peak(7) / megabytes);
}

// Made in a process of its own: what is measured later begins small.
void Write(const Path& file, std::span<const char* const> kinds, int pages, int cardsPerPage) {
  bench::Measure([&] {
    RVReport report;
    for (int i = 1; i < pages; ++i) report.AddPage();
    for (const auto& page : report.pages) FillPage(*page, kinds, cardsPerPage);
    return report.SaveTo(file) ? 0.0 : 1.0;
  });
}

int Run(int repetitions, const char* keepIn) {
  std::string pattern = (std::filesystem::temp_directory_path() / "xrpt-bench-XXXXXX").string();
  const Path folder = keepIn ? Path(keepIn) : Path(::mkdtemp(pattern.data()));
  HostOptions options;
  options.cfgFolder = options.imagesFolder = options.stateFolder = folder;
  options.settingsFile = folder / "settings.ini";
  options.dpi = 96;
  const std::unique_ptr<Host> host = MakeDefaultHost(options);
  InstallHost(host.get());
  host->files->Write(folder / "S1.Data.XSTY",
                     "<style><id>S1</id><name>Data</name><font><name>Arial</name><size>9.00</size></font></style>");
  Write(folder / "page.xrpt", kMixed, 1, 10000);
  Write(folder / "mixed.xrpt", kMixed, 200, 500);
  Write(folder / "labels.xrpt", kLabels, 1, 100000);
  Measure("mixed cards on one page", folder / "page.xrpt", 10000, repetitions);
  Measure("mixed cards on 200 pages", folder / "mixed.xrpt", 100000, repetitions);
  Measure("labels on one page", folder / "labels.xrpt", 100000, repetitions);
  std::error_code ignored;
  if (!keepIn) std::filesystem::remove_all(folder, ignored);
  return 0;
}

}  // namespace
}  // namespace xrpt

// Takes the number of repetitions, and a folder that the measured files are left in.
int main(int argc, char** argv) { return xrpt::Run(argc > 1 ? std::atoi(argv[1]) : 7, argc > 2 ? argv[2] : nullptr); }
