// Undo and redo pressed in a field: they take back what is being typed there, and what the report's history holds where
// the field has nothing of its own.
#pragma once

#include <QObject>
#include <functional>

class QKeyEvent;

namespace xrpt {

class FieldUndo final : public QObject {
 public:
  // `isTyping`: the field's own history is newer than the report's.
  FieldUndo(std::function<bool()> isTyping, QObject* parent) : QObject(parent), isTyping_(std::move(isTyping)) {}
  void Watch(QWidget& field);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  std::function<bool()> isTyping_;
};

}  // namespace xrpt
