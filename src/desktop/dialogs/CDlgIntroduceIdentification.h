// Asks for a name.
#pragma once

#include <QDialog>

class QLabel;
class QLineEdit;
class QPushButton;

namespace xrpt {

class CDlgIntroduceIdentification final : public QDialog {
 public:
  explicit CDlgIntroduceIdentification(QWidget* parent);

  void Setup(const QString& prompt, const QString& title, const QString& initial);
  QString Name() const;

 private:
  QLabel* prompt_;
  QLineEdit* name_;
  QPushButton* ok_;
};

}  // namespace xrpt
