#include "desktop/ribbon/Ribbon.h"

#include <QKeyEvent>
#include <QStackedWidget>
#include <QTabBar>

#include "desktop/TextIds.h"
#include "desktop/look/Texts.h"
#include "desktop/ribbon/Actions.h"
#include "desktop/ribbon/CornerBar.h"
#include "desktop/ribbon/RibbonGroup.h"
#include "desktop/ribbon/RibbonPage.h"
#include "editor/CommandCatalogue.h"

namespace xrpt {

namespace {
constexpr int kHeaderMargin = 4;
}

QStringList WithMnemonics(QStringList labels) {
  QString taken;
  for (QString& label : labels) {
    for (qsizetype at = 0; at < label.size(); ++at) {
      const QChar letter = label[at].toLower();
      if (!letter.isLetter() || letter.unicode() > 127 || taken.contains(letter)) continue;
      taken += letter;
      label.insert(at, QLatin1Char('&'));
      break;
    }
  }
  return labels;
}

// Tabs, and the corner in what they leave. Placed by hand, like the groups of a page (RibbonPage.h).
class Ribbon::Header final : public QWidget {
 public:
  explicit Header(QWidget* parent) : QWidget(parent), tabs_(new QTabBar(this)) {
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    tabs_->setObjectName(QStringLiteral("ribbonTabs"));
    tabs_->setAccessibleName(Translated(text::kRibbon));
    tabs_->setDrawBase(false);
    tabs_->setExpanding(false);
    tabs_->setElideMode(Qt::ElideNone);
  }
  QTabBar* Tabs() { return tabs_; }
  void SetCorner(CornerBar* corner) {
    corner_ = corner;
    corner_->setParent(this);
    corner_->show();
    Place();
  }
  QSize sizeHint() const override {
    const int corner = corner_ ? corner_->sizeHint().height() : 0;
    return {0, std::max(tabs_->sizeHint().height(), corner)};
  }
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void resizeEvent(QResizeEvent* event) override {
    QWidget::resizeEvent(event);
    Place();
  }
  bool event(QEvent* event) override {
    const bool done = QWidget::event(event);
    if (event->type() == QEvent::LayoutRequest || event->type() == QEvent::FontChange ||
        event->type() == QEvent::Show) {
      updateGeometry();
      Place();
    }
    return done;
  }

 private:
  // The tabs are as wide as their style says, which they have only once they are polished.
  void Place() {
    if (!corner_) return;
    tabs_->ensurePolished();
    const int wanted = tabs_->sizeHint().width() + kHeaderMargin;
    const int corner = corner_->Fit(width() - wanted - 2 * kHeaderMargin);
    const int tabs = std::max(0, std::min(wanted, width() - corner - 2 * kHeaderMargin));
    tabs_->setGeometry(kHeaderMargin, height() - tabs_->sizeHint().height(), tabs, tabs_->sizeHint().height());
    corner_->setGeometry(width() - corner - kHeaderMargin, 0, corner, height());
  }

  QTabBar* tabs_;
  CornerBar* corner_ = nullptr;
};

// --- The whole ---

Ribbon::Ribbon(const Actions& actions, QWidget* parent) : QWidget(parent) {
  setObjectName(QStringLiteral("ribbon"));
  setAttribute(Qt::WA_StyledBackground);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  header_ = new Header(this);
  tabs_ = header_->Tabs();
  pages_ = new QStackedWidget(this);
  pages_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  column->addWidget(header_);
  column->addWidget(pages_);
  for (int index = 0; index < static_cast<int>(CommandTabs().size()); ++index) AddTab(actions, index);
  MarkMnemonics();
  connect(tabs_, &QTabBar::currentChanged, pages_, &QStackedWidget::setCurrentIndex);
  connect(tabs_, &QTabBar::tabBarDoubleClicked, this, [this] { pages_->setVisible(!pages_->isVisible()); });
  connect(tabs_, &QTabBar::tabBarClicked, this, [this](int tab) {
    if (tab != tabs_->currentIndex()) pages_->show();
  });
}

void Ribbon::AddTab(const Actions& actions, int index) {
  const CommandTab& tab = CommandTabs()[static_cast<std::size_t>(index)];
  auto* page = new RibbonPage(pages_);
  RibbonGroup* group = nullptr;
  int groupTextId = 0;
  for (QAction* action : actions.All()) {
    const Command& command = Actions::CommandOf(*action);
    if (command.tab != tab.tab) continue;
    if (!group || command.groupTextId != groupTextId) {
      groupTextId = command.groupTextId;
      group = &page->AddGroup(Translated(groupTextId));
    }
    group->AddAction(*action, command.isLarge);
  }
  pages_->addWidget(page);
  tabs_->addTab(Translated(tab.textId));
}

void Ribbon::MarkMnemonics() {
  QStringList labels;
  for (int tab = 0; tab < tabs_->count(); ++tab) labels.append(tabs_->tabText(tab));
  labels = WithMnemonics(labels);
  for (int tab = 0; tab < tabs_->count(); ++tab) tabs_->setTabText(tab, labels[tab]);
}

RibbonPage& Ribbon::Page(int tab) { return *static_cast<RibbonPage*>(pages_->widget(tab)); }

int Ribbon::CurrentTab() const { return tabs_->currentIndex(); }

void Ribbon::ShowTab(int tab) { tabs_->setCurrentIndex(tab); }

void Ribbon::FocusTabs() { tabs_->setFocus(Qt::ShortcutFocusReason); }

void Ribbon::SetCorner(CornerBar* corner) { header_->SetCorner(corner); }

// Down goes from the tabs to the first button; arrows walk the buttons.
void Ribbon::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Down:
    case Qt::Key_Right:
      focusNextChild();
      return;
    case Qt::Key_Up:
    case Qt::Key_Left:
      focusPreviousChild();
      return;
    default:
      QWidget::keyPressEvent(event);
  }
}

}  // namespace xrpt
