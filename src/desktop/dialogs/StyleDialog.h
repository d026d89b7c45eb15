// Writes one text style: its name, the fields of its row table, and a sample of what cards will look like.
#pragma once

#include <QDialog>
#include <memory>
#include <vector>

#include "editor/CDlgNewModifyStyle.h"

class QFormLayout;
class QLineEdit;

namespace xrpt {

class FieldEditorWidget;

// Some words in a style, as on paper.
class StyleSample final : public QWidget {
 public:
  explicit StyleSample(QWidget* parent);
  void Show(const tagStyleCfg& style);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  tagStyleCfg style_;
};

class StyleDialog final : public QDialog {
 public:
  StyleDialog(CDlgNewModifyStyle& style, QWidget* parent);
  ~StyleDialog() override;

  void accept() override;

 private:
  void AddFields(QFormLayout& form);
  void GoTo(CDlgNewModifyStyle::Field field);

  CDlgNewModifyStyle& dialog_;
  QLineEdit* name_;
  QWidget* size_ = nullptr;
  StyleSample* sample_;
  std::vector<std::unique_ptr<FieldEditorWidget>> editors_;
};

// The font of a style at a size in points, for lists and samples.
QFont ToolkitFont(const tagStyleCfg& style, double points);

}  // namespace xrpt
