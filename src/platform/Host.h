// What the library asks of the application it lives in, one small interface a service, grouped in one `Host`.
// The embedded default of each is in `host/`; an application that brings its own replaces what it wants before it
// installs the host. Tests install fakes.
#pragma once

#include <cstddef>
#include <ctime>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/Color.h"
#include "platform/Expressions.h"
#include "platform/Files.h"
#include "platform/Fonts.h"
#include "platform/HttpService.h"
#include "platform/Locks.h"
#include "platform/Picture.h"
#include "platform/PictureStore.h"
#include "platform/Recovery.h"

namespace xrpt {

// Where things lie. Folders need not exist.
class SetupService {
 public:
  virtual ~SetupService() = default;
  virtual Path CfgPath() const = 0;     // reports, styles, virtual-device files
  virtual Path ImagesPath() const = 0;  // the picture store
  virtual std::wstring RegisterKey() const = 0;
};

// Texts of the user interface by number, in the user's language.
class TextService {
 public:
  virtual ~TextService() = default;
  virtual std::wstring Text(int id) const = 0;
};

// The registry (values under the host's key of the current user) and the framework's profile sections.
class SettingsService {
 public:
  virtual ~SettingsService() = default;
  virtual std::wstring RegistryText(std::wstring_view name) const = 0;
  virtual void SetRegistryText(std::wstring_view name, std::wstring_view text) = 0;
  virtual int ProfileInt(std::wstring_view section, std::wstring_view name, int missing) const = 0;
  virtual void SetProfileInt(std::wstring_view section, std::wstring_view name, int value) = 0;
  virtual std::wstring ProfileText(std::wstring_view section, std::wstring_view name) const = 0;
  virtual void SetProfileText(std::wstring_view section, std::wstring_view name, std::wstring_view text) = 0;
};

// Who must hear that a kind of resource changed: 14 reports, 16 styles.
enum class GuidKind { Reports = 14, Styles = 16 };
class IdentifierCache {
 public:
  virtual ~IdentifierCache() = default;
  virtual void invalidateGuid(GuidKind kind, bool changed) = 0;
};

// The font a style file gives a card.
struct StyleFont {
  std::wstring name = L"Arial";
  FontStyle style = FontStyle::Normal;
  double size = 10.0;        // points
  double orientation = 0.0;  // degrees
  Color color = kBlack;
  bool hasColor = false;  // false when the file holds none
};

// Style names and identifiers. Both turn an unknown one into false; answers come from a cache that `invalidateGuid`
// with the styles' kind empties.
class StyleTable {
 public:
  virtual ~StyleTable() = default;
  virtual bool StyleId2Name(std::wstring_view id, std::wstring& name) = 0;
  virtual bool StyleName2Id(std::wstring_view name, std::wstring& id) = 0;
  // Nothing for an empty name, an unknown one, or a style file without a "font".
  virtual std::optional<StyleFont> Font(std::wstring_view name) = 0;
};

class GuidService {
 public:
  virtual ~GuidService() = default;
  virtual std::wstring NewGuidText() = 0;  // 36 characters, unique, fit for a file name
};

// Severities: 1 note, 2 information, 3 warning, 4 error.
class LoggerService {
 public:
  virtual ~LoggerService() = default;
  virtual void Log(int severity, std::wstring_view message) = 0;
};

class PictureService {
 public:
  virtual ~PictureService() = default;
  // Whether it knows any format at all; a build without the toolkit knows none.
  virtual bool CanDecode() const { return true; }
  // Format by content. Nothing for what is no picture, is truncated or is larger than the bounds.
  virtual PicturePtr Decode(std::string_view bytes) = 0;
  // What it would be decoded to, without its pixels, where that can be told without decoding; otherwise nothing.
  virtual PicturePtr Outline(std::string_view) { return nullptr; }
  // Decoded to so many pixels.
  virtual PicturePtr DecodeScaled(std::string_view bytes, int, int) { return Decode(bytes); }
};

// What one copy puts on the clipboard: the text, and pictures of the same thing for other programs (either may be
// empty).
struct ClipboardContent {
  std::string text;  // UTF-8
  std::string svg;
  std::string png;
};
class ClipboardService {
 public:
  virtual ~ClipboardService() = default;
  virtual bool PutToClipboard(const ClipboardContent& content) = 0;
  // The text, empty when the clipboard holds none or one above the limit (bytes).
  virtual std::string GetFromClipboard(std::size_t limit) = 0;
};

class LocaleService {
 public:
  virtual ~LocaleService() = default;
  virtual std::wstring DecimalSeparator() const = 0;
  virtual std::wstring ThousandsSeparator() const = 0;
  virtual std::wstring MonthName(int month) const = 0;  // 1 to 12
  virtual std::wstring DayName(int weekday) const = 0;  // 0 Sunday to 6
  // Date and time as the user writes them.
  virtual std::wstring DateTimeText(const std::tm& local) const = 0;
};

using RVDateTime = std::tm;  // local time
class DateService {
 public:
  virtual ~DateService() = default;
  // A moment as people write it in the user's locale; false for a text without a date that can be.
  virtual bool String2DateTime(std::wstring_view text, RVDateTime& moment) const = 0;
};

class ScreenService {
 public:
  virtual ~ScreenService() = default;
  virtual int DpiX() const = 0;
  virtual int DpiY() const = 0;
  virtual Color ButtonFace() const = 0;  // the calm surround of a page
};

// One device of the plant and its variables, for choosers and look-ups.
struct DeviceVariable {
  std::wstring id;
  std::wstring name;
};
struct Device {
  std::wstring id;
  std::wstring name;
  std::vector<DeviceVariable> variables;
  // What else the plant's configuration says of it: "driver", "address" and so on, each with its value.
  std::vector<std::pair<std::wstring, std::wstring>> settings = {};

  // Empty for one that is not there.
  std::wstring Setting(std::wstring_view name) const;
};
class DeviceCatalogue {
 public:
  virtual ~DeviceCatalogue() = default;
  virtual std::vector<Device> Devices() = 0;
  // Where the plant's server answers ("http://plant:8080"); empty: there is none.
  virtual std::string Server() { return {}; }
};

// A device variable's full name in its parts, unused ones empty: DEVICE.VARIABLE, DEVICE.VARIABLE.KIND,
// DEVICE.VARIABLE.GOBACK<period>.
struct DriverVariable {
  std::wstring device;
  std::wstring variable;
  std::wstring kind;
  std::wstring period;  // all that follows GOBACK
};
// The same with the parts of hosts that filter what they read; a name of the embedded naming leaves both filters empty.
struct FilteredDriverVariable {
  std::wstring device;
  std::wstring variable;
  std::wstring kind;
  std::wstring filter;
  std::wstring period;
  std::wstring backFilter;
};
class VariableNaming {
 public:
  virtual ~VariableNaming() = default;
  virtual DriverVariable SplitDriverVariable(std::wstring_view name) const = 0;
  virtual std::wstring JoinDriverVariable(const DriverVariable& parts) const = 0;
  virtual FilteredDriverVariable SplitFilterDriverVariable(std::wstring_view name) const = 0;
  virtual FilteredDriverVariable SplitBackFilterDriverVariable(std::wstring_view name) const = 0;
};

// Looks driver variables up, one after another. It sees the plant as it was when it was made.
class RVDriverVariable {
 public:
  virtual ~RVDriverVariable() = default;
  // The variable's full name, without brackets.
  virtual void Setup(std::wstring_view name) = 0;
  // Whether the plant has it. The kind of a name plays no part.
  virtual bool Lock() = 0;
  // What is known of the variable that was locked last.
  virtual std::optional<DeviceVariable> Info() const = 0;
};
class DriverVariableService {
 public:
  virtual ~DriverVariableService() = default;
  virtual std::unique_ptr<RVDriverVariable> NewDriverVariable() = 0;
};

class ValueService {
 public:
  virtual ~ValueService() = default;
  // The present reading of a driver variable (full name, without brackets), or nothing.
  virtual std::optional<double> Reading(std::wstring_view variable) = 0;
};

// The host's diagnostics collector: background checks hand it a warning record a problem, from their own thread.
class XmlNode;
class RVDebugInfo {
 public:
  virtual ~RVDebugInfo() = default;
  // The record is the caller's; what is kept of it is copied.
  virtual void addWarning(const XmlNode& warning) = 0;
};

// What pages and cards are made, read, written and painted with. They are handed these and ask for nothing else, so
// that a page needs no installed host.
struct ModelServices {
  std::unique_ptr<LoggerService> logger;  // the last to go: the others may have something to say while they end
  std::unique_ptr<TextService> texts;
  std::unique_ptr<StyleTable> styles;
  std::unique_ptr<GuidService> guids;
  std::unique_ptr<PictureService> pictures;
  std::unique_ptr<FontService> fonts;
  std::unique_ptr<LocaleService> locale;
  std::unique_ptr<DateService> dates;
  std::unique_ptr<ScreenService> screen;
  std::unique_ptr<VariableNaming> variables;
  std::unique_ptr<DriverVariableService> driverVariables;
  std::unique_ptr<ValueService> values;
  std::unique_ptr<ExpressionService> expressions;
  PictureStore pictureStore;

  // Without a way to read pictures the store has none.
  explicit ModelServices(PictureStore::Reader readPicture = {});
  ~ModelServices();
  ModelServices(const ModelServices&) = delete;
  ModelServices& operator=(const ModelServices&) = delete;
};

struct Host : ModelServices {
  std::unique_ptr<SetupService> setup;
  std::unique_ptr<FileService> files;
  std::unique_ptr<LockService> locks;
  std::unique_ptr<RecoveryService> recovery;
  std::unique_ptr<SettingsService> settings;
  std::unique_ptr<IdentifierCache> identifiers;
  std::unique_ptr<ClipboardService> clipboard;
  std::unique_ptr<DeviceCatalogue> devices;
  std::unique_ptr<HttpService> http;  // none: nothing can be asked of a server
  std::unique_ptr<RVDebugInfo> debugInfo;

  // Its store has the pictures of the images folder.
  Host();
  ~Host();
  Host(const Host&) = delete;
  Host& operator=(const Host&) = delete;
};

// The installed host. Installing is done once, by main, a test fixture or the embedding application, before any card
// exists; asking before that is a programming error and throws.
Host& CurrentHost();
// Returns the host installed before, so that a fixture can put it back.
Host* InstallHost(Host* host);

// Those of the installed host: what a page or a card is made with when its maker has no others to hand it.
ModelServices& InstalledServices();

// Short forms for what is asked often.
std::wstring HostText(int id);
void LogMessage(int severity, std::wstring_view message);

}  // namespace xrpt
