// The plant's devices and variables as `devices.xml` of the configuration folder lists them:
// <devices><server/><device><id/><name/><variable><id/><name/></variable>...</device>...</devices>
// Any other element of a device is a setting of it.
#pragma once

#include <mutex>

#include "platform/Host.h"

namespace xrpt {

class DeviceFile final : public DeviceCatalogue {
 public:
  static constexpr const char* kFileName = "devices.xml";

  explicit DeviceFile(Host& host) : host_(host) {}
  // Read again when the file on disk is another one. A file that cannot be read is logged and has no devices.
  std::vector<Device> Devices() override;
  std::string Server() override;

 private:
  void Update();
  void Load(const Path& file);

  Host& host_;
  std::mutex lock_;  // checks in the background ask too
  FileStamp stamp_;
  std::vector<Device> devices_;
  std::string server_;
};

}  // namespace xrpt
