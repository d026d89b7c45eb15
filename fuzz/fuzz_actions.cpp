// Runs whatever text as an action file: each line is refused or carried out, and the report can be saved and opened
// again afterwards.
#include "FuzzHost.h"
#include "xrpt/Output.h"
#include "xrpt/ScriptRunner.h"

namespace xrpt {

// What actions print is of no interest here.
void Print(const std::string&) {}

namespace {

constexpr std::size_t kMostActions = 60;

bool TakesLong(const Action& action) { return action.name == "tick" && action.arguments[0].size() > 3; }

void Check(FuzzHost& host, const std::string& text) {
  ScriptError error;
  const auto actions = ParseScript(text, error);
  if (!actions) return Expect(error.line > 0 && !error.message.empty());
  if (actions->size() > kMostActions) return;
  host.files->Clear();
  ScriptRunner runner(text.size() % 2 == 0 ? EditingOptions::Comfort() : EditingOptions());
  for (const Action& action : *actions) {
    if (!TakesLong(action)) runner.Run(action);
  }
  const Path file = FuzzHost::File("after.xrpt");
  host.files->Clear();
  host.files->Put(file, runner.Frame().Report().TemplateText());
  RVReport again;
  Expect(again.LoadFile(file).loaded);
}

}  // namespace
}  // namespace xrpt

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static xrpt::FuzzHost host;
  xrpt::Check(host, std::string(reinterpret_cast<const char*>(data), size));
  return 0;
}
