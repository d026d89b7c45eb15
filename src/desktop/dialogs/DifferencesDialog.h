// How the file on disk differs from the open report, a line a field.
#pragma once

#include <QDialog>

#include "model/RVReport.h"

namespace xrpt {

class DifferencesDialog final : public QDialog {
 public:
  DifferencesDialog(const Path& file, const RVReport& here, QWidget* parent);

 private:
  void AddList(const RVReport& onDisk, const RVReport& here);
};

}  // namespace xrpt
