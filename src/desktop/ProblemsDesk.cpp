#include "desktop/ProblemsDesk.h"

#include <QGuiApplication>
#include <QWidget>

#include "desktop/page/PageView.h"
#include "desktop/panels/ProblemCounts.h"
#include "desktop/panels/ProblemsPanel.h"
#include "desktop/panels/ProblemsWatch.h"
#include "editor/RVEditControlWnd.h"

namespace xrpt {

namespace {

void Call(const std::function<void()>& wanted) {
  if (wanted) wanted();
}

}  // namespace

ProblemsDesk::ProblemsDesk(RVEditControlWnd& frame, PageView& view, QWidget& window)
    : QObject(&window),
      frame_(frame),
      view_(view),
      watch_(new ProblemsWatch(frame, this)),
      panel_(new ProblemsPanel(frame, *watch_, &window)),
      counts_(new ProblemCounts(watch_->Problems(), &window)),
      marks_(frame, watch_->Problems()) {
  watch_->changed = [this] { ListChanged(); };
  panel_->beforeAct = [this] { Call(beforeAct); };
  panel_->acted = [this] { Call(acted); };
  connect(counts_, &QAbstractButton::clicked, this, [this] { Call(listToggled); });
  view.paintOver = [this](QPainter& painter) {
    marks_.Paint(painter, view_.viewport()->size(), view_.PagePaintings());
  };
  view.tipAt = [this](QPoint at) { return marks_.TipAt(at, view_.viewport()->size(), view_.PagePaintings()); };
  // Who comes back from another program may have changed styles, pictures or the plant there.
  connect(qGuiApp, &QGuiApplication::applicationStateChanged, this, [this](Qt::ApplicationState state) {
    if (state == Qt::ApplicationActive) watch_->LookAfresh();
  });
}

void ProblemsDesk::Refresh() {
  counts_->setVisible(frame_.AreMarksShown());
  const bool isAfresh = std::exchange(resources_, frame_.ResourcesSerial()) != frame_.ResourcesSerial();
  isAfresh ? watch_->LookAfresh() : watch_->LookSoon();
}

void ProblemsDesk::ListChanged() {
  panel_->Refresh();
  counts_->Refresh();
  marks_.Forget();
  view_.viewport()->update();
}

void ProblemsDesk::AddNotice(Severity severity, const QString& text) {
  watch_->AddNotice(severity, text);
  Call(listWanted);
}

ProblemsDesk::Act ProblemsDesk::ActOf(std::string_view command) {
  static constexpr std::pair<std::string_view, Act> kRows[] = {
      {"Validate", [](ProblemsDesk& desk) { desk.Validate(); }},
      {"NextProblem", [](ProblemsDesk& desk) { desk.panel_->Step(1); }},
      {"PreviousProblem", [](ProblemsDesk& desk) { desk.panel_->Step(-1); }}};
  for (const auto& [name, act] : kRows) {
    if (name == command) return act;
  }
  return nullptr;
}

bool ProblemsDesk::RunCommand(std::string_view name) {
  const Act act = ActOf(name);
  if (act) act(*this);
  return act != nullptr;
}

void ProblemsDesk::Validate() {
  frame_.ShowMarks(true);
  Call(listWanted);
  watch_->LookAfresh();
  panel_->setFocus(Qt::ShortcutFocusReason);
}

void ProblemsDesk::Stop() { watch_->Stop(); }

}  // namespace xrpt
