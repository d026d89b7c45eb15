// A report as plain data, with its loader and its saver.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "model/RVReportPage.h"
#include "platform/Host.h"
#include "platform/SystemNames.h"
#include "platform/Xml.h"

namespace xrpt {

enum class LoadFault { None, Unreadable, Damaged, OtherDocument };

// What a load found, for whoever wants to tell the user. A report is there in any case.
struct LoadResult {
  Path file;
  bool loaded = false;  // false: the file was missing, unreadable or no report, and the report is new and empty
  XmlError error;
  LoadFault fault = LoadFault::None;
  bool cancelled = false;  // it could have been opened, but the user let it be
  int lostStyles = 0;      // references to text styles that nobody knows, which the report no longer has
};

// One sentence for the user: which file could not be opened and why. Empty for one that could.
std::wstring TextOf(const LoadResult& result);

// How careful a save is, and where it goes.
struct SaveRules {
  bool backToItsFile = false;  // to the file that was opened, as long as the report keeps its name
  // Nothing is written over a file that is not the one that was read or written last (`Taken`), nor over that one when
  // somebody else wrote it since (`Changed`).
  bool asksFirst = false;
};

class RVReport {
 public:
  // A new, empty report: one page, no name.
  explicit RVReport(Host& host = CurrentHost());

  // Opens by name (the configuration folder's file of that name, whatever its identifier) or, when no file has it, by
  // path. A stored name that differs from the one asked for gives way to it, and the report gets a new identity. Asking
  // by path asks for the file's own name part. What cannot be read opens as a new, empty, nameless report.
  LoadResult Load(const std::wstring& nameOrPath);
  // Opens one file. Without an asked-for name the stored one stands.
  LoadResult LoadFile(const Path& file, const std::wstring* askedName = nullptr);

  // Takes what a "reportLayout" element holds; the element stays as it is, and the stored name stands.
  void SetTemplate(const XmlNode& root) { ReadTemplate(root, PagesOf(root, &RVReportPage::SetTemplate), nullptr); }

  // Saves under the report's name, naming a nameless report report1, report2, ... first. The report counts as saved
  // when it was, and as modified when it was not; nothing is written when the name cannot be a file's.
  SaveResult Save(const SaveRules& rules = {});
  SaveResult SaveTo(const Path& file, const SaveRules& rules = {});
  // A copy for others: the report stays as modified as it was.
  SaveResult WriteTo(const Path& file) const;
  // The whole template as text, with a fresh revision. `fault` receives what keeps it from being read again.
  std::string TemplateText(XmlError* fault = nullptr) const;

  // Where Save writes: id.name in the configuration folder. What cannot be part of a file's name is left out of the id.
  Path FilePath(const SaveRules& rules = {}) const;
  // The file that was read or written last; empty for a report that has none.
  const Path& File() const { return file_; }
  // Whether somebody else wrote or removed it since.
  bool HasChangedOnDisk() const;
  // How it was then, for whoever watches it.
  const FileVersion& OnDisk() const { return onDisk_; }
  // The file is this report's, as it is on disk now: for work that was kept elsewhere and goes back to where it came
  // from. Without a file it has none.
  void BelongTo(const Path& file);
  // The name that Save would give a nameless report: the lowest reportN that no file has.
  std::wstring FreeName() const;
  // Empties the formulas, virtual devices and go-back variables.
  void ResetDocuments();
  RVReportPage& AddPage();

  std::wstring id;
  std::wstring name;  // empty: never saved
  std::wstring version;
  std::int32_t dpiFont = 96;  // vertical dots per inch of the screen the report was first laid out on
  double fontFactor = 1.0;    // the current screen's over dpiFont
  bool virtualEnabled = false;
  XmlDocument formules{"formules"};
  XmlDocument virtualDevices{"virtualDevices"};
  XmlDocument goBackVariables{"goBackVariables"};
  std::vector<std::shared_ptr<RVReportPage>> pages;  // never empty
  bool modified = false;

 private:
  Path ConfigFolder() const { return host_->setup->CfgPath(); }
  using Pages = std::vector<std::shared_ptr<RVReportPage>>;
  using PageReader = bool (RVReportPage::*)(const XmlNode& page);
  Pages PagesOf(const XmlNode& root, PageReader readPage) const;
  void ReadTemplate(const XmlNode& root, Pages read, const std::wstring* askedName);
  void ReadIdentity(const XmlNode& root, const std::wstring* askedName);
  void ReadFontScale(const XmlNode& root);
  void ReadVirtualLists(const XmlNode& root);
  bool EnsureName();
  bool GoesBack(const SaveRules& rules) const;
  Path FileOfAnother(const SaveRules& rules) const;
  std::string RoomForText() const;
  void WriteTemplate(XmlWriter& out) const;
  void WriteDocuments(XmlWriter& out) const;
  bool ReadStretches(std::string_view text, const std::wstring* askedName);
  bool ReadDocument(std::string text, const std::wstring* askedName, LoadResult& result);
  void Remember(const Path& file, const FileVersion& version);

  Host* host_;
  Path file_;
  FileVersion onDisk_;     // as read or written last
  std::wstring fileName_;  // the report's name at that time
};

}  // namespace xrpt
