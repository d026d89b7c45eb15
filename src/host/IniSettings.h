// The user's settings in one small text file: [section], name=value, UTF-8. Stands in for the registry and the profile
// where there is neither; what another running editor wrote meanwhile is kept, and a file that is not all settings is
// set aside before it is replaced.
#pragma once

#include <map>
#include <mutex>

#include "platform/Host.h"

namespace xrpt {

using IniSection = std::map<std::wstring, std::wstring, std::less<>>;
using IniSections = std::map<std::wstring, IniSection, std::less<>>;

// Lines that are neither a section nor a value are skipped; `isWhole` receives whether there were none and all was
// UTF-8.
IniSections ParseIni(std::string_view bytes, bool* isWhole = nullptr);
std::string WriteIni(const IniSections& sections);

class IniSettings final : public SettingsService {
 public:
  IniSettings(Host& host, Path file) : host_(host), file_(std::move(file)) {}
  // Writes what is still waiting.
  ~IniSettings() override { Flush(); }

  std::wstring RegistryText(std::wstring_view name) const override;
  // On disk at once. Profile values wait for the end or the next one of these: a closing window writes dozens.
  void SetRegistryText(std::wstring_view name, std::wstring_view text) override;
  int ProfileInt(std::wstring_view section, std::wstring_view name, int missing) const override;
  void SetProfileInt(std::wstring_view section, std::wstring_view name, int value) override;
  std::wstring ProfileText(std::wstring_view section, std::wstring_view name) const override;
  void SetProfileText(std::wstring_view section, std::wstring_view name, std::wstring_view text) override;
  void Flush();

 private:
  IniSections Load(bool* isWhole = nullptr) const;
  const std::wstring* Find(std::wstring_view section, std::wstring_view name) const;

  Host& host_;
  Path file_;
  mutable std::mutex mutex_;
  mutable std::optional<IniSections> values_;  // as read once, with our own changes
  IniSections changed_;                        // not yet on disk
};

}  // namespace xrpt
