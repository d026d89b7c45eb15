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

// What a load found, for whoever wants to tell the user. A report is there in any case.
struct LoadResult {
  Path file;
  bool loaded = false;  // false: the file was missing or unreadable, and the report is new and empty
  XmlError error;
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
  void SetTemplate(const XmlNode& root) { ReadTemplate(root, nullptr, &RVReportPage::SetTemplate); }

  // Saves under the report's name, naming a nameless report report1, report2, ... first. The report counts as saved
  // when it was, and as modified when it was not; nothing is written when the name cannot be a file's.
  SaveResult Save();
  SaveResult SaveTo(const Path& file);
  // A copy for others: the report stays as modified as it was.
  SaveResult WriteTo(const Path& file) const;
  // The whole template as text, with a fresh revision. `fault` receives what keeps it from being read again.
  std::string TemplateText(XmlError* fault = nullptr) const;

  // Where Save writes.
  Path FilePath() const;
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
  using PageReader = bool (RVReportPage::*)(const XmlNode& page);
  void ReadTemplate(const XmlNode& root, const std::wstring* askedName, PageReader readPage);
  void ReadIdentity(const XmlNode& root, const std::wstring* askedName);
  void ReadFontScale(const XmlNode& root);
  void ReadVirtualLists(const XmlNode& root);
  void ReadPages(const XmlNode& root, PageReader readPage);
  bool EnsureName();
  void WriteTemplate(XmlWriter& out) const;
  void WriteDocuments(XmlWriter& out) const;

  Host* host_;
};

}  // namespace xrpt
