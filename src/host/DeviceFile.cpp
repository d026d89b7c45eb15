#include "host/DeviceFile.h"

#include "platform/Text.h"
#include "platform/Xml.h"

namespace xrpt {
namespace {

constexpr std::size_t kLimit = 64u << 20;

Device ReadDevice(const XmlNode& node) {
  Device device{node.Value("/id"), node.Value("/name"), {}};
  for (const XmlNode& child : node) {
    if (child.Tag() == "variable") device.variables.push_back({child.Value("/id"), child.Value("/name")});
  }
  return device;
}

}  // namespace

std::vector<Device> DeviceFile::Devices() {
  const std::lock_guard guard(lock_);
  const Path file = host_.setup->CfgPath() / kFileName;
  const FileStamp now = host_.files->Stamp(file);
  if (now != stamp_) devices_ = now.exists ? Load(file) : std::vector<Device>();
  stamp_ = now;
  return devices_;
}

std::vector<Device> DeviceFile::Load(const Path& file) {
  FileError unreadable;
  XmlError malformed;
  XmlDocument document;
  std::optional<std::string> bytes = host_.files->Read(file, kLimit, &unreadable);
  if (!bytes || !document.Parse(std::move(*bytes), &malformed)) {
    const std::string reason = bytes ? malformed.message : unreadable.reason;
    host_.logger->Log(3, FromUtf8("DeviceFile::Devices(): " + file.string() + ": " + reason));
    return {};
  }
  std::vector<Device> devices;
  for (const XmlNode& node : document.Root()) {
    if (node.Tag() == "device") devices.push_back(ReadDevice(node));
  }
  return devices;
}

}  // namespace xrpt
