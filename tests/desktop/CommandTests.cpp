// Every command of the catalogue as the window shows it: drawn, named in both languages, with keys of its own.
#include <gmock/gmock.h>

#include <QAction>
#include <QLayout>
#include <QMessageBox>
#include <QPushButton>
#include <QTranslator>
#include <set>

#include "desktop/WindowTest.h"
#include "desktop/dialogs/CommandPalette.h"
#include "desktop/look/Icons.h"
#include "desktop/look/Texts.h"
#include "desktop/look/Theme.h"
#include "desktop/panels/Outline.h"
#include "desktop/panels/PropertyPanel.h"
#include "desktop/ribbon/Ribbon.h"
#include "desktop/ribbon/RibbonButton.h"
#include "desktop/ribbon/RibbonGroup.h"
#include "desktop/ribbon/RibbonPage.h"
#include "editor/CommandCatalogue.h"
#include "editor/CommandHelp.h"
#include "host/TextCatalogue.h"
#include "model/CardRegistry.h"

namespace xrpt {
namespace {

using ::testing::IsEmpty;

bool IsWritten(const std::wstring& text) { return !text.empty() && text.front() != L'#'; }

TEST(Commands, AreDrawnAndNamedInBothLanguages) {
  for (const Command& command : CommandCatalogue()) {
    EXPECT_TRUE(HasIcon(QLatin1String(command.icon))) << command.name << " has no icon " << command.icon;
    for (const Language language : {Language::English, Language::Spanish}) {
      const TextCatalogue texts(language);
      for (const int id : {command.textId, command.HintTextId(), command.groupTextId})
        EXPECT_TRUE(IsWritten(texts.Text(id))) << command.name << " lacks text " << id;
    }
  }
}

TEST(Commands, EveryCardHasTheIconOfItsKind) {
  for (const RegistryRow& row : CardRegistry()) {
    if (!row.onPage) continue;
    EXPECT_TRUE(HasIcon(CardIconName(row.kind().tag))) << row.kind().tag;
  }
}

class CommandWindow : public WindowTest {};

TEST_F(CommandWindow, EachHasATooltipAndKeysThatNoOtherHas) {
  std::map<QString, QString> owners;
  for (const QAction* action : Window().AllActions().All()) {
    EXPECT_TRUE(action->toolTip().contains(action->statusTip().toHtmlEscaped())) << action->objectName().toStdString();
    EXPECT_FALSE(action->shortcut().isEmpty()) << action->objectName().toStdString();
    for (const QKeySequence& key : action->shortcuts()) {
      const auto [owner, isNew] = owners.emplace(key.toString(), action->objectName());
      EXPECT_TRUE(isNew) << key.toString().toStdString() << " is " << owner->second.toStdString() << "'s and "
                         << action->objectName().toStdString() << "'s";
    }
  }
}

TEST_F(CommandWindow, LettersTypedInAFieldAreNoTools) {
  Run("Pointer");
  QWidget* name = Window().Properties().Find("name");
  ASSERT_NE(name, nullptr);
  name->setFocus();
  QTest::keyClicks(name, QStringLiteral("bl"));
  Settle();
  EXPECT_TRUE(Window().AllActions().Find("Pointer")->isChecked());
  EXPECT_THAT(ToUtf8(Page().Page().properties.name), ::testing::EndsWith("bl"));
}

TEST_F(CommandWindow, SwitchesShowWhatIsOn) {
  const auto isOn = [this](const char* name) { return Window().AllActions().Find(name)->isChecked(); };
  EXPECT_TRUE(isOn("Rulers"));
  EXPECT_TRUE(isOn("SmartGuides"));
  Run("Rulers");
  Run("SmartGuides");
  EXPECT_FALSE(isOn("Rulers"));
  EXPECT_FALSE(Window().Pages().HasRulers());
  EXPECT_FALSE(isOn("SmartGuides"));
  EXPECT_FALSE(Page().HasSmartGuides());
  Run("AddPage");
  EXPECT_FALSE(Page().HasSmartGuides());
}

TEST_F(CommandWindow, TwoCardsCanBeDistributed) {
  OpenSample();
  const std::pair<std::vector<std::size_t>, bool> rows[] = {{{3}, false}, {{3, 5}, true}, {{3, 5, 6}, true}};
  for (const auto& [cards, isEnabled] : rows) {
    Page().SelectPlaces(cards);
    Frame().Port().StateChanged();
    Settle();
    for (const char* name : {"DistributeHorizontally", "DistributeVertically"})
      EXPECT_EQ(Window().AllActions().Find(name)->isEnabled(), isEnabled) << name << " of " << cards.size();
  }
}

TEST_F(CommandWindow, DarkThemeLeavesThePageWhiteAndTheReportUnchanged) {
  Run("DarkTheme");
  EXPECT_TRUE(IsDarkTheme());
  EXPECT_FALSE(Frame().IsModified());
  EXPECT_EQ(Page().Surround(), ThemeSurround(true));
  const QImage shown = View().viewport()->grab().toImage();
  EXPECT_EQ(shown.pixelColor(shown.width() / 2, shown.height() / 2), QColor(Qt::white));
  Run("DarkTheme");
  EXPECT_EQ(Page().Surround(), ThemeSurround(false));
}

TEST_F(CommandWindow, NarrowRibbonFoldsGroupsFromTheRight) {
  Ribbon& ribbon = Window().Tabs();
  constexpr int kArrange = 2;
  ribbon.ShowTab(kArrange);
  std::vector<int> rooms;
  for (const int width : {1800, 900, 620}) {
    Window().resize(width, 800);
    Settle();
    ASSERT_EQ(ribbon.width(), width);
    int room = 0;
    for (const RibbonGroup* group : ribbon.Page(kArrange).Groups()) room += static_cast<int>(group->Room());
    rooms.push_back(room);
    const RibbonGroup& last = *ribbon.Page(kArrange).Groups().back();
    EXPECT_LE(last.geometry().right(), width);
  }
  EXPECT_EQ(rooms.front(), 0);
  EXPECT_LT(rooms[0], rooms[1]);
  EXPECT_LT(rooms[1], rooms[2]);
}

TEST(Toolkit, ItsOwnTextsAreInTheUsersLanguage) {
  const auto yes = [] {
    const QMessageBox box(QMessageBox::Question, {}, {}, QMessageBox::Yes | QMessageBox::Cancel);
    return QPair(box.button(QMessageBox::Yes)->text().remove(QLatin1Char('&')).toStdString(),
                 box.button(QMessageBox::Cancel)->text().remove(QLatin1Char('&')).toStdString());
  };
  EXPECT_EQ(yes(), qMakePair(std::string("Yes"), std::string("Cancel")));
  ASSERT_TRUE(TranslateToolkit(*qApp, "es_ES.UTF-8"));
  EXPECT_EQ(yes(), qMakePair(std::string("Sí"), std::string("Cancelar")));
  for (QTranslator* translator : qApp->findChildren<QTranslator*>()) delete translator;
  EXPECT_FALSE(TranslateToolkit(*qApp, "xx"));
}

TEST(Labels, TwoLinesOfNearlyEqualLength) {
  const std::pair<const char*, const char*> rows[] = {
      {"Paste", "Paste\n"}, {"Select all", "Select\nall"}, {"Centre group on page", "Centre group\non page"}};
  for (const auto& [label, broken] : rows) EXPECT_EQ(InTwoLines(QString::fromLatin1(label)).toStdString(), broken);
}

TEST(Labels, MnemonicsAreOneToALabel) {
  EXPECT_EQ(WithMnemonics({"Inicio", "Insertar", "Informe", "Vista"}),
            QStringList({"&Inicio", "I&nsertar", "In&forme", "&Vista"}));
}

TEST_F(CommandWindow, ThePagesMenuHoldsWhatCanRun) {
  OpenSample();
  for (const std::vector<std::size_t>& chosen : {std::vector<std::size_t>{}, {3}, {3, 5}}) {
    Page().SelectPlaces(chosen);
    const std::vector<const Command*> menu = PageMenuCommands(Frame());
    ASSERT_FALSE(menu.empty());
    EXPECT_TRUE(menu.front() && menu.back());
    for (std::size_t i = 0; i < menu.size(); ++i) {
      EXPECT_TRUE(!menu[i] || menu[i]->isEnabled(Frame())) << i;
      EXPECT_TRUE(i == 0 || menu[i] || menu[i - 1]) << "two partings beside each other";
    }
    const bool hasDelete = std::find(menu.begin(), menu.end(), FindCommand("Delete")) != menu.end();
    EXPECT_EQ(hasDelete, !chosen.empty());
  }
}

TEST_F(CommandWindow, EveryDisabledCommandSaysWhatItWaitsFor) {
  for (const Command& command : CommandCatalogue()) {
    if (command.isEnabled(Frame())) continue;
    EXPECT_TRUE(IsWritten(WhyUnavailable(command, Frame()))) << command.name;
  }
}

TEST_F(CommandWindow, PaletteFindsBySense) {
  const auto answers = [](const char* typed, const char* name) {
    const Command& command = *FindCommand(name);
    return SenseScore(ToQString(OtherWordsFor(command)), QLatin1String(typed));
  };
  EXPECT_GT(answers("clone", "Duplicate"), 0);
  EXPECT_GT(answers("chart", "NewReportGraph"), 0);
  EXPECT_GT(answers("expo", "Print"), 0);
  EXPECT_EQ(answers("ch", "NewReportGraph"), 0) << "too little to say";
  EXPECT_EQ(answers("chart", "NewLabel"), 0);
}

TEST(Palette, BestAnswersComeFirst) {
  EXPECT_EQ(MatchScore("Align: Left", "xyz"), 0);
  EXPECT_EQ(MatchScore("Align: Left", "la"), 0);  // letters in this order only
  EXPECT_GT(MatchScore("Align: Left", "al"), MatchScore("Cards: Label", "al"));
  EXPECT_GT(MatchScore("Order: To front", "of"), 0);
  EXPECT_GT(MatchScore("Anything", ""), 0);
}

}  // namespace
}  // namespace xrpt
