// Lists within the property panel: series of a graph, alternatives of a conditioned card, the choosers of names.
#include <gmock/gmock.h>

#include <QLineEdit>
#include <QListView>
#include <QListWidget>
#include <QMenu>
#include <QTimer>
#include <QToolButton>

#include "desktop/WindowTest.h"
#include "desktop/dialogs/PictureChooser.h"
#include "desktop/dialogs/VariableChooser.h"
#include "desktop/panels/AlternativesEditor.h"
#include "desktop/panels/ChosenField.h"
#include "desktop/panels/ItemsEditor.h"
#include "desktop/panels/ListButtons.h"
#include "desktop/panels/PropertyPanel.h"
#include "editor/ImageStore.h"
#include "host/qt/QtPictures.h"
#include "model/RVCardConditioned.h"
#include "model/RVCardImage.h"
#include "model/RVCardReportGraph.h"

namespace xrpt {
namespace {

using ::testing::ElementsAre;
using ::testing::SizeIs;

class ListEditors : public WindowTest {
 protected:
  template <class Card>
  void Put(std::unique_ptr<Card> card) {
    card->id = L"C";
    card->x = card->y = 20.0;
    card->width = card->height = 40.0;
    Frame().CurrentPage().Edit({0, 1}).Cards().PushFront(std::move(card));
    Page().SelectControls({L"C"});
    Settle();
  }
  template <class Card>
  const Card& Shown() {
    return dynamic_cast<const Card&>(ListEditors::Card(L"C"));
  }
  PropertyPanel& Panel() { return Window().Properties(); }
  static QToolButton& Button(QWidget& within, int number) {
    return *PartOf<ListButtons>(within).findChildren<QToolButton*>().at(number);
  }
};

TEST_F(ListEditors, SeriesAreAddedNamedAndRemovedByHand) {
  Put(std::make_unique<RVCardReportGraph>());
  ItemsEditor& items = Panel().Items();
  ASSERT_TRUE(items.isVisible());
  Button(items, 0).click();
  Settle();
  Button(items, 0).click();
  Settle();
  ASSERT_EQ(items.List().count(), 2);
  auto& variable = dynamic_cast<ChosenField&>(*Panel().Find("id"));
  QTest::keyClicks(&variable.Line(), "MAIN.P");
  Settle();
  EXPECT_THAT(Shown<RVCardReportGraph>().variables, ElementsAre(L"", L"MAIN.P"));
  EXPECT_EQ(items.List().item(1)->text(), "MAIN.P");
  items.List().setCurrentRow(0);
  Button(items, 1).click();
  Settle();
  EXPECT_THAT(Shown<RVCardReportGraph>().variables, ElementsAre(L"MAIN.P"));
  Run("Undo");
  Run("Undo");
  EXPECT_THAT(Shown<RVCardReportGraph>().variables, ElementsAre(L"", L""));
  Page().ClearSelection();
  Frame().SetModified(true);
  Settle();
  EXPECT_FALSE(items.isVisible());
}

TEST_F(ListEditors, AnAlternativeIsWrittenWhereItStands) {
  Put(std::make_unique<RVCardConditioned>());
  AlternativesEditor& alternatives = Panel().Alternatives();
  ASSERT_TRUE(alternatives.isVisible());
  Button(alternatives, 0).menu()->actions().at(1)->trigger();
  Settle();
  ASSERT_EQ(alternatives.List().count(), 1);
  QTest::keyClicks(&alternatives.Condition(), "1 < 2");
  Settle();
  EXPECT_THAT(Shown<RVCardConditioned>().conditions, ElementsAre(L"1 < 2"));
  EXPECT_THAT(Shown<RVCardConditioned>().cards, SizeIs(1));
  EXPECT_NE(Panel().Find("font/size"), nullptr) << "the inner label's";
  EXPECT_TRUE(alternatives.List().item(0)->text().startsWith("1 < 2"));
}

TEST_F(ListEditors, VariablesAreFoundByWordsOfTheirNames) {
  host.WriteCfg(
      "devices.xml",
      "<devices><device><id>MAIN</id><name>Main feeder</name><variable><id>P</id><name>Active power</name></variable>"
      "<variable><id>Q</id><name>Reactive power</name></variable></device></devices>");
  VariableChooser chooser(L"MAIN.Q", nullptr);
  chooser.show();
  EXPECT_EQ(chooser.Chosen(), L"MAIN.Q");
  auto* filter = chooser.findChild<QLineEdit*>();
  QTest::keyClicks(filter, "feeder active");
  auto* list = chooser.findChild<QListView*>();
  EXPECT_EQ(list->model()->rowCount(), 2) << "reactive holds active, too";
  QTest::keyClicks(filter, " p ");
  QTest::keyClick(filter, Qt::Key_Return);
  EXPECT_EQ(chooser.result(), QDialog::Accepted);
  EXPECT_EQ(chooser.Chosen(), L"MAIN.P");
}

TEST_F(ListEditors, PicturesAreAddedFromFilesAndShownBeforeTheyAreChosen) {
  host->pictures = std::make_unique<QtPictures>();
  QImage red(200, 100, QImage::Format_RGB32);
  red.fill(Qt::red);
  const Path file = host.Cfg() / "boiler.png";
  ASSERT_TRUE(red.save(QString::fromStdString(file.string())));
  EXPECT_EQ(AddPicture(file).name, L"boiler");
  EXPECT_EQ(AddPicture(file).name, L"boiler_1");
  host.WriteCfg("text.png", "no picture");
  EXPECT_FALSE(AddPicture(host.Cfg() / "text.png").problem.empty());
  EXPECT_FALSE(AddPicture(host.Cfg() / "none.png").problem.empty());

  Put(std::make_unique<RVCardImage>());
  PictureChooser chooser(L"boiler", nullptr);
  chooser.show();
  EXPECT_EQ(chooser.Chosen(), L"boiler");
  auto& model = *chooser.findChild<QListView*>()->model();
  const QModelIndex first = model.index(0, 0);
  const auto middle = [&] {
    return model.data(first, Qt::DecorationRole).value<QPixmap>().toImage().pixelColor(48, 48);
  };
  for (int i = 0; i < 100 && middle() != Qt::red; ++i) QTest::qWait(20);
  EXPECT_EQ(middle(), QColor(Qt::red));

  auto& field = dynamic_cast<ChosenField&>(*Panel().Find("image"));
  QTimer::singleShot(0, qApp, [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Return); });
  QTest::keyClicks(&field.Line(), "boiler");
  field.Button().click();
  Settle();
  EXPECT_EQ(Shown<RVCardImage>().ImageId(), L"boiler");
  EXPECT_NE(Shown<RVCardImage>().GetPicture(), nullptr);
}

}  // namespace
}  // namespace xrpt
