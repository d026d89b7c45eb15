#include "xrpt/FindingsOutput.h"

#include <iostream>

#include "formulas/checks/CheckTexts.h"
#include "formulas/checks/WarningRecord.h"
#include "platform/Json.h"
#include "platform/Text.h"
#include "platform/XmlWriter.h"

namespace xrpt {
namespace {

// FILE: page 2, Formula ID: The formula is empty. [CODE]
class TextOutput final : public FindingsOutput {
 public:
  void Print(const ReportFindings& report, const Finding& finding) override {
    std::cout << report.file.string() << ": " << Place(finding) << ToUtf8(MessageOf(finding)) << " ["
              << ToUtf8(finding.code->name) << "]\n";
  }

 private:
  static std::string Place(const Finding& finding) {
    if (finding.place.page == 0) return {};
    std::wstring place = FormatText(HostText(text::kPageNumber), std::to_wstring(finding.place.page));
    if (finding.kindTextId != 0) place += L", " + HostText(finding.kindTextId);
    if (finding.place.card >= 0) place += L" " + NameOf(finding);
    return ToUtf8(place) + ": ";
  }
  // A card without an identifier is told by its number.
  static std::wstring NameOf(const Finding& finding) {
    return finding.cardId.empty() ? L"#" + std::to_wstring(finding.place.card + 1) : finding.cardId;
  }
};

const char* WordFor(Severity severity) {
  switch (severity) {
    case Severity::Information:
      return "information";
    case Severity::Warning:
      return "warning";
    case Severity::Error:
      break;
  }
  return "error";
}

const char* WordFor(Change::Kind kind) {
  switch (kind) {
    case Change::Kind::SetField:
      return "setField";
    case Change::Kind::NewId:
      return "newId";
    case Change::Kind::MoveToFront:
      return "moveToFront";
    case Change::Kind::RemoveFormula:
      break;
  }
  return "removeFormula";
}

// An array with one object a line.
class JsonOutput final : public FindingsOutput {
 public:
  void Begin() override { std::cout << "["; }
  void Print(const ReportFindings& report, const Finding& finding) override {
    JsonWriter out;
    out.BeginObject();
    WritePlace(out, report, finding);
    WriteWhat(out, finding);
    if (!finding.remedy.changes.empty()) WriteRemedy(out, finding.remedy);
    out.EndObject();
    std::cout << (isFirst_ ? "\n  " : ",\n  ") << out.Text();
    isFirst_ = false;
  }
  void End() override { std::cout << (isFirst_ ? "]\n" : "\n]\n"); }

 private:
  static void Write(JsonWriter& out, const char* key, std::wstring_view text) {
    out.Key(key);
    out.String(text);
  }
  static void Write(JsonWriter& out, const char* key, long long number) {
    out.Key(key);
    out.Int(number);
  }
  static void WritePlace(JsonWriter& out, const ReportFindings& report, const Finding& finding) {
    Write(out, "file", FromUtf8(report.file.string()));
    Write(out, "report", report.name);
    Write(out, "id", report.id);
    Write(out, "page", finding.place.page);
    Write(out, "card", finding.place.card + 1);
    Write(out, "ctrlId", finding.cardId);
  }
  static void WriteWhat(JsonWriter& out, const Finding& finding) {
    Write(out, "code", finding.code->name);
    Write(out, "textId", finding.code->textId);
    Write(out, "severity", FromUtf8(WordFor(finding.code->severity)));
    Write(out, "message", MessageOf(finding));
    Write(out, "detail", finding.detail.value_or(std::wstring()));
    out.Key("dontConsiderWarning");
    out.Bool(finding.dontConsider);
  }
  static void WriteRemedy(JsonWriter& out, const Remedy& remedy) {
    out.Key("remedy");
    out.BeginObject();
    Write(out, "message", HostText(remedy.textId));
    out.Key("changes");
    out.BeginArray();
    for (const Change& change : remedy.changes) {
      out.BeginObject();
      Write(out, "change", FromUtf8(WordFor(change.kind)));
      Write(out, "field", FromUtf8(change.field));
      Write(out, "value", change.value);
      out.EndObject();
    }
    out.EndArray();
    out.EndObject();
  }

  bool isFirst_ = true;
};

// The records as the diagnostics collector gets them.
class XmlOutput final : public FindingsOutput {
 public:
  void Begin() override {
    XmlWriter(text_).Declaration();
    text_ += "<warnings>\n";
    Flush();
  }
  void Print(const ReportFindings& report, const Finding& finding) override {
    const XmlDocument record = RecordOf(finding, report.name, report.id).AsXml();
    XmlWriter(text_, 1).Copy("warning", record.Root());
    Flush();
  }
  void End() override { std::cout << "</warnings>\n"; }

 private:
  void Flush() {
    std::cout << text_;
    text_.clear();
  }

  std::string text_;
};

}  // namespace

std::unique_ptr<FindingsOutput> MakeFindingsOutput(const std::string& format) {
  if (format == "json") return std::make_unique<JsonOutput>();
  if (format == "xml") return std::make_unique<XmlOutput>();
  return std::make_unique<TextOutput>();
}

}  // namespace xrpt
