// Feeds whatever bytes as the plant's device list, and as a lock file and settings, which others write too.
#include "FuzzHost.h"
#include "host/IniSettings.h"
#include "platform/Text.h"

namespace xrpt {
namespace {

void CheckDevices(FuzzHost& host, const std::string& bytes) {
  host.files->Put(FuzzHost::File("devices.xml"), bytes);
  const auto lookUp = host.host->driverVariables->NewDriverVariable();
  for (const Device& device : host.host->devices->Devices()) {
    for (const DeviceVariable& variable : device.variables) {
      const std::wstring name = host.host->variables->JoinDriverVariable({device.id, variable.id, {}, {}});
      host.host->variables->SplitDriverVariable(name);
      lookUp->Setup(name);
      lookUp->Lock();
    }
  }
}

// What is written from a text reads the same again.
void CheckIni(const std::string& bytes) {
  const IniSections sections = ParseIni(bytes);
  Expect(ParseIni(WriteIni(sections)) == sections);
}

}  // namespace
}  // namespace xrpt

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static xrpt::FuzzHost host;
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  xrpt::CheckDevices(host, bytes);
  xrpt::CheckIni(bytes);
  return 0;
}
