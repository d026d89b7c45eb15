// For every code of the host's checks a report that raises it and one that nearly does.
#include "formulas/checks/HostCodes.h"
#include "support/CheckedReport.h"

namespace xrpt {
namespace {

using Codes = std::vector<std::string>;

constexpr const char* kAnalysed = ": The expression cannot be analysed.";
constexpr const char* kUndefined = ": The expression uses names that are not defined.";
constexpr const char* kFails = ": The expression fails when it is evaluated.";
constexpr const char* kModule = ": The expression refers to a module, which cannot be checked here.";
constexpr const char* kUnevaluated = ": The expression cannot be evaluated.";
constexpr const char* kLogical = ": The condition does not give a logical result.";

struct Row {
  ReportText report;
  Codes expected;
};

std::string Bar(const std::string& values, const std::string& variable = "<variable>MAIN.P</variable>") {
  return "<analogBar><id>c1</id>" + variable + values + "</analogBar>";
}

std::string PowerFactor(const std::string& type, const std::string& values) {
  return Bar("<typeVar>PF</typeVar><type>" + type + "</type>" + values);
}

std::string Graph(const std::string& names) {
  std::istringstream in(names);
  std::string out = "<reportGraph><id>c1</id>";
  for (std::string name; in >> name;) out += "<variable><id>" + name + "</id></variable>";
  return out + "</reportGraph>";
}

std::string Image(const std::string& id, const std::string& path) {
  return "<staticImage><id>c1</id><image><imageId>" + id + "</imageId><imagePath>" + path +
         "</imagePath></image></staticImage>";
}

std::string Date(const std::string& inside) { return "<date><id>c1</id>" + inside + "</date>"; }

class HostCheckTest : public ReportCheckTest {
 protected:
  void Expect(const std::vector<Row>& rows) {
    for (const Row& row : rows) {
      EXPECT_EQ(Check(row.report), row.expected) << row.report.Xml();
    }
  }
};

std::string Raised(const std::string& code, const std::string& detail = {}) { return code + "@c1" + detail; }

TEST_F(HostCheckTest, Formulas) {
  const std::string empty = Raised("FORMULECTRL_FORMULE_EMPTY");
  const std::string wrong = Raised("FORMULECTRL_FORMULE_EXPRESSION_ERROR");
  Expect({
      {{Formule("")}, {empty}},
      {{"<formule><id>c1</id></formule>"}, {empty}},
      {{Formule(" ")}, {wrong + kAnalysed}},
      {{Formule("1 +")}, {wrong + kAnalysed}},
      {{Formule("1 &lt; 2")}, {wrong + kAnalysed}},
      {{Formule("TOTAL * 2")}, {wrong + kUndefined}},
      {{Formule("TOTAL * 2"), "TOTAL=3"}, {}},
      {{Formule("A"), "A=B;B=A"}, {wrong + kFails}},
      {{Formule("LIB::MEAN + 1")}, {wrong + kModule}},
      {{Formule("[MAIN.P] * 2")}, {}},
      {{Formule("[NOBODY.KNOWS]")}, {}},
      {{Formule("1 +", "")}, {"FORMULECTRL_FORMULE_EXPRESSION_ERROR@" + std::string(kAnalysed)}},
  });
}

TEST_F(HostCheckTest, VirtualDevicesAndGoBacksOfFormulas) {
  const std::string device = Raised("FORMULECTRL_VIRTUAL_DEVICE_ERROR");
  const std::string goBack = Raised("FORMULECTRL_GOBACK_VARIABLE_ERROR");
  Expect({
      {{Formule("[VIRTUAL_A.P]")}, {device}},
      {{Formule("[VIRTUAL_A.P]"), "", "VIRTUAL_A"}, {}},
      {{Formule("[VIRTUAL_a.P]"), "", "VIRTUAL_A"}, {device, "REPORT_VIRTUAL_DEVICE_ERROR@"}},
      {{Formule("[VIRTUAL_A.P] + [VIRTUAL_B.P]")}, {device}},
      {{Formule("[MAIN.P.GOBACK@P1]")}, {goBack}},
      {{Formule("[MAIN.P.GOBACK@P1]"), "", "", "GOBACK@P1"}, {}},
      {{Formule("[MAIN.P.GOBACK-3]")}, {goBack}},
      {{Formule("[MAIN.P.GOBACK0] + [MAIN.P.GOBACK12] + [MAIN.P.GOBACK] + [MAIN.P.GOBACK12x]")}, {}},
      {{Formule("[MAIN.P.GOBACKweek]"), "", "", "GOBACKmonth"}, {goBack, "REPORT_GOBACK_VARIABLE_ERROR@"}},
      {{Formule("[VIRTUAL_A.P.GOBACKweek]")}, {device, goBack}},
      {{Formule("[VIRTUAL_A.P.GOBACK-1]"), "", "", "", "t"}, {}},
  });
}

TEST_F(HostCheckTest, ConditionedFormulasDatesAndPictures) {
  const std::string wrong = Raised("CONDITIONALCTRL_FORMULE_EXPRESSION_ERROR");
  const auto inside = [](const std::string& card) { return Conditioned("1 &lt; 2", card); };
  Expect({
      {{inside(Formule("", "c2"))}, {Raised("CONDITIONALCTRL_FORMULE_EMPTY")}},
      {{inside(Formule("1 +", "c2"))}, {wrong + kAnalysed}},
      {{inside(Formule("LIB::MEAN"))}, {wrong + kModule}},
      {{inside(Formule("[VIRTUAL_A.P]"))}, {Raised("CONDITIONALCTRL_VIRTUAL_DEVICE_ERROR")}},
      {{inside(Formule("[MAIN.P.GOBACKday]"))}, {Raised("CONDITIONALCTRL_GOBACK_VARIABLE_ERROR")}},
      {{inside(Date("<value>never</value>"))}, {Raised("CONDITIONALCTRL_DATE_ERROR")}},
      {{inside(Image("nothing", "./"))}, {Raised("CONDITIONALCTRL_IMAGE_EMPTY")}},
      {{inside(Formule("[MAIN.P]") + Date("<field>END_DATE</field>") + Image("top", "./"))}, {}},
      {{inside(Graph("X.Y") + Bar(""))}, {}},
  });
}

TEST_F(HostCheckTest, Conditions) {
  const std::string none = Raised("CONDITIONALCTRL_NO_CONDITION");
  const std::string empty = Raised("CONDITIONALCTRL_CONDITION_EMPTY");
  const std::string wrong = Raised("CONDITIONALCTRL_CONDITION_EXPRESSION_ERROR");
  Expect({
      {{"<conditioned/>"}, {"CONDITIONALCTRL_NO_CONDITION@"}},
      {{"<conditioned><id>c1</id><label/></conditioned>"}, {none}},
      {{Conditioned("")}, {empty}},
      {{"<conditioned><id>c1</id><control/><control/></conditioned>"}, {empty, empty}},
      {{Conditioned("", Formule(""))}, {empty, Raised("CONDITIONALCTRL_FORMULE_EMPTY")}},
      {{Conditioned("[MAIN.P] &gt; 3 &amp;&amp; [MAIN.Q] &lt; 2")}, {}},
      {{Conditioned("[MAIN.P] + 3")}, {wrong + kAnalysed, wrong + kLogical}},
      {{Conditioned("3")}, {wrong + kAnalysed, wrong + kLogical}},
      {{Conditioned("1 &lt;")}, {wrong + kAnalysed, wrong + kUnevaluated}},
      {{Conditioned("LIMIT &lt; 2")}, {wrong + kUndefined}},
      {{Conditioned("LIMIT &lt; 2"), "LIMIT=1"}, {}},
      {{Conditioned("LIB::A &lt; 2")}, {wrong + kFails}},
      {{Conditioned("[VIRTUAL_A.P] &lt; 2")}, {Raised("CONDITIONALCTRL_CONDITION_VIRTUAL_DEVICE_ERROR")}},
      {{Conditioned("[MAIN.P.GOBACKday] &lt; 2")}, {Raised("CONDITIONALCTRL_GOBACK_VARIABLE_ERROR")}},
      {{Conditioned("[VIRTUAL_A.P.GOBACKday] &lt; 2"), "", "VIRTUAL_A", "GOBACKday"}, {}},
  });
}

TEST_F(HostCheckTest, DatesAndPictures) {
  const std::string date = Raised("DATECTRL_DATE_ERROR");
  const std::string image = Raised("IMAGECTRL_IMAGE_EMPTY");
  Expect({
      {{Date("")}, {date}},
      {{Date("<value/>")}, {date}},
      {{Date("<value>2026-02-30</value>")}, {date}},
      {{Date("<value>2026-02-28</value>")}, {}},
      {{Date("<value>31/12/2026 10:00:00</value>")}, {}},
      {{Date("<field/><value>never</value>")}, {}},
      {{"<staticImage><id>c1</id></staticImage>"}, {image}},
      {{Image("logo", "./")}, {image}},
      {{Image("logo", "plant")}, {}},
      {{Image("top", "./")}, {}},
      {{Image("top", "plant")}, {image}},
      {{Image("logo", "../images/plant")}, {image}},
  });
}

TEST_F(HostCheckTest, Graphs) {
  const std::string unknown = Raised("REPORTGRAPH_VAR_ERROR");
  const std::string device = Raised("REPORTGRAPH_VIRTUAL_DEVICE_ERROR");
  const std::string goBack = Raised("REPORTGRAPH_GOBACK_VARIABLE_ERROR");
  Expect({
      {{Graph("")}, {Raised("REPORTGRAPH_NO_VAR")}},
      {{Graph("MAIN.P [MAIN.Q]")}, {}},
      {{Graph("MAIN.X MAIN.P [X.Q]")}, {unknown, unknown}},
      {{Graph("[MAIN.P")}, {unknown}},
      {{Graph("VIRTUAL_A.P VIRTUAL_B.P")}, {device}},
      {{Graph("[VIRTUAL_A.P] MAIN.X"), "", "VIRTUAL_A"}, {unknown}},
      {{Graph("MAIN.P.GOBACKday")}, {goBack}},
      {{Graph("NOBODY.P.GOBACKday NOBODY.P.GOBACK2"), "", "", "GOBACKday"}, {}},
      {{Graph("VIRTUAL_A.P MAIN.P.GOBACKday"), "", "", "", "F"}, {}},
  });
}

TEST_F(HostCheckTest, Bars) {
  const std::string bad = Raised("ANALOGBARCTRL_BAD_VALUE");
  const std::string unknown = Raised("ANALOGBARCTRL_VAR_ERROR");
  Expect({
      {{Bar("", "")}, {Raised("ANALOGBARCTRL_VARIABLE_EMPTY")}},
      {{Bar("", "<variable/>")}, {unknown}},
      {{Bar("", "<variable>[MAIN.P]</variable>")}, {}},
      {{Bar("", "<variable>VIRTUAL_A.P</variable>")}, {Raised("ANALOGBARCTRL_VIRTUAL_DEVICE_ERROR")}},
      {{Bar("", "<variable>MAIN.P.GOBACKday</variable>")}, {Raised("REPORTGRAPH_GOBACK_VARIABLE_ERROR")}},
      {{Bar("", "<variable>VIRTUAL_A.P</variable>"), "", "VIRTUAL_A"}, {}},
      {{Bar("<minValue>10</minValue><maxValue>10</maxValue>")}, {bad}},
      {{Bar("<minValue>10</minValue><maxValue>10.01</maxValue>")}, {}},
      {{Bar("<maxValue>5</maxValue><minValue>10</minValue>", "<variable>X.Y</variable>")}, {unknown, bad}},
  });
}

TEST_F(HostCheckTest, WhatNothingUsesOncePerKind) {
  const std::string device = "REPORT_VIRTUAL_DEVICE_ERROR@";
  const std::string goBack = "REPORT_GOBACK_VARIABLE_ERROR@";
  Expect({
      {{"", "", "VIRTUAL_A VIRTUAL_B", "GOBACK@X GOBACK@Y"}, {device, goBack}},
      {{Formule("[VIRTUAL_A.P]"), "", "VIRTUAL_A VIRTUAL_B"}, {device}},
      {{Formule("SUM"), "SUM=[VIRTUAL_A.P.GOBACK@X]", "VIRTUAL_A", "GOBACK@X"}, {}},
      {{Graph("VIRTUAL_A.P") + Bar("", "<variable>M.P.GOBACK@X</variable>"), "", "VIRTUAL_A", "GOBACK@X"}, {}},
      {{"", "", "VIRTUAL_A", "GOBACK@X", "F"}, {}},
      {{"", "", "VIRTUAL_A", "GOBACK@X", ""}, {}},
  });
}

TEST_F(HostCheckTest, CodesAreKnownByTheirWholeName) {
  EXPECT_EQ(FindHostCode(L"REPORT_GOBACK_VARIABLE_ERROR")->textId, 36256);
  EXPECT_EQ(FindHostCode(L"report_goback_variable_error"), nullptr);
  EXPECT_EQ(FindHostCode(L"REPORT_GOBACK"), nullptr);
  for (const CheckCode& code : kHostCodes) EXPECT_NE(HostText(code.textId).front(), L'#') << ToUtf8(code.name);
}

TEST_F(HostCheckTest, LimitsOfPowerFactors) {
  const auto min = [](const char* v) { return "<minValue>" + std::string(v) + "</minValue>"; };
  const auto max = [](const char* v) { return "<maxValue>" + std::string(v) + "</maxValue>"; };
  const struct {
    std::string type;
    std::string values;
    bool good;
  } rows[] = {
      {"MAX", min("-1"), true},
      {"MAX", min("-1.01"), false},
      {"MIN", min("-0.01"), false},
      {"MIN", min("0"), true},
      {"MAX_MIN", min("-0.01"), false},
      {"MAX", max("0"), true},
      {"MAX", max("0.01"), false},
      {"MIN", max("1"), true},
      {"MIN", max("1.01"), false},
      {"MAX_MIN", max("0.01"), false},
      {"MIN", min("0.5") + "<alarmMinValue>0.5</alarmMinValue>", false},
      {"MIN", min("0.5") + "<alarmMinValue>0.6</alarmMinValue><preMinValue>0.99</preMinValue>", true},
      {"MIN", "<preMinValue>1</preMinValue>", false},
      {"MIN", min("0.7") + "<preMinValue>0.6</preMinValue>", false},
      {"MAX", "<preMaxValue>-1</preMaxValue>", false},
      {"MAX", "<preMaxValue>-0.99</preMaxValue>" + min("0.5"), true},
      {"MAX", "<preMaxValue>-0.9</preMaxValue><alarmMaxValue>-0.95</alarmMaxValue>", false},
      {"MAX", "<alarmMaxValue>-0.5</alarmMaxValue>" + max("-0.5"), false},
      {"MAX", "<alarmMaxValue>-0.5</alarmMaxValue>" + max("-0.4"), true},
  };
  for (const auto& row : rows) {
    const Codes expected = row.good ? Codes() : Codes{Raised("ANALOGBARCTRL_BAD_VALUE")};
    EXPECT_EQ(Check({PowerFactor(row.type, row.values)}), expected) << row.type << row.values;
  }
  EXPECT_EQ(Check({Bar("<typeVar>PF</typeVar><minValue>9</minValue>")}), Codes()) << "without its bands";
}

TEST_F(HostCheckTest, LimitsAscendWhateverIsMissing) {
  const char* const names[] = {"minValue", "alarmMinValue", "preMinValue", "preMaxValue", "alarmMaxValue", "maxValue"};
  for (int left = 0; left < 6; ++left) {
    for (int right = 0; right < 6; ++right) {
      if (left == right) continue;
      const auto limit = [&names](int i, const char* value) {
        return std::string("<") + names[i] + ">" + value + "</" + names[i] + ">";
      };
      const Codes expected = left < right ? Codes() : Codes{Raised("ANALOGBARCTRL_BAD_VALUE")};
      EXPECT_EQ(Check({Bar(limit(left, "-2.5") + limit(right, "1e1"))}), expected) << left << right;
    }
  }
}

TEST_F(HostCheckTest, PagesWithoutIdentifierAreNotChecked) {
  ReportText report{Formule("")};
  report.pageId = "";
  EXPECT_EQ(Check(report), Codes());
}

TEST_F(HostCheckTest, UsedIdentifiersStayFromReportToReport) {
  RVReportDebugger debugger(*host);
  const ReportText user{Formule("[VIRTUAL_A.P]"), "", "VIRTUAL_A"};
  const ReportText idler{"", "", "VIRTUAL_A"};
  for (const ReportText& report : {user, idler}) {
    XmlDocument document;
    document.Parse(report.Xml());
    debugger.debugReport(document.Root());
  }
  EXPECT_EQ(Records(), Codes());
}

TEST_F(HostCheckTest, RecordsAreWhatTheCollectorExpects) {
  XmlDocument document;
  document.Parse(ReportText{Formule("LIB::A") + Formule("", "")}.Xml());
  RVReportDebugger debugger(*host);
  debugger.debugReport(document.Root());
  RVReportDebugger::tagSDebugData data(document.Root());
  debugger.addWarning(L"NOT_IN_THE_TABLE", data, nullptr, false);
  EXPECT_EQ(Collector().Warnings().Root().CreateXmlCode(),
            "<warnings>\n"
            "  <warning>\n"
            "    <resource>REPORTS</resource>\n"
            "    <type>FORMULECTRL_FORMULE_EXPRESSION_ERROR</type>\n"
            "    <id>R1</id>\n"
            "    <ctrlId>c1</ctrlId>\n"
            "    <dontConsiderWarning>1</dontConsiderWarning>\n"
            "    <text>\n"
            "      <textId>32651</textId>\n"
            "      <textStr>Consumption: </textStr>\n"
            "      <textStr> The expression refers to a module, which cannot be checked here.</textStr>\n"
            "    </text>\n"
            "  </warning>\n"
            "  <warning>\n"
            "    <resource>REPORTS</resource>\n"
            "    <type>FORMULECTRL_FORMULE_EMPTY</type>\n"
            "    <id>R1</id>\n"
            "    <text>\n"
            "      <textId>32649</textId>\n"
            "      <textStr>Consumption: </textStr>\n"
            "    </text>\n"
            "  </warning>\n"
            "  <warning>\n"
            "    <resource>REPORTS</resource>\n"
            "    <type>NOT_IN_THE_TABLE</type>\n"
            "    <id>R1</id>\n"
            "    <text>\n"
            "      <textStr>Consumption: </textStr>\n"
            "    </text>\n"
            "  </warning>\n"
            "</warnings>\n");
}

}  // namespace
}  // namespace xrpt
