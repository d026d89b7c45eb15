// Reports written out for the checks, and what the checks say of them.
#pragma once

#include "formulas/RVReportDebugger.h"
#include "host/WarningList.h"
#include "support/TestHost.h"

namespace xrpt {

// A report of one page.
struct ReportText {
  std::string cards;
  std::string formulas = {};         // "name=text" separated by ";"
  std::string virtualDevices = {};   // identifiers separated by blanks
  std::string goBackVariables = {};  // likewise
  std::string virtualEnabled = "T";
  std::string pageId = "page-1";
  std::string name = "Consumption";
  std::string id = "R1";

  std::string Xml() const {
    return "<reportLayout><id>" + id + "</id><name>" + name + "</name><page><id>" + pageId + "</id>" + cards +
           "</page><formules>" + Formulas() + "</formules><virtualEnabled>" + virtualEnabled + "</virtualEnabled>" +
           Declared("virtualDevice", virtualDevices) + Declared("goBackVariable", goBackVariables) + "</reportLayout>";
  }

 private:
  std::string Formulas() const {
    std::istringstream in(formulas);
    std::string out;
    for (std::string item; std::getline(in, item, ';');) {
      const std::size_t cut = item.find('=');
      out += "<formule><name>" + item.substr(0, cut) + "</name><text>" + item.substr(cut + 1) + "</text></formule>";
    }
    return out;
  }
  static std::string Declared(const std::string& tag, const std::string& ids) {
    std::istringstream in(ids);
    std::string out = "<" + tag + "s>";
    for (std::string id; in >> id;) out += "<" + tag + "><id>" + id + "</id></" + tag + ">";
    return out + "</" + tag + "s>";
  }
};

inline std::string Formule(const std::string& value, const std::string& id = "c1") {
  return "<formule><id>" + id + "</id><value>" + value + "</value></formule>";
}

inline std::string Conditioned(const std::string& condition, const std::string& inner = "<label/>") {
  return "<conditioned><id>c1</id><control><condition>" + condition + "</condition>" + inner +
         "</control></conditioned>";
}

// A plant with one meter, MAIN, whose variables are P and Q; and one picture, plant/logo.
class ReportCheckTest : public HostTest {
 protected:
  ReportCheckTest() {
    host.WriteCfg("devices.xml",
                  "<devices><device><id>MAIN</id><variable><id>P</id></variable><variable><id>Q</id></variable>"
                  "</device></devices>");
    TestHost::WriteFile(host.Images() / "plant" / "logo.img", "");
    TestHost::WriteFile(host.Images() / "top.img", "");
  }

  WarningList& Collector() { return static_cast<WarningList&>(*host->debugInfo); }

  // The codes of the records that came in since the last call, each "CODE@card", or "CODE@card: detail".
  std::vector<std::string> Records() {
    std::vector<std::string> codes;
    const XmlDocument warnings = Collector().Warnings();
    for (const XmlNode& warning : warnings.Root()) {
      std::wstring code = warning.Value("type") + L"@" + warning.Value("ctrlId");
      std::wstring texts;
      for (const XmlNode& text : warning.Node("text")) texts += text.Tag() == "textStr" ? text.Value() : L"";
      const std::size_t detail = texts.find_first_not_of(L" ", texts.find(L": ") + 1);
      if (detail != texts.npos) code += L": " + texts.substr(detail);
      codes.push_back(ToUtf8(code));
    }
    Collector().Clear();
    return codes;
  }

  std::vector<std::string> Check(const ReportText& report) {
    XmlDocument document;
    EXPECT_TRUE(document.Parse(report.Xml())) << report.Xml();
    RVReportDebugger debugger(*host);
    EXPECT_TRUE(debugger.debugReport(document.Root()));
    return Records();
  }
};

}  // namespace xrpt
