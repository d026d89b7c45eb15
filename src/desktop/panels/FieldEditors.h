// One small widget a field of a card or page, chosen by the field's row. Values travel as the field's text, the way
// files hold it; nothing (no text) stands for several cards that differ.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>

#include "editor/DatabaseFields.h"
#include "formulas/ExpressionChoices.h"
#include "model/FieldTable.h"

class QWidget;

namespace xrpt {

class FieldEditorWidget {
 public:
  using Edited = std::function<void(std::string)>;

  virtual ~FieldEditorWidget() = default;
  virtual QWidget* Widget() = 0;
  // The words to choose from, for a choice whose words hang on another field.
  virtual void Offer(std::span<const Word>) {}
  // The values to choose from by name.
  virtual void OfferNames(std::span<const NamedValue>) {}
  // Filling never counts as an edit.
  virtual void Show(const std::optional<std::wstring>& text) = 0;
  // Tells what was typed and not told yet.
  virtual void Finish() {}
};

// `edited` hears every change the user makes, with the field's new text. `expressions`: what the report's expressions
// may use. The widget belongs to `parent`.
std::unique_ptr<FieldEditorWidget> MakeFieldEditor(const FieldRow& row, FieldEditorWidget::Edited edited,
                                                   const std::function<ExpressionSources()>& expressions,
                                                   QWidget* parent);
// A choice among values that have names, whatever the row says of its editor.
std::unique_ptr<FieldEditorWidget> MakeNamedEditor(FieldEditorWidget::Edited edited, QWidget* parent);

}  // namespace xrpt
