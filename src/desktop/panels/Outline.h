// The report's pages, and the cards of the one that is shown, front card first. Choosing lines shows that page or
// selects those cards.
#pragma once

#include <QAbstractListModel>
#include <QWidget>
#include <functional>
#include <vector>

class QListView;

namespace xrpt {

class RVEditControlWnd;

class PagesModel final : public QAbstractListModel {
 public:
  explicit PagesModel(RVEditControlWnd& frame, QObject* parent) : QAbstractListModel(parent), frame_(frame) {}
  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  void Reset();

 private:
  RVEditControlWnd& frame_;
};

class CardsModel final : public QAbstractListModel {
 public:
  explicit CardsModel(RVEditControlWnd& frame, QObject* parent) : QAbstractListModel(parent), frame_(frame) {}
  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
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

  std::function<void(std::size_t)> pageChosen;
  // Their places in the list of cards, in selection order: those that were selected before, then the new ones.
  std::function<void(const std::vector<std::size_t>&)> cardsChosen;

 private:
  QListView* MakeList(QAbstractListModel* model, int nameTextId);
  void TellCards();
  void ShowSelection();

  RVEditControlWnd& frame_;
  PagesModel* pageModel_;
  CardsModel* cardModel_;
  QListView* pages_;
  QListView* cards_;
  bool isFilling_ = false;  // what changes now is no choice of the user's
};

// The icon of a kind of card, by its element ("reportGraph": "report-graph").
QString CardIconName(const char* tag);

}  // namespace xrpt
