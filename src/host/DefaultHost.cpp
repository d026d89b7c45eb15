#include "host/DefaultHost.h"

#include <cstdlib>

#include "host/DeviceFile.h"
#include "host/DiskFiles.h"
#include "host/FileLocks.h"
#include "host/FileLogger.h"
#include "host/FileStyles.h"
#include "host/FixedScreen.h"
#include "host/FixedSetup.h"
#include "host/IdentifierListeners.h"
#include "host/IniSettings.h"
#include "host/LocaleDates.h"
#include "host/MemoryClipboard.h"
#include "host/NoPictures.h"
#include "host/NoValues.h"
#include "host/PlainFonts.h"
#include "host/PlantVariables.h"
#include "host/RandomGuids.h"
#include "host/RecoveryStore.h"
#include "host/SystemLocale.h"
#include "host/TextCatalogue.h"
#include "host/VariableNames.h"
#include "host/WarningList.h"
#include "host/expressions/EmbeddedExpressions.h"

namespace xrpt {
namespace {

constexpr const char* kFolderName = "report-template-editor";

// A folder the desktop's conventions name by a variable, or its usual place under the home folder.
Path UserFolder(const char* variable, const char* usual) {
  const char* value = std::getenv(variable);
  if (value && Path(value).is_absolute()) return Path(value) / kFolderName;
  const char* home = std::getenv("HOME");
  const Path base = home && *home ? Path(home) : std::filesystem::temp_directory_path();
  return base / usual / kFolderName;
}

void AddStyles(Host& host) {
  auto styles = std::make_unique<FileStyles>(host);
  auto identifiers = std::make_unique<IdentifierListeners>();
  identifiers->Add([table = styles.get()](GuidKind kind, bool) {
    if (kind == GuidKind::Styles) table->Forget();
  });
  host.styles = std::move(styles);
  host.identifiers = std::move(identifiers);
}

void AddPlant(Host& host) {
  host.devices = std::make_unique<DeviceFile>(host);
  host.variables = std::make_unique<VariableNames>();
  host.driverVariables = std::make_unique<PlantVariables>(host);
  host.values = std::make_unique<NoValues>();
  host.expressions = std::make_unique<EmbeddedExpressions>(host);
}

void AddScreenAndPaper(Host& host, const HostOptions& options) {
  host.pictures = std::make_unique<NoPictures>();
  host.fonts = std::make_unique<PlainFonts>();
  host.clipboard = std::make_unique<MemoryClipboard>();
  host.screen = std::make_unique<FixedScreen>(options.dpi > 0 ? options.dpi : FixedScreen::kUsualDpi);
}

}  // namespace

void LimitPictures(Host& host, const HostOptions& options) {
  constexpr int kUsual = 128;
  const int wanted = options.pictureMegabytes > 0 ? options.pictureMegabytes
                                                  : host.settings->ProfileInt(L"Pictures", L"MemoryMegabytes", kUsual);
  host.pictureStore.Memory()->SetLimit(static_cast<std::size_t>(std::clamp(wanted, 16, 16384)) << 20);
}

HostOptions WithUserFolders(HostOptions options) {
  const Path user = UserFolder("XDG_CONFIG_HOME", ".config");
  if (options.settingsFile.empty()) options.settingsFile = user / "settings.ini";
  if (options.cfgFolder.empty()) options.cfgFolder = user / "config";
  if (options.imagesFolder.empty()) options.imagesFolder = options.cfgFolder / "images";
  if (options.stateFolder.empty()) options.stateFolder = UserFolder("XDG_STATE_HOME", ".local/state");
  return options;
}

std::unique_ptr<Host> MakeDefaultHost(HostOptions given) {
  const HostOptions options = WithUserFolders(std::move(given));
  auto host = std::make_unique<Host>();
  host->setup = std::make_unique<FixedSetup>(options.cfgFolder, options.imagesFolder);
  host->logger = std::make_unique<FileLogger>(options.stateFolder, options.logToStderr);
  host->files = std::make_unique<DiskFiles>(*host, options.stateFolder);
  host->locks = std::make_unique<FileLocks>();
  host->recovery = std::make_unique<RecoveryStore>(*host, options.stateFolder);
  host->texts = std::make_unique<TextCatalogue>(LanguageFrom(options.language));
  host->settings = std::make_unique<IniSettings>(*host, options.settingsFile);
  host->guids = std::make_unique<RandomGuids>();
  host->locale = std::make_unique<SystemLocale>();
  host->dates = std::make_unique<LocaleDates>(*host);
  AddPlant(*host);
  host->debugInfo = std::make_unique<WarningList>();
  AddStyles(*host);
  AddScreenAndPaper(*host, options);
  LimitPictures(*host, options);
  return host;
}

}  // namespace xrpt
