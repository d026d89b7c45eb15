// The field for expressions as an editor of the property panel, with the wizard at hand.
#pragma once

#include "desktop/panels/FieldEditors.h"
#include "formulas/ExpressionChoices.h"
#include "formulas/ExpressionJudgement.h"

namespace xrpt {

// `sources` is asked whenever the field takes the keyboard, for formulas come and go.
std::unique_ptr<FieldEditorWidget> MakeExpressionEditor(ExpressionKind kind, FieldEditorWidget::Edited edited,
                                                        std::function<ExpressionSources()> sources, QWidget* parent);

}  // namespace xrpt
