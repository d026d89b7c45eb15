#include "desktop/page/InPlaceEditor.h"

#include <QKeyEvent>
#include <QTextBlock>
#include <QTextDocument>
#include <cmath>

#include "desktop/TextIds.h"
#include "desktop/look/Texts.h"
#include "desktop/look/Theme.h"
#include "model/Words.h"

namespace xrpt {

namespace {

constexpr int kBorder = 2;
constexpr int kSmallestWidth = 60;

QColor ColorOf(Color color) { return QColor(RedOf(color), GreenOf(color), BlueOf(color)); }

Qt::Alignment AcrossOf(int align) {
  if (align == kAlignLeft) return Qt::AlignLeft;
  return align == kAlignRight ? Qt::AlignRight : Qt::AlignHCenter;
}

QFont FontOf(const TextInPlace& text) {
  QFont font(ToQString(text.font.face));
  font.setPixelSize(std::clamp(roundi(text.pixelSize), 6, 400));
  font.setBold(text.font.IsBold());
  font.setItalic(text.font.IsItalic());
  return font;
}

}  // namespace

InPlaceEditor::InPlaceEditor(const TextInPlace& text, QWidget* parent)
    : QTextEdit(parent),
      card_(text.card),
      before_(text.text),
      over_(text.rect.left, text.rect.top, text.rect.Width(), text.rect.Height()),
      verticalAlign_(text.verticalAlign) {
  setObjectName(QStringLiteral("inPlaceEditor"));
  setAccessibleName(Translated(text::kEditedText));
  setAcceptRichText(false);
  setTabChangesFocus(true);
  setFrameShape(QFrame::NoFrame);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  document()->setDocumentMargin(0);
  setFont(FontOf(text));
  const QColor ground = ColorOf(text.ground);
  setStyleSheet(
      QStringLiteral("QTextEdit { background: %1; color: %2; border: %3px solid %4; padding: 0; }")
          .arg(ground.name(), ColorOf(text.color).name(), QString::number(kBorder), CurrentTheme().accent.name()));
  setPlainText(ToQString(text.text));
  QTextOption option = document()->defaultTextOption();
  option.setAlignment(AcrossOf(text.horizontalAlign));
  document()->setDefaultTextOption(option);
  connect(this, &QTextEdit::textChanged, this, [this] { Fit(); });
  Fit();
}

std::wstring InPlaceEditor::Words() const { return toPlainText().toStdWString(); }

void InPlaceEditor::Begin(const QString& typed) {
  selectAll();
  if (!typed.isEmpty()) insertPlainText(typed);
  show();
  raise();
  setFocus(Qt::OtherFocusReason);
}

// As large as the card, and higher when the text needs it.
void InPlaceEditor::Fit() {
  const int width = std::max(over_.width(), kSmallestWidth);
  document()->setTextWidth(width);
  const int text = static_cast<int>(std::ceil(document()->size().height()));
  const int height = std::max(over_.height(), text);
  const int room = height - text;
  const int above = verticalAlign_ == kAlignTop ? 0 : verticalAlign_ == kAlignBottom ? room : room / 2;
  setViewportMargins(0, above, 0, 0);
  setGeometry(over_.x() - kBorder, over_.y() - kBorder, width + 2 * kBorder, height + 2 * kBorder);
}

void InPlaceEditor::keyPressEvent(QKeyEvent* event) {
  const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  const bool isPlain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
  if (event->key() == Qt::Key_Escape || (isEnter && isPlain)) {
    if (ended) ended(event->key() != Qt::Key_Escape);
    return;
  }
  if (isEnter) return insertPlainText(QStringLiteral("\n"));
  QTextEdit::keyPressEvent(event);
}

// Menus of its own, and windows of other programs, do not end it.
void InPlaceEditor::focusOutEvent(QFocusEvent* event) {
  QTextEdit::focusOutEvent(event);
  const bool goesOn = event->reason() == Qt::PopupFocusReason || event->reason() == Qt::ActiveWindowFocusReason;
  if (!goesOn && ended) ended(true);
}

// Escape and Enter are the field's, whatever the window has them for.
bool InPlaceEditor::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_Escape || key == Qt::Key_Return || key == Qt::Key_Enter) {
      event->accept();
      return true;
    }
  }
  return QTextEdit::event(event);
}

// The page would scroll away from under it.
void InPlaceEditor::wheelEvent(QWheelEvent* event) { event->accept(); }

}  // namespace xrpt
