#include "desktop/ribbon/RibbonPage.h"

#include <QMenu>

#include "desktop/TextIds.h"
#include "desktop/look/Icons.h"
#include "desktop/look/Texts.h"
#include "desktop/look/Theme.h"
#include "desktop/ribbon/RibbonGroup.h"

namespace xrpt {

namespace {

constexpr int kMargin = 4;
constexpr int kLine = 1;
constexpr int kLineInset = 8;

}  // namespace

RibbonPage::RibbonPage(QWidget* parent) : QWidget(parent), more_(new QToolButton(this)) {
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  more_->setProperty("flat", true);
  more_->setIcon(ThemedIcon(QStringLiteral("more")));
  more_->setFocusPolicy(Qt::TabFocus);
  more_->setAccessibleName(Translated(text::kMoreGroups));
  more_->setToolTip(Translated(text::kMoreGroups));
  more_->hide();
  connect(more_, &QToolButton::clicked, this, [this] { OpenMore(); });
}

RibbonGroup& RibbonPage::AddGroup(const QString& title) {
  groups_.push_back(new RibbonGroup(title, this));
  more_->raise();
  QWidget::setTabOrder(groups_.back(), more_);
  return *groups_.back();
}

QSize RibbonPage::sizeHint() const {
  QSize size(2 * kMargin, 0);
  for (const RibbonGroup* group : groups_) {
    size.rwidth() += group->Widths().full + kLine;
    size.rheight() = std::max(size.height(), group->sizeHint().height());
  }
  return size;
}

void RibbonPage::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  PlaceGroups();
}

bool RibbonPage::event(QEvent* event) {
  const bool done = QWidget::event(event);
  switch (event->type()) {
    case QEvent::StyleChange:
    case QEvent::FontChange:
      updateGeometry();
      PlaceGroups();
      break;
    case QEvent::LayoutRequest:  // a label or a widget of a group takes another size
      PlaceGroups();
      break;
    default:
      break;
  }
  return done;
}

void RibbonPage::PlaceGroups() {
  std::vector<GroupWidths> widths;
  for (const RibbonGroup* group : groups_) {
    const GroupWidths own = group->Widths();
    widths.push_back({own.full + kLine, own.iconsOnly + kLine, own.folded + kLine});
  }
  const int more = more_->sizeHint().width();
  const std::vector<GroupRoom> rooms = FitGroups(widths, more, width() - 2 * kMargin);
  lines_.clear();
  int x = kMargin;
  for (std::size_t i = 0; i < groups_.size(); ++i) {
    groups_[i]->SetRoom(rooms[i]);
    groups_[i]->setVisible(rooms[i] != GroupRoom::Hidden);
    if (rooms[i] == GroupRoom::Hidden) continue;
    groups_[i]->setGeometry(x, 0, widths[i].At(rooms[i]) - kLine, height());
    x += widths[i].At(rooms[i]);
    lines_.push_back(x - kLine);
  }
  more_->setVisible(!rooms.empty() && std::count(rooms.begin(), rooms.end(), GroupRoom::Hidden) > 0);
  more_->setGeometry(x, kLineInset, more, height() - 2 * kLineInset);
  update();
}

void RibbonPage::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  for (const int x : lines_) painter.fillRect(x, kLineInset, kLine, height() - 2 * kLineInset, CurrentTheme().border);
}

// The groups behind the button, a line each; choosing one opens what it holds.
void RibbonPage::OpenMore() {
  auto* menu = new QMenu(this);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  for (RibbonGroup* group : groups_) {
    if (group->Room() != GroupRoom::Hidden) continue;
    menu->addAction(group->Icon(), group->Title(), this, [this, group] { group->OpenUnder(*more_); });
  }
  menu->popup(more_->mapToGlobal(QPoint(0, more_->height())));
}

}  // namespace xrpt
