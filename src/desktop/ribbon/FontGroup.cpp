#include "desktop/ribbon/FontGroup.h"

#include <QFontComboBox>
#include <QLineEdit>
#include <QSignalBlocker>

#include "desktop/TextIds.h"
#include "desktop/look/Icons.h"
#include "desktop/look/Texts.h"
#include "desktop/panels/ColorButton.h"
#include "desktop/panels/FieldUndo.h"
#include "desktop/panels/MixedSpinBox.h"
#include "editor/SelectedFields.h"
#include "model/FieldTexts.h"
#include "model/Words.h"
#include "platform/Numbers.h"
#include "platform/Text.h"

namespace xrpt {

namespace {

FontStyle StyleOf(const std::wstring& word) {
  for (const Word& known : kFontStyleWords) {
    if (FromUtf8(known.text) == word) return static_cast<FontStyle>(known.value);
  }
  return FontStyle::Normal;
}

// Styles are bits of their marks.
bool HasMark(FontStyle style, FontStyle mark) { return (static_cast<int>(style) & static_cast<int>(mark)) != 0; }

FontStyle WithMark(FontStyle style, FontStyle mark, bool on) {
  const int rest = static_cast<int>(style) & ~static_cast<int>(mark);
  return static_cast<FontStyle>(on ? rest | static_cast<int>(mark) : rest);
}

std::string WordOf(FontStyle style) {
  for (const Word& known : kFontStyleWords) {
    if (known.value == static_cast<int>(style)) return known.text;
  }
  return {};
}

}  // namespace

FontGroup::FontGroup(SelectedFields& fields, QWidget* parent) : QWidget(parent), fields_(fields) {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 2, 0, 0);
  column->setSpacing(4);
  auto* upper = new QHBoxLayout();
  auto* lower = new QHBoxLayout();
  upper->setSpacing(4);
  lower->setSpacing(1);
  column->addLayout(upper);
  column->addLayout(lower);
  AddFace(*upper);
  AddSize(*upper);
  AddMarkButton(*lower, FontStyle::Bold, "bold", text::kBold);
  AddMarkButton(*lower, FontStyle::Italic, "italic", text::kItalic);
  lower->addSpacing(6);
  AddWordButton(*lower, "text-left", text::kTextLeft, "horizontalAlign", "LEFT");
  AddWordButton(*lower, "text-center", text::kTextCenter, "horizontalAlign", "CENTER");
  AddWordButton(*lower, "text-right", text::kTextRight, "horizontalAlign", "RIGHT");
  lower->addSpacing(6);
  AddWordButton(*lower, "text-top", text::kTextTop, "verticalAlign", "TOP");
  AddWordButton(*lower, "text-middle", text::kTextMiddle, "verticalAlign", "CENTER");
  AddWordButton(*lower, "text-bottom", text::kTextBottom, "verticalAlign", "BOTTOM");
  lower->addStretch(1);
  AddColor(*lower);
  auto* undo = new FieldUndo([] { return false; }, this);
  undo->Watch(*face_);
  undo->Watch(*size_);
}

void FontGroup::AddFace(QBoxLayout& row) {
  face_ = new QFontComboBox(this);
  face_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  face_->setMinimumContentsLength(10);
  face_->setAccessibleName(Translated(text::kFontFace));
  face_->setToolTip(Translated(text::kFontFace));
  connect(face_, &QComboBox::textActivated, this,
          [this](const QString& face) { AssignAtOnce("font/name", face.toStdString()); });
  row.addWidget(face_, 1);
}

void FontGroup::AddSize(QBoxLayout& row) {
  size_ = new MixedSpinBox(this);
  size_->setRange(0.5, 500.0);
  size_->setDecimals(1);
  size_->setMinimumWidth(72);
  size_->setAccessibleName(Translated(text::kFontSize));
  size_->setToolTip(Translated(text::kFontSize));
  connect(size_, &QDoubleSpinBox::valueChanged, this, [this](double size) {
    if (!size_->IsMixed()) Assign("font/size", FormatDecimal(size));
  });
  connect(size_, &QDoubleSpinBox::editingFinished, this, [this] { fields_.Commit(); });
  row.addWidget(size_);
}

QToolButton* FontGroup::MakeButton(const char* icon, int textId) {
  auto* button = new QToolButton(this);
  button->setProperty("flat", true);
  button->setIcon(ThemedIcon(QLatin1String(icon)));
  button->setIconSize({18, 18});
  button->setCheckable(true);
  button->setAccessibleName(Translated(textId));
  button->setToolTip(Translated(textId));
  button->setFocusPolicy(Qt::TabFocus);
  return button;
}

void FontGroup::AddMarkButton(QBoxLayout& row, FontStyle mark, const char* icon, int textId) {
  QToolButton* button = MakeButton(icon, textId);
  connect(button, &QToolButton::clicked, this, [this, mark](bool on) { AssignMark(mark, on); });
  row.addWidget(button);
  marks_.push_back({button, mark});
}

void FontGroup::AddWordButton(QBoxLayout& row, const char* icon, int textId, const char* field, const char* word) {
  QToolButton* button = MakeButton(icon, textId);
  connect(button, &QToolButton::clicked, this, [this, field, word] {
    AssignAtOnce(field, word);
    Refresh();
  });
  row.addWidget(button);
  words_.push_back({button, field, word});
}

void FontGroup::AddColor(QBoxLayout& row) {
  color_ = new ColorButton(this);
  color_->setAccessibleName(Translated(text::kColor));
  color_->chosen = [this](Color color) {
    if (const char* field = TextColorField()) AssignAtOnce(field, FormatColor(color));
  };
  row.addWidget(color_);
}

// Cards that are all text have one colour, and it is the text's; on those that have more, the letters have their own.
const char* FontGroup::TextColorField() const {
  if (fields_.Find("font/color")) return "font/color";
  return fields_.Find("font/name") ? "color" : nullptr;
}

void FontGroup::AssignMark(FontStyle mark, bool on) {
  const auto state = fields_.Find("font/style");
  if (!state) return;
  fields_.Commit();
  fields_.Rewrite(*state->row,
                  [mark, on](const std::wstring& word) { return WordOf(WithMark(StyleOf(word), mark, on)); });
  fields_.Commit();
  if (edited) edited();
}

void FontGroup::Assign(const char* field, const std::string& text) {
  const auto state = fields_.Find(field);
  if (!state) return;
  fields_.Assign(*state->row, text);
  if (edited) edited();
}

void FontGroup::AssignAtOnce(const char* field, const std::string& text) {
  fields_.Commit();
  Assign(field, text);
  fields_.Commit();
}

std::optional<std::wstring> FontGroup::TextOf(const char* field, bool& isThere) const {
  const auto state = fields_.Find(field);
  isThere = state.has_value();
  return state ? state->text : std::nullopt;
}

void FontGroup::ShowMarks() {
  const auto state = fields_.Find("font/style");
  for (const MarkButton& button : marks_) {
    const auto has = [&](const std::wstring& word) { return HasMark(StyleOf(word), button.mark); };
    button.button->setEnabled(state.has_value());
    button.button->setChecked(state && (state->text ? has(*state->text) : fields_.All(*state->row, has)));
  }
}

void FontGroup::Refresh() {
  bool isThere = false;
  const QSignalBlocker quiet(face_);
  const auto face = TextOf("font/name", isThere);
  face_->setEnabled(isThere);
  face_->setEditText(ToQString(face.value_or(L"")));
  face_->lineEdit()->setCursorPosition(0);
  const auto size = TextOf("font/size", isThere);
  size_->setEnabled(isThere);
  if (!size) {
    size_->ShowMixed();
  } else if (size_->IsMixed() || size_->value() != ParseDecimal(*size)) {
    size_->ShowValue(ParseDecimal(*size));
  }
  ShowMarks();
  for (const WordButton& word : words_) {
    const auto text = TextOf(word.field, isThere);
    word.button->setEnabled(isThere);
    word.button->setChecked(text && ToQString(*text) == QLatin1String(word.word));
  }
  const char* colorField = TextColorField();
  const auto color = colorField ? TextOf(colorField, isThere) : std::nullopt;
  color_->setEnabled(colorField && isThere);
  color_->Show(color ? std::optional(ParseColor(*color)) : std::nullopt);
}

}  // namespace xrpt
