// The window on a report with a card of every kind, and everything that can be done there: walked from the tables that
// the window itself is made from, so that what is new is done too.
#pragma once

#include "desktop/Hands.h"
#include "desktop/StepBook.h"
#include "desktop/WindowTest.h"
#include "desktop/look/Theme.h"
#include "desktop/panels/PropertyPanel.h"

namespace xrpt {

struct Deed {
  std::string name;
  std::function<void()> run;
  bool types = false;  // in a field, key by key
};

class EditedWindow : public WindowTest {
 protected:
  // XRPT_DEEDS=n: that many random deeds, and all else in every way, twice over. By default it is what a minute allows.
  static int AskedDeeds() { return qEnvironmentVariableIntValue("XRPT_DEEDS"); }
  static bool IsThorough() { return AskedDeeds() > 0; }

  static constexpr Qt::KeyboardModifiers kHeld[] = {{}, Qt::ControlModifier, Qt::ShiftModifier, Qt::AltModifier};

  EditedWindow() {
    WriteReport();
    Window().resize(1280, 760);
    Window().Open(kReport);
    Settle();
    book_ = std::make_unique<StepBook>(Frame());
  }
  ~EditedWindow() override {
    CloseWindow();
    if (IsDarkTheme()) ApplyTheme(*qApp, ThemeChoice::Light);
  }

  // Everything that is under way comes to its end.
  void Rest() {
    Settle();
    Answers::WaitUntilClosed();
    Settle();
  }
  void Reopen() {
    Window().Open(kReport);
    Rest();
    book_->Restart();
  }
  void Select(const std::vector<std::size_t>& cards) {
    Window().Properties().Commit();
    Page().SelectPlaces(cards);
    Frame().Port().StateChanged();
    Settle();
  }
  std::size_t CardCount() { return Page().Page().cards.Size(); }

  // Does a deed; it is nothing or one named step. True when the report changed.
  bool Do(const Deed& deed, bool mayGoOn = false) {
    const std::wstring report = Frame().Report().id;
    deed.run();
    Rest();
    if (Frame().Report().id == report) return book_->Enter(deed.name, mayGoOn, deed.types);
    Reopen();
    return false;
  }
  void Undo() {
    Run("Undo");
    book_->EnterBack();
  }
  void Redo() {
    Run("Redo");
    book_->EnterForth();
  }
  // The same, and back and forth.
  bool DoThereAndBack(const Deed& deed) {
    if (!Do(deed)) return false;
    for (int time = 0; time < (IsThorough() ? 2 : 1) && !HasFailure(); ++time) {
      Undo();
      Redo();
    }
    return true;
  }
  void WalkWholeHistory() {
    while (book_->CanGoBack() && !HasFailure()) Undo();
    while (book_->CanGoForth() && !HasFailure()) Redo();
  }

  // --- What can be done ---

  // Every editor of the panel and of the ribbon for what is selected.
  std::vector<Deed> EditorDeeds(int turn);
  // The lists of the panel and what grows, shrinks and reorders them.
  std::vector<Deed> ListDeeds(int turn);
  // Gives the lists of what is selected lines, of every kind that a list offers.
  void FillLists();
  // Chooses the last or the first line of every list.
  void ChooseLines(bool last);
  // Every command that is enabled, by its button or by each of its keys. Undo and redo are the books' own.
  std::vector<Deed> CommandDeeds(bool byKeys);
  // What keys do on the page besides commands.
  std::vector<Deed> KeyDeeds();
  // Drawing with every tool, dragging the card selected last by its middle and by each of its handles, bands and
  // clicks.
  std::vector<Deed> GestureDeeds();
  // The entries of the page's own menu.
  std::vector<Deed> MenuDeeds();
  // The parts of the search window, while it is open.
  std::vector<Deed> SearchDeeds(int turn);
  // What only shows something else: lists, page and zoom boxes, the slider.
  std::vector<Deed> LookDeeds(int turn);

  std::vector<QAction*> Tools();
  // A point of the card selected last, -1 to 1 of its half size from its middle.
  QPoint PointOfSelected(int across, int down);
  void DragHeld(QPoint from, QPoint by, Qt::KeyboardModifiers held);
  void PressKey(const QKeySequence& keys);
  void UsePart(QWidget* part, int turn);
  // The widgets that hands could use within another.
  static std::vector<QWidget*> UsableParts(const QWidget& within);

  Answers answers_;
  std::unique_ptr<StepBook> book_;

 private:
  static constexpr wchar_t kReport[] = L"Everything";

  // Three pages: a card of every kind and some labels at odd places, two labels, none.
  static void WriteReport();
};

}  // namespace xrpt
