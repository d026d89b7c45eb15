// What the editor's frame asks of the application around it: windows for its pages, questions to the user, and being
// told when something it shows has changed. The desktop answers with dialogs, the command line and tests with plain
// values.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/Window.h"

namespace xrpt {

class RVEditTemplateWnd;
struct LoadResult;

enum class Answer { Yes, No };

class EditorPort {
 public:
  virtual ~EditorPort() = default;

  // A window for a page that is about to be shown. The frame keeps it as long as the page.
  virtual std::unique_ptr<WindowPort> NewPageWindow() = 0;
  // The page's window is ready to take events / about to go.
  virtual void PageWindowReady(WindowPort& port, RVEditTemplateWnd& window) = 0;
  virtual void PageWindowGone(WindowPort& port) = 0;

  // A report was opened, or could not be and is a new one: the result says why.
  virtual void ReportOpened(const LoadResult&) {}
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
  // The report list in its choosing mode, `current` preselected. Nothing when cancelled.
  virtual std::optional<std::wstring> ChooseReport(const std::wstring& current) = 0;
};

}  // namespace xrpt
