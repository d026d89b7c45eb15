// Whatever changes the report in the window is exactly one named step; undo gives the saved text of before, redo that
// of after, at once and at the end at every length of the history.
#include <gmock/gmock.h>

#include <numeric>

#include "desktop/EditedWindow.h"
#include "editor/CommandCatalogue.h"
#include "model/CardRegistry.h"

namespace xrpt {
namespace {

using ::testing::IsEmpty;
using Cards = std::vector<std::size_t>;

// --- Editors ---

// The page, two kinds, each kind of card, and all.
std::vector<Cards> Selections() {
  std::vector<Cards> selections = {{}, {0, 1}};
  Cards all;
  for (const RegistryRow& row : CardRegistry()) {
    if (row.onPage) all.push_back(all.size());
  }
  for (const std::size_t card : all) selections.push_back({card});
  selections.push_back(all);
  return selections;
}

// Of so many parts one: each is a process of its own.
constexpr std::size_t kParts = 3;

class EveryEditor : public EditedWindow, public ::testing::WithParamInterface<std::size_t> {
 protected:
  // In one way, or in two where the first does nothing; thoroughly, in both. An editor that never does anything is
  // none.
  void UseEditors(const Cards& cards) {
    std::set<std::string> idle;
    for (int turn = 0; turn < 2; ++turn) {
      ChooseLines(turn == 0);
      for (const Deed& deed : EditorDeeds(turn)) {
        if (turn == 1 && !idle.contains(deed.name) && !IsThorough()) continue;
        SCOPED_TRACE(deed.name);
        Select(cards);
        if (turn == 0) idle.insert(deed.name);
        if (DoThereAndBack(deed)) idle.erase(deed.name);
      }
    }
    EXPECT_THAT(idle, IsEmpty());
  }
  void UseLists() {
    std::set<std::string> done;
    for (const bool last : {false, true}) {
      ChooseLines(last);
      for (const Deed& deed : ListDeeds(0)) {
        SCOPED_TRACE(deed.name);
        ChooseLines(last);
        if (!DoThereAndBack(deed)) continue;
        done.insert(deed.name);
        Undo();
      }
    }
    EXPECT_TRUE(done.empty() || done.size() >= 4) << "adds, removes, moves up and down";
  }
};

TEST_P(EveryEditor, IsOneStep) {
  const std::vector<Cards> selections = Selections();
  for (std::size_t i = GetParam(); i < selections.size(); i += kParts) {
    SCOPED_TRACE("selection " + std::to_string(i));
    Select(selections[i]);
    FillLists();
    UseLists();
    UseEditors(selections[i]);
    WalkWholeHistory();
    Reopen();
  }
}

INSTANTIATE_TEST_SUITE_P(Parts, EveryEditor, ::testing::Range(std::size_t{0}, kParts));

// --- Commands ---

struct Start {
  const char* name;
  std::size_t page;
  Cards cards;
  bool isLost = false;  // one card lies beside the page
};
void PrintTo(const Start& start, std::ostream* out) { *out << start.name; }

class EveryCommand : public EditedWindow, public ::testing::WithParamInterface<Start> {
 protected:
  // Cards are on the clipboard, and there is something to save and to take back.
  void Prepare() {
    Frame().ShowPage(0);
    Select({0, 1});
    Run("Copy");
    if (GetParam().isLost)
      Do({"losing", [this] { SetRect(Page().Edit({text::kMove, 1}).Card(0), {500.0, 10.0, 20.0, 10.0}); }});
    Begin();
    Do({"preparing", [this] {
          Use(*Window().Properties().Find(GetParam().cards.empty() ? "name" : "color"), prepared_++, answers_);
        }});
  }
  void Begin() {
    Frame().ShowPage(GetParam().page);
    Select(GetParam().cards);
  }

  int prepared_ = 0;
};

// By button and by each of its keys.
TEST_P(EveryCommand, IsOneStepOrNone) {
  Prepare();
  for (const bool byKeys : {false, true}) {
    if (byKeys && GetParam().cards.size() < 2 && !IsThorough()) break;
    Begin();
    for (const Deed& deed : CommandDeeds(byKeys)) {
      SCOPED_TRACE(deed.name);
      if (!book_->CanGoBack()) Prepare();
      Begin();
      const bool changed = DoThereAndBack(deed);
      const Command* command = FindCommand(deed.name);
      EXPECT_TRUE(changed || !command || command->tab != RibbonTab::Arrange) << "arranges nothing";
      if (changed) Undo();
    }
  }
  WalkWholeHistory();
}

TEST_P(EveryCommand, IsOneStepOrNoneByMenu) {
  Prepare();
  for (const Deed& deed : MenuDeeds()) {
    SCOPED_TRACE(deed.name);
    Begin();
    const std::size_t steps = Frame().History().DoneNames().size();
    deed.run();
    if (Frame().History().DoneNames().size() < steps) {
      book_->EnterBack();  // the menu's own undo
      Redo();
    } else if (book_->Enter(deed.name)) {
      Undo();
    }
  }
  WalkWholeHistory();
}

INSTANTIATE_TEST_SUITE_P(Starts, EveryCommand,
                         ::testing::Values(Start{"nothing selected", 1, {}}, Start{"one card", 0, {2}},
                                           Start{"three cards", 0, {1, 4, 6}}, Start{"a lost card", 0, {}, true}));

// --- Gestures and keys ---

using EveryGesture = EditedWindow;

// On one card and on several in turns; thoroughly, on both.
TEST_F(EveryGesture, IsOneStepOrNone) {
  const Cards selections[] = {{2}, {4, 1}};
  for (const std::vector<Deed>& deeds : {GestureDeeds(), KeyDeeds()}) {
    std::size_t changes = 0;
    std::size_t tries = 0;
    for (std::size_t deed = 0; deed < deeds.size(); ++deed) {
      for (std::size_t cards = 0; cards < std::size(selections); ++cards) {
        if (deed % 2 != cards && !IsThorough()) continue;
        SCOPED_TRACE(deeds[deed].name);
        Run("Pointer");
        Select(selections[cards]);
        ++tries;
        if (!DoThereAndBack(deeds[deed])) continue;
        ++changes;
        Undo();
      }
    }
    EXPECT_GT(changes, tries / 4);
  }
  WalkWholeHistory();
}

using EveryLook = EditedWindow;

TEST_F(EveryLook, IsNoStep) {
  for (int turn = 0; turn < (IsThorough() ? 4 : 2); ++turn) {
    for (const Deed& deed : LookDeeds(turn)) EXPECT_FALSE(Do(deed)) << deed.name;
  }
  EXPECT_FALSE(Frame().IsModified());
}

}  // namespace
}  // namespace xrpt
