// The properties of a page: paper, grid and background, with a sample of what the page will look like.
#pragma once

#include <QDialog>
#include <QImage>
#include <functional>
#include <memory>
#include <vector>

#include "editor/CDlgGlobalProperties.h"

class QAbstractButton;
class QBoxLayout;
class QCheckBox;
class QComboBox;
class QFormLayout;
class QPushButton;

namespace xrpt {

class FieldEditorWidget;

// The empty page with its background and grid.
class PageSample final : public QWidget {
 public:
  explicit PageSample(QWidget* parent);
  void Show(const CDlgGlobalProperties& page);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void PaintGrid(QPainter& painter, const QRect& paper) const;
  void Render();

  const CDlgGlobalProperties* page_ = nullptr;
  QImage picture_;
};

class PageDialog final : public QDialog {
 public:
  // `page` is changed as the user goes; whoever opened the dialog takes it over on OK. `hasOthers`: the report has
  // other pages, which may get the same paper.
  PageDialog(CDlgGlobalProperties& page, bool hasOthers, QWidget* parent);
  ~PageDialog() override;

  // Opens the report's virtual devices; the button is there when it is set before the dialog is shown.
  void OfferDevices(std::function<void()> open);

  void accept() override;

 private:
  using Text = std::function<std::wstring()>;
  using Assign = std::function<void(const std::string&)>;
  struct Line {
    std::unique_ptr<FieldEditorWidget> editor;
    Text text;
  };

  void AddPaper(QFormLayout& form);
  void AddOrientation(QFormLayout& form);
  void AddGrid(QFormLayout& form);
  void AddBackground(QFormLayout& form);
  void AddPageField(QFormLayout& form, const char* name);
  void AddBackgroundField(QFormLayout& form, const char* name);
  QWidget* AddField(QFormLayout& form, const FieldRow& row, Text text, Assign assign);
  void AddButtons(QBoxLayout& column);
  void Refresh();

  CDlgGlobalProperties& page_;
  std::vector<Line> lines_;
  QComboBox* format_ = nullptr;
  QAbstractButton* portrait_ = nullptr;
  QAbstractButton* landscape_ = nullptr;
  QCheckBox* grid_ = nullptr;
  QPushButton* cover_ = nullptr;
  QPushButton* devices_ = nullptr;
  std::vector<QWidget*> ofPicture_;  // of no use without a picture
  PageSample* sample_;
};

}  // namespace xrpt
