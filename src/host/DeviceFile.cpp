#include "host/DeviceFile.h"

#include "platform/Text.h"
#include "platform/Xml.h"

namespace xrpt {
namespace {

constexpr std::size_t kLimit = 64u << 20;

Device ReadDevice(const XmlNode& node) {
  Device device{node.Value("/id"), node.Value("/name"), {}};
  for (const XmlNode& child : node) {
    const std::string_view tag = child.Tag();
    if (tag == "variable") {
      device.variables.push_back({child.Value("/id"), child.Value("/name")});
    } else if (tag != "id" && tag != "name") {
      device.settings.emplace_back(FromUtf8(tag), child.Value());
    }
  }
  return device;
}

}  // namespace

std::vector<Device> DeviceFile::Devices() {
  const std::lock_guard guard(lock_);
  Update();
  return devices_;
}

std::string DeviceFile::Server() {
  const std::lock_guard guard(lock_);
  Update();
  return server_;
}

void DeviceFile::Update() {
  const Path file = host_.setup->CfgPath() / kFileName;
  const FileStamp now = host_.files->Stamp(file);
  if (now == stamp_) return;
  stamp_ = now;
  devices_.clear();
  server_.clear();
  if (now.exists) Load(file);
}

void DeviceFile::Load(const Path& file) {
  FileError unreadable;
  XmlError malformed;
  XmlDocument document;
  std::optional<std::string> bytes = host_.files->Read(file, kLimit, &unreadable);
  if (!bytes || !document.Parse(std::move(*bytes), &malformed)) {
    const std::string reason = bytes ? malformed.message : unreadable.reason;
    return host_.logger->Log(3, FromUtf8("DeviceFile::Devices(): " + file.string() + ": " + reason));
  }
  server_ = ToUtf8(document.Root().Value("/server"));
  for (const XmlNode& node : document.Root()) {
    if (node.Tag() == "device") devices_.push_back(ReadDevice(node));
  }
}

}  // namespace xrpt
