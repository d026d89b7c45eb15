// Feeds the report loader whatever bytes: it must end soon with a report, and what it saves must load again.
#include <cstdlib>

#include "host/DefaultHost.h"
#include "model/RVReport.h"

namespace xrpt {
namespace {

// One file, in memory.
class OneFile final : public FileService {
 public:
  std::optional<std::string> Read(const Path& file, std::size_t limit, FileError*) override {
    if (file != Path("report.xrpt") || bytes.size() > limit) return std::nullopt;
    return bytes;
  }
  SaveResult Write(const Path&, std::string_view, const FileVersion*) override { return {}; }
  std::vector<Path> List(const Path&, std::wstring_view) override { return {}; }
  bool CreateFolder(const Path&) override { return true; }
  bool Rename(const Path&, const Path&) override { return true; }
  bool Remove(const Path&) override { return true; }
  FileStamp Stamp(const Path&) override { return {}; }
  std::string bytes;
};

class NoLog final : public LoggerService {
 public:
  void Log(int, std::wstring_view) override {}
};

struct Session {
  Session() {
    HostOptions options;
    options.cfgFolder = options.imagesFolder = options.stateFolder = "nowhere";
    options.settingsFile = "nowhere/settings.ini";
    options.dpi = 96;
    options.logToStderr = false;
    host = MakeDefaultHost(options);
    auto memory = std::make_unique<OneFile>();
    file = memory.get();
    host->files = std::move(memory);
    host->logger = std::make_unique<NoLog>();
    InstallHost(host.get());
  }
  std::unique_ptr<Host> host;
  OneFile* file = nullptr;
};

void Check(OneFile& file) {
  RVReport report;
  report.LoadFile("report.xrpt");
  file.bytes = report.TemplateText();
  RVReport again;
  if (!again.LoadFile("report.xrpt").loaded || again.pages.size() != report.pages.size()) std::abort();
  for (std::size_t i = 0; i < report.pages.size(); ++i) {
    if (again.pages[i]->cards.Size() != report.pages[i]->cards.Size()) std::abort();
  }
}

}  // namespace
}  // namespace xrpt

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static xrpt::Session session;
  session.file->bytes.assign(reinterpret_cast<const char*>(data), size);
  xrpt::Check(*session.file);
  return 0;
}
