#include "desktop/ribbon/Ribbon.h"

#include <QKeyEvent>
#include <QStackedWidget>
#include <QTabBar>

#include "desktop/TextIds.h"
#include "desktop/look/Texts.h"
#include "desktop/ribbon/Actions.h"
#include "desktop/ribbon/RibbonGroup.h"
#include "editor/CommandCatalogue.h"

namespace xrpt {

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

// --- One page ---

RibbonPage::RibbonPage(QWidget* parent) : QWidget(parent) {
  row_ = new QHBoxLayout(this);
  row_->setContentsMargins(4, 0, 4, 0);
  row_->setSpacing(0);
  row_->addStretch(1);
}

RibbonGroup& RibbonPage::AddGroup(const QString& title) {
  auto* group = new RibbonGroup(title, this);
  auto* line = new QWidget(this);
  line->setObjectName(QStringLiteral("ribbonLine"));
  line->setAttribute(Qt::WA_StyledBackground);
  line->setFixedWidth(1);
  auto* inset = new QVBoxLayout();
  inset->setContentsMargins(0, 8, 0, 8);
  inset->addWidget(line);
  row_->insertWidget(row_->count() - 1, group);
  row_->insertLayout(row_->count() - 1, inset);
  groups_.push_back(group);
  return *group;
}

QSize RibbonPage::minimumSizeHint() const { return {0, QWidget::minimumSizeHint().height()}; }

void RibbonPage::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  FitGroups();
}

bool RibbonPage::event(QEvent* event) {
  const bool done = QWidget::event(event);
  if (event->type() == QEvent::StyleChange || event->type() == QEvent::FontChange) FitGroups();
  return done;
}

void RibbonPage::FitGroups() {
  for (RibbonGroup* group : groups_) group->SetRoom(GroupRoom::Full);
  const auto tooWide = [this] {
    row_->invalidate();
    return row_->sizeHint().width() > width();
  };
  for (const GroupRoom room : {GroupRoom::IconsOnly, GroupRoom::Folded}) {
    for (auto group = groups_.rbegin(); group != groups_.rend() && tooWide(); ++group) (*group)->SetRoom(room);
  }
}

// --- The whole ---

Ribbon::Ribbon(const Actions& actions, QWidget* parent) : QWidget(parent) {
  setObjectName(QStringLiteral("ribbon"));
  setAttribute(Qt::WA_StyledBackground);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  tabs_ = new QTabBar(this);
  tabs_->setObjectName(QStringLiteral("ribbonTabs"));
  tabs_->setAccessibleName(Translated(text::kRibbon));
  tabs_->setDrawBase(false);
  tabs_->setExpanding(false);
  pages_ = new QStackedWidget(this);
  tabRow_ = new QHBoxLayout();
  tabRow_->setContentsMargins(4, 0, 8, 0);
  tabRow_->addWidget(tabs_);
  tabRow_->addStretch(1);
  column->addLayout(tabRow_);
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

void Ribbon::AddCorner(QWidget* widget) {
  corner_ = widget;
  tabRow_->addWidget(widget);
}

QSize Ribbon::minimumSizeHint() const {
  return {tabs_->minimumSizeHint().width(), QWidget::minimumSizeHint().height()};
}

void Ribbon::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  constexpr int kMargins = 24;
  if (corner_) corner_->setVisible(tabs_->sizeHint().width() + corner_->sizeHint().width() + kMargins <= width());
}

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
