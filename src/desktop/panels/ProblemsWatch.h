// Keeps the list of problems true to the report: a moment after a change the report is checked in the background, as it
// stands, and what is found takes the place of what was found before.
#pragma once

#include <QObject>
#include <QTimer>
#include <functional>
#include <memory>

#include "editor/ProblemList.h"

namespace xrpt {

class BackgroundCheck;
class RVEditControlWnd;

class ProblemsWatch final : public QObject {
 public:
  static constexpr int kMoment = 300;  // milliseconds

  explicit ProblemsWatch(const RVEditControlWnd& frame, QObject* parent = nullptr);
  ~ProblemsWatch() override;

  const ProblemList& Problems() const { return problems_; }
  void AddNotice(Severity severity, const QString& text);
  void Show(Severity severity, bool on);

  // The report may be another.
  void LookSoon();
  // At once, and nothing found out before counts.
  void LookAfresh();
  // Nothing is waiting to be checked or shown.
  bool IsDone() const;
  // Checks no more. The host's services may go after this.
  void Stop();

  // The rows are others.
  std::function<void()> changed;

 private:
  void Look();
  void Take();
  void Changed();

  const RVEditControlWnd& frame_;
  ProblemList problems_;
  QTimer moment_;
  bool isAfresh_ = false;
  std::unique_ptr<BackgroundCheck> check_;
};

}  // namespace xrpt
