#include "CardRows.h"

#include <cstdio>
#include <string>
#include <vector>

#include "Growth.h"
#include "canvas/RVEditTemplateWnd.h"
#include "canvas/UndoTexts.h"
#include "editor/CommandCatalogue.h"
#include "editor/CommandTexts.h"
#include "editor/SelectedFields.h"
#include "model/RVCardLabel.h"
#include "platform/SearchRequest.h"
#include "platform/Text.h"

namespace xrpt {

// --- A desk ---

namespace {

using Frame = RVEditControlWnd;

constexpr std::size_t kPage = 1;           // of three, so that it can be moved and left either way
constexpr std::size_t kForClipboard = 10;  // a tenth of the most cards is what the clipboard takes

std::unique_ptr<RVCardControl> NewCard(std::size_t i) {
  auto card = std::make_unique<RVCardLabel>();
  card->text = L"Energy of feeder " + std::to_wstring(i);
  card->x = static_cast<double>(i % 97) * 2.0;
  card->y = static_cast<double>(i % 89) * 3.0;
  card->width = card->height = 2.0;
  return card;
}

}  // namespace

void Desk::Fill(std::size_t count) {
  for (std::size_t page = 0; page < 2; ++page) Editor().AddPage();
  Editor().ShowPage(kPage);
  Editor().CurrentPage().SetNotes(&notes_, [] {});
  PageEdit edit = Editor().CurrentPage().Edit({text::kInsert, 1});
  for (std::size_t i = 0; i < count; ++i) edit.Cards().PushBack(NewCard(i));
}

void Desk::Begin(std::size_t share) {
  Editor().ShowPage(kPage);
  notes_ = CardNotes();
  std::vector<std::size_t> places;
  for (std::size_t at = 0; at < Editor().CurrentPage().Page().cards.Size(); at += share) places.push_back(at);
  Editor().CurrentPage().SelectPlaces(places);
  Settle();
}

double Desk::Cost(const std::function<void()>& work) {
  return Milliseconds([&] {
    work();
    Settle();
  });
}

namespace {

struct Row {
  std::string name;
  std::function<void(Frame&)> run;
  std::size_t share = 1;
  double limit = kUnlimited;                 // milliseconds at the most cards
  std::function<void(Frame&)> prepare = {};  // not measured, taken back afterwards
};

// --- What is done ---

void LoseAll(Frame& frame) {
  PageEdit edit = frame.CurrentPage().Edit({text::kMove, 1});
  for (std::size_t i = 0; i < frame.CurrentPage().Page().cards.Size(); ++i) edit.Card(i).x = 500.0;
}

void CopySome(Frame& frame) { frame.CurrentPage().ControlCopy(); }

std::function<void(Frame&)> Do(const char* command) {
  return [command](Frame& frame) { RunCommand(frame, *FindCommand(command)); };
}

Row RowOf(const Command& command) {
  Row row{command.name, [&command](Frame& frame) {
            if (!RunCommand(frame, command)) std::printf("  %s does nothing\n", command.name);
          }};
  const std::string_view name = command.name;
  if (name == "Cut" || name == "Copy") row.share = kForClipboard;
  if (name == "BringToFront" || name == "SendToBack") {
    row.share = 2;
    row.limit = 50.0;
  }
  if (name == "BringBack") row.prepare = LoseAll;
  if (name == "Paste") {
    row.share = kForClipboard;
    row.prepare = CopySome;
  }
  if (name == "UnlockAll") row.prepare = Do("Lock");
  if (name == "ShowAll") row.prepare = Do("HideCards");
  if (name == "Ungroup") row.prepare = Do("Group");
  // Portrait first, so that there is something to turn.
  if (name == "Portrait") row.prepare = [](Frame& frame) { frame.SetOrientation(0); };
  return row;
}

// Commands that walk no cards are there, too: whoever writes one need not think of this. Files have a program of their
// own.
std::vector<Row> CommandRows() {
  std::vector<Row> rows;
  for (const Command& command : CommandCatalogue()) {
    const std::string_view name = command.name;
    const bool isOfFiles = command.tab == RibbonTab::Report || command.groupTextId == text::kFileGroup;
    if (command.run && !isOfFiles && name != "Undo" && name != "Redo") rows.push_back(RowOf(command));
  }
  return rows;
}

Point MiddleOf(Frame& frame, std::size_t card) {
  const RVEditTemplateWnd& page = frame.CurrentPage();
  const Rect rect = ToPixels(page.Placement(), RectOf(page.Page().cards[card]));
  return {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
}

void Drag(Frame& frame, Point from, Point to, MouseFlags held = {}) {
  frame.CurrentPage().OnLButtonDown(from, held);
  for (int part = 1; part <= 4; ++part)
    frame.CurrentPage().OnMouseMove({from.x + (to.x - from.x) * part / 4, from.y + (to.y - from.y) * part / 4});
  frame.CurrentPage().OnLButtonUp(to);
}

void DragAll(Frame& frame) {
  const Point from = MiddleOf(frame, 0);
  Drag(frame, from, {from.x + 9, from.y + 13});
}

void BandOverAll(Frame& frame) {
  const Rect page = frame.CurrentPage().Placement().PageRect();
  Drag(frame, {page.left - 3, page.top - 3}, {page.right, page.bottom});
}

void Assign(Frame& frame, const char* field, const char* one, const char* other) {
  SelectedFields fields(frame);
  const auto state = fields.Find(field);
  fields.Assign(*state->row, state->text && *state->text == FromUtf8(one) ? other : one);
  fields.Commit();
}

void SearchFor(Frame& frame, SearchCommand command) {
  tagSearchReplace request;
  request.text = command == SearchCommand::Search ? L"nowhere" : L"feeder";
  request.replacement = L"line";
  request.newSearch = true;
  request.command = command;
  frame.OnSearchReplace(request);
}

std::size_t seen = 0;  // so that nothing looked at is left out

std::vector<Row> HandRows() {
  constexpr std::size_t kOne = 1'000'000;
  return {
      {"a nudge of all", [](Frame& f) { f.CurrentPage().OnKeyDown(key::Down, {}); }},
      {"a nudge of one", [](Frame& f) { f.CurrentPage().OnKeyDown(key::Down, {}); }, kOne},
      {"drag of all", DragAll},
      {"drag of one", DragAll, kOne},
      {"click on one of all", [](Frame& f) { Drag(f, MiddleOf(f, 7), MiddleOf(f, 7)); }},
      {"click on another card", [](Frame& f) { Drag(f, MiddleOf(f, 7), MiddleOf(f, 7)); }, kOne},
      {"click that adds to half",
       [](Frame& f) {
         Drag(f, MiddleOf(f, 7), MiddleOf(f, 7), {true, false});
       },
       2},
      {"band over all", BandOverAll, kOne},
      {"colour of all", [](Frame& f) { Assign(f, "color", "FF", "0"); }},
      {"font size of all", [](Frame& f) { Assign(f, "font/size", "12.00", "14.00"); }},
      {"place of all", [](Frame& f) { Assign(f, "x", "12.00", "14.00"); }},
      {"what the panel shows of all", [](Frame& f) { seen += SelectedFields(f).Fields().size(); }},
      {"captions of all",
       [](Frame& f) {
         const CardList& cards = f.CurrentPage().Page().cards;
         for (std::size_t i = 0; i < cards.Size(); ++i) seen += CardCaption(cards[i]).size();
       }},
      {"which commands are enabled",
       [](Frame& f) {
         for (const Command& command : CommandCatalogue()) seen += command.isEnabled(f) ? 1 : 0;
       }},
      {"search for what is not there", [](Frame& f) { SearchFor(f, SearchCommand::Search); }},
      {"replace in all", [](Frame& f) { SearchFor(f, SearchCommand::ReplaceAll); }},
      {"changed styles", [](Frame& f) { f.StylesModified(); }},
      {"report as text", [](Frame& f) { seen += f.Report().TemplateText().size(); }},
  };
}

// --- What it costs ---

struct Measured {
  Costs run;
  Costs undo;
  Costs redo;
};

std::size_t Steps(const Frame& frame) { return frame.History().DoneNames().size(); }

void UndoTo(Frame& frame, std::size_t steps) {
  while (Steps(frame) > steps) frame.Undo();
}

void MeasureOnce(const Row& row, Desk& desk, std::size_t size, Measured& measured) {
  Frame& frame = desk.Editor();
  const std::size_t start = Steps(frame);
  desk.Begin(row.share);
  if (row.prepare) row.prepare(frame);
  const std::size_t before = Steps(frame);
  measured.run.Add(size, desk.Cost([&] { row.run(frame); }));
  if (Steps(frame) > before) {
    measured.undo.Add(size, desk.Cost([&] { frame.Undo(); }));
    measured.redo.Add(size, desk.Cost([&] { frame.Redo(); }));
  }
  UndoTo(frame, start);
}

class Program {
 public:
  using MakeDesk = std::function<std::unique_ptr<Desk>(std::size_t count)>;
  explicit Program(const MakeDesk& makeDesk) {
    for (const std::size_t count : kCardCounts) desks_.push_back(makeDesk(count));
  }
  bool Run(const std::vector<Row>& rows) {
    bool fine = true;
    for (const Row& row : rows) fine = Run(row) && fine;
    return fine;
  }

 private:
  // A busy moment of the machine is not the command's fault: what looks too steep is tried again.
  bool Run(const Row& row) {
    Measured measured;
    for (int turn = 0; turn < 3 || (turn < 9 && !AreFine(row, measured)); ++turn) {
      for (std::size_t size = 0; size < desks_.size(); ++size) MeasureOnce(row, *desks_[size], size, measured);
    }
    bool fine = Print(row.name, measured.run, row.limit);
    if (measured.undo.ms[0] == kUnlimited) return fine;
    fine = Print("  undone", measured.undo) && fine;
    return Print("  made again", measured.redo) && fine;
  }
  static bool AreFine(const Row& row, const Measured& measured) {
    const bool hasStep = measured.undo.ms[0] != kUnlimited;
    return measured.run.AreFine(row.limit) &&
           (!hasStep || (measured.undo.AreFine(kUnlimited) && measured.redo.AreFine(kUnlimited)));
  }

  std::vector<std::unique_ptr<Desk>> desks_;
};

}  // namespace

bool MeasureAll(const std::function<std::unique_ptr<Desk>(std::size_t count)>& makeDesk) {
  Program program(makeDesk);
  PrintHead();
  const bool commands = program.Run(CommandRows());
  const bool hands = program.Run(HandRows());
  std::printf("(%zu)\n", seen);
  return commands && hands;
}

}  // namespace xrpt
