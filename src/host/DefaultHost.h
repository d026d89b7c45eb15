// The host that stands alone: every service on files of the user's own, no server and no set-up.
#pragma once

#include <memory>
#include <string>

#include "platform/Host.h"

namespace xrpt {

struct HostOptions {
  Path cfgFolder;        // reports and styles; empty: "config" in the user's configuration folder
  Path imagesFolder;     // empty: "images" inside the configuration folder
  Path stateFolder;      // log, recovery files; empty: the user's state folder
  Path settingsFile;     // empty: settings.ini in the user's configuration folder
  std::string language;  // "es", "en_GB.UTF-8" ...; empty: as the environment says
  int dpi = 0;           // of the screen; 0: the screen's own, or 96 without one
  bool logToStderr = true;
  int pictureMegabytes = 0;  // for all decoded pictures together; 0: as the user's settings say
};

// Sets the pictures' limit by the options, or by the value "MemoryMegabytes" of the settings' section "Pictures".
void LimitPictures(Host& host, const HostOptions& options);

// Replace any service of the result before installing it.
std::unique_ptr<Host> MakeDefaultHost(HostOptions options);

// The same options with the empty folders filled in.
HostOptions WithUserFolders(HostOptions options);

}  // namespace xrpt
