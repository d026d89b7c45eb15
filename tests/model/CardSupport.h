// Cards and texts the model's tests share.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "model/CardRegistry.h"
#include "model/ListTable.h"
#include "model/RVCardButton.h"
#include "model/RVReport.h"
#include "support/TestHost.h"

namespace xrpt {

// Every kind there is: those of the registry and the button, which has no element of its own.
inline std::vector<std::unique_ptr<RVCardControl>> OneOfEachKind() {
  std::vector<std::unique_ptr<RVCardControl>> cards;
  for (const RegistryRow& row : CardRegistry()) cards.push_back(row.kind().Create());
  cards.push_back(std::make_unique<RVCardButton>());
  return cards;
}

// The card as it stands in a document, in an element "holder".
inline std::string XmlOf(const RVCardControl& card) {
  std::string xml;
  XmlWriter out(xml);
  out.Start("holder");
  card.SaveTemplate(&out, true);
  out.End("holder");
  return xml;
}

// A card of the same kind that was read from `XmlOf`.
inline std::unique_ptr<RVCardControl> ReadBack(const RVCardControl& card) {
  XmlDocument document;
  XmlError error;
  EXPECT_TRUE(document.Parse(XmlOf(card), &error)) << error.message;
  const CardClass& kind = card.GetRuntimeClass();
  std::unique_ptr<RVCardControl> read = kind.Create();
  read->GetFromXml(kind.tag ? document.Node(kind.tag) : document.Root());
  return read;
}

// Texts that a user may give a row, told by its editor: so that a new row finds its own.
inline std::vector<std::string> OrdinaryTexts(const FieldRow& row, std::span<const Word> words) {
  std::vector<std::string> texts;
  for (const Word& word : words) texts.emplace_back(word.text);
  if (!texts.empty()) return texts;
  switch (row.panel.editor) {
    case FieldEditor::Check:
      return {"T", "F"};
    case FieldEditor::Decimal:
    case FieldEditor::Angle:
    case FieldEditor::Integer:
      return {"3", "2"};
    case FieldEditor::Color:
      return {"00FF80", "123456"};
    case FieldEditor::Style:
      return {"Title"};
    default:
      return {"2", "3"};  // a text, or a number that no panel shows
  }
}

// Reads what stands inside one element: "<holder>...</holder>".
template <class Card>
Card Read(const std::string& inside) {
  XmlDocument document;
  EXPECT_TRUE(document.Parse("<card>" + inside + "</card>")) << inside;
  Card card;
  card.GetFromXml(document.Root());
  return card;
}

// The values of a card without its element's own tags, one line each, without indentation.
inline std::string ValuesOf(const RVCardControl& card) {
  std::string xml;
  XmlWriter out(xml);
  card.SaveTemplate(&out, false);
  std::string flat;
  for (std::size_t at = 0; at < xml.size(); ++at) {
    const bool lineStart = at == 0 || xml[at - 1] == '\n';
    if (lineStart) at = xml.find_first_not_of(' ', at);
    flat += xml[at] == '\n' ? ' ' : xml[at];
  }
  return flat;
}

}  // namespace xrpt
