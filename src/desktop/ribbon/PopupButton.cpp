#include "desktop/ribbon/PopupButton.h"

#include <QFrame>
#include <QKeyEvent>
#include <QScreen>

namespace xrpt {

namespace {

// Arrows walk its buttons, as they do on the ribbon.
class PopupFrame final : public QFrame {
 public:
  explicit PopupFrame(QWidget* parent) : QFrame(parent, Qt::Popup) {
    setObjectName(QStringLiteral("ribbonPopup"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(8, 6, 8, 6);
    column->setSizeConstraint(QLayout::SetFixedSize);
  }

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    const bool forward = event->key() == Qt::Key_Down || event->key() == Qt::Key_Right;
    const bool back = event->key() == Qt::Key_Up || event->key() == Qt::Key_Left;
    if (!forward && !back) return QFrame::keyPressEvent(event);
    focusNextPrevChild(forward);
  }
};

// Under the anchor, or as near to that as the screen allows.
QPoint PlaceUnder(const QWidget& anchor, QSize size) {
  const QRect screen = anchor.screen()->availableGeometry();
  const QPoint below = anchor.mapToGlobal(QPoint(0, anchor.height()));
  const int x = std::max(screen.left(), std::min(below.x(), screen.right() - size.width()));
  const int y = std::max(screen.top(), std::min(below.y(), screen.bottom() - size.height()));
  return {x, y};
}

}  // namespace

PopupButton::PopupButton(QWidget* parent) : QToolButton(parent), popup_(new PopupFrame(this)) {
  setProperty("flat", true);
  setFocusPolicy(Qt::TabFocus);
  connect(this, &QToolButton::clicked, this, [this] { OpenUnder(*this); });
}

void PopupButton::Hold(QWidget* widget) {
  static_cast<QBoxLayout*>(popup_->layout())->insertWidget(0, widget);
  widget->show();
}

void PopupButton::OpenUnder(const QWidget& anchor) {
  popup_->adjustSize();
  popup_->move(PlaceUnder(anchor, popup_->sizeHint()));
  popup_->setAccessibleName(accessibleName());
  popup_->show();
  popup_->setFocus(Qt::PopupFocusReason);
  for (QWidget* next = popup_->nextInFocusChain(); next != popup_; next = next->nextInFocusChain()) {
    if (!popup_->isAncestorOf(next) || !(next->focusPolicy() & Qt::TabFocus) || !next->isEnabled()) continue;
    return next->setFocus(Qt::PopupFocusReason);
  }
}

void PopupButton::Close() { popup_->close(); }

void ClosePopupAround(const QWidget& widget) {
  if (widget.window()->windowType() == Qt::Popup) widget.window()->close();
}

}  // namespace xrpt
