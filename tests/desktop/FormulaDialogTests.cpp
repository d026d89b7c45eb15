// The dialogs over formulas and data sources, with the keys that users have for them.
#include <gmock/gmock.h>

#include <QAbstractItemView>
#include <QClipboard>
#include <QCompleter>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTreeView>
#include <QTreeWidget>

#include "DialogTest.h"
#include "desktop/dialogs/CDlgIntroduceIdentification.h"
#include "desktop/dialogs/DialogParts.h"
#include "desktop/dialogs/formulas/ChoiceTree.h"
#include "desktop/dialogs/formulas/ExpressionEdit.h"
#include "desktop/dialogs/formulas/ExpressionField.h"
#include "desktop/dialogs/formulas/FormulaDialog.h"
#include "desktop/dialogs/formulas/FormulaWizard.h"
#include "desktop/dialogs/formulas/FormulasDialog.h"
#include "desktop/dialogs/formulas/SourcesDialog.h"
#include "desktop/look/Texts.h"
#include "formulas/FormulaTable.h"
#include "formulas/VirtualLists.h"

namespace xrpt {
namespace {

class FormulaDialogTest : public DialogTest {
 protected:
  FormulaTable Formulas() { return ReadFormulas(Frame().Report().formules); }
  static QPushButton& Ok(QDialog& dialog) {
    return *dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
  }
  static QTreeView& List(QDialog& dialog) { return Named<QTreeView>(dialog, "Formulas"); }
  static ExpressionEdit& Expression(QDialog& dialog) { return PartOf<ExpressionEdit>(dialog); }
};

TEST_F(FormulaDialogTest, AFormulaIsAddedWithTheKeyboardAlone) {
  Window();
  In<FormulasDialog>([this](FormulasDialog& dialog) {
    In<FormulaDialog>([](FormulaDialog& formula) {
      QWidget& name = Named<QLineEdit>(formula, "Name");
      EXPECT_EQ(QApplication::focusWidget(), &name);
      EXPECT_FALSE(Ok(formula).isEnabled());
      Type(name, "Peak");
      Hit(name, Qt::Key_Tab);
      EXPECT_EQ(QApplication::focusWidget(), &Expression(formula));
      Type(Expression(formula), "2 * (3 + 4");
      Rest();
      EXPECT_FALSE(Ok(formula).isEnabled());
      EXPECT_TRUE(PartOf<ExpressionField>(formula).Line().contains("never closed"));
      Type(Expression(formula), ")");
      Hit(Expression(formula), Qt::Key_Return);
      EXPECT_FALSE(formula.isVisible()) << "judged at once, whatever the pause";
    });
    Hit(List(dialog), Qt::Key_Insert);
    EXPECT_EQ(List(dialog).model()->data(List(dialog).model()->index(0, 2)).toString(), QStringLiteral("14"));
    EXPECT_TRUE(Formulas().empty()) << "nothing before OK";
    Ok(dialog).click();
  });
  Run("FormulesSetup");
  EXPECT_EQ(Formulas(), (FormulaTable{{L"Peak", L"2 * (3 + 4)"}}));
  Run("Undo");
  EXPECT_TRUE(Formulas().empty());
  EXPECT_FALSE(Frame().CanUndo());
}

TEST_F(FormulaDialogTest, ANewNameIsCarriedIntoWhatUsesIt) {
  OpenSample();
  const FormulaTable before = Formulas();
  const auto used = std::find_if(before.begin(), before.end(), [&](const Formula& formula) {
    return std::any_of(before.begin(), before.end(),
                       [&](const Formula& other) { return FormulasIn(other.text).contains(formula.name); });
  });
  ASSERT_NE(used, before.end());
  In<FormulasDialog>([&](FormulasDialog& dialog) {
    In<FormulaDialog>([this](FormulaDialog& formula) {
      In<QMessageBox>([](QMessageBox& question) { Hit(question, Qt::Key_Return); });
      QWidget& name = Named<QLineEdit>(formula, "Name");
      Hit(name, Qt::Key_A, Qt::ControlModifier);
      Type(name, "Renamed");
      Hit(name, Qt::Key_Return);
    });
    const auto row = static_cast<int>(used - before.begin());
    List(dialog).setCurrentIndex(List(dialog).model()->index(row, 0));
    Hit(List(dialog), Qt::Key_Return);
    Ok(dialog).click();
  });
  Run("FormulesSetup");
  std::size_t uses = 0;
  for (const Formula& formula : Formulas()) uses += FormulasIn(formula.text).count(L"Renamed");
  EXPECT_GT(uses, 0u);
  for (const Formula& formula : Formulas()) EXPECT_FALSE(FormulasIn(formula.text).contains(used->name));
  Run("Undo");
  EXPECT_EQ(Formulas(), before);
}

TEST_F(FormulaDialogTest, FormulasGoThroughTheClipboardAndEscapeLeavesTheReportAlone) {
  OpenSample();
  const FormulaTable before = Formulas();
  In<FormulasDialog>([&](FormulasDialog& dialog) {
    QTreeView& list = List(dialog);
    Hit(list, Qt::Key_C, Qt::ControlModifier);
    Hit(list, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(dialog.Table().Rows().back(), (Formula{before[0].name + L"_1", before[0].text}));
    Hit(list, Qt::Key_A, Qt::ControlModifier);
    Hit(list, Qt::Key_Delete);
    EXPECT_TRUE(dialog.Table().Rows().empty());
    Hit(list, Qt::Key_Escape);
    EXPECT_FALSE(dialog.isVisible());
  });
  Run("FormulesSetup");
  EXPECT_EQ(Formulas(), before);
  EXPECT_FALSE(Frame().CanUndo());
}

TEST_F(FormulaDialogTest, TheWizardFindsAndInsertsWithEnter) {
  OpenSample();
  ExpressionSources sources;
  sources.formulas = {{L"Peak", L"1"}};
  std::optional<std::wstring> written;
  In<FormulaWizard>([&](FormulaWizard& wizard) {
    QWidget& filter = *QApplication::focusWidget();
    Type(filter, "square");
    Hit(filter, Qt::Key_Return);
    EXPECT_EQ(wizard.Field().Text(), L"sqrt()");
    Hit(filter, Qt::Key_A, Qt::ControlModifier);
    Type(filter, "Peak");
    Hit(filter, Qt::Key_Return);
    EXPECT_EQ(wizard.Field().Text(), L"sqrt(Peak)") << "between the parentheses";
    EXPECT_TRUE(wizard.isVisible()) << "Enter inserts, and closes nothing";
    Rest();
    EXPECT_EQ(wizard.Field().Line(), QStringLiteral("1"));
    Hit(wizard.Field().Edit(), Qt::Key_Return);
    EXPECT_FALSE(wizard.isVisible());
  });
  written = FormulaWizard::Ask(sources, ExpressionKind::Numeric, L"", &Window());
  EXPECT_EQ(written, L"sqrt(Peak)");
}

TEST_F(FormulaDialogTest, TheFilterOpensWhatItFinds) {
  OpenSample();
  ChoiceTree tree({}, nullptr);
  tree.show();
  auto& list = *tree.findChild<QTreeWidget*>();
  Type(*tree.findChild<QLineEdit*>(), "MAIN.P");
  ASSERT_TRUE(list.currentItem());
  EXPECT_TRUE(list.currentItem()->text(0).startsWith("MAIN.P"));
  QString inserted;
  tree.chosen = [&](const std::wstring& text, std::size_t) { inserted = ToQString(text); };
  const QPoint place = list.visualItemRect(list.currentItem()).center();
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, place);
  QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, place);
  EXPECT_TRUE(inserted.startsWith("[MAIN.P"));
}

TEST_F(FormulaDialogTest, NamesAreOfferedWhileTheyAreTyped) {
  ExpressionField field(ExpressionKind::Numeric, nullptr);
  ExpressionSources sources;
  sources.formulas = {{L"Peak", L"1"}, {L"Peace", L"2"}};
  field.SetSources(sources);
  field.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&field));
  ExpressionEdit& edit = field.Edit();
  std::wstring told;
  field.textEdited = [&](const std::wstring& text) { told = text; };
  Type(edit, "1 + pe");
  EXPECT_TRUE(edit.IsOffering());
  QWidget* popup = QApplication::activePopupWidget();
  ASSERT_TRUE(popup);
  Hit(*popup, Qt::Key_Down);
  Hit(*popup, Qt::Key_Return);
  EXPECT_EQ(edit.Text(), L"1 + Peace");
  EXPECT_EQ(told, L"1 + Peace");
  EXPECT_FALSE(edit.IsOffering());
  Type(edit, " + 9");
  EXPECT_FALSE(edit.IsOffering());
  Rest();
  EXPECT_EQ(field.Line(), QStringLiteral("12"));
  Hit(edit, Qt::Key_Space, Qt::ControlModifier);
  EXPECT_TRUE(edit.IsOffering());
  Hit(*QApplication::activePopupWidget(), Qt::Key_Escape);
  field.SetText(L"1 + \U0001F600 2");
  EXPECT_EQ(field.Judgement().position, 5u);
  EXPECT_FALSE(edit.extraSelections().isEmpty()) << "the place of the error is marked";
}

TEST_F(FormulaDialogTest, VirtualDevicesAreDeclaredOnce) {
  Window();
  In<SourcesDialog>([this](SourcesDialog& dialog) {
    QWidget& devices = Named<QTreeView>(dialog, "Virtual devices");
    QWidget& goBacks = Named<QTreeView>(dialog, "Go-back variables");
    const auto typeName = [](const char* name) {
      return [name](CDlgIntroduceIdentification& prompt) {
        Type(*QApplication::focusWidget(), name);
        Hit(prompt, Qt::Key_Return);
      };
    };
    In<CDlgIntroduceIdentification>(typeName("Site"));
    Hit(devices, Qt::Key_Insert);
    dialog.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
    In<CDlgIntroduceIdentification>([&](CDlgIntroduceIdentification& prompt) {
      In<QMessageBox>([&](QMessageBox& refusal) {
        EXPECT_EQ(refusal.text(), Translated(36203));
        In<CDlgIntroduceIdentification>([](CDlgIntroduceIdentification& again) {
          EXPECT_EQ(again.Name(), QStringLiteral("Site")) << "what was refused stands in it";
          Hit(again, Qt::Key_Escape);
        });
        Hit(refusal, Qt::Key_Return);
      });
      typeName("Site")(prompt);
    });
    Hit(devices, Qt::Key_Insert);
    dialog.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
    In<CDlgIntroduceIdentification>(typeName("P1"));
    goBacks.setFocus();
    Hit(goBacks, Qt::Key_Insert);
    Ok(dialog).click();
  });
  Run("VirtualDevices");
  EXPECT_EQ(ReadSources(SourceKind::VirtualDevice, Frame().Report().virtualDevices).ids,
            std::vector<std::wstring>{L"VIRTUAL_Site"});
  EXPECT_EQ(ReadSources(SourceKind::GoBackVariable, Frame().Report().goBackVariables).ids,
            std::vector<std::wstring>{L"GOBACK@P1"});
  In<SourcesDialog>([](SourcesDialog& dialog) {
    Ok(dialog).click();
    EXPECT_EQ(dialog.result(), QDialog::Rejected) << "nothing was modified";
  });
  Run("VirtualDevices");
  Run("Undo");
  EXPECT_FALSE(Frame().CanUndo()) << "all of it was one step";
}

TEST_F(FormulaDialogTest, DialogsOpenAsLargeAsTheyWereClosed) {
  Window();
  In<FormulasDialog>([](FormulasDialog& dialog) { dialog.resize(777, 345); });
  Run("FormulesSetup");
  In<FormulasDialog>([](FormulasDialog& dialog) { EXPECT_EQ(dialog.size(), QSize(777, 345)); });
  Run("FormulesSetup");
}

}  // namespace
}  // namespace xrpt
