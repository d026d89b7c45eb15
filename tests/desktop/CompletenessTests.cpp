// Nothing is left half made: every command can be found and carried out, every field can be edited, and no two things
// of a place answer to the same letter.
#include <gmock/gmock.h>

#include <QAbstractButton>
#include <QAction>
#include <QLabel>
#include <map>

#include "desktop/TextIds.h"
#include "desktop/WindowTest.h"
#include "desktop/dialogs/ExportDialog.h"
#include "desktop/dialogs/ImageStoreDialog.h"
#include "desktop/dialogs/PageDialog.h"
#include "desktop/dialogs/PictureChooser.h"
#include "desktop/dialogs/ReportListDialog.h"
#include "desktop/dialogs/StylesDialog.h"
#include "desktop/look/Texts.h"
#include "desktop/panels/FieldEditors.h"
#include "editor/CommandCatalogue.h"
#include "editor/TextStyles.h"
#include "model/CardRegistry.h"
#include "model/ListTable.h"

namespace xrpt {
namespace {

using ::testing::IsEmpty;

class Completeness : public WindowTest {
 protected:
  Completeness() { std::filesystem::copy(Path(XRPT_EXAMPLES) / "images", host.Images(), Deep()); }
  static std::filesystem::copy_options Deep() { return std::filesystem::copy_options::recursive; }

  static bool IsWritten(int textId) { return textId != 0 && !Translated(textId).startsWith(QLatin1Char('#')); }

  // What a field lacks to be edited; empty when nothing.
  std::string Lack(const FieldRow& row) {
    if (!IsWritten(row.panel.textId)) return "a label";
    const auto editor = MakeFieldEditor(
        row, [](const std::string&) {}, [] { return ExpressionSources(); }, &Window());
    if (!editor || !editor->Widget()) return "an editor";
    for (const Word& word : row.words) {
      if (row.panel.editor == FieldEditor::Choice && !IsWritten(word.textId))
        return std::string("words for ") + word.text;
    }
    return {};
  }

  // Letters that stand for more than one thing of a window.
  static std::vector<std::string> SharedLetters(const std::vector<QString>& texts) {
    std::map<QChar, QString> owners;
    std::vector<std::string> shared;
    for (const QString& text : texts) {
      const QKeySequence key = QKeySequence::mnemonic(text);
      if (key.isEmpty()) continue;
      const QChar letter = key.toString().back();
      const auto [owner, isNew] = owners.emplace(letter, text);
      if (!isNew) shared.push_back((owner->second + QStringLiteral(" / ") + text).toStdString());
    }
    return shared;
  }
  static std::vector<std::string> SharedLetters(const QWidget& window) {
    std::vector<QString> texts;
    for (const auto* button : window.findChildren<QAbstractButton*>()) texts.push_back(button->text());
    for (const auto* label : window.findChildren<QLabel*>()) {
      if (label->buddy()) texts.push_back(label->text());
    }
    return SharedLetters(texts);
  }
};

TEST_F(Completeness, EveryCommandIsCarriedOutBySomebody) {
  for (const Command& command : CommandCatalogue()) {
    EXPECT_TRUE(command.run || Window().Knows(command.name)) << command.name;
    EXPECT_TRUE(command.isEnabled) << command.name;
    EXPECT_TRUE(IsWritten(command.HintTextId())) << command.name;
  }
}

// Fields of the file that no panel shows, and why.
const std::map<std::string, const char*> kNotOnAPanel = {
    {"id", "made by the program, and never changed"},
    {"font/color", "the card's own colour, written a second time where fonts are looked for"},
    {"condition", "typed beside the alternative that it belongs to"},
    {"image/imageId", "named by the picture's row"},
    {"image/imagePath", "named by the picture's row"},
};

TEST_F(Completeness, EveryFieldOfEveryCardHasAnEditorOrAReason) {
  const auto check = [this](const std::string& kind, const FieldRow& row, bool isAssigned) {
    if (row.panel.textId == 0) {
      const bool hasReason = !row.name || !isAssigned || kNotOnAPanel.contains(row.FullName());
      EXPECT_TRUE(hasReason) << kind << " " << row.FullName();
    } else {
      EXPECT_EQ(Lack(row), "") << kind << " " << row.FullName();
    }
  };
  for (const RegistryRow& kind : CardRegistry()) {
    const CardClass& card = kind.kind();
    ForEachField(card.table, [&](const CardRow& row) {
      check(card.tag, row, row.assign != nullptr);
      if (!row.list) return;
      for (const ListOf<RVCardControl>& item : row.list().rows) check(std::string(card.tag) + " item", item, true);
    });
  }
  ForEachField(RVGlobalProperties::Table(), [&](const PageRow& row) { check("page", row, row.assign != nullptr); });
  ForEachField(tagStyleCfg::Table(),
               [&](const FieldOf<tagStyleCfg>& row) { check("style", row, row.assign != nullptr); });
}

TEST_F(Completeness, NoTwoCommandsOfATabShareALetter) {
  for (const CommandTab& tab : CommandTabs()) {
    std::vector<QString> labels;
    for (const Command& command : CommandCatalogue()) {
      if (command.tab == tab.tab) labels.push_back(Translated(command.textId));
    }
    EXPECT_THAT(SharedLetters(labels), IsEmpty()) << Translated(tab.textId).toStdString();
  }
}

TEST_F(Completeness, NoTwoControlsOfADialogShareALetterAndEachAnswersEscape) {
  OpenSample();
  CDlgGlobalProperties page(Page().Page().properties);
  const std::unique_ptr<QDialog> dialogs[] = {
      std::make_unique<ReportListDialog>(L"", Path(), &Window()),
      std::make_unique<PageDialog>(page, true, &Window()),
      std::make_unique<ImageStoreDialog>(Frame().Report(), &Window()),
      std::make_unique<ExportDialog>(ExportFormat::Png, 4, 0, &Window()),
      std::make_unique<StylesDialog>(&Window()),
      std::make_unique<PictureChooser>(L"", &Window()),
  };
  for (const auto& dialog : dialogs) {
    const std::string title = dialog->windowTitle().toStdString();
    EXPECT_NE(title, "");
    EXPECT_THAT(SharedLetters(*dialog), IsEmpty()) << title;
    dialog->show();
    QTest::keyClick(dialog.get(), Qt::Key_Escape);
    EXPECT_FALSE(dialog->isVisible()) << title;
  }
}

}  // namespace
}  // namespace xrpt
