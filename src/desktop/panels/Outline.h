// The report's pages, and the cards of the one that is shown, front card first. Choosing lines shows that page or
// selects those cards.
#pragma once

#include <QPoint>
#include <QTimer>
#include <QWidget>
#include <functional>
#include <vector>

#include "desktop/panels/DraggedRows.h"
#include "desktop/panels/Thumbnails.h"

class QListView;

namespace xrpt {

class RVEditControlWnd;

class PagesModel final : public DraggedRows {
 public:
  PagesModel(RVEditControlWnd& frame, QObject* parent);
  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  void Reset();
  // Pages may look different now.
  void Repaint();

 private:
  QVariant Picture(std::size_t page) const;

  RVEditControlWnd& frame_;
  mutable Thumbnails pictures_;
};

class CardsModel final : public DraggedRows {
 public:
  explicit CardsModel(RVEditControlWnd& frame, QObject* parent) : DraggedRows(parent), frame_(frame) {}
  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;
  // The card is called so from now on.
  bool setData(const QModelIndex& index, const QVariant& value, int role) override;
  void Reset();

 private:
  RVEditControlWnd& frame_;
  int count_ = 0;  // as of the last reset
};

class Outline final : public QWidget {
 public:
  explicit Outline(RVEditControlWnd& frame, QWidget* parent = nullptr);

  // Pages or the shown page are others.
  void RefreshPages();
  // Cards or the selection changed.
  void RefreshCards();
  void FocusCards();
  // The name of the chosen card is edited in its line. False when the keyboard is not in the list of cards.
  bool RenameChosen();

  std::function<void(std::size_t)> pageChosen;
  // Their places in the list of cards, in selection order: those that were selected before, then the new ones.
  std::function<void(const std::vector<std::size_t>&)> cardsChosen;
  // A page was dragged before another, chosen cards were.
  std::function<void(std::size_t page, std::size_t before)> pageDropped;
  std::function<void(const std::vector<std::size_t>& cards, std::size_t before)> cardsDropped;
  // A menu is wanted for the page, or for the cards, that the click has chosen; where on the screen.
  std::function<void(QPoint)> pageMenuWanted;
  std::function<void(QPoint)> cardMenuWanted;

 private:
  QListView* MakeList(DraggedRows* model, int nameTextId, std::function<void(QPoint)> Outline::*menuWanted);
  void AddMarks();
  void TellCards();
  void ShowSelection();

  RVEditControlWnd& frame_;
  PagesModel* pageModel_;
  CardsModel* cardModel_;
  QListView* pages_;
  QListView* cards_;
  QTimer repaint_;          // after a moment of rest
  bool isFilling_ = false;  // what changes now is no choice of the user's
};

// The icon of a kind of card, by its element ("reportGraph": "report-graph").
QString CardIconName(const char* tag);

}  // namespace xrpt
