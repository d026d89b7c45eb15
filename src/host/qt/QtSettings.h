// The user's settings where the desktop keeps them: the registry where there is one, a file of the toolkit's elsewhere.
#pragma once

#include <QSettings>

#include "platform/Host.h"

namespace xrpt {

class QtSettings final : public SettingsService {
 public:
  // A file that is not empty takes the place of the desktop's store. One that cannot be read is set aside.
  QtSettings(const std::wstring& registerKey, const Path& file, LoggerService& logger);

  std::wstring RegistryText(std::wstring_view name) const override;
  void SetRegistryText(std::wstring_view name, std::wstring_view text) override;
  int ProfileInt(std::wstring_view section, std::wstring_view name, int missing) const override;
  void SetProfileInt(std::wstring_view section, std::wstring_view name, int value) override;
  std::wstring ProfileText(std::wstring_view section, std::wstring_view name) const override;
  void SetProfileText(std::wstring_view section, std::wstring_view name, std::wstring_view text) override;

 private:
  std::unique_ptr<QSettings> settings_;
};

}  // namespace xrpt
