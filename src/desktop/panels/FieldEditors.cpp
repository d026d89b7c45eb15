#include "desktop/panels/FieldEditors.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFontComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSignalBlocker>
#include <algorithm>

#include "desktop/TextIds.h"
#include "desktop/dialogs/PictureChooser.h"
#include "desktop/dialogs/StyleDialog.h"
#include "desktop/dialogs/VariableChooser.h"
#include "desktop/dialogs/formulas/ExpressionEditor.h"
#include "desktop/look/Texts.h"
#include "desktop/panels/ChosenField.h"
#include "desktop/panels/ColorButton.h"
#include "desktop/panels/MixedSpinBox.h"
#include "editor/CProperties.h"
#include "editor/TextStyles.h"
#include "platform/Numbers.h"
#include "platform/Text.h"

namespace xrpt {

namespace {

// What all of them share: the toolkit's widget and who hears of edits.
template <class Control>
class EditorOf : public FieldEditorWidget {
 public:
  EditorOf(Edited edited, QWidget* parent) : control_(new Control(parent)), edited_(std::move(edited)) {}
  QWidget* Widget() override { return control_; }

 protected:
  void Tell(std::string text) const { edited_(std::move(text)); }
  void Tell(const QString& text) const { edited_(text.toStdString()); }

  Control* control_;

 private:
  Edited edited_;
};

class TextEditor : public EditorOf<QLineEdit> {
 public:
  TextEditor(Edited edited, QWidget* parent) : EditorOf(std::move(edited), parent) {
    QObject::connect(control_, &QLineEdit::textEdited, control_, [this](const QString& typed) { Take(typed); });
  }
  void Show(const std::optional<std::wstring>& text) override {
    const QString shown = ToQString(text.value_or(L""));
    control_->setPlaceholderText(text ? QString() : Translated(text::kMixed));
    if (control_->text() != shown) control_->setText(shown);
  }

 private:
  // What of it the field takes.
  virtual QString Valid(const QString& typed) const { return typed; }
  void Take(const QString& typed) {
    const QString valid = Valid(typed);
    const auto cursor = Valid(typed.left(control_->cursorPosition())).size();
    if (valid != typed) {
      control_->setText(valid);
      control_->setCursorPosition(static_cast<int>(cursor));
    }
    Tell(valid);
  }
};

// A number as text, or nothing at all. A comma is a point to whoever types one.
class ThresholdEditor final : public TextEditor {
 public:
  using TextEditor::TextEditor;

 private:
  QString Valid(const QString& typed) const override {
    QString number = typed;
    return ToQString(CheckValidValue(number.replace(QLatin1Char(','), QLatin1Char('.')).toStdWString()));
  }
};

class LinesEditor final : public EditorOf<QPlainTextEdit> {
 public:
  LinesEditor(Edited edited, QWidget* parent) : EditorOf(std::move(edited), parent) {
    control_->setTabChangesFocus(true);
    control_->setFixedHeight(control_->fontMetrics().lineSpacing() * 4 + 10);
    control_->setFrameShape(QFrame::StyledPanel);
    control_->viewport()->setAutoFillBackground(false);  // the style fills the whole field
    QObject::connect(control_, &QPlainTextEdit::textChanged, control_, [this] { Tell(control_->toPlainText()); });
  }
  void Show(const std::optional<std::wstring>& text) override {
    const QString shown = ToQString(text.value_or(L""));
    control_->setPlaceholderText(text ? QString() : Translated(text::kMixed));
    if (control_->toPlainText() == shown) return;
    const QSignalBlocker quiet(control_);
    control_->setPlainText(shown);
  }
};

class CheckEditor final : public EditorOf<QCheckBox> {
 public:
  CheckEditor(Edited edited, QWidget* parent) : EditorOf(std::move(edited), parent) {
    QObject::connect(control_, &QCheckBox::clicked, control_, [this](bool checked) {
      control_->setTristate(false);
      Tell(std::string(checked ? "T" : "F"));
    });
  }
  void Show(const std::optional<std::wstring>& text) override {
    const QSignalBlocker quiet(control_);
    control_->setTristate(!text);
    control_->setCheckState(!text ? Qt::PartiallyChecked : *text == L"T" ? Qt::Checked : Qt::Unchecked);
  }
};

class NumberEditor final : public EditorOf<MixedSpinBox> {
 public:
  NumberEditor(const FieldRow& row, Edited edited, QWidget* parent) : EditorOf(std::move(edited), parent) {
    const bool isInteger = row.panel.editor == FieldEditor::Integer;
    const bool hasRange = row.panel.maximum > row.panel.minimum;
    control_->SetMixedText(Translated(text::kMixed));
    control_->setDecimals(isInteger ? 0 : 2);
    control_->setRange(hasRange ? row.panel.minimum : -1e9, hasRange ? row.panel.maximum : 1e9);
    if (row.panel.editor == FieldEditor::Angle) AsAngle();
    QObject::connect(control_, &QDoubleSpinBox::valueChanged, control_, [this, isInteger](double value) {
      if (!control_->IsMixed()) TellNumber(FormatFixed(value, isInteger ? 0 : 2));
    });
    QObject::connect(control_, &QAbstractSpinBox::editingFinished, control_, [this] { Show(last_); });
  }
  // A number that the card does not take as it is (one beyond the page) is corrected when it is finished: "0" may be on
  // its way to "0.8".
  void Show(const std::optional<std::wstring>& text) override {
    last_ = text;
    if (control_->IsBeingTyped()) return;
    if (!text) return control_->ShowMixed();
    const double value = ParseDecimal(*text);
    if (control_->IsMixed() || control_->value() != value) control_->ShowValue(value);
  }
  void Finish() override { control_->FinishTyping(); }

 private:
  void AsAngle() {
    control_->setSuffix(QStringLiteral("°"));
    control_->setSingleStep(15.0);
  }
  void TellNumber(const std::string& text) {
    last_ = FromUtf8(text);
    Tell(text);
  }

  std::optional<std::wstring> last_;  // as shown or told, whichever came later
};

class ColorEditor final : public EditorOf<ColorButton> {
 public:
  ColorEditor(Edited edited, QWidget* parent) : EditorOf(std::move(edited), parent) {
    control_->chosen = [this](Color color) { Tell(FormatColor(color)); };
  }
  void Show(const std::optional<std::wstring>& text) override {
    control_->Show(text ? std::optional(ParseColor(*text)) : std::nullopt);
  }
};

// Points: a list shows the style, not its size to the last point.
constexpr double kLeastSample = 8.0;
constexpr double kMostSample = 16.0;

// Lists that change nothing when the wheel passes over them.
class QuietComboBox final : public QComboBox {
 public:
  explicit QuietComboBox(QWidget* parent) : QComboBox(parent) { setFocusPolicy(Qt::StrongFocus); }

 protected:
  void wheelEvent(QWheelEvent* event) override { hasFocus() ? QComboBox::wheelEvent(event) : event->ignore(); }
};

class ChoiceEditor final : public EditorOf<QuietComboBox> {
 public:
  ChoiceEditor(Edited edited, QWidget* parent) : EditorOf(std::move(edited), parent) {
    control_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    control_->setMinimumContentsLength(6);
    QObject::connect(control_, &QComboBox::activated, control_,
                     [this](int index) { Tell(control_->itemData(index).toString()); });
  }
  void Add(const QString& label, const QString& text) { control_->addItem(label, text); }
  // A style's name, written in its font.
  void AddSample(const tagStyleCfg& style) {
    const QString name = ToQString(style.name);
    Add(name, name);
    control_->setItemData(control_->count() - 1,
                          ToolkitFont(style, std::clamp(style.font.size, kLeastSample, kMostSample)), Qt::FontRole);
  }
  void Offer(std::span<const Word> words) override {
    if (words.empty() || words.data() == words_.data()) return;
    words_ = words;
    const QSignalBlocker quiet(control_);
    control_->clear();
    for (const Word& word : words) Add(ToQString(NameOf(word)), QString::fromLatin1(word.text));
  }
  void OfferNames(std::span<const NamedValue> names) override {
    if (names.data() == names_.data() && names.size() == names_.size()) return;
    names_ = names;
    const QSignalBlocker quiet(control_);
    control_->clear();
    Add(Translated(text::kNoField), QString());
    for (const NamedValue& named : names) Add(ToQString(named.name), ToQString(named.value));
  }
  void Show(const std::optional<std::wstring>& text) override {
    const QSignalBlocker quiet(control_);
    int index = text ? control_->findData(ToQString(*text)) : -1;
    if (text && index < 0) {  // a text that is no word of the list is kept and shown
      Add(ToQString(*text), ToQString(*text));
      index = control_->count() - 1;
    }
    control_->setCurrentIndex(index);
    control_->setPlaceholderText(text ? QString() : Translated(text::kMixed));
  }

 private:
  std::span<const Word> words_;
  std::span<const NamedValue> names_;
};

class FaceEditor final : public EditorOf<QFontComboBox> {
 public:
  FaceEditor(Edited edited, QWidget* parent) : EditorOf(std::move(edited), parent) {
    control_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    control_->setMinimumContentsLength(8);
    QObject::connect(control_, &QComboBox::textActivated, control_, [this](const QString& face) { Tell(face); });
    QObject::connect(control_->lineEdit(), &QLineEdit::editingFinished, control_, [this] { Finish(); });
  }
  void Finish() override {
    const bool isTyped = control_->lineEdit()->isModified();
    control_->lineEdit()->setModified(false);
    if (isTyped && !control_->currentText().isEmpty()) Tell(control_->currentText());
  }
  void Show(const std::optional<std::wstring>& text) override {
    const QSignalBlocker quiet(control_);
    control_->setEditText(ToQString(text.value_or(L"")));
    control_->lineEdit()->setCursorPosition(0);
    control_->lineEdit()->setPlaceholderText(text ? QString() : Translated(text::kMixed));
  }
};

// A name that can be typed, or chosen in a window of its own.
class ChosenEditor final : public EditorOf<ChosenField> {
 public:
  ChosenEditor(const char* icon, int buttonTextId, ChosenField::Chooser choose, Edited edited, QWidget* parent)
      : EditorOf(std::move(edited), parent) {
    control_->SetChooser(icon, buttonTextId, std::move(choose));
    control_->edited = [this](const QString& text) { Tell(text); };
  }
  void Show(const std::optional<std::wstring>& text) override { control_->Show(text); }
};

std::unique_ptr<FieldEditorWidget> MakeStyle(FieldEditorWidget::Edited edited, QWidget* parent) {
  auto choice = std::make_unique<ChoiceEditor>(std::move(edited), parent);
  choice->Add(Translated(text::kNoStyle), QString());
  for (const tagStyleCfg& style : ListStyles()) choice->AddSample(style);
  return choice;
}

std::unique_ptr<FieldEditorWidget> MakeVariable(FieldEditorWidget::Edited edited, QWidget* parent) {
  return std::make_unique<ChosenEditor>("devices", text::kChooseVariable, &VariableChooser::Choose, std::move(edited),
                                        parent);
}

std::unique_ptr<FieldEditorWidget> MakePicture(FieldEditorWidget::Edited edited, QWidget* parent) {
  return std::make_unique<ChosenEditor>("image", text::kChoosePicture, &PictureChooser::Choose, std::move(edited),
                                        parent);
}

}  // namespace

std::unique_ptr<FieldEditorWidget> MakeNamedEditor(FieldEditorWidget::Edited edited, QWidget* parent) {
  return std::make_unique<ChoiceEditor>(std::move(edited), parent);
}

std::unique_ptr<FieldEditorWidget> MakeFieldEditor(const FieldRow& row, FieldEditorWidget::Edited edited,
                                                   const std::function<ExpressionSources()>& expressions,
                                                   QWidget* parent) {
  switch (row.panel.editor) {
    case FieldEditor::None:
      return nullptr;
    case FieldEditor::Text:
      return std::make_unique<TextEditor>(std::move(edited), parent);
    case FieldEditor::Lines:
      return std::make_unique<LinesEditor>(std::move(edited), parent);
    case FieldEditor::Check:
      return std::make_unique<CheckEditor>(std::move(edited), parent);
    case FieldEditor::Decimal:
    case FieldEditor::Integer:
    case FieldEditor::Angle:
      return std::make_unique<NumberEditor>(row, std::move(edited), parent);
    case FieldEditor::Color:
      return std::make_unique<ColorEditor>(std::move(edited), parent);
    case FieldEditor::Choice:
      return std::make_unique<ChoiceEditor>(std::move(edited), parent);
    case FieldEditor::FontFace:
      return std::make_unique<FaceEditor>(std::move(edited), parent);
    case FieldEditor::Style:
      return MakeStyle(std::move(edited), parent);
    case FieldEditor::Variable:
      return MakeVariable(std::move(edited), parent);
    case FieldEditor::Picture:
      return MakePicture(std::move(edited), parent);
    case FieldEditor::Threshold:
      return std::make_unique<ThresholdEditor>(std::move(edited), parent);
    case FieldEditor::Expression:
      return MakeExpressionEditor(ExpressionKind::Numeric, std::move(edited), expressions, parent);
  }
  return nullptr;
}

}  // namespace xrpt
