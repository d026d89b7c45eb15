#include "desktop/dialogs/formulas/ExpressionEditor.h"

#include <QToolButton>

#include "desktop/TextIds.h"
#include "desktop/dialogs/DialogTexts.h"
#include "desktop/dialogs/formulas/ExpressionEdit.h"
#include "desktop/dialogs/formulas/ExpressionField.h"
#include "desktop/dialogs/formulas/FormulaWizard.h"
#include "desktop/look/Icons.h"
#include "desktop/look/Texts.h"
#include "platform/Text.h"

namespace xrpt {

namespace {

constexpr int kLines = 2;

class ExpressionEditor final : public FieldEditorWidget {
 public:
  ExpressionEditor(ExpressionKind kind, Edited edited, std::function<ExpressionSources()> sources, QWidget* parent)
      : kind_(kind),
        field_(new ExpressionField(kind, parent)),
        edited_(std::move(edited)),
        sources_(std::move(sources)) {
    field_->hidesEmptyLine = true;
    field_->Edit().SetLines(kLines);
    field_->textEdited = [this](const std::wstring& text) { edited_(ToUtf8(text)); };
    field_->entered = [this] { field_->SetSources(sources_()); };
    field_->AddButton(ThemedIcon(QStringLiteral("formulas")), Translated(text::kWizard), [this] { OpenWizard(); });
  }

  QWidget* Widget() override { return field_; }

  void Show(const std::optional<std::wstring>& text) override {
    field_->Edit().setAccessibleName(field_->accessibleName());
    field_->Edit().setPlaceholderText(text ? Example() : Translated(text::kMixed));
    const std::wstring shown = text.value_or(L"");
    if (isShown_ && field_->Text() == shown) return;
    isShown_ = true;
    field_->SetFormulas(sources_().formulas);
    field_->SetText(shown);
  }

 private:
  QString Example() const { return kind_ == ExpressionKind::Logical ? Translated(text::kConditionExample) : QString(); }

  void OpenWizard() {
    const auto written = FormulaWizard::Ask(sources_(), kind_, field_->Text(), field_->window());
    if (!written || *written == field_->Text()) return;
    field_->SetText(*written);
    edited_(ToUtf8(*written));
  }

  ExpressionKind kind_;
  ExpressionField* field_;
  Edited edited_;
  std::function<ExpressionSources()> sources_;
  bool isShown_ = false;
};

}  // namespace

std::unique_ptr<FieldEditorWidget> MakeExpressionEditor(ExpressionKind kind, FieldEditorWidget::Edited edited,
                                                        std::function<ExpressionSources()> sources, QWidget* parent) {
  return std::make_unique<ExpressionEditor>(kind, std::move(edited), std::move(sources), parent);
}

}  // namespace xrpt
