// Copy, cut and paste, and clipboards that mean no good.
#include <chrono>

#include "canvas/CanvasDriver.h"
#include "canvas/UndoTexts.h"
#include "model/RVCardConditioned.h"

namespace xrpt {
namespace {

class ClipboardTest : public HostTest {
 protected:
  void Put(std::string text) { host.clipboard->PutToClipboard({std::move(text), {}, {}}); }
  std::string Held() { return host.clipboard->GetFromClipboard(1 << 20); }
};

TEST_F(ClipboardTest, PastesCascade) {
  struct Row {
    double gridX, gridY;
    double dx, dy;
  };
  for (const Row& row : {Row{0, 0, 6, 6}, Row{5, 0, 5, 6}, Row{-5, 7, 6, 7}}) {
    Canvas canvas;
    canvas.AddTwo();
    canvas.SetGrid(row.gridX, row.gridY);
    canvas.wnd.SelectControls({L"b", L"a"});
    canvas.wnd.ControlCopy();
    for (const double times : {1.0, 2.0}) {
      canvas.wnd.ControlPaste();
      // The card copied last is on top, and the pasted ones are what is selected.
      ExpectBox(RectOf(canvas.page.cards[0]), {20 + times * row.dx, 20 + times * row.dy, 40, 20}, "a");
      ExpectBox(RectOf(canvas.page.cards[1]), {100 + times * row.dx, 20 + times * row.dy, 40, 20}, "b");
      EXPECT_EQ(canvas.wnd.Selection().Ids(), (std::vector{canvas.page.cards[1].id, canvas.page.cards[0].id}));
    }
    std::set<std::wstring> ids;
    for (std::size_t i = 0; i < canvas.page.cards.Size(); ++i) ids.insert(canvas.page.cards[i].id);
    EXPECT_EQ(ids.size(), 6u);
  }
}

TEST_F(ClipboardTest, WhatWouldStickOutGoesToTheEdge) {
  Canvas canvas;
  canvas.Add(L"a", {165, 20, 40, 20});
  canvas.Add(L"b", {20, 272, 40, 20});
  canvas.Add(L"c", {164, 271, 40, 20});
  canvas.wnd.SelectControls({L"a", L"b", L"c"});
  canvas.wnd.ControlCut();
  EXPECT_TRUE(canvas.page.cards.IsEmpty());
  canvas.wnd.ControlPaste();
  ExpectBox(RectOf(canvas.page.cards[2]), {0, 26, 40, 20}, "a");
  ExpectBox(RectOf(canvas.page.cards[1]), {26, 0, 40, 20}, "b");
  ExpectBox(RectOf(canvas.page.cards[0]), {170, 277, 40, 20}, "c just fits");
}

TEST_F(ClipboardTest, AnotherPageTakesThem) {
  Canvas from;
  from.Add(L"a", {20, 20, 40, 20});
  static_cast<RVCardLabel*>(from.wnd.Edit({text::kChange, 1}).Card(L"a"))->text = L"\u20ac <&> \U0001F600";
  from.wnd.SelectControls({L"a"});
  from.wnd.ControlCopy();
  EXPECT_NE(Held().find("<controlClipboard>"), std::string::npos);
  Canvas to;
  to.wnd.ControlPaste();
  ASSERT_EQ(to.page.cards.Size(), 1u);
  EXPECT_EQ(static_cast<const RVCardLabel&>(to.page.cards[0]).text, L"\u20ac <&> \U0001F600");
  EXPECT_EQ(to.page.cards[0].GetParent(), &to.page);
}

TEST_F(ClipboardTest, InnerCardsGetIdsOfTheirOwn) {
  Canvas canvas;
  auto card = std::make_unique<RVCardConditioned>();
  card->id = L"outer";
  card->cards.push_back(std::make_unique<RVCardLabel>());
  card->cards.back()->id = L"inner";
  card->conditions.push_back(L"1");
  canvas.page.cards.PushFront(std::move(card));
  canvas.wnd.SelectControls({L"outer"});
  canvas.wnd.ControlCopy();
  canvas.wnd.ControlPaste();
  const auto& pasted = static_cast<const RVCardConditioned&>(canvas.page.cards[0]);
  ASSERT_EQ(pasted.cards.size(), 1u);
  EXPECT_NE(pasted.id, L"outer");
  EXPECT_NE(pasted.cards[0]->id, L"inner");
  EXPECT_NE(pasted.cards[0]->id, L"");
}

TEST_F(ClipboardTest, OtherProgramsGetPictures) {
  Canvas canvas;
  canvas.AddTwo();
  canvas.wnd.SetPictureMaker([](const RVReportPage&, const std::vector<std::wstring>& ids, ClipboardContent& content) {
    content.svg = "svg of " + std::to_string(ids.size());
  });
  canvas.wnd.SelectControls({L"a", L"b"});
  canvas.wnd.ControlCopy();
  EXPECT_EQ(host.clipboard->Content().svg, "svg of 2");
  EXPECT_NE(host.clipboard->Content().text, "");
}

std::string Nested(int depth) {
  std::string text = "<controlClipboard>";
  for (int i = 0; i < depth; ++i) text += "<conditioned><controls><control>";
  return text + "</controlClipboard>";
}

// Nothing of the page changes, paste is not offered, and it is quick to say so.
TEST_F(ClipboardTest, HostileClipboards) {
  std::string manyCards = "<controlClipboard>";
  while (manyCards.size() < (7u << 20)) manyCards += "<label/>";
  const std::pair<const char*, std::string> rows[] = {
      {"nothing", ""},
      {"plain text", "total 42"},
      {"10 MB of text", std::string(10 << 20, 'x')},
      {"10 MB of brackets", std::string(10 << 20, '<')},
      {"10 MB in a root", "<controlClipboard>" + std::string(10 << 20, ' ') + "</controlClipboard>"},
      {"another root", "<reportLayout><label/></reportLayout>"},
      {"a root that begins alike", "<controlClipboard2><label/></controlClipboard2>"},
      {"another case", "<ControlClipboard><label/></ControlClipboard>"},
      {"root further down", "<a><controlClipboard><label/></controlClipboard></a>"},
      {"broken", "<controlClipboard><label></controlClipboard>"},
      {"cut off", "<controlClipboard><label><id>a</id>"},
      {"two roots", "<controlClipboard/><controlClipboard/>"},
      {"no UTF-8", "<controlClipboard><label><text>\xff\xfe</text></label></controlClipboard>"},
      {"deep", Nested(100000)},
      {"bomb", "<!DOCTYPE a [<!ENTITY b \"bbbb\"><!ENTITY c \"&b;&b;&b;\">]><a>&c;</a>"},
  };
  Canvas canvas;
  canvas.AddTwo();
  canvas.wnd.SelectControls({L"a"});
  canvas.wnd.AddUndoInfo(false);
  const std::string before = canvas.Saved();
  const auto start = std::chrono::steady_clock::now();
  for (const auto& [name, text] : rows) {
    Put(text);
    EXPECT_FALSE(canvas.wnd.IsActionPasteEnabled()) << name;
    canvas.wnd.ControlPaste();
    EXPECT_EQ(canvas.Saved(), before) << name;
    EXPECT_EQ(canvas.Selected(), "a") << name;
    EXPECT_EQ(canvas.wnd.UndoCount(), 2u) << name;
  }
  Put(manyCards + "</controlClipboard>");
  canvas.wnd.ControlPaste();
  EXPECT_EQ(canvas.Saved(), before) << "more cards than anybody copies";
  const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
  EXPECT_LT(taken.count(), 20.0);
}

// Elements nobody knows, and those that stand on no page, are skipped; the others are pasted.
TEST_F(ClipboardTest, UnknownElementsAreSkipped) {
  Canvas canvas;
  Put("<?xml version=\"1.0\"?><controlClipboard><chart/><dynamicImage/><label><x>nan</x><width>1e999</width></label>"
      "<date/><page><label/></page></controlClipboard>");
  EXPECT_TRUE(canvas.wnd.IsActionPasteEnabled());
  canvas.wnd.ControlPaste();
  ASSERT_EQ(canvas.page.cards.Size(), 2u);
  EXPECT_STREQ(canvas.page.cards[0].GetRuntimeClass().tag, "date");
  EXPECT_EQ(canvas.wnd.UndoCount(), 2u);
}

}  // namespace
}  // namespace xrpt
