// An application of plain answers round the editor's frame.
#pragma once

#include <algorithm>
#include <deque>
#include <functional>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "editor/EditorPort.h"
#include "model/RVReport.h"
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
    MayThrow();
    asked.push_back(textId);
    return answer;
  }
  // The answers given beforehand, then Yes or No.
  std::size_t Decide(const Question& question) override {
    if (decisions.empty()) return EditorPort::Decide(question);
    asked.push_back(question.textId);
    questions.push_back(question);
    const auto at = std::find(question.answers.begin(), question.answers.end(), decisions.front());
    decisions.pop_front();
    return static_cast<std::size_t>(at - question.answers.begin());
  }
  std::optional<std::wstring> AskForName(const std::wstring& proposed) override {
    return name ? name : EditorPort::AskForName(proposed);
  }
  void ReportOpened(const LoadResult&) override { ++opened; }
  void SaveFailed(const SaveResult&) override { ++failed; }
  void ShowDifferences(const Path&, const RVReport&) override { ++compared; }
  void Tell(int textId) override { told.push_back(textId); }
  std::optional<std::wstring> ChooseReport(const std::wstring&) override { return chosen; }
  bool EditPageProperties(CDlgGlobalProperties& page) override {
    MayThrow();
    const auto edit = std::exchange(editPage, nullptr);
    if (edit) edit(page);
    return static_cast<bool>(edit);
  }
  void TimerStateChanged(bool runs) override {
    MayThrow();
    timers.push_back(runs);
  }
  void LoadBarState(const std::wstring& section) override { barSections.push_back(L"+" + section); }
  void SaveBarState(const std::wstring& section) override { barSections.push_back(L"-" + section); }
  bool PassCommand(int id) override {
    MayThrow();
    passed.push_back(id);
    return true;
  }

  int windows = 0;
  Answer answer = Answer::No;
  std::vector<int> asked;
  std::vector<int> told;
  std::deque<int> decisions;  // text ids of answers
  std::vector<Question> questions;
  std::optional<std::wstring> name;
  int opened = 0;
  int failed = 0;
  int compared = 0;
  std::optional<std::wstring> chosen;
  std::function<void(CDlgGlobalProperties&)> editPage;  // once, with OK; cancelled without
  std::vector<int> passed;
  std::vector<bool> timers;
  std::vector<std::wstring> barSections;  // "+": loaded, "-": saved
  bool throwing = false;                  // as a host in trouble

 private:
  void MayThrow() const {
    if (throwing) throw std::runtime_error("the host's window is gone");
  }
};

}  // namespace xrpt
