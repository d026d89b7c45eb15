// For every code of the editor's own checks a report that raises it and one that nearly does; and for every remedy a
// report that is better afterwards.
#include <gmock/gmock.h>

#include <set>

#include "formulas/checks/CheckChoice.h"
#include "formulas/checks/EditorInspection.h"
#include "formulas/checks/FileCheck.h"
#include "formulas/checks/Remedy.h"
#include "host/PlainFonts.h"
#include "platform/Base64.h"
#include "support/CheckedReport.h"

namespace xrpt {
namespace {

using Codes = std::vector<std::string>;

// Plain fonts of which some are installed.
class SomeFonts final : public FontService {
 public:
  FontMetrics Metrics(const Font& font) override { return fonts_.Metrics(font); }
  double Width(const Font& font, std::wstring_view text) override { return fonts_.Width(font, text); }
  FacePresence Presence(std::wstring_view face) override {
    if (face == L"Helvetica") return FacePresence::StandIn;
    return face == L"Arial" ? FacePresence::Installed : FacePresence::Missing;
  }

 private:
  PlainFonts fonts_;
};

// Pictures whose bytes say how large they are: "800x600", or "drawing".
class StatedPictures final : public PictureService {
 public:
  PicturePtr Decode(std::string_view bytes) override {
    auto picture = std::make_shared<Picture>();
    picture->isDrawing = bytes == "drawing";
    const std::string text = picture->isDrawing ? "10x10" : std::string(bytes);
    std::sscanf(text.c_str(), "%dx%d", &picture->width, &picture->height);
    picture->rgb.resize(picture->RowBytes() * static_cast<std::size_t>(picture->height));
    return picture;
  }
};

std::string Place(double x, double y, double width, double height) {
  std::ostringstream out;
  out << "<x>" << x << "</x><y>" << y << "</y><width>" << width << "</width><height>" << height << "</height>";
  return out.str();
}

std::string Card(const std::string& tag, const std::string& id, const std::string& inside) {
  return "<" + tag + ">" + (id.empty() ? "" : "<id>" + id + "</id>") + inside + "</" + tag + ">";
}

std::string Label(const std::string& place, const std::string& text = {}, const std::string& face = "Arial",
                  const std::string& more = {}, const std::string& id = "c1") {
  return Card("label", id,
              place + "<text><textStr>" + text + "</textStr></text><font><name>" + face +
                  "</name><size>10</size></font>" + more);
}

// A report that nobody looks at.
class PlainDoor final : public RemedyDoor {
 public:
  PlainDoor(RVReport& report, const Finding& finding) : report_(report), page_(finding.place.page) {}
  CardList& Cards() override { return report_.pages.at(static_cast<std::size_t>(page_) - 1)->cards; }
  XmlDocument& Formulas() override { return report_.formules; }

 private:
  RVReport& report_;
  int page_;
};

class EditorCheckTest : public ReportCheckTest {
 protected:
  EditorCheckTest() {
    host->fonts = std::make_unique<SomeFonts>();
    host->pictures = std::make_unique<StatedPictures>();
    host.WriteCfg("S1.Known.XSTY", "<style><id>S1</id><name>Known</name><font><name>Arial</name></font></style>");
  }

  ReportFindings Find(const ReportText& report) {
    CheckChoice choice;
    for (const EditorCheck& check : EditorChecks()) choice.Add(check.code.name);
    FileCheck check(choice, {});
    return check.Check(host.WriteCfg("r.report.xrpt", report.Xml()));
  }

  // "CODE@page.card", or ".inner" behind it for a card inside another.
  static Codes CodesOf(const std::vector<Finding>& findings) {
    Codes codes;
    for (const Finding& finding : findings) {
      const CardPlace& at = finding.place;
      codes.push_back(ToUtf8(finding.code->name) + "@" + std::to_string(at.page) + "." + std::to_string(at.card) +
                      (at.inner < 0 ? "" : "." + std::to_string(at.inner)));
      if (finding.detail) codes.back() += ": " + ToUtf8(*finding.detail);
    }
    return codes;
  }

  void Expect(const std::vector<std::pair<ReportText, Codes>>& rows) {
    for (const auto& [report, codes] : rows) EXPECT_EQ(CodesOf(Find(report).findings), codes) << report.Xml();
  }

  // The first finding's remedy, carried out.
  Codes AfterRemedy(const ReportText& text) {
    const std::vector<Finding> findings = Find(text).findings;
    XmlDocument document;
    document.Parse(text.Xml());
    RVReport report(*host);
    report.SetTemplate(document.Root());
    const int card = findings.at(0).place.card;
    PlainDoor door(report, findings.at(0));
    EXPECT_TRUE(CarryOut(findings.at(0), card < 0 ? CardList::kNowhere : static_cast<std::size_t>(card), door));
    XmlDocument after;
    after.Parse(report.TemplateText());
    return CodesOf(InspectReport(report, after.Root(), CheckChoice::All()));
  }

  void WritePicture(const std::string& id, const std::string& bytes) {
    TestHost::WriteFile(host.Images() / (id + ".img"), EncodeBase64(bytes));
  }
};

TEST_F(EditorCheckTest, CardsOutsideThePage) {
  const std::string outside = "CARD_OUTSIDE_PAGE@1.0";
  Expect({{{Label(Place(200, 0, 10.02, 5))}, {outside}},
          {{Label(Place(200, 0, 10.01, 5))}, {}},
          {{Label(Place(-0.02, 0, 10, 5))}, {outside}},
          {{Label(Place(0, 290, 10, 7))}, {}},
          {{Label(Place(0, 290, 10, 8))}, {outside}},
          {{Label(Place(0, 0, 210, 298))}, {outside}}});
  EXPECT_EQ(AfterRemedy({Label(Place(205, 295, 10, 5))}), Codes());
  EXPECT_TRUE(Find({Label(Place(0, 0, 211, 5))}).findings.at(0).remedy.changes.empty()) << "too wide to be moved on";
}

TEST_F(EditorCheckTest, TextsCutOff) {
  const std::string cut = "TEXT_CUT_OFF@1.0";
  const std::string words = "one two three four five six";
  const std::string turned = "<font><name>Arial</name><size>10</size><orientation>90</orientation></font>";
  const std::string moving = "<behavior>BEHAVIOR_SCROLL</behavior>";
  Expect({{{Label(Place(0, 0, 50, 5), words)}, {}},
          {{Label(Place(0, 0, 30, 5), words)}, {cut}},
          {{Label(Place(0, 0, 30, 9), words)}, {}},
          {{Label(Place(0, 0, 50, 3), words)}, {cut}},
          {{Label(Place(0, 0, 50, 3.7), words)}, {}},
          {{Label(Place(0, 0, 30, 5), words, "Arial", moving)}, {}},
          {{Card("label", "c1", Place(0, 0, 5, 50) + "<text><textStr>" + words + "</textStr></text>" + turned)}, {}},
          {{Card("label", "c1", Place(0, 0, 5, 30) + "<text><textStr>" + words + "</textStr></text>" + turned)}, {cut}},
          {{Card("formule", "c1", Place(0, 0, 10, 5) + "<value>1000000000000000000 + 1</value>")}, {}},
          {{Card("date", "c1", Place(0, 0, 10, 3) + "<value>2026-10-01</value>")}, {cut}}});
  EXPECT_EQ(AfterRemedy({Label(Place(0, 0, 20, 5), words)}), Codes());
  const std::string low = Label(Place(0, 292, 20, 5), words);
  EXPECT_TRUE(Find({low}).findings.at(0).remedy.changes.empty()) << "the page ends below it";
}

// Inner cards fill the card around them, whatever they say themselves.
TEST_F(EditorCheckTest, CardsInsideOthers) {
  const auto around = [](double width, const std::string& inner) {
    return Card("conditioned", "c1",
                Place(0, 0, width, 5) + "<control><condition>1 &lt; 2</condition>" + Label("") +
                    "</control><control><condition>2 &lt; 3</condition>" + inner + "</control>");
  };
  const std::string wide = Label(Place(0, 0, 200, 50), "one two three four");
  Expect({{{around(100, wide)}, {}},
          {{around(10, wide)}, {"TEXT_CUT_OFF@1.0.1"}},
          {{around(100, Label("", "", "Arial", "<style>GONE</style>"))}, {"STYLE_UNKNOWN@1.0.1: GONE"}},
          {{around(100, Label("", "", "Comic Sans"))}, {"FONT_NOT_INSTALLED@1.0: Comic Sans"}}});
}

TEST_F(EditorCheckTest, FacesAreToldOnce) {
  const auto face = [](const std::string& name, const std::string& id) {
    return Label(Place(0, 0, 10, 5), "", name, "", id);
  };
  Expect({{{face("Arial", "a") + face("Helvetica", "b")}, {}},
          {{face("Arial", "a") + face("Futura", "b") + face("Futura", "c")}, {"FONT_NOT_INSTALLED@1.1: Futura"}}});
  host->fonts = std::make_unique<PlainFonts>();
  EXPECT_EQ(CodesOf(Find({face("Futura", "a")}).findings), Codes()) << "who knows no faces misses none";
  for (const EditorCheck& check : EditorChecks()) {
    if (check.report == MissingFaces) {
      EXPECT_NE(check.unavailable(*host), 0);
    }
  }
}

TEST_F(EditorCheckTest, PicturesForPaper) {
  WritePicture("fine", "200x100");    // 42 mm x 21 mm at 121 dots per inch
  WritePicture("coarse", "190x100");  // 115
  WritePicture("drawn", "drawing");
  const auto image = [](const std::string& id, const std::string& more = {}) {
    return Card("staticImage", "c1",
                Place(0, 0, 42, 42) + "<image><imageId>" + id + "</imageId><imagePath>./</imagePath></image>" + more);
  };
  Expect({{{image("fine")}, {}},
          {{image("coarse")}, {"PICTURE_LOW_RESOLUTION@1.0: 115"}},
          {{image("coarse", "<maintainRealSize>T</maintainRealSize>")}, {}},
          {{image("drawn")}, {}},
          {{image("gone")}, {}},
          {{"<backgroundImage>" + Place(0, 0, 210, 297) +
            "<image><imageId>fine</imageId><imagePath>./</imagePath></image></backgroundImage>"},
           {"PICTURE_LOW_RESOLUTION@1.-1: 24"}}});
}

TEST_F(EditorCheckTest, Styles) {
  const auto styled = [](const std::string& id) {
    return Label(Place(0, 0, 10, 5), "", "Arial", "<style>" + id + "</style>");
  };
  Expect({{{styled("S1")}, {}}, {{styled("s1")}, {"STYLE_UNKNOWN@1.0: s1"}}});
}

TEST_F(EditorCheckTest, Formulas) {
  const std::string place = Place(0, 0, 10, 5);
  const auto value = [&](const std::string& text) {
    return Card("formule", "c1", place + "<value>" + text + "</value>");
  };
  Expect({{{value("A + 1"), "A=B * 2;B=3"}, {}},
          {{value("1"), "A=B * 2;B=3"}, {"FORMULA_UNUSED@0.-1: A", "FORMULA_UNUSED@0.-1: B"}},
          {{value("a + [A.B]"), "A=3"}, {"FORMULA_UNUSED@0.-1: A"}},
          {{value("A"), "A=A"}, {}},
          {{Card("conditioned", "c1", place + "<control><condition>A &lt; 1</condition></control>"), "A=3"}, {}},
          {{Card("analogBar", "c1", place + "<variable>M.P</variable><maxValue>A</maxValue>"), "A=3"}, {}},
          {{Card("reportGraph", "c1", place + "<variable><id>A</id></variable>"), "A=3"}, {}},
          {{Card("label", "c1", place + "<text><textStr>A</textStr></text>"), "A=3"}, {"FORMULA_UNUSED@0.-1: A"}},
          {{value("A"), "A=B + C * sin(D)"}, {"FORMULA_UNKNOWN_NAME@0.-1: A: B, C, D"}},
          {{value("A"), "A=[B.C] + sin(2)"}, {}}});
  EXPECT_EQ(AfterRemedy({value("A"), "A=3;B=4"}), Codes());
}

TEST_F(EditorCheckTest, Identities) {
  const auto named = [](const std::string& id) { return Label(Place(0, 0, 10, 5), "", "Arial", "", id); };
  Expect(
      {{{named("a") + named("A")}, {}},
       {{named("a") + named("b") + named("a")}, {"CARD_ID_SHARED@1.2: a"}},
       {{named("") + named("")}, {"CARD_WITHOUT_ID@1.0", "CARD_WITHOUT_ID@1.1"}},
       {{Card("conditioned", "c", Place(0, 0, 10, 5) + "<control><condition>1</condition><label/></control>")}, {}}});
  EXPECT_EQ(AfterRemedy({named("a") + named("a")}), Codes());
  EXPECT_EQ(AfterRemedy({named("")}), Codes());
}

TEST_F(EditorCheckTest, CardsBehindOthers) {
  const std::string opaque = "<backcolor>FFFFFF</backcolor>";
  const std::string wide = Place(10, 10, 100, 50);
  const std::string small = Place(10, 10, 20, 50);
  const auto card = [](const std::string& tag, const std::string& place, const std::string& more, const char* id) {
    return Card(tag, id, place + more);
  };
  const std::string back = card("label", small, "", "back");
  const std::string hidden = "CARD_HIDDEN@1.1";
  Expect({{{card("label", wide, opaque, "front") + back}, {hidden}},
          {{back + card("label", wide, opaque, "front")}, {}},
          {{card("label", wide, "", "front") + back}, {}},
          {{card("label", Place(10.01, 10, 100, 50), opaque, "front") + back}, {}},
          {{card("reportGraph", wide, "", "front") + back}, {hidden}},
          {{card("reportGraph", wide, "<transparent>T</transparent>", "front") + back}, {}},
          {{card("primitive", wide, "<type>BOX</type>", "front") + back}, {hidden}},
          {{card("primitive", wide, "<type>BOX</type><orientation>5</orientation>", "front") + back}, {}},
          {{card("primitive", wide, "<type>ELIPSE</type>", "front") + back}, {}},
          {{card("primitive", wide, "<type>BOX</type><isBackTransparent>T</isBackTransparent>", "front") + back}, {}},
          {{card("staticImage", wide, "", "front") + back}, {hidden}}});
  EXPECT_EQ(AfterRemedy({card("label", wide, opaque, "front") + back}), Codes());
}

// Whatever the page looks like, the grid finds what comparing every pair finds.
TEST_F(EditorCheckTest, HiddenCardsAreThoseThatPairsShow) {
  std::uint32_t seed = 7;
  const auto next = [&seed](std::uint32_t below) { return (seed = seed * 1664525u + 1013904223u) / 65536u % below; };
  for (int round = 0; round < 40; ++round) {
    std::vector<CardFacts> facts(60);
    for (CardFacts& card : facts) {
      const double left = next(40), top = next(40);
      card.area = {left, top, left + next(30), top + next(30)};
      card.isOpaque = next(3) > 0;
    }
    std::set<int> expected;
    PageFacts page;
    for (std::size_t back = 0; back < facts.size(); ++back) {
      page.push_back(&facts[back]);
      for (std::size_t front = 0; front < back; ++front) {
        const RectD& a = facts[front].area;
        const RectD& b = facts[back].area;
        const bool covers = a.left <= b.left && a.top <= b.top && a.right >= b.right && a.bottom >= b.bottom;
        if (covers && facts[front].isOpaque) expected.insert(static_cast<int>(back));
      }
    }
    std::set<int> found;
    for (const Note& note : HiddenCards({{page}, {}})) found.insert(note.place.card);
    EXPECT_EQ(found, expected) << round;
  }
}

TEST_F(EditorCheckTest, UnreadableFiles) {
  const CheckChoice all = CheckChoice::All();
  FileCheck check(all, {});
  const ReportFindings bad = check.Check(host.WriteCfg("a.xrpt", "<reportLayout>"));
  EXPECT_NE(bad.unreadable, "");
  ASSERT_EQ(bad.findings.size(), 1u);
  EXPECT_EQ(bad.findings[0].code->name, kUnreadableCode);
  const CheckChoice host = CheckChoice::AllHost();
  EXPECT_TRUE(FileCheck(host, {}).Check(bad.file).findings.empty()) << "the host passes over it in silence";
}

TEST_F(EditorCheckTest, EveryCheckHasItsOwnCodeAndText) {
  std::set<std::string> names;
  for (const EditorCheck& check : EditorChecks()) {
    EXPECT_TRUE(names.insert(ToUtf8(check.code.name)).second);
    EXPECT_EQ(FindEditorCode(check.code.name), &check.code);
    EXPECT_NE(HostText(check.code.textId).front(), L'#');
  }
}

}  // namespace
}  // namespace xrpt
