#include "desktop/panels/DockTitle.h"

#include <QDockWidget>

#include "desktop/TextIds.h"
#include "desktop/look/Icons.h"
#include "desktop/look/Texts.h"

namespace xrpt {

void GiveTitle(QDockWidget& dock) {
  auto* bar = new QWidget(&dock);
  bar->setObjectName(QStringLiteral("dockTitle"));
  bar->setAttribute(Qt::WA_StyledBackground);
  auto* row = new QHBoxLayout(bar);
  row->setContentsMargins(10, 3, 4, 3);
  auto* title = new QLabel(dock.windowTitle(), bar);
  title->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);  // a narrow dock shows what fits
  row->addWidget(title, 1);
  auto* close = new QToolButton(bar);
  close->setProperty("flat", true);
  close->setIcon(ThemedIcon(QStringLiteral("close")));
  close->setIconSize({14, 14});
  close->setAccessibleName(Translated(text::kHidePanel, dock.windowTitle()));
  close->setToolTip(close->accessibleName());
  QObject::connect(close, &QToolButton::clicked, &dock, &QWidget::hide);
  row->addWidget(close);
  dock.setTitleBarWidget(bar);
}

}  // namespace xrpt
