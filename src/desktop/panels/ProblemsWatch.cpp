#include "desktop/panels/ProblemsWatch.h"

#include "desktop/look/Texts.h"
#include "editor/RVEditControlWnd.h"
#include "formulas/checks/BackgroundCheck.h"

namespace xrpt {

ProblemsWatch::ProblemsWatch(const RVEditControlWnd& frame, QObject* parent)
    : QObject(parent),
      frame_(frame),
      check_(std::make_unique<BackgroundCheck>(CurrentHost(), CheckChoice::All(), [this] {
        QMetaObject::invokeMethod(
            this, [this] { Take(); }, Qt::QueuedConnection);
      })) {
  moment_.setSingleShot(true);
  moment_.setInterval(kMoment);
  connect(&moment_, &QTimer::timeout, this, [this] { Look(); });
}

ProblemsWatch::~ProblemsWatch() = default;

void ProblemsWatch::AddNotice(Severity severity, const QString& text) {
  problems_.AddNotice(severity, text.toStdWString());
  Changed();
}

void ProblemsWatch::Show(Severity severity, bool on) {
  problems_.Show(severity, on);
  Changed();
}

void ProblemsWatch::LookSoon() {
  if (!moment_.isActive()) moment_.start();
}

void ProblemsWatch::LookAfresh() {
  isAfresh_ = true;
  Look();
}

void ProblemsWatch::Look() {
  moment_.stop();
  if (!check_) return;
  std::exchange(isAfresh_, false) ? check_->CheckAfresh(frame_.Report()) : check_->Check(frame_.Report());
}

bool ProblemsWatch::IsDone() const { return !check_ || (!moment_.isActive() && check_->IsDone()); }

void ProblemsWatch::Stop() {
  moment_.stop();
  check_.reset();
}

void ProblemsWatch::Take() {
  if (!check_) return;
  std::optional<std::vector<Problem>> found = check_->Take();
  if (!found) return;
  problems_.SetFound(std::move(*found));
  Changed();
}

void ProblemsWatch::Changed() {
  if (changed) changed();
}

}  // namespace xrpt
