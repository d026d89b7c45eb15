// The books that every deed in the window is held to: what the report's file would say after each step of its history.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "canvas/UndoTexts.h"
#include "editor/RVEditControlWnd.h"
#include "model/RVCardImage.h"
#include "support/TestHost.h"

namespace xrpt {

class StepBook {
 public:
  explicit StepBook(RVEditControlWnd& frame) : frame_(frame) { Restart(); }

  // What would be saved, but for the mark that every save has of its own; and what the cards hold beside that (how fast
  // a text would scroll, while it does not).
  std::string Text() const {
    std::string text = SavedText();
    for (std::size_t i = 0; i < frame_.PageCount(); ++i) {
      const RVReportPage& page = frame_.Page(i).Page();
      AddUnsaved(text, RVGlobalProperties::Table(), page.properties);
      AddAll(text, page.properties.Background());
      for (std::size_t card = 0; card < page.cards.Size(); ++card)
        AddUnsaved(text, page.cards[card].GetRuntimeClass().table, page.cards[card]);
    }
    return text;
  }
  std::string SavedText() const { return Unmarked(frame_.Report().TemplateText()); }

  // A report was opened: its history begins.
  void Restart() {
    texts_ = {Text()};
    at_ = 0;
    EXPECT_EQ(Steps(), 0u);
    EXPECT_FALSE(frame_.IsModified());
  }

  // Enters what a deed made of the report: nothing, or exactly one named step. One that goes on with what the deed
  // before was doing may change the step instead, or take it back; one that types may come back to what stood there.
  // True when the report changed.
  bool Enter(const std::string& deed, bool mayGoOn = false, bool types = false) {
    const std::string now = Text();
    const bool changed = now != texts_[at_];
    ExpectMark(deed);
    if (Steps() == at_ + 1) {
      EXPECT_TRUE(changed) << deed << " is a step that changes nothing: " << NameOfStep();
      EXPECT_FALSE(NameOfStep().empty()) << deed << " has no name";
      EXPECT_FALSE(frame_.CanRedo()) << deed;
      texts_.resize(++at_);
      texts_.push_back(now);
    } else if (mayGoOn && changed && Steps() + 1 == at_ && now == texts_[at_ - 1]) {
      texts_.resize(at_--);
    } else if (mayGoOn && changed && Steps() == at_) {
      texts_.resize(at_ + 1);
      texts_[at_] = now;
    } else {
      EXPECT_EQ(Steps(), at_) << deed << (changed ? " changes the report by " : " changes nothing and is ")
                              << "so many steps, the last " << NameOfStep();
      EXPECT_FALSE(changed) << deed << " is no step; before | now\n" << Difference(texts_[at_], now);
      EXPECT_TRUE(types || frame_.CanRedo() == CanGoForth()) << deed << " takes away what could be made again";
      if (changed || Steps() != at_ || !frame_.CanRedo()) Resume(now);
    }
    return changed;
  }

  // The newest step was taken back, or made again.
  void EnterBack() { EnterAt(at_ - 1, "undo"); }
  void EnterForth() { EnterAt(at_ + 1, "redo"); }
  bool CanGoBack() const { return at_ > 0; }
  bool CanGoForth() const { return at_ + 1 < texts_.size(); }

 private:
  static std::string Unmarked(std::string text) {
    const std::size_t from = text.find("<revision>");
    return from == std::string::npos ? text : text.erase(from, text.find("</revision>") - from);
  }
  template <class Root>
  static void AddUnsaved(std::string& text, const FieldTable<Root>& table, const Root& object) {
    ForEachField(table, [&](const FieldOf<Root>& row) {
      const bool isSaved = row.name && (!row.isWritten || row.isWritten(object)) && row.Applies(object);
      if (row.text && row.assign && !isSaved) text += ToUtf8(row.text(object)) + "\n";
    });
  }

  // A background without a picture is not in the file.
  static void AddAll(std::string& text, const RVCardControl& card) {
    ForEachField(card.GetRuntimeClass().table, [&](const CardRow& row) {
      if (row.text) text += ToUtf8(row.text(card)) + "\n";
    });
  }

  std::size_t Steps() const { return frame_.History().DoneNames().size(); }
  std::string NameOfStep() const { return ToUtf8(UndoText(frame_.History().NextUndoName())); }

  void EnterAt(std::size_t at, const char* way) {
    at_ = at;
    EXPECT_EQ(Steps(), at_) << way;
    EXPECT_EQ(frame_.CanRedo(), CanGoForth()) << way;
    const std::string now = Text();
    EXPECT_TRUE(now == texts_[at_]) << way << " gives another report; wanted | given\n" << Difference(texts_[at_], now);
    ExpectMark(way);
  }
  // What counts as saved is what the file holds.
  void ExpectMark(const std::string& deed) const {
    if (frame_.IsModified()) return;
    const std::string file = Unmarked(TestHost::ReadFile(frame_.Report().FilePath()));
    const std::string now = SavedText();
    EXPECT_TRUE(now == file) << deed << " is not marked as modified; file | now\n" << Difference(file, now);
  }
  // After a fault the books follow the report, so that the next deeds are judged by themselves.
  void Resume(const std::string& now) {
    at_ = Steps();
    texts_.resize(at_ + 1, "unknown");
    texts_[at_] = now;
  }
  // The first stretch that differs.
  static std::string Difference(const std::string& left, const std::string& right) {
    const auto [in, other] = std::mismatch(left.begin(), left.end(), right.begin(), right.end());
    const auto from = static_cast<std::size_t>(std::max<std::ptrdiff_t>(0, in - left.begin() - 120));
    return left.substr(from, 240) + "\n|\n" + right.substr(from, 240);
  }

  RVEditControlWnd& frame_;
  std::vector<std::string> texts_;  // after each step, those that were undone included; the first before any
  std::size_t at_ = 0;
};

}  // namespace xrpt
