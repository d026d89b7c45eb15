// All of the window that is about problems: their list, the marks on the page, the counts in the status bar and the
// commands that go with them.
#pragma once

#include <QObject>
#include <functional>
#include <string_view>

#include "desktop/page/MarkLayer.h"

class QWidget;

namespace xrpt {

class PageView;
class ProblemCounts;
class ProblemsPanel;
class ProblemsWatch;

class ProblemsDesk final : public QObject {
 public:
  // Panel and counts belong to the window, which puts them where they are seen.
  ProblemsDesk(RVEditControlWnd& frame, PageView& view, QWidget& window);

  ProblemsPanel& Panel() { return *panel_; }
  ProblemCounts& Counts() { return *counts_; }
  const ProblemsWatch& Watch() const { return *watch_; }

  // The report, or what is shown of it, may have changed.
  void Refresh();
  // What the program has to say goes into the list, and the list is wanted.
  void AddNotice(Severity severity, const QString& text);
  // False for a command that is none of these.
  bool RunCommand(std::string_view name);
  static bool Knows(std::string_view command) { return ActOf(command) != nullptr; }
  // Before the host's services go.
  void Stop();

  // The list is wanted: always, or only when it is not there.
  std::function<void()> listWanted;
  std::function<void()> listToggled;
  // As in the panel.
  std::function<void()> beforeAct;
  std::function<void()> acted;

 private:
  using Act = void (*)(ProblemsDesk&);
  // Null for a command that is none of ours.
  static Act ActOf(std::string_view command);
  void Validate();
  void ListChanged();

  RVEditControlWnd& frame_;
  PageView& view_;
  std::uint64_t resources_ = 0;  // of the last look
  ProblemsWatch* watch_;
  ProblemsPanel* panel_;
  ProblemCounts* counts_;
  MarkLayer marks_;
};

}  // namespace xrpt
