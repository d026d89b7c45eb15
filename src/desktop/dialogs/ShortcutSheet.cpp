#include "desktop/dialogs/ShortcutSheet.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QPushButton>
#include <QScrollArea>

#include "desktop/TextIds.h"
#include "desktop/look/Texts.h"
#include "desktop/ribbon/Actions.h"
#include "editor/CommandCatalogue.h"

namespace xrpt {

namespace {

constexpr int kColumns = 3;

// What hands do on the page, beside the commands.
struct Gesture {
  int labelTextId;
  int keysTextId;
};
constexpr Gesture kGestures[] = {
    {text::kGestureMove, text::kGestureMoveKeys},        {text::kGestureMoveFar, text::kGestureMoveFarKeys},
    {text::kGestureZoom, text::kGestureZoomKeys},        {text::kGesturePan, text::kGesturePanKeys},
    {text::kGestureAdd, text::kGestureAddKeys},          {text::kGestureToggle, text::kGestureToggleKeys},
    {text::kGestureText, text::kGestureTextKeys},        {text::kGestureCopy, text::kGestureCopyKeys},
    {text::kGestureBeneath, text::kGestureBeneathKeys},  {text::kGestureFine, text::kGestureFineKeys},
    {text::kGestureFree, text::kGestureFreeKeys},        {text::kGestureNextCard, text::kGestureNextCardKeys},
    {text::kGestureNextArea, text::kGestureNextAreaKeys}};

QString KeysOf(const QAction& action) {
  return QKeySequence::listToString(action.shortcuts(), QKeySequence::NativeText);
}

// Alignments and sizes mean nothing without their group.
QString LabelOf(const QAction& action) {
  const bool leansOnGroup = Actions::CommandOf(action).tab == RibbonTab::Arrange;
  return leansOnGroup ? Actions::FullLabelOf(action) : action.text();
}

}  // namespace

ShortcutSheet::ShortcutSheet(const std::vector<QAction*>& actions, QWidget* parent) : QDialog(parent) {
  setWindowTitle(Translated(text::kShortcuts));
  setAttribute(Qt::WA_DeleteOnClose);
  auto* column = new QVBoxLayout(this);
  auto* scroll = new QScrollArea(this);
  scroll->setAccessibleName(Translated(text::kShortcuts));
  scroll->setObjectName(QStringLiteral("panelArea"));
  scroll->setWidgetResizable(true);
  scroll->setFrameShape(QFrame::NoFrame);
  scroll->setWidget(MakeColumns(actions));
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  column->addWidget(scroll, 1);
  column->addWidget(buttons);
  resize(std::clamp(parent->width() - 40, 480, 1080), std::clamp(parent->height() - 40, 320, 720));
}

QWidget* ShortcutSheet::MakeColumns(const std::vector<QAction*>& actions) {
  auto* sheet = new QWidget();
  auto* row = new QHBoxLayout(sheet);
  row->setSpacing(28);
  std::vector<QGridLayout*> grids;
  for (int i = 0; i < kColumns; ++i) {
    auto* part = new QVBoxLayout();
    grids.push_back(new QGridLayout());
    grids.back()->setVerticalSpacing(3);
    part->addLayout(grids.back());
    part->addStretch(1);
    row->addLayout(part, 1);
  }
  const auto shortest = [&grids] {
    return *std::min_element(grids.begin(), grids.end(),
                             [](auto* a, auto* b) { return a->rowCount() < b->rowCount(); });
  };
  for (const CommandTab& tab : CommandTabs()) {
    QGridLayout& grid = *shortest();
    AddSection(grid, Translated(tab.textId));
    for (const QAction* action : actions) {
      if (Actions::CommandOf(*action).tab == tab.tab) AddRow(grid, LabelOf(*action), KeysOf(*action));
    }
  }
  QGridLayout& grid = *shortest();
  AddSection(grid, Translated(text::kGestures));
  for (const Gesture& gesture : kGestures)
    AddRow(grid, Translated(gesture.labelTextId), Translated(gesture.keysTextId));
  return sheet;
}

void ShortcutSheet::AddSection(QGridLayout& grid, const QString& title) {
  auto* label = new QLabel(title);
  label->setObjectName(QStringLiteral("sectionTitle"));
  grid.addWidget(label, grid.rowCount(), 0, 1, 2);
}

void ShortcutSheet::AddRow(QGridLayout& grid, const QString& label, const QString& keys) {
  const int row = grid.rowCount();
  auto* text = new QLabel(label);
  grid.addWidget(text, row, 0);
  auto* cap = new QLabel(keys);
  cap->setObjectName(QStringLiteral("keyCap"));
  grid.addWidget(cap, row, 1, Qt::AlignRight | Qt::AlignVCenter);
  grid.setColumnStretch(0, 1);
}

}  // namespace xrpt
