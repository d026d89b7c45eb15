// Folders chosen once, at the start of the program.
#pragma once

#include "platform/Host.h"

namespace xrpt {

class FixedSetup final : public SetupService {
 public:
  FixedSetup(Path cfg, Path images) : cfg_(std::move(cfg)), images_(std::move(images)) {}
  Path CfgPath() const override { return cfg_; }
  Path ImagesPath() const override { return images_; }
  std::wstring RegisterKey() const override { return L"Software\\ReportTemplateEditor"; }

 private:
  Path cfg_;
  Path images_;
};

}  // namespace xrpt
