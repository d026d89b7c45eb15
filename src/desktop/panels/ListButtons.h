// The buttons under a list that can grow, shrink and be put into another order.
#pragma once

#include <QWidget>
#include <functional>

class QListWidget;
class QToolButton;

namespace xrpt {

class ListButtons final : public QWidget {
 public:
  explicit ListButtons(QWidget* parent);

  QToolButton& Add() { return *add_; }
  std::function<void()> removed;
  // -1: up, 1: down.
  std::function<void(int)> moved;

  // What can be done with so many chosen lines, the first of them at a place among `count`.
  void Refresh(std::size_t chosen, std::size_t first, std::size_t count);

 private:
  QToolButton* AddButton(const char* icon, int textId, std::function<void()> act);

  QToolButton* add_;
  QToolButton* remove_;
  QToolButton* up_;
  QToolButton* down_;
};

// As high as its lines, within limits.
void FitHeight(QListWidget& list);

}  // namespace xrpt
