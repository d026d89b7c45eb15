// One history over the whole report: whatever is done, on whichever page, is one named step; undo gives the saved text
// of before, redo that of after, at every length of history.
#include <gtest/gtest.h>

#include <random>
#include <regex>

#include "canvas/UndoTexts.h"
#include "editor/CommandCatalogue.h"
#include "editor/RVEditControlWnd.h"
#include "editor/SelectedFields.h"
#include "support/AnsweringPort.h"
#include "support/TestHost.h"

namespace xrpt {
namespace {

std::string TextOf(const RVEditControlWnd& frame) {
  static const std::regex kRevision("<revision>[^<]*</revision>");
  return std::regex_replace(frame.Report().TemplateText(), kRevision, "");
}

class ReportHistoryTest : public HostTest {
 protected:
  void Run(RVEditControlWnd& frame, const char* command) {
    ASSERT_TRUE(RunCommand(frame, *FindCommand(command))) << command;
    frame.Queue().Drain();
  }
  static void Insert(RVEditControlWnd& frame, int kind) {
    frame.CurrentPage().SetInsertKind(kind);
    frame.CurrentPage().AddControlAtPointer();
    frame.CurrentPage().SetInsertKind(tool::kPointer);
    frame.Queue().Drain();
  }
  static void Assign(RVEditControlWnd& frame, const char* field, const char* text) {
    SelectedFields fields(frame);
    fields.Assign(*fields.Find(field)->row, text);
  }

  AnsweringPort port;
};

TEST_F(ReportHistoryTest, WhatWasDoneLastIsUndoneFirstAndShown) {
  port.answer = Answer::Yes;
  RVEditControlWnd frame(port, EditingOptions::Comfort());
  std::vector<std::string> states = {TextOf(frame)};
  const auto keep = [&] { states.push_back(TextOf(frame)); };
  Insert(frame, tool::kLabel), keep();
  Run(frame, "AddPage"), keep();
  Insert(frame, tool::kDate), keep();
  frame.ShowPage(0);
  Assign(frame, "x", "33.00"), keep();
  Run(frame, "DuplicatePage"), keep();
  Run(frame, "MovePageDown"), keep();
  frame.ShowPage(0);
  Run(frame, "DeletePage"), keep();
  frame.Rename(L"other"), keep();
  const std::vector<int> names = {text::kInsert,         text::kPageAdded, text::kInsert,      text::kChangeField,
                                  text::kPageDuplicated, text::kPageMoved, text::kPageDeleted, text::kReportRenamed};
  ASSERT_EQ(frame.History().DoneNames().size(), names.size());
  for (std::size_t i = 0; i < names.size(); ++i) EXPECT_EQ(frame.History().DoneNames()[i].textId, names[i]) << i;
  for (int round = 0; round < 2; ++round) {
    for (std::size_t i = states.size() - 1; i-- > 0;) {
      ASSERT_TRUE(frame.Undo());
      EXPECT_EQ(TextOf(frame), states[i]) << "undone to " << i;
      if (names[i] == text::kChangeField) {
        EXPECT_EQ(frame.CurrentPageIndex(), 0u) << "the page of the step is shown";
      }
    }
    EXPECT_FALSE(frame.Undo());
    EXPECT_FALSE(frame.IsModified());
    for (std::size_t i = 1; i < states.size(); ++i) {
      ASSERT_TRUE(frame.Redo());
      EXPECT_EQ(TextOf(frame), states[i]) << "redone to " << i;
    }
    EXPECT_FALSE(frame.Redo());
  }
  EXPECT_EQ(port.windows, static_cast<int>(frame.PageCount()));
}

TEST_F(ReportHistoryTest, TypingInOneFieldIsOneStepUntilSomethingElseComes) {
  RVEditControlWnd frame(port, EditingOptions::Comfort());
  Insert(frame, tool::kLabel);
  const auto count = [&] { return frame.History().DoneNames().size(); };
  const std::size_t before = count();
  const std::string start = TextOf(frame);
  for (const char* typed : {"1.00", "12.00", "12.50"}) Assign(frame, "x", typed);
  EXPECT_EQ(count(), before + 1);
  Assign(frame, "y", "4.00");
  Assign(frame, "x", "13.00");
  EXPECT_EQ(count(), before + 3) << "another field in between";
  frame.Save();
  Assign(frame, "x", "14.00");
  EXPECT_EQ(count(), before + 4) << "after a save";
  EXPECT_TRUE(frame.IsModified());
  frame.Undo();
  EXPECT_FALSE(frame.IsModified()) << "back at what was saved";
  while (count() > before) frame.Undo();
  EXPECT_EQ(TextOf(frame).substr(TextOf(frame).find("<page>")), start.substr(start.find("<page>")));
  Assign(frame, "field", "A");
  Assign(frame, "field", "");
  EXPECT_EQ(count(), before) << "back where it began there is nothing to undo";
}

TEST_F(ReportHistoryTest, OneEditOverPagesAndTablesIsOneStep) {
  RVEditControlWnd frame(port, EditingOptions::Comfort());
  Insert(frame, tool::kLabel);
  Run(frame, "AddPage");
  Insert(frame, tool::kLabel);
  const std::string before = TextOf(frame);
  const std::size_t steps = frame.History().DoneNames().size();
  {
    ReportEdit edit = frame.Edit({text::kChange, 2});
    for (std::size_t page = 0; page < 2; ++page) edit.Page(page).Card(0).field = L"M1.P";
    edit.Table(ReportTable::Formules).Root().NewChild("formule").SetValue("name", L"A");
  }
  const std::string after = TextOf(frame);
  EXPECT_EQ(frame.History().DoneNames().size(), steps + 1);
  frame.Undo();
  EXPECT_EQ(TextOf(frame), before);
  frame.Redo();
  EXPECT_EQ(TextOf(frame), after);
  frame.Edit({text::kChange, 2}).Table(ReportTable::Formules);
  EXPECT_EQ(frame.History().DoneNames().size(), steps + 1) << "an edit that changes nothing is none";
}

// Undo of one page's window alone, which hosts may ask for, keeps the order of the others.
TEST_F(ReportHistoryTest, UndoOfOneWindowTakesItsStepOutOfTheOrder) {
  RVEditControlWnd frame(port);
  Insert(frame, tool::kLabel);
  frame.AddPage();
  Insert(frame, tool::kDate);
  const std::string end = TextOf(frame);
  frame.Page(0).ControlUndo();
  EXPECT_TRUE(frame.Page(0).Page().cards.IsEmpty());
  EXPECT_TRUE(frame.Redo());
  EXPECT_EQ(TextOf(frame), end);
  EXPECT_TRUE(frame.Undo());
  EXPECT_TRUE(frame.Page(0).Page().cards.IsEmpty()) << "it was made again last";
  EXPECT_TRUE(frame.Undo());
  EXPECT_TRUE(frame.Page(1).Page().cards.IsEmpty());
}

TEST_F(ReportHistoryTest, LookingIsNoEdit) {
  RVEditControlWnd frame(port, EditingOptions::Comfort());
  Insert(frame, tool::kLabel);
  frame.Save();
  const std::string before = TextOf(frame);
  const std::size_t steps = frame.History().DoneNames().size();
  RVEditTemplateWnd& page = frame.CurrentPage();
  page.SetSurround(0x123456);
  frame.FitWidth();
  page.ScrollTo(10, 10);
  page.SetSmartGuides(true);
  page.OnLButtonDown({500, 400}, {});
  page.OnLButtonUp({500, 400});
  page.ControlSelectAll();
  page.OnRButtonUp({500, 400});
  frame.Queue().Drain();
  EXPECT_EQ(TextOf(frame), before);
  EXPECT_EQ(frame.History().DoneNames().size(), steps);
  EXPECT_FALSE(frame.IsModified());
}

// --- Whatever nobody thought of ---

class Monkey {
 public:
  Monkey(RVEditControlWnd& frame, unsigned seed) : frame_(frame), random_(seed) {}

  int Between(int low, int high) { return std::uniform_int_distribution<int>(low, high)(random_); }

  void Act() {
    switch (Between(0, 5)) {
      case 0:
        return Insert();
      case 1:
      case 2:
        return Drag();
      case 3:
        return EditField();
      case 4:
        return SelectSome();
      default:
        return RunAnything();
    }
  }

 private:
  RVEditTemplateWnd& Page() { return frame_.CurrentPage(); }

  void Insert() {
    const auto kinds = InsertKinds();
    frame_.SetTool(kinds[static_cast<std::size_t>(Between(0, static_cast<int>(kinds.size()) - 1))].code);
    Drag();
  }

  Point AnyPoint() { return {Between(100, 900), Between(-50, 850)}; }

  void Drag() {
    const MouseFlags flags{Between(0, 4) == 0, Between(0, 4) == 0};
    Point at = AnyPoint();
    Page().OnLButtonDown(at, flags);
    for (int moves = Between(0, 3); moves > 0; --moves)
      Page().OnMouseMove(at = AnyPoint(), {Between(0, 5) == 0, false});
    Between(0, 9) == 0 ? Page().OnCaptureChanged() : Page().OnLButtonUp(at);
  }

  void EditField() {
    SelectedFields fields(frame_);
    const std::vector<FieldState> states = fields.Fields();
    if (states.empty()) return;
    const FieldRow& row = *states[static_cast<std::size_t>(Between(0, static_cast<int>(states.size()) - 1))].row;
    static const char* const kTexts[] = {"T", "F", "12.00", "-3", "7", "FF8000", "Arial", "CENTER", "M1.P", ""};
    fields.Assign(row, row.panel.editor == FieldEditor::Decimal ? kTexts[Between(2, 4)] : kTexts[Between(0, 9)]);
  }

  void SelectSome() {
    std::vector<std::size_t> places;
    const int count = static_cast<int>(Page().Page().cards.Size());
    for (int i = Between(0, 3); i > 0 && count > 0; --i)
      places.push_back(static_cast<std::size_t>(Between(0, count - 1)));
    Page().SelectPlaces(places);
  }

  void RunAnything() {
    static const std::set<std::string> kLeft = {"Undo", "Redo", "NewReport", "Open", "Save"};
    const auto commands = CommandCatalogue();
    const Command& command = commands[static_cast<std::size_t>(Between(0, static_cast<int>(commands.size()) - 1))];
    if (command.run && kLeft.count(command.name) == 0) RunCommand(frame_, command);
  }

  RVEditControlWnd& frame_;
  std::mt19937 random_;
};

// Keeps the texts that undo has to come back to, and goes back and forth now and then.
void PlayWithComfort(RVEditControlWnd& frame, unsigned seed) {
  Monkey monkey(frame, seed);
  std::vector<std::string> states = {TextOf(frame)};
  for (int i = 0; i < 150; ++i) {
    const std::size_t steps = frame.History().DoneNames().size();
    ASSERT_EQ(steps, states.size() - 1) << "seed " << seed << " at " << i;
    if (monkey.Between(0, 9) == 0 && frame.CanUndo()) {
      const std::string here = states.back();
      frame.Undo();
      ASSERT_EQ(TextOf(frame), states[states.size() - 2]) << "seed " << seed << " undone at " << i;
      frame.Redo();
      ASSERT_EQ(TextOf(frame), here) << "seed " << seed << " redone at " << i;
      frame.EndEdits();
      continue;
    }
    frame.EndEdits();
    monkey.Act();
    frame.Queue().Drain();
    const std::size_t now = frame.History().DoneNames().size();
    const std::string text = TextOf(frame);
    ASSERT_LE(now, steps + 1) << "seed " << seed << " at " << i;
    ASSERT_TRUE(now > steps || text == states.back()) << "seed " << seed << " at " << i << ": a change without a step";
    if (now == steps) continue;
    EXPECT_NE(frame.History().NextUndoName().textId, 0) << "seed " << seed << " at " << i;
    states.push_back(text);
  }
  while (frame.CanUndo()) {
    frame.Undo();
    states.pop_back();
    ASSERT_EQ(TextOf(frame), states.back()) << "seed " << seed << " at the length " << states.size();
  }
}

TEST_F(ReportHistoryTest, RandomMixesOverPagesGoBackToEveryText) {
  port.answer = Answer::Yes;
  for (unsigned seed = 1; seed <= 20 && !HasFatalFailure(); ++seed) {
    RVEditControlWnd frame(port, EditingOptions::Comfort());
    PlayWithComfort(frame, seed);
  }
}

TEST_F(ReportHistoryTest, RandomMixesSurviveSavingAndReading) {
  port.answer = Answer::Yes;
  for (unsigned seed = 100; seed <= 110; ++seed) {
    RVEditControlWnd frame(port);
    Monkey monkey(frame, seed);
    for (int i = 0; i < 60; ++i) monkey.Act();
    frame.Queue().Drain();
    const std::string end = TextOf(frame);
    while (frame.CanUndo()) frame.Undo();
    while (frame.CanRedo()) frame.Redo();
    ASSERT_EQ(TextOf(frame), end) << "seed " << seed;
    ASSERT_TRUE(frame.Save());
    const std::string saved = TextOf(frame);
    AnsweringPort other;
    RVEditControlWnd again(other);
    ASSERT_TRUE(again.Setup(frame.Report().name).loaded);
    EXPECT_EQ(TextOf(again), saved) << "seed " << seed;
  }
}

}  // namespace
}  // namespace xrpt
