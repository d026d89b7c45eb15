#include "formulas/checks/CardFacts.h"

#include "formulas/References.h"
#include "model/ListTable.h"
#include "model/RVAnalogBar.h"
#include "model/RVCardConditioned.h"
#include "model/RVCardForceValues.h"
#include "model/RVCardFormule.h"
#include "model/RVCardImage.h"
#include "model/RVCardPrimitive.h"
#include "model/RVCardReportGraph.h"

namespace xrpt {
namespace {

void AddExpression(const std::wstring& expression, CardFacts& facts) {
  for (const auto& [name, uses] : FormulasIn(expression)) facts.formulas.push_back(name);
}

void AddName(std::wstring name, CardFacts& facts) {
  if (!name.empty()) facts.formulas.push_back(std::move(name));
}

void AddBound(const ListTable<RVCardControl>& table, const RVCardControl& card, CardFacts& facts) {
  for (const ListOf<RVCardControl>& row : table.rows) {
    if (row.panel.editor != FieldEditor::Variable) continue;
    for (std::size_t i = 0; i < row.size(card); ++i) AddName(row.text(card, i), facts);
  }
}

// A field that names a variable may name a formula as well.
void AddFields(const RVCardControl& card, CardFacts& facts) {
  ForEachField(card.GetRuntimeClass().table, [&card, &facts](const CardRow& row) {
    if (row.list) AddBound(row.list(), card, facts);
    if (row.panel.editor == FieldEditor::Variable) AddName(row.text(card), facts);
    if (row.panel.editor == FieldEditor::FontFace && row.Applies(card)) facts.faces.push_back(row.text(card));
  });
}

void AddCard(const RVCardControl& card, CardFacts& facts) {
  AddFields(card, facts);
  if (const auto* formule = dynamic_cast<const RVCardFormule*>(&card)) {
    AddExpression(formule->value, facts);
  } else if (const auto* bar = dynamic_cast<const RVAnalogBar*>(&card)) {
    for (const auto* limit : {&bar->minValue, &bar->alarmMinValue, &bar->preMinValue, &bar->preMaxValue,
                              &bar->alarmMaxValue, &bar->maxValue}) {
      AddExpression(*limit, facts);
    }
  } else if (const auto* force = dynamic_cast<const RVCardForceValues*>(&card)) {
    for (const std::wstring& value : force->values) AddExpression(value, facts);
  } else if (const auto* conditioned = dynamic_cast<const RVCardConditioned*>(&card)) {
    for (const std::wstring& condition : conditioned->conditions) AddExpression(condition, facts);
    for (const auto& inner : conditioned->cards) AddCard(*inner, facts);
  }
}

// As the cards draw their ground.
bool IsOpaque(const RVCardControl& card) {
  const bool hasGround = card.backcolor != kNoColor;
  if (const auto* shape = dynamic_cast<const RVCardPrimitive*>(&card)) {
    const bool fillsItsCard =
        shape->type == PrimitiveType::Line || (shape->type == PrimitiveType::Box && shape->orientation == 0.0);
    return hasGround && fillsItsCard && !shape->isBackTransparent;
  }
  const auto* graph = dynamic_cast<const RVCardReportGraph*>(&card);
  return hasGround || (graph && !graph->transparent);
}

}  // namespace

CardFacts FactsOf(const RVCardControl& card) {
  CardFacts facts;
  facts.id = card.id;
  facts.kindTextId = card.GetRuntimeClass().textId;
  facts.area = {card.x, card.y, card.x + card.width, card.y + card.height};
  facts.isOpaque = IsOpaque(card);
  AddCard(card, facts);
  return facts;
}

}  // namespace xrpt
