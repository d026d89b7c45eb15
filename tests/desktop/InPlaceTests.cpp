// Text edited where it stands, with real keys and clicks.
#include <gmock/gmock.h>

#include "canvas/InsertTools.h"
#include "desktop/WindowTest.h"
#include "desktop/page/InPlaceEditor.h"
#include "model/RVCardLabel.h"

namespace xrpt {
namespace {

class InPlace : public WindowTest {
 protected:
  InPlace() {
    OpenSample();
    id_ = CardWith("text/textStr", L"Desde");
    Click(MiddleOf(id_));
  }

  InPlaceEditor& Editor() { return const_cast<InPlaceEditor&>(*View().Editor()); }
  bool IsEditing() { return View().Editor() != nullptr; }
  std::wstring Text() { return static_cast<const RVCardLabel&>(Card(id_)).text; }
  void DoubleClick(QPoint at) {
    Click(at);
    QTest::mouseDClick(View().viewport(), Qt::LeftButton, {}, at);
    Settle();
  }
  void Type(const char* words) {
    QTest::keyClicks(&Editor(), QString::fromLatin1(words));
    Settle();
  }

  std::wstring id_;
};

TEST_F(InPlace, OpensByDoubleClickF2EnterAndTyping) {
  DoubleClick(MiddleOf(id_));
  ASSERT_TRUE(IsEditing());
  EXPECT_EQ(Editor().Words(), L"Desde");
  EXPECT_TRUE(Editor().geometry().contains(MiddleOf(id_)));
  QTest::keyClick(&Editor(), Qt::Key_Escape);
  Settle();
  EXPECT_FALSE(IsEditing());
  for (const Qt::Key key : {Qt::Key_F2, Qt::Key_Return}) {
    Key(key);
    EXPECT_TRUE(IsEditing()) << key;
    QTest::keyClick(&Editor(), Qt::Key_Escape);
    Settle();
  }
  EXPECT_TRUE(View().hasFocus());
  // A letter that is a tool elsewhere begins the text here.
  QTest::keyClick(&View(), Qt::Key_L);
  ASSERT_TRUE(IsEditing());
  EXPECT_EQ(Frame().Tool(), tool::kPointer);
  Type("unes");
  QTest::keyClick(&Editor(), Qt::Key_Return);
  Settle();
  EXPECT_EQ(Text(), L"lunes");
}

TEST_F(InPlace, EscapeGivesUpAndLeavingKeepsAsOneStep) {
  Key(Qt::Key_F2);
  Type("nothing");
  QTest::keyClick(&Editor(), Qt::Key_Escape);
  Settle();
  EXPECT_EQ(Text(), L"Desde");
  EXPECT_FALSE(Frame().IsModified());

  Key(Qt::Key_F2);
  Type("kept");
  Click({5, 5});
  EXPECT_FALSE(IsEditing());
  EXPECT_EQ(Text(), L"kept");
  Run("Undo");
  EXPECT_EQ(Text(), L"Desde");
  EXPECT_FALSE(Frame().IsModified());
}

TEST_F(InPlace, WhatIsTypedIsSavedAndFollowsNoOtherPage) {
  Key(Qt::Key_F2);
  Type("saved");
  Run("Save");
  EXPECT_EQ(Text(), L"saved");
  EXPECT_FALSE(Frame().IsModified());
  Key(Qt::Key_F2);
  Type("kept");
  Run("NextPage");
  EXPECT_FALSE(IsEditing());
  Run("PreviousPage");
  EXPECT_EQ(Text(), L"kept");
  // Shift and Enter begin a line.
  Key(Qt::Key_F2);
  Type("one");
  QTest::keyClick(&Editor(), Qt::Key_Return, Qt::ShiftModifier);
  Type("two");
  QTest::keyClick(&Editor(), Qt::Key_Return);
  Settle();
  EXPECT_EQ(Text(), L"one\ntwo");
}

}  // namespace
}  // namespace xrpt
