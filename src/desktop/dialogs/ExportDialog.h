// What of the report shall be exported: format, pages and resolution.
#pragma once

#include <QDialog>
#include <optional>

#include "editor/ExportChoice.h"

class QBoxLayout;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QSpinBox;

namespace xrpt {

class ExportDialog final : public QDialog {
 public:
  // Pages of the report, and which of them is shown.
  ExportDialog(ExportFormat format, std::size_t pages, std::size_t current, QWidget* parent);

  const ExportChoice& Choice() const { return choice_; }
  // Nothing when cancelled.
  static std::optional<ExportChoice> Choose(ExportFormat format, std::size_t pages, std::size_t current,
                                            QWidget* parent);

 private:
  void AddFormat(QBoxLayout& column, ExportFormat format);
  void AddPages(QBoxLayout& column);
  void AddButtons(QBoxLayout& column);
  // Takes what is written; the button is there only for what can be exported.
  void Refresh();

  std::size_t count_;
  std::size_t current_;
  ExportChoice choice_;
  QComboBox* format_ = nullptr;
  QSpinBox* dpi_ = nullptr;
  QRadioButton* all_ = nullptr;
  QRadioButton* shown_ = nullptr;
  QRadioButton* these_ = nullptr;
  QLineEdit* range_ = nullptr;
  QLabel* problem_ = nullptr;
  QPushButton* export_ = nullptr;
};

}  // namespace xrpt
