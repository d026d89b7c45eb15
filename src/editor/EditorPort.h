// What the editor's frame asks of the application around it: windows for its pages, questions to the user, and being
// told when something it shows has changed. The desktop answers with dialogs, the command line and tests with plain
// values.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "editor/Question.h"
#include "platform/Files.h"
#include "platform/Window.h"

namespace xrpt {

class CDlgGlobalProperties;
class RVEditTemplateWnd;
class RVReport;
struct LoadResult;

enum class Answer { Yes, No };

// The profile's section with the layout of ribbon and bars.
inline constexpr wchar_t kBarStateSection[] = L"ReportRibbonBars";

class EditorPort {
 public:
  virtual ~EditorPort() = default;

  // A window for a page that is about to be shown. The frame keeps it as long as the page.
  virtual std::unique_ptr<WindowPort> NewPageWindow() = 0;
  // The page's window is ready to take events / about to go.
  virtual void PageWindowReady(WindowPort& port, RVEditTemplateWnd& window) = 0;
  virtual void PageWindowGone(WindowPort& port) = 0;

  // A report was opened, or could not be: the result says why. Then it is a new one, or with guarded files the one that
  // was open before.
  virtual void ReportOpened(const LoadResult&) {}
  // The user's work could not be saved; it is still there.
  virtual void SaveFailed(const SaveResult&) {}
  // Pages were added, removed or reordered, or another one is shown.
  virtual void PagesChanged() = 0;
  // The selection, a card, the zoom, the history or the modified mark changed: refresh panels, menus and caption.
  virtual void StateChanged() = 0;
  // Matches of a search were replaced, one or all.
  virtual void ReplaceFinished() {}

  // A command that needs a window (a theme, a file dialog). False when there is none to do it.
  virtual bool RunCommand(const char* name) = 0;

  // A Yes/No question or a message by text id.
  virtual Answer Ask(int textId) = 0;
  virtual void Tell(int textId) = 0;
  // A question with answers of its own: the chosen one's place in the list. Who knows only Yes and No answers with
  // those.
  virtual std::size_t Decide(const Question& question) {
    return Ask(question.textId) == Answer::Yes ? question.yes : question.no;
  }
  // What a report that was never saved shall be called. Nothing when cancelled.
  virtual std::optional<std::wstring> AskForName(const std::wstring& proposed) { return proposed; }
  // The user wants to see how the file on disk differs from the report.
  virtual void ShowDifferences(const Path&, const RVReport&) {}
  // The report list in its choosing mode, `current` preselected. Nothing when cancelled.
  virtual std::optional<std::wstring> ChooseReport(const std::wstring& current) = 0;
  // The properties of the page shown, to be changed. True for OK.
  virtual bool EditPageProperties(CDlgGlobalProperties&) { return false; }
  // The host stopped what moves on the page, or lets it go on.
  virtual void TimerStateChanged(bool) {}
  // Puts the bars back where they were, and remembers where they are, under a section of the profile.
  virtual void LoadBarState(const std::wstring&) {}
  virtual void SaveBarState(const std::wstring&) {}
  // A command by its number that belongs to the window round the editor. False when nobody knows it.
  virtual bool PassCommand(int) { return false; }
};

}  // namespace xrpt
