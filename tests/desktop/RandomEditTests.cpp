// Whatever is done in the window in whatever order, over pages, with saves and reloads between: the books stay true.
#include <random>

#include "desktop/EditedWindow.h"

namespace xrpt {
namespace {

class RandomEdits : public EditedWindow, public ::testing::WithParamInterface<unsigned> {
 protected:
  std::size_t Below(std::size_t count) { return count == 0 ? 0 : random_() % count; }
  const Deed* AnyOf(const std::vector<Deed>& deeds) { return deeds.empty() ? nullptr : &deeds[Below(deeds.size())]; }
  QPoint AnyPoint() {
    return {static_cast<int>(Below(static_cast<std::size_t>(View().viewport()->width()))),
            static_cast<int>(Below(static_cast<std::size_t>(View().viewport()->height())))};
  }
  Qt::KeyboardModifiers AnyHeld() { return kHeld[Below(std::size(kHeld))]; }

  // --- What is done ---

  void Perform(const Deed* deed) {
    if (!deed) return;
    SCOPED_TRACE(deed->name + " after " + last_);
    answers_.yes = Below(2) == 0;
    Do(*deed, deed->name == last_ || (IsSize(deed->name) && IsSize(last_)));
    last_ = deed->name;
  }
  // The panel's and the ribbon's are the same field.
  static bool IsSize(const std::string& name) { return name == "field font/size" || name == "ribbon's Size"; }

  void SelectSome() {
    std::vector<std::size_t> cards;
    for (std::size_t left = Below(4); left > 0 && CardCount() > 0; --left) cards.push_back(Below(CardCount()));
    std::sort(cards.begin(), cards.end());
    cards.erase(std::unique(cards.begin(), cards.end()), cards.end());
    Select(cards);
    last_.clear();
  }
  void EditOnAndOn() {
    const std::vector<Deed> deeds = EditorDeeds(static_cast<int>(Below(5)));
    const Deed* deed = AnyOf(deeds);
    for (std::size_t times = 1 + Below(3); times > 0 && !HasFailure(); --times) Perform(deed);
  }
  void DragAnywhere() {
    const std::vector<QAction*> tools = Tools();
    if (Below(3) == 0) tools[Below(tools.size())]->trigger();
    const QPoint from = AnyPoint();
    const QPoint by = AnyPoint() / 4;
    const Deed deed{"drag anywhere", [this, from, by, held = AnyHeld()] { DragHeld(from, by, held); }};
    Perform(&deed);
  }
  // A command in the middle of a drag: each of the two is a step or none.
  void CommandWhileDragging() {
    const QPoint from = PointOfSelected(0, 0);
    const Deed press{"pressing", [&] {
                       Press(from);
                       Move(from + QPoint(30, 30));
                     }};
    const Deed release{"letting go", [&] { Release(from + QPoint(30, 30)); }};
    const std::vector<Deed> commands = CommandDeeds(true);
    Perform(&press);
    Below(3) == 0 ? GoBack() : Perform(AnyOf(commands));
    Perform(&release);
  }
  void GoBack() {
    if (!book_->CanGoBack()) return;
    last_.clear();
    Undo();
  }
  void GoForth() {
    if (!book_->CanGoForth()) return;
    last_.clear();
    Redo();
  }
  void SaveAndReload() {
    Run("Save");
    const std::string saved = book_->SavedText();
    Reopen();
    EXPECT_EQ(book_->SavedText(), saved);
    last_.clear();
  }

  // With texts that the editors write, so that something is found.
  void SearchAndReplace() {
    const int turn = static_cast<int>(Below(5));
    Run("Replace");
    for (std::size_t times = 1 + Below(4); times > 0 && !HasFailure(); --times) {
      const std::vector<Deed> deeds = SearchDeeds(turn);
      Perform(AnyOf(deeds));
    }
  }

  void Act() {
    const std::pair<std::size_t, std::function<void()>> acts[] = {
        {22, [this] { SelectSome(); }},
        {24, [this] { EditOnAndOn(); }},
        {4, [this] { Perform(AnyOf(ListDeeds(static_cast<int>(Below(7))))); }},
        {10, [this] { Perform(AnyOf(CommandDeeds(false))); }},
        {8, [this] { Perform(AnyOf(CommandDeeds(true))); }},
        {8, [this] { Perform(AnyOf(GestureDeeds())); }},
        {8, [this] { DragAnywhere(); }},
        {3, [this] { CommandWhileDragging(); }},
        {4, [this] { Perform(AnyOf(KeyDeeds())); }},
        {3, [this] { Perform(AnyOf(LookDeeds(static_cast<int>(Below(3))))); }},
        {3, [this] { SearchAndReplace(); }},
        {8, [this] { GoBack(); }},
        {5, [this] { GoForth(); }},
        {2, [this] { SaveAndReload(); }}};
    std::size_t number = Below(112);
    for (const auto& [weight, run] : acts) {
      if (number < weight) return run();
      number -= weight;
    }
  }

  std::mt19937 random_{GetParam()};
  std::string last_;
};

TEST_P(RandomEdits, KeepTheBooksTrue) {
  const int count = IsThorough() ? AskedDeeds() : 120;
  for (int deed = 0; deed < count && !HasFailure(); ++deed) {
    SCOPED_TRACE("deed " + std::to_string(deed));
    Act();
  }
  WalkWholeHistory();
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomEdits, ::testing::Values(1u, 2u));

}  // namespace
}  // namespace xrpt
