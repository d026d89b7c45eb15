// Feeds the report loader whatever bytes: it must end soon with a report, and what it saves must load again.
#include "FuzzHost.h"
#include "model/RVReport.h"

namespace xrpt {
namespace {

void Check(FuzzHost& host) {
  const Path file = FuzzHost::File("report.xrpt");
  RVReport report;
  report.LoadFile(file);
  host.files->Put(file, report.TemplateText());
  RVReport again;
  Expect(again.LoadFile(file).loaded && again.pages.size() == report.pages.size());
  for (std::size_t i = 0; i < report.pages.size(); ++i)
    Expect(again.pages[i]->cards.Size() == report.pages[i]->cards.Size());
}

}  // namespace
}  // namespace xrpt

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static xrpt::FuzzHost host;
  host.files->Put(xrpt::FuzzHost::File("report.xrpt"), std::string(reinterpret_cast<const char*>(data), size));
  xrpt::Check(host);
  return 0;
}
