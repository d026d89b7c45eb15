// An application of plain answers round the editor's frame.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "editor/EditorPort.h"
#include "support/StillWindow.h"

namespace xrpt {

class AnsweringPort final : public EditorPort {
 public:
  std::unique_ptr<WindowPort> NewPageWindow() override { return std::make_unique<StillWindow>(); }
  void PageWindowReady(WindowPort&, RVEditTemplateWnd&) override { ++windows; }
  void PageWindowGone(WindowPort&) override { --windows; }
  void PagesChanged() override {}
  void StateChanged() override {}
  bool RunCommand(const char*) override { return false; }
  Answer Ask(int textId) override {
    asked.push_back(textId);
    return answer;
  }
  void Tell(int textId) override { told.push_back(textId); }
  std::optional<std::wstring> ChooseReport(const std::wstring&) override { return chosen; }

  int windows = 0;
  Answer answer = Answer::No;
  std::vector<int> asked;
  std::vector<int> told;
  std::optional<std::wstring> chosen;
};

}  // namespace xrpt
