// Editing a card that a snapshot shares: the snapshot keeps the card as it was, and the page loses nothing by it.
#include <gtest/gtest.h>

#include <filesystem>

#include "model/RVReport.h"
#include "platform/XmlWriter.h"
#include "support/TestHost.h"

namespace xrpt {
namespace {

std::string Saved(const RVCardControl& card) {
  std::string text;
  XmlWriter out(text);
  card.SaveTemplate(&out, true);
  return text;
}

using CardListTest = HostTest;

TEST_F(CardListTest, EveryCardOfTheSamplesIsStillAllThereWhenEditedWhileShared) {
  int cards = 0;
  for (const auto& file : std::filesystem::directory_iterator(XRPT_SAMPLES)) {
    if (file.path().extension() != ".xrpt") continue;
    RVReport report;
    ASSERT_TRUE(report.LoadFile(file.path()).loaded);
    for (const auto& page : report.pages) {
      const SharedCards snapshot = page->cards.Share();
      for (std::size_t i = 0; i < page->cards.Size(); ++i, ++cards) {
        const std::string before = Saved(page->cards[i]);
        RVCardControl& own = page->cards.Edit(i);
        EXPECT_EQ(Saved(own), before);
        own.x += 1.0;
        EXPECT_EQ(Saved(*snapshot[i]), before);
      }
    }
  }
  EXPECT_GT(cards, 500);
}

TEST_F(CardListTest, ASnapshotSharesWhatDidNotChangeSinceTheOneBefore) {
  RVReportPage page;
  for (int i = 0; i < 300; ++i) page.cards.PushBack(std::make_unique<RVCardControl>());
  const SharedCards first = page.cards.Share();
  page.cards.Edit(std::size_t{150}).x = 5.0;
  EXPECT_FALSE(page.cards.Equals(first));
  const SharedCards second = page.cards.Share(first);
  int different = 0;
  for (std::size_t i = 0; i < 300; ++i) different += first[i] != second[i] ? 1 : 0;
  EXPECT_EQ(different, 1);
  page.cards.Restore(first);
  EXPECT_EQ(page.cards[150].x, 0.0);
  page.cards.Remove({0, 299, 7});
  EXPECT_EQ(page.cards.Size(), 297u);
  EXPECT_EQ(&page.cards[0], first[1].get());
}

// Every card of the samples, moved about with now and then another change: each snapshot comes back as it was, however
// many came after it.
TEST_F(CardListTest, PackedSnapshotsComeBackToTheLastBit) {
  for (const auto& file : std::filesystem::directory_iterator(XRPT_SAMPLES)) {
    if (file.path().extension() != ".xrpt") continue;
    RVReport report;
    ASSERT_TRUE(report.LoadFile(file.path()).loaded);
    CardList& cards = report.pages.front()->cards;
    std::vector<SharedCards> steps;
    std::vector<std::vector<std::string>> texts;
    for (int step = 0; step < 9; ++step) {
      for (std::size_t i = 0; i < cards.Size(); ++i) {
        RVCardControl& card = cards.Edit(i);
        card.x += 0.1;
        if (step == 4 && i % 100 == 7) card.color += 1;
      }
      steps.push_back(cards.Share(steps.empty() ? SharedCards() : steps.back()));
      if (step > 0) steps[steps.size() - 2].Pack(steps.back());
      std::vector<std::string>& saved = texts.emplace_back();
      for (std::size_t i = 0; i < cards.Size(); ++i) saved.push_back(Saved(cards[i]));
    }
    for (const std::size_t step : {8, 7, 3, 4, 5, 0, 6}) {
      EXPECT_EQ(cards.Equals(steps[step]), step == 8 || cards.IsEmpty()) << step;
      CardList other;
      other.Restore(steps[step]);
      EXPECT_TRUE(other.Equals(steps[step])) << step;
      ASSERT_EQ(other.Size(), texts[step].size());
      for (std::size_t i = 0; i < other.Size(); ++i) EXPECT_EQ(Saved(other[i]), texts[step][i]);
    }
  }
}

}  // namespace
}  // namespace xrpt
