#include "desktop/panels/ColorButton.h"

#include <QColorDialog>
#include <QGridLayout>
#include <QMenu>
#include <QStyleOptionToolButton>
#include <QWidgetAction>

#include "desktop/TextIds.h"
#include "desktop/look/Texts.h"
#include "platform/Text.h"

namespace xrpt {

namespace {

constexpr int kSwatch = 20;
constexpr int kColumns = 8;

// Quiet tints first, then strong ones: what reports are made of.
constexpr Color kSwatches[] = {Rgb(0, 0, 0),       Rgb(64, 72, 79),    Rgb(120, 130, 138), Rgb(178, 187, 193),
                               Rgb(222, 228, 232), Rgb(255, 255, 255), Rgb(250, 244, 230), Rgb(230, 241, 245),
                               Rgb(160, 32, 32),   Rgb(204, 72, 40),   Rgb(224, 138, 46),  Rgb(240, 196, 60),
                               Rgb(96, 150, 60),   Rgb(47, 156, 134),  Rgb(23, 112, 143),  Rgb(40, 84, 150),
                               Rgb(240, 190, 186), Rgb(246, 206, 178), Rgb(250, 222, 176), Rgb(250, 238, 184),
                               Rgb(208, 230, 190), Rgb(188, 228, 218), Rgb(182, 218, 232), Rgb(194, 208, 236)};

QColor ToQColor(Color color) { return {RedOf(color), GreenOf(color), BlueOf(color)}; }

void PaintNoColor(QPainter& painter, const QRectF& area) {
  painter.fillRect(area, Qt::white);
  painter.setPen(QPen(QColor(0xC04040), 1.5));
  painter.drawLine(area.bottomLeft(), area.topRight());
}

QPixmap SwatchPixmap(Color color, double scale) {
  QPixmap pixmap(QSize(kSwatch, kSwatch) * scale);
  pixmap.setDevicePixelRatio(scale);
  pixmap.fill(color == kNoColor ? Qt::white : ToQColor(color));
  QPainter painter(&pixmap);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF area(0, 0, kSwatch, kSwatch);
  if (color == kNoColor) PaintNoColor(painter, area);
  painter.setPen(QColor(0x80808080));
  painter.drawRect(area.adjusted(0.5, 0.5, -0.5, -0.5));
  return pixmap;
}

QString NameOf(Color color) { return color == kNoColor ? Translated(text::kNoColor) : ToQColor(color).name(); }

}  // namespace

ColorButton::ColorButton(QWidget* parent) : QToolButton(parent) {
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  setMinimumSize(56, 24);
  setFocusPolicy(Qt::StrongFocus);
  connect(this, &QToolButton::clicked, this, [this] { OpenMenu(); });
}

void ColorButton::Show(std::optional<Color> color) {
  color_ = color;
  const QString name = color ? NameOf(*color) : Translated(text::kMixed);
  setToolTip(name);
  setAccessibleDescription(name);
  update();
}

void ColorButton::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  QStyleOptionToolButton option;
  initStyleOption(&option);
  option.text.clear();
  style()->drawComplexControl(QStyle::CC_ToolButton, &option, &painter, this);
  const QRectF area = QRectF(rect()).adjusted(4.5, 4.5, -4.5, -4.5);
  if (color_ && *color_ == kNoColor) PaintNoColor(painter, area);
  if (color_ && *color_ != kNoColor) painter.fillRect(area, ToQColor(*color_));
  painter.setPen(QPen(palette().color(QPalette::Mid), 1, color_ ? Qt::SolidLine : Qt::DashLine));
  painter.drawRect(area);
}

void ColorButton::OpenMenu() {
  QMenu menu(this);
  if (const std::vector<Color> inUse = used ? used() : std::vector<Color>(); !inUse.empty()) {
    menu.addSection(Translated(text::kReportColors));
    AddBoard(menu, inUse);
    menu.addSeparator();
  }
  AddBoard(menu, kSwatches);
  menu.addAction(SwatchPixmap(kNoColor, devicePixelRatioF()), Translated(text::kNoColor), this,
                 [this] { Choose(xrpt::kNoColor); });
  menu.addAction(Translated(text::kOtherColor), this, [this] { ChooseOther(); });
  setDown(true);  // as long as its menu is open, as buttons with menus are
  menu.exec(mapToGlobal(QPoint(0, height())));
  setDown(false);
}

void ColorButton::AddBoard(QMenu& menu, std::span<const Color> colors) {
  auto* board = new QWidget(&menu);
  auto* grid = new QGridLayout(board);
  grid->setSpacing(3);
  for (int i = 0; i < static_cast<int>(colors.size()); ++i) {
    const Color color = colors[static_cast<std::size_t>(i)];
    auto* swatch = new QToolButton(board);
    swatch->setAutoRaise(true);
    swatch->setIcon(SwatchPixmap(color, devicePixelRatioF()));
    swatch->setIconSize({kSwatch, kSwatch});
    swatch->setToolTip(NameOf(color));
    swatch->setAccessibleName(NameOf(color));
    connect(swatch, &QToolButton::clicked, &menu, [this, &menu, color] {
      menu.close();
      Choose(color);
    });
    grid->addWidget(swatch, i / kColumns, i % kColumns);
  }
  auto* swatches = new QWidgetAction(&menu);
  swatches->setDefaultWidget(board);
  menu.addAction(swatches);
}

void ColorButton::ChooseOther() {
  const QColor start = color_ && *color_ != kNoColor ? ToQColor(*color_) : QColor(Qt::black);
  const QColor color = QColorDialog::getColor(start, this, accessibleName());
  if (color.isValid())
    Choose(Rgb(static_cast<unsigned>(color.red()), static_cast<unsigned>(color.green()),
               static_cast<unsigned>(color.blue())));
}

void ColorButton::Choose(Color color) {
  Show(color);
  if (chosen) chosen(color);
}

}  // namespace xrpt
