#include "desktop/panels/StatusBar.h"

#include <QSlider>

#include "desktop/TextIds.h"
#include "desktop/look/Icons.h"
#include "desktop/look/Texts.h"

namespace xrpt {

namespace {

constexpr double kSmallest = 0.5;
constexpr double kLargest = 10.0;
constexpr int kMessageCharacters = 20;  // what messages keep of a narrow bar

QLabel* MakeLabel(QWidget* parent, int nameTextId, int characters) {
  auto* label = new QLabel(parent);
  label->setAccessibleName(Translated(nameTextId));
  label->setToolTip(Translated(nameTextId));
  label->setMinimumWidth(label->fontMetrics().averageCharWidth() * characters);
  return label;
}

// The label's name says what it is about; what it says is its description, for those who hear it.
void Say(QLabel& label, const QString& text) {
  label.setText(text);
  label.setAccessibleDescription(text);
}

int PlainWidth(const QWidget& part) { return std::max(part.minimumWidth(), part.minimumSizeHint().width()); }

}  // namespace

int SliderPosition(double zoom) {
  return static_cast<int>(std::lround(100.0 * std::log2(std::clamp(zoom, kSmallest, kLargest))));
}

double SliderZoom(int position) {
  return std::clamp(std::round(100.0 * std::exp2(position / 100.0)) / 100.0, kSmallest, kLargest);
}

StatusBar::StatusBar(QWidget* parent) : QStatusBar(parent) {
  setSizeGripEnabled(false);
  setContentsMargins(6, 0, 6, 0);
  pointer_ = MakeLabel(this, text::kPointerPosition, 22);
  selection_ = MakeLabel(this, text::kSelectionGeometry, 40);
  addPermanentWidget(selection_);
  addPermanentWidget(pointer_);
  pointer_->setContentsMargins(16, 0, 16, 0);
  AddSlider();
}

void StatusBar::AddSlider() {
  slider_ = new QSlider(Qt::Horizontal, this);
  slider_->setRange(SliderPosition(kSmallest), SliderPosition(kLargest));
  slider_->setSingleStep(10);
  slider_->setPageStep(50);
  slider_->setFixedWidth(140);
  slider_->setAccessibleName(Translated(text::kZoom));
  slider_->setToolTip(Translated(text::kZoom));
  percent_ = MakeLabel(this, text::kZoom, 6);
  percent_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  addPermanentWidget(slider_);
  addPermanentWidget(percent_);
  connect(slider_, &QSlider::valueChanged, this, [this](int position) {
    if (zoomChosen) zoomChosen(SliderZoom(position));
  });
}

void StatusBar::AddFirst(QWidget& part) {
  first_ = &part;
  insertPermanentWidget(0, first_);
}

QSize StatusBar::minimumSizeHint() const { return {0, QStatusBar::minimumSizeHint().height()}; }

// The first to go are those that are also elsewhere: the panel has the selection's place, the ribbon the zoom.
void StatusBar::resizeEvent(QResizeEvent* event) {
  QStatusBar::resizeEvent(event);
  QWidget* const parts[] = {pointer_, slider_, selection_, percent_};
  int room = width() - fontMetrics().averageCharWidth() * kMessageCharacters;
  for (const QWidget* part : parts) room -= PlainWidth(*part);
  if (first_ && !first_->isHidden()) room -= PlainWidth(*first_);
  for (QWidget* part : parts) {
    part->setVisible(room >= 0);
    if (room < 0) room += PlainWidth(*part);
  }
}

void StatusBar::SetPointer(std::optional<PointD> position) {
  const auto number = [this](double value) { return locale().toString(value, 'f', 1); };
  Say(*pointer_, position ? QStringLiteral("%1 · %2 mm").arg(number(position->x), number(position->y)) : QString());
}

void StatusBar::SetSelection(int count, const RectD& area) {
  if (count == 0) return Say(*selection_, {});
  const auto number = [this](double value) { return locale().toString(value, 'f', 2); };
  const QString place = QStringLiteral("X %1  Y %2   %3 × %4 mm")
                            .arg(number(area.left), number(area.top), number(area.Width()), number(area.Height()));
  const QString cards = Translated(text::kSelectedCards, QString::number(count)) + QStringLiteral("   ");
  Say(*selection_, count == 1 ? place : cards + place);
}

void StatusBar::SetZoom(double zoom) {
  const QSignalBlocker quiet(slider_);
  slider_->setValue(SliderPosition(zoom));
  Say(*percent_, QStringLiteral("%1 %").arg(std::lround(zoom * 100.0)));
}

}  // namespace xrpt
