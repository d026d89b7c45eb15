#include "platform/Host.h"

#include <stdexcept>
#include <utility>

#include "platform/ImageFiles.h"

namespace xrpt {
namespace {

Host*& Installed() {
  static Host* host = nullptr;
  return host;
}

}  // namespace

ModelServices::ModelServices(PictureStore::Reader readPicture) : pictureStore(std::move(readPicture)) {}
ModelServices::~ModelServices() = default;

Host::Host() : ModelServices([this](const auto& id, const auto& path) { return ReadImageFile(*this, id, path); }) {}
Host::~Host() = default;

std::wstring Device::Setting(std::wstring_view name) const {
  for (const auto& [setting, value] : settings) {
    if (setting == name) return value;
  }
  return {};
}

Host& CurrentHost() {
  if (!Installed()) throw std::logic_error("a host must be installed before the library is used");
  return *Installed();
}

Host* InstallHost(Host* host) { return std::exchange(Installed(), host); }

ModelServices& InstalledServices() { return CurrentHost(); }

std::wstring HostText(int id) { return CurrentHost().texts->Text(id); }

void LogMessage(int severity, std::wstring_view message) { CurrentHost().logger->Log(severity, message); }

}  // namespace xrpt
