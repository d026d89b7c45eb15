// Checks every saved report of the configuration folder in the background and hands a warning record for each problem
// to the host's diagnostics collector. Changes no file.
#pragma once

#include "formulas/checks/ReportWalk.h"
#include "platform/RVResourceDebugger.h"

namespace xrpt {

class RVReportDebugger final : public RVResourceDebugger, private WalkWatcher {
 public:
  using tagSDebugData = xrpt::tagSDebugData;

  explicit RVReportDebugger(Host& host);
  ~RVReportDebugger() override { finish(); }

  // All reports, one after the other; ends between two of them, or between two cards, when asked to stop. A file that
  // is no XML, or cannot be read, is skipped.
  void work() override;
  // One report, by its root element. What its cards refer to adds to what cards of earlier reports did. True.
  bool debugReport(const XmlNode& root);

  // One card each. True when it has nothing to report. `conditioned`: it stands inside a conditioned card.
  bool debugFormuleCtrl(const XmlNode& card, tagSDebugData& data, bool conditioned);
  bool debugConditionedCtrl(const XmlNode& card, tagSDebugData& data);
  bool debugDateCtrl(const XmlNode& card, tagSDebugData& data, bool conditioned);
  bool debugStaticImageCtrl(const XmlNode& card, tagSDebugData& data, bool conditioned);
  bool debugReportGraphCtrl(const XmlNode& card, tagSDebugData& data);
  bool debugAnalogBarCtrl(const XmlNode& card, tagSDebugData& data);

  // Hands a record to the collector. No detail when null; a code that is not in the table has no text.
  void addWarning(std::wstring_view code, const tagSDebugData& data, const wchar_t* detail, bool dontConsider);

 private:
  void CheckFile(const Path& file);
  void Begins(const tagSDebugData& data, std::size_t steps) override;
  void Step() override { setPercentDone(getPercentDone() + step_); }
  bool StopAsked() const override { return stopRequested(); }

  double reportShare_ = 0.0;  // percent of the run that one report is worth
  double step_ = 0.0;         // and one of its steps
  Inspector inspector_;
};

}  // namespace xrpt
