#include "desktop/panels/StartPage.h"

#include <QAction>
#include <QFileInfo>
#include <QLabel>
#include <QListWidget>
#include <QLocale>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/TextIds.h"
#include "desktop/look/Icons.h"
#include "desktop/look/Texts.h"
#include "desktop/ribbon/Actions.h"
#include "editor/RecentReports.h"
#include "model/RVReport.h"
#include "platform/NamedFiles.h"

namespace xrpt {

namespace {

constexpr int kWidest = 980;
constexpr QSize kButtonIcon(28, 28);

QPushButton* MakeButton(const QString& label, const QString& icon, QWidget* parent) {
  auto* button = new QPushButton(ThemedIcon(icon), label, parent);
  button->setAccessibleName(label);
  button->setIconSize(kButtonIcon);
  button->setMinimumHeight(48);
  return button;
}

}  // namespace

StartPage::StartPage(const Actions& actions, QWidget* parent) : QWidget(parent) {
  setObjectName(QStringLiteral("startPage"));
  setAttribute(Qt::WA_StyledBackground);
  setAccessibleName(Translated(text::kStartPage));
  auto* across = new QHBoxLayout(this);
  auto* body = new QWidget(this);
  body->setMaximumWidth(kWidest);
  across->addWidget(body);
  auto* column = new QVBoxLayout(body);
  column->setContentsMargins(24, 28, 24, 24);
  column->setSpacing(16);
  auto* title = new QLabel(Translated(text::kStartTitle), body);
  QFont large = title->font();
  large.setPointSizeF(large.pointSizeF() * 1.7);
  title->setFont(large);
  title->setWordWrap(true);
  column->addWidget(title);
  AddButtons(*column, actions);
  auto* lists = new QHBoxLayout();
  lists->setSpacing(16);
  column->addLayout(lists, 1);
  recent_ = AddList(*lists, text::kRecentReports, &StartPage::openWanted);
  folder_ = AddList(*lists, text::kFolderReports, &StartPage::openWanted);
  samples_ = AddList(*lists, text::kSamples, &StartPage::copyWanted);
}

void StartPage::AddButtons(QBoxLayout& column, const Actions& actions) {
  auto* row = new QHBoxLayout();
  row->setSpacing(12);
  QPushButton* portrait = MakeButton(Translated(text::kNewPortrait), QStringLiteral("portrait"), this);
  QPushButton* landscape = MakeButton(Translated(text::kNewLandscape), QStringLiteral("landscape"), this);
  QAction* open = actions.Find("Open");
  QPushButton* browse = MakeButton(Translated(text::kOpenOther), QStringLiteral("open"), this);
  for (QPushButton* button : {portrait, landscape, browse}) row->addWidget(button, 1);
  connect(portrait, &QPushButton::clicked, this, [this] { newWanted(false); });
  connect(landscape, &QPushButton::clicked, this, [this] { newWanted(true); });
  connect(browse, &QPushButton::clicked, open, &QAction::trigger);
  column.addLayout(row);
}

// A click opens, and so does Enter on a chosen line.
QListWidget* StartPage::AddList(QBoxLayout& row, int titleId, Chosen chosen) {
  auto* part = new QWidget(this);
  auto* column = new QVBoxLayout(part);
  column->setContentsMargins(0, 0, 0, 0);
  auto* title = new QLabel(Translated(titleId), part);
  title->setObjectName(QStringLiteral("sectionTitle"));
  auto* list = new QListWidget(part);
  list->setAccessibleName(Translated(titleId));
  list->setIconSize({20, 20});
  list->setTextElideMode(Qt::ElideMiddle);
  list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  column->addWidget(title);
  column->addWidget(list, 1);
  row.addWidget(part, 1);
  connect(list, &QListWidget::itemActivated, this, [this, chosen](QListWidgetItem* item) {
    const Path file(item->data(Qt::UserRole).toString().toStdWString());
    if (!file.empty() && (this->*chosen)) (this->*chosen)(file);
  });
  return list;
}

void StartPage::Fill(QListWidget& list, const std::vector<Path>& files, bool tellsFolder) {
  list.clear();
  for (const Path& file : files) {
    const QFileInfo info(ToQString(file.wstring()));
    const QString place = tellsFolder ? info.absolutePath() : QString();
    const QString changed = QLocale().toString(info.lastModified(), QLocale::ShortFormat);
    auto* item =
        new QListWidgetItem(ThemedIcon(QStringLiteral("portrait")),
                            QStringLiteral("%1\n%2").arg(ToQString(NameOfFile(file, kReportEnding)), changed), &list);
    item->setData(Qt::UserRole, ToQString(file.wstring()));
    item->setToolTip(tellsFolder ? place : info.fileName());
  }
  list.parentWidget()->setVisible(!files.empty());
}

void StartPage::Refresh() {
  FileService& files = *CurrentHost().files;
  Fill(*recent_, RecentReports(), true);
  Fill(*folder_, files.List(CurrentHost().setup->CfgPath(), kReportEnding), false);
  Fill(*samples_, samplesFolder_.empty() ? std::vector<Path>() : files.List(samplesFolder_, kReportEnding), false);
}

void StartPage::FocusFirst() {
  for (QListWidget* list : {recent_, folder_, samples_}) {
    if (list->count() == 0) continue;
    list->setCurrentRow(0);
    return list->setFocus(Qt::OtherFocusReason);
  }
  setFocus();
}

}  // namespace xrpt
