#include "model/ReportInfo.h"

#include "model/ListTable.h"
#include "model/RVCardButton.h"
#include "model/RVCardConditioned.h"
#include "model/RVCardImage.h"
#include "platform/Json.h"
#include "platform/Numbers.h"
#include "platform/Text.h"

namespace xrpt {
namespace {

void Count(CountByName& counts, const std::wstring& name) {
  if (!name.empty()) ++counts[name];
}

void CountList(const ListTable<RVCardControl>& table, const RVCardControl& card, ReportInfo& info) {
  for (const auto& row : table.rows) {
    if (row.panel.editor != FieldEditor::Variable) continue;
    for (std::size_t i = 0; i < row.size(card); ++i) Count(info.variables, row.text(card, i));
  }
}

// The rows tell which fields name a variable or a style.
void CountFields(const RVCardControl& card, ReportInfo& info) {
  ForEachField(card.GetRuntimeClass().table, [&card, &info](const CardRow& row) {
    if (row.list) CountList(row.list(), card, info);
    if (row.panel.editor == FieldEditor::Variable) Count(info.variables, row.text(card));
    if (row.panel.editor == FieldEditor::Style) Count(info.styles, row.text(card));
  });
}

void CountPicture(const std::wstring& id, const std::wstring& path, ReportInfo& info) {
  if (id.empty()) return;
  const bool plain = path.empty() || path == L"./";
  Count(info.pictures, plain ? id : path + (path.back() == L'/' ? L"" : L"/") + id);
}

void CountCard(const RVCardControl& card, PageInfo& page, ReportInfo& info) {
  if (const char* tag = card.GetRuntimeClass().tag) Count(page.cards, FromUtf8(tag));
  CountFields(card, info);
  if (const auto* image = dynamic_cast<const RVCardImage*>(&card)) {
    CountPicture(image->ImageId(), image->ImagePath(), info);
  } else if (const auto* button = dynamic_cast<const RVCardButton*>(&card); button && button->IsImage()) {
    CountPicture(button->imageId, button->imagePath.value, info);
  } else if (const auto* conditioned = dynamic_cast<const RVCardConditioned*>(&card)) {
    for (const auto& inner : conditioned->cards) CountCard(*inner, page, info);
  }
}

PageInfo PageInfoOf(const RVReportPage& page, ReportInfo& info) {
  PageInfo out{page.properties.name, page.properties.width, page.properties.height, {}};
  for (std::size_t i = 0; i < page.cards.Size(); ++i) CountCard(page.cards[i], out, info);
  CountPicture(page.properties.Background().ImageId(), page.properties.Background().ImagePath(), info);
  for (const auto& [tag, count] : out.cards) info.cards[tag] += count;
  return out;
}

void Line(std::string& out, int depth, const std::string& text) {
  out += std::string(static_cast<std::size_t>(2 * depth), ' ') + ForTerminal(text) + "\n";
}

void Section(std::string& out, const char* title, const CountByName& counts) {
  if (counts.empty()) return;
  Line(out, 0, title);
  for (const auto& [name, count] : counts) Line(out, 1, ToUtf8(name) + "  " + std::to_string(count));
}

std::string Inline(const CountByName& counts) {
  std::string text;
  for (const auto& [name, count] : counts) {
    text += (text.empty() ? "" : ", ") + std::to_string(count) + " " + ToUtf8(name);
  }
  return text.empty() ? "no cards" : text;
}

void Write(JsonWriter& out, const char* key, const CountByName& counts) {
  out.Key(key);
  out.BeginObject();
  for (const auto& [name, count] : counts) {
    out.Key(ToUtf8(name));
    out.Int(count);
  }
  out.EndObject();
}

void Write(JsonWriter& out, const char* key, const std::wstring& text) {
  out.Key(key);
  out.String(text);
}

void Write(JsonWriter& out, const PageInfo& page) {
  out.BeginObject();
  Write(out, "name", page.name);
  out.Key("width");
  out.Number(page.width);
  out.Key("height");
  out.Number(page.height);
  Write(out, "cards", page.cards);
  out.EndObject();
}

}  // namespace

ReportInfo InfoOf(const RVReport& report) {
  ReportInfo info;
  info.id = report.id;
  info.name = report.name;
  info.version = report.version;
  info.virtualEnabled = report.virtualEnabled;
  for (const auto& page : report.pages) info.pages.push_back(PageInfoOf(*page, info));
  for (const XmlNode& formula : report.formules.Root()) {
    if (formula.Tag() == "formule") info.formulas.push_back(formula.Value("name"));
  }
  return info;
}

std::string ReportInfo::AsText() const {
  std::string out;
  Line(out, 0, "report " + ToUtf8(name) + "  " + ToUtf8(id) + "  version " + ToUtf8(version));
  if (virtualEnabled) Line(out, 0, "virtual devices in use");
  Line(out, 0, "pages");
  for (const PageInfo& page : pages) {
    Line(out, 1,
         ToUtf8(page.name) + "  " + FormatExact(page.width) + " x " + FormatExact(page.height) +
             " mm: " + Inline(page.cards));
  }
  Section(out, "cards", cards);
  Section(out, "styles", styles);
  Section(out, "variables", variables);
  Section(out, "pictures", pictures);
  if (!formulas.empty()) Line(out, 0, "formulas");
  for (const std::wstring& formula : formulas) Line(out, 1, ToUtf8(formula));
  return out;
}

std::string ReportInfo::AsJson() const {
  JsonWriter out(2);
  out.BeginObject();
  Write(out, "id", id);
  Write(out, "name", name);
  Write(out, "version", version);
  out.Key("virtualEnabled");
  out.Bool(virtualEnabled);
  out.Key("pages");
  out.BeginArray();
  for (const PageInfo& page : pages) Write(out, page);
  out.EndArray();
  Write(out, "cards", cards);
  Write(out, "styles", styles);
  Write(out, "variables", variables);
  Write(out, "pictures", pictures);
  out.Key("formulas");
  out.BeginArray();
  for (const std::wstring& formula : formulas) out.String(formula);
  out.EndArray();
  out.EndObject();
  return out.Text() + "\n";
}

}  // namespace xrpt
