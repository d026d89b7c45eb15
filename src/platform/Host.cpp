#include "platform/Host.h"

#include <stdexcept>
#include <utility>

namespace xrpt {
namespace {

Host*& Installed() {
  static Host* host = nullptr;
  return host;
}

}  // namespace

Host::Host() = default;
Host::~Host() = default;

Host& CurrentHost() {
  if (!Installed()) throw std::logic_error("a host must be installed before the library is used");
  return *Installed();
}

Host* InstallHost(Host* host) { return std::exchange(Installed(), host); }

std::wstring HostText(int id) { return CurrentHost().texts->Text(id); }

void LogMessage(int severity, std::wstring_view message) { CurrentHost().logger->Log(severity, message); }

}  // namespace xrpt
