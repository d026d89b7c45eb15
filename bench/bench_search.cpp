// What searching costs: 100,000 cards on one page beside reading their texts once, and a folder of 1,000 reports of 50
// cards beside reading and parsing them bare.
#include <unistd.h>

#include <cstdio>

#include "Measure.h"
#include "canvas/RVEditTemplateWnd.h"
#include "formulas/TemplateTexts.h"
#include "host/DefaultHost.h"
#include "model/CardTexts.h"
#include "model/RVCardLabel.h"
#include "model/RVReport.h"
#include "support/StillWindow.h"

namespace {

using namespace xrpt;
using bench::BestOf;

constexpr int kRuns = 7;

class Nobody final : public MessageTarget {
 public:
  void OnMessage(const MessageData&) override {}
};

void Fill(RVReportPage& page, int count) {
  for (int i = 0; i < count; ++i) {
    auto card = std::make_unique<RVCardLabel>();
    card->text = L"Energy of the month " + std::to_wstring(i) + (i % 10 == 0 ? L", demand of the day" : L"");
    page.cards.PushBack(std::move(card));
  }
}

void SearchPage() {
  RVReportPage page;
  Fill(page, 100'000);
  StillWindow port;
  MessageQueue queue;
  Nobody parent;
  RVEditTemplateWnd window(page, port, queue, parent);
  std::size_t characters = 0;
  const double reading = BestOf(kRuns, [&] {
    for (std::size_t i = 0; i < page.cards.Size(); ++i) {
      ForEachText(page.cards[i], [&](const CardText& text) {
        for (const wchar_t c : text.text) characters += c == L'~' ? 2 : 1;
      });
    }
  });
  for (const wchar_t* pattern : {L"DEMAND", L"nowhere", L"e"}) {
    const double searching = BestOf(kRuns, [&] { window.SearchControl(pattern, false, true); });
    std::printf("100,000 cards, \"%ls\": %.1f ms, reading the texts %.1f ms, beyond it %.1f ms\n", pattern, searching,
                reading, searching - reading);
  }
  std::printf("(%zu characters)\n", characters);
}

void SearchFolder() {
  const Path folder = std::filesystem::temp_directory_path() / ("bench_search" + std::to_string(getpid()));
  std::filesystem::create_directory(folder);
  for (int i = 0; i < 1'000; ++i) {
    RVReport report;
    Fill(*report.pages.front(), 50);
    report.SaveTo(folder / (std::to_string(i) + ".xrpt"));
  }
  FileService& files = *CurrentHost().files;
  const auto each = [&](const auto& work) {
    for (const Path& file : files.List(folder, kReportEnding)) {
      XmlDocument document;
      document.Load(files, file);
      work(document.Root());
    }
  };
  const double bare = BestOf(kRuns, [&] { each([](const XmlNode&) {}); });
  const TextFinder finder(L"DEMAND", false);
  const double searching = BestOf(kRuns, [&] { each([&](const XmlNode& root) { SearchTemplate(root, finder); }); });
  std::printf("1,000 files of 50 cards: %.0f ms, reading and parsing bare %.0f ms (%.2f x)\n", searching, bare,
              searching / bare);
  std::filesystem::remove_all(folder);
}

}  // namespace

int main() {
  const auto host = xrpt::MakeDefaultHost({});
  xrpt::InstallHost(host.get());
  SearchPage();
  SearchFolder();
  xrpt::InstallHost(nullptr);
}
