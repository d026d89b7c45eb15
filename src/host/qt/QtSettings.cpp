#include "host/qt/QtSettings.h"

#include <QStandardPaths>
#include <QUrl>

#include "host/AtomicWrite.h"
#include "host/IniSettings.h"
#include "host/SetAside.h"
#include "platform/Numbers.h"

namespace xrpt {
namespace {

constexpr std::size_t kLimit = 4u << 20;

QString ToQt(std::wstring_view text) {
  return QString::fromWCharArray(text.data(), static_cast<qsizetype>(text.size()));
}

// Slashes part groups, so those in a name are written another way.
QString Key(std::wstring_view name) { return QString::fromLatin1(QUrl::toPercentEncoding(ToQt(name), " @-")); }

QString ProfileKey(std::wstring_view section, std::wstring_view name) {
  return QStringLiteral("Profile/") + Key(section) + QLatin1Char('/') + Key(name);
}

std::unique_ptr<QSettings> Open([[maybe_unused]] const std::wstring& registerKey, const Path& file) {
  if (!file.empty()) return std::make_unique<QSettings>(QString::fromStdWString(file.wstring()), QSettings::IniFormat);
#ifdef Q_OS_WIN
  return std::make_unique<QSettings>(QStringLiteral("HKEY_CURRENT_USER\\") + ToQt(registerKey),
                                     QSettings::NativeFormat);
#else
  return std::make_unique<QSettings>(QStringLiteral("report-template-editor"), QStringLiteral("editor"));
#endif
}

// Where the toolkit keeps the settings; empty where that is no file.
Path PlaceOf(const Path& file) {
#ifdef Q_OS_WIN
  return file;
#else
  if (!file.empty()) return file;
  const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
  return Path(folder.toStdWString()) / "report-template-editor" / "editor.conf";
#endif
}

// The toolkit would wait for a pipe, and skip what it does not understand and write the rest in its place.
bool IsAllSettings(const Path& file) {
  std::error_code ignored;
  if (file.empty() || !std::filesystem::exists(file, ignored)) return true;
  std::string bytes;
  bool isWhole = false;
  if (!ReadWhole(file, kLimit, bytes)) ParseIni(bytes, &isWhole);
  return isWhole;
}

}  // namespace

QtSettings::QtSettings(const std::wstring& registerKey, const Path& file, LoggerService& logger) {
  const Path place = PlaceOf(file);
  if (!IsAllSettings(place)) SetAside(place, logger);
  settings_ = Open(registerKey, file);
}

std::wstring QtSettings::RegistryText(std::wstring_view name) const {
  return settings_->value(Key(name)).toString().toStdWString();
}

void QtSettings::SetRegistryText(std::wstring_view name, std::wstring_view text) {
  settings_->setValue(Key(name), ToQt(text));
  settings_->sync();
}

int QtSettings::ProfileInt(std::wstring_view section, std::wstring_view name, int missing) const {
  const QVariant value = settings_->value(ProfileKey(section, name));
  return value.isValid() ? ParseInteger(value.toString().toStdWString()) : missing;
}

void QtSettings::SetProfileInt(std::wstring_view section, std::wstring_view name, int value) {
  settings_->setValue(ProfileKey(section, name), value);
}

std::wstring QtSettings::ProfileText(std::wstring_view section, std::wstring_view name) const {
  return settings_->value(ProfileKey(section, name)).toString().toStdWString();
}

void QtSettings::SetProfileText(std::wstring_view section, std::wstring_view name, std::wstring_view text) {
  settings_->setValue(ProfileKey(section, name), ToQt(text));
}

}  // namespace xrpt
