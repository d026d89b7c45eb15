// How many errors, warnings and notes there are, in the status bar.
#pragma once

#include <QAbstractButton>

#include "editor/ProblemList.h"

namespace xrpt {

class ProblemCounts final : public QAbstractButton {
 public:
  explicit ProblemCounts(const ProblemList& problems, QWidget* parent = nullptr);

  // The numbers are others.
  void Refresh();
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  // Kinds there are none of are left out, but for errors and warnings.
  std::vector<std::pair<Severity, QString>> Parts() const;
  int IconSide() const;

  const ProblemList& problems_;
};

}  // namespace xrpt
