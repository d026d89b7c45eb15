// What `print` says of the current page.
#include "platform/Json.h"
#include "xrpt/ScriptRunner.h"

namespace xrpt {
namespace {

void WriteSelection(JsonWriter& json, const RVEditTemplateWnd& page) {
  const std::vector<Rect> rects = page.SelectedRects();
  json.BeginArray();
  for (std::size_t i = 0; i < rects.size(); ++i) {
    json.BeginObject();
    json.Key("id");
    json.String(page.Selection().Entries()[i].id);
    json.Key("rect");
    json.BeginArray();
    for (const int edge : {rects[i].left, rects[i].top, rects[i].right, rects[i].bottom}) json.Int(edge);
    json.EndArray();
    json.EndObject();
  }
  json.EndArray();
}

void WriteCard(JsonWriter& json, const RVCardControl& card) {
  json.BeginObject();
  json.Key("id");
  json.String(card.id);
  json.Key("tag");
  json.String(std::string_view(card.GetRuntimeClass().tag));
  const std::pair<const char*, double> measures[] = {
      {"x", card.x}, {"y", card.y}, {"width", card.width}, {"height", card.height}};
  for (const auto& [name, value] : measures) {
    json.Key(name);
    json.Number(value);
  }
  json.EndObject();
}

void WriteMenu(JsonWriter& json, const tagEditMenuState& menu) {
  const std::pair<const char*, bool> states[] = {
      {"cut", menu.cut},        {"copy", menu.copy},           {"paste", menu.paste},
      {"delete", menu.delete_}, {"selectAll", menu.selectAll}, {"undo", menu.undo}};
  json.BeginObject();
  for (const auto& [name, state] : states) {
    json.Key(name);
    json.Bool(state);
  }
  json.EndObject();
}

void WriteNumbers(JsonWriter& json, const RVEditControlWnd& frame) {
  const RVEditTemplateWnd& page = frame.CurrentPage();
  json.Key("mouseState");
  json.Int(page.CurrentMouseState());
  json.Key("cursor");
  json.String(CursorName(page.CurrentCursor()));
  json.Key("zoom");
  json.Number(page.Zoom());
  json.Key("page");
  json.Int(static_cast<long long>(frame.CurrentPageIndex()) + 1);
  json.Key("hscroll");
  json.Int(page.HorizontalScroll().position);
  json.Key("vscroll");
  json.Int(page.VerticalScroll().position);
}

}  // namespace

std::string StateAsJson(RVEditControlWnd& frame) {
  const RVEditTemplateWnd& page = frame.CurrentPage();
  JsonWriter json;
  json.BeginObject();
  WriteNumbers(json, frame);
  json.Key("selection");
  WriteSelection(json, page);
  json.Key("cards");
  json.BeginArray();
  for (std::size_t i = 0; i < page.Page().cards.Size(); ++i) WriteCard(json, page.Page().cards[i]);
  json.EndArray();
  json.Key("undo");
  json.Int(static_cast<long long>(page.UndoCount()));
  json.Key("menu");
  WriteMenu(json, page.EditMenuState());
  json.EndObject();
  return json.Text();
}

}  // namespace xrpt
