#include "desktop/panels/FieldUndo.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextDocument>

namespace xrpt {

namespace {

enum class Wish { None, Undo, Redo };

Wish WishOf(const QKeyEvent& event) {
  const bool isPlain = event.modifiers() == Qt::ControlModifier;
  const bool isShifted = event.modifiers() == (Qt::ControlModifier | Qt::ShiftModifier);
  if (event.key() == Qt::Key_Z) return isPlain ? Wish::Undo : isShifted ? Wish::Redo : Wish::None;
  return event.key() == Qt::Key_Y && isPlain ? Wish::Redo : Wish::None;
}

template <class Text>
bool Carry(Text& text, bool isAvailable, Wish wish, bool carriesOut) {
  if (isAvailable && carriesOut) wish == Wish::Undo ? text.undo() : text.redo();
  return isAvailable;
}

// Whether the field can take something back by itself; does it when asked to.
bool Carry(QWidget& field, Wish wish, bool isTyping, bool carriesOut) {
  if (auto* lines = qobject_cast<QPlainTextEdit*>(&field)) {
    const QTextDocument& text = *lines->document();
    return Carry(*lines, isTyping && (wish == Wish::Undo ? text.isUndoAvailable() : text.isRedoAvailable()), wish,
                 carriesOut);
  }
  auto* line = qobject_cast<QLineEdit*>(&field);
  if (!line) line = field.findChild<QLineEdit*>();
  if (!line) return false;
  // A list's text counts only once it is finished: until then it is typing.
  const bool isUnfinished = qobject_cast<QComboBox*>(&field) && line->isModified();
  return Carry(*line,
               (isTyping || isUnfinished) && (wish == Wish::Undo ? line->isUndoAvailable() : line->isRedoAvailable()),
               wish, carriesOut);
}

}  // namespace

void FieldUndo::Watch(QWidget& field) {
  QWidget* typedIn = field.focusProxy() ? field.focusProxy() : &field;
  typedIn->installEventFilter(this);
}

// Whoever accepts the override gets the key; otherwise it is the window's shortcut.
bool FieldUndo::eventFilter(QObject* watched, QEvent* event) {
  const bool isOverride = event->type() == QEvent::ShortcutOverride;
  if (!isOverride && event->type() != QEvent::KeyPress) return QObject::eventFilter(watched, event);
  const Wish wish = WishOf(*static_cast<QKeyEvent*>(event));
  if (wish == Wish::None) return QObject::eventFilter(watched, event);
  const bool isOwn = Carry(*static_cast<QWidget*>(watched), wish, isTyping_(), !isOverride);
  event->setAccepted(isOwn);
  return isOwn || isOverride;
}

}  // namespace xrpt
