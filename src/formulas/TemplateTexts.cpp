#include "formulas/TemplateTexts.h"

#include <algorithm>

#include "model/CardRegistry.h"
#include "model/ListTable.h"

namespace xrpt {
namespace {

// Longer texts are shown around the match only.
constexpr std::size_t kMostShown = 4096;  // characters

// The value of some fields stands in an element of its own inside theirs.
XmlNode Holder(const XmlNode& element) {
  const auto inside = element.begin();
  return inside != element.end() && element.RawText().find_first_not_of(" \t\r\n") == std::string_view::npos ? *inside
                                                                                                             : element;
}

struct TemplateText {
  int page;
  XmlNode owner;  // the element of the card or the formula
  std::string_view field;
  XmlNode element;  // with the text

  std::wstring Id() const { return owner.Value(page == 0 ? "name" : "id"); }
};

template <class Visit>
class TemplateWalk {
 public:
  explicit TemplateWalk(const Visit& visit) : visit_(visit) {}

  void Root(const XmlNode& root) {
    for (const XmlNode& child : root) {
      if (child.Tag() == "page") Page(child);
      if (child.Tag() == "formules") Formulas(child);
    }
  }

 private:
  void Page(const XmlNode& page) {
    ++page_;
    for (const XmlNode& card : page) {
      if (const CardClass* kind = KindOf(card.Tag(), &RegistryRow::onPage)) Card(*kind, card);
    }
  }

  static const CardClass* KindOf(std::string_view tag, bool RegistryRow::*place) {
    for (const RegistryRow& row : CardRegistry()) {
      if (row.*place && tag == row.kind().tag) return &row.kind();
    }
    return nullptr;
  }

  void Card(const CardClass& kind, const XmlNode& card) {
    ForEachField(kind.table, [&](const CardRow& row) {
      if (IsSearched(row.role)) Field(row, card);
      if (row.list || row.inner) Items(row, card);
    });
  }

  void Field(const CardRow& row, const XmlNode& card) {
    const XmlNode parent = row.group ? card.Node(row.group) : card;
    Text(card, row.name, parent.Node(row.name));
  }

  void Items(const CardRow& row, const XmlNode& card) {
    const auto& list = row.list();
    for (const XmlNode& item : card) {
      if (item.Tag() != list.element) continue;
      for (const auto& entry : list.rows) {
        if (IsSearched(entry.role)) Text(card, entry.name, item.Node(entry.name));
      }
      if (row.inner) Inner(item);
    }
  }

  void Inner(const XmlNode& item) {
    for (const XmlNode& card : item) {
      if (const CardClass* kind = KindOf(card.Tag(), &RegistryRow::inConditioned)) Card(*kind, card);
    }
  }

  void Formulas(const XmlNode& table) {
    const int page = std::exchange(page_, 0);
    for (const XmlNode& formula : table) {
      if (formula.Tag() == "formule") Text(formula, "text", formula.Node("text"));
    }
    page_ = page;
  }

  void Text(const XmlNode& owner, std::string_view field, const XmlNode& element) {
    if (element) visit_(TemplateText{page_, owner, field, Holder(element)});
  }

  const Visit& visit_;
  int page_ = 0;
};

// Converted into a string whose room is used again.
template <class Visit>
void ForEachTemplateText(const XmlNode& root, const Visit& visit) {
  std::string joined;
  std::wstring text;
  const auto convert = [&](const TemplateText& at) {
    AssignUtf8(text, at.element.WholeText(joined));
    visit(at, text);
  };
  TemplateWalk(convert).Root(root);
}

bool IsBefore(const BytePatch& left, const BytePatch& right) { return left.offset < right.offset; }

std::wstring Shown(const std::wstring& text, std::size_t position, std::size_t length) {
  if (text.size() <= kMostShown) return text;
  const std::size_t half = kMostShown > length ? (kMostShown - length) / 2 : 0;
  return text.substr(position > half ? position - half : 0, kMostShown);
}

}  // namespace

std::vector<TemplateMatch> SearchTemplate(const XmlNode& root, const TextFinder& finder) {
  std::vector<TemplateMatch> matches;
  ForEachTemplateText(root, [&](const TemplateText& at, const std::wstring& text) {
    for (const std::size_t position : finder.FindAll(text)) {
      matches.push_back({at.page, at.Id(), std::string(at.owner.Tag()), std::string(at.field), position,
                         Shown(text, position, finder.Length())});
    }
  });
  return matches;
}

std::optional<std::vector<BytePatch>> PatchesFor(const XmlNode& root, std::string_view bytes, const TextFinder& finder,
                                                 std::wstring_view replacement) {
  std::optional<std::vector<BytePatch>> patches(std::in_place);
  ForEachTemplateText(root, [&](const TemplateText& at, const std::wstring& text) {
    const bool isFound = patches && finder.Find(text) != TextFinder::kNone;
    if (isFound && !AddPatches(*patches, at.element, bytes, finder, replacement)) patches.reset();
  });
  if (patches) std::sort(patches->begin(), patches->end(), IsBefore);
  return patches;
}

std::vector<BytePatch> RevisionPatch(const XmlNode& root, std::string_view bytes, std::wstring_view revision) {
  std::vector<BytePatch> patches;
  const XmlNode element = root.Node("revision");
  if (element) AddWholePatch(patches, element, bytes, revision);
  return patches;
}

}  // namespace xrpt
