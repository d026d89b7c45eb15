// A screen for action files: a client area of a given size, scroll bars, a cursor and nothing else.
#pragma once

#include <string_view>

#include "editor/EditorPort.h"

namespace xrpt {

// What all page windows of a run share.
struct ScriptScreen {
  int width = 1000;  // pixels of the client area
  int height = 800;
  Point pointer;
  bool control = false;
};

class ScriptWindow final : public WindowPort {
 public:
  explicit ScriptWindow(const ScriptScreen& screen) : screen_(screen) {}

  Rect ClientRect() const override { return {0, 0, screen_.width, screen_.height}; }
  void Invalidate() override {}
  void SetCapture() override {}
  void ReleaseCapture() override {}
  void SetFocus() override {}
  void SetCursor(Cursor cursor) override { cursor_ = cursor; }
  void SetTimer(int, int) override {}
  void KillTimer(int) override {}
  void SetScrollInfo(ScrollAxis, const ScrollInfo&) override {}
  Point CursorPosition() const override { return screen_.pointer; }
  bool IsControlDown() const override { return screen_.control; }
  void TrackPopupMenu(const std::vector<MenuItem>&, Point) override {}

  Cursor CurrentCursor() const { return cursor_; }

 private:
  const ScriptScreen& screen_;
  Cursor cursor_ = Cursor::Arrow;
};

// No user to ask: questions are answered as the script says, no at first; lists are cancelled.
class ScriptEditor final : public EditorPort {
 public:
  explicit ScriptEditor(const ScriptScreen& screen) : screen_(screen) {}

  std::unique_ptr<WindowPort> NewPageWindow() override { return std::make_unique<ScriptWindow>(screen_); }
  void PageWindowReady(WindowPort&, RVEditTemplateWnd&) override {}
  void PageWindowGone(WindowPort&) override {}
  void PagesChanged() override {}
  void StateChanged() override {}
  bool RunCommand(const char*) override { return false; }
  Answer Ask(int textId) override {
    asked.push_back(textId);
    return answer;
  }
  void Tell(int) override {}
  std::optional<std::wstring> ChooseReport(const std::wstring&) override { return chosen; }

  Answer answer = Answer::No;
  std::optional<std::wstring> chosen;  // of the list of reports
  std::vector<int> asked;

 private:
  const ScriptScreen& screen_;
};

// "IDC_SIZEWE" and so on; the editor's own cursors by their numbers.
std::string_view CursorName(Cursor cursor);

}  // namespace xrpt
