#include "desktop/page/PageAccess.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QLocale>
#include <map>
#include <utility>

#include "canvas/RVEditTemplateWnd.h"
#include "desktop/TextIds.h"
#include "desktop/look/Texts.h"
#include "desktop/page/PageView.h"
#include "editor/SelectedFields.h"

namespace xrpt {

namespace {

class PageAccess;

// A card by its key, so that one that is gone is known to be.
class CardAccess final : public QAccessibleInterface {
 public:
  CardAccess(PageView& view, CardKey card) : view_(view), card_(card) {}

  bool isValid() const override { return Card() != nullptr; }
  QObject* object() const override { return nullptr; }
  QAccessibleInterface* childAt(int, int) const override { return nullptr; }
  QAccessibleInterface* child(int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }
  QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(view_.viewport()); }
  QAccessible::Role role() const override { return QAccessible::Graphic; }
  QString text(QAccessible::Text kind) const override;
  void setText(QAccessible::Text, const QString&) override {}
  QRect rect() const override;
  QAccessible::State state() const override;

 private:
  const RVCardControl* Card() const;

  PageView& view_;
  CardKey card_;
};

// The viewport, whose children are cards, the top one first.
class PageAccess final : public QAccessibleWidget {
 public:
  explicit PageAccess(PageView& view)
      : QAccessibleWidget(view.viewport(), QAccessible::Canvas, Translated(text::kPageView)), view_(view) {}
  ~PageAccess() override {
    for (const auto& [card, id] : cards_) QAccessible::deleteAccessibleInterface(id);
  }

  int childCount() const override { return view_.Shown() ? static_cast<int>(Cards().Size()) : 0; }
  QAccessibleInterface* child(int index) const override {
    if (index < 0 || index >= childCount()) return nullptr;
    return Access(Cards()[static_cast<std::size_t>(index)].Key());
  }
  QAccessibleInterface* childAt(int x, int y) const override {
    for (int i = 0; i < childCount(); ++i) {
      if (child(i)->rect().contains(x, y)) return child(i);
    }
    return nullptr;
  }
  int indexOfChild(const QAccessibleInterface* wanted) const override {
    for (int i = 0; i < childCount(); ++i) {
      if (child(i) == wanted) return i;
    }
    return -1;
  }

 private:
  const CardList& Cards() const { return view_.Shown()->Page().cards; }
  QAccessibleInterface* Access(CardKey card) const {
    auto [found, isNew] = cards_.try_emplace(card, 0);
    if (isNew) found->second = QAccessible::registerAccessibleInterface(new CardAccess(view_, card));
    return QAccessible::accessibleInterface(found->second);
  }

  PageView& view_;
  mutable std::map<CardKey, QAccessible::Id> cards_;
};

const RVCardControl* CardAccess::Card() const {
  if (!view_.Shown()) return nullptr;
  const CardList& cards = view_.Shown()->Page().cards;
  const std::size_t index = cards.IndexOf(card_);
  return index == CardList::kNowhere ? nullptr : &cards[index];
}

QString CardAccess::text(QAccessible::Text kind) const {
  const RVCardControl* card = Card();
  if (!card) return {};
  if (kind == QAccessible::Name) return ToQString(CardCaption(*card));
  const auto number = [](double value) { return QLocale().toString(value, 'f', 1); };
  if (kind != QAccessible::Description) return {};
  return QStringLiteral("X %1, Y %2, %3 × %4 mm")
      .arg(number(card->x), number(card->y), number(card->width), number(card->height));
}

QRect CardAccess::rect() const {
  const RVCardControl* card = Card();
  if (!card) return {};
  const Rect box = ToPixels(view_.Shown()->Placement(), RectOf(*card));
  return {view_.viewport()->mapToGlobal(QPoint(box.left, box.top)), QSize(box.Width(), box.Height())};
}

QAccessible::State CardAccess::state() const {
  QAccessible::State state;
  const RVCardControl* card = Card();
  state.invalid = !card;
  state.selectable = true;
  state.focusable = true;
  if (!card) return state;
  state.selected = view_.Shown()->Selection().IsSelected(*card);
  state.focused = state.selected && view_.hasFocus();
  return state;
}

QAccessibleInterface* MakeAccess(const QString&, QObject* object) {
  auto* view = object ? dynamic_cast<PageView*>(object->parent()) : nullptr;
  return view && view->viewport() == object ? new PageAccess(*view) : nullptr;
}

}  // namespace

void InstallPageAccess() {
  static bool isInstalled = false;
  if (!std::exchange(isInstalled, true)) QAccessible::installFactory(MakeAccess);
}

}  // namespace xrpt
