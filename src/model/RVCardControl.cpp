#include "model/RVCardControl.h"

#include <atomic>
#include <stdexcept>

#include "model/Codecs.h"
#include "model/FieldRows.h"
#include "model/FieldTexts.h"
#include "model/FieldWalk.h"

namespace xrpt {

namespace {

constexpr FieldPanel Millimetres(int textId, double minimum) {
  return {textId, FieldGroup::Geometry, FieldEditor::Decimal, minimum, 10000.0};
}

}  // namespace

using Card = RVCardControl;

// A file's card without "id" deliberately gets an empty one, not a fresh GUID, so that it is written back without.
const CardRow RVCardControl::kRows[] = {
    WhenNotEmpty<Card, &Card::id>(Field<Card, codec::String, &Card::id>(nullptr, "id", "")),
    Field<Card, codec::Decimal, &Card::x>(nullptr, "x", nullptr, Millimetres(text::kX, -10000.0)),
    Field<Card, codec::Decimal, &Card::y>(nullptr, "y", nullptr, Millimetres(text::kY, -10000.0)),
    Field<Card, codec::Decimal, &Card::width>(nullptr, "width", nullptr, Millimetres(text::kWidth, 0.0)),
    Field<Card, codec::Decimal, &Card::height>(nullptr, "height", nullptr, Millimetres(text::kHeight, 0.0)),
    Field<Card, codec::Colour, &Card::color>(nullptr, "color", nullptr,
                                             {text::kColor, FieldGroup::Colors, FieldEditor::Color}),
    When<Card, &Card::HasBackColor>(Field<Card, codec::Colour, &Card::backcolor>(
        nullptr, "backcolor", nullptr, {text::kBackColor, FieldGroup::Colors, FieldEditor::Color})),
    Holding(TextRole::Binding, WhenNotEmpty<Card, &Card::field>(Field<Card, codec::String, &Card::field>(
                                   nullptr, "field", "", {text::kField, FieldGroup::Content, FieldEditor::Variable}))),
};

bool CardClass::IsKindOf(const CardClass& other) const {
  const CardClass* kind = this;
  while (kind && kind != &other) kind = kind->base;
  return kind != nullptr;
}

RVCardControl::RVCardControl(ModelServices& services) : services_(&services) { InitializeId(); }

const CardClass& RVCardControl::Class() {
  static const CardClass kind{nullptr, 0, {nullptr, kRows}, nullptr, nullptr};
  return kind;
}

bool RVCardControl::operator==(const RVCardControl& other) const {
  return &GetRuntimeClass() == &other.GetRuntimeClass() && isEqual(other);
}

bool RVCardControl::isEqual(const RVCardControl& other) const {
  return other.IsKindOf(GetRuntimeClass()) && EqualFields(GetRuntimeClass().table, *this, other) && EqualFlags(other);
}

bool RVCardControl::HasSameRows(const RVCardControl& other) const {
  const CardClass& kind = GetRuntimeClass();
  return &kind == &other.GetRuntimeClass() && SameFields(kind.table, *this, other) && EqualFlags(other);
}

bool RVCardControl::DiffersInPlaceOnly(const RVCardControl& other) const {
  const CardClass& kind = GetRuntimeClass();
  if (&kind != &other.GetRuntimeClass() || key_ != other.key_ || parent != other.parent || !EqualFlags(other)) {
    return false;
  }
  bool same = true;
  ForEachField(kind.table, [&](const CardRow& row) {
    same = same && (row.panel.group == FieldGroup::Geometry || !row.same || row.same(*this, other));
  });
  return same;
}

bool RVCardControl::SaveTemplate(XmlWriter* node, bool makeOwnElement) const {
  const CardClass& kind = GetRuntimeClass();
  if (!makeOwnElement || !kind.tag) {
    WriteFields(kind.table, *this, *node);
    return true;
  }
  const XmlElement element(*node, kind.tag);
  WriteFields(kind.table, *this, *node);
  return true;
}

// The common values are written from a card that has the other rectangle, all else from this one.
void RVCardControl::SaveInside(const RVCardControl& container, XmlWriter* node) const {
  RVCardControl common(*this);
  common.x = container.x;
  common.y = container.y;
  common.width = container.width;
  common.height = container.height;
  const CardClass& kind = GetRuntimeClass();
  const XmlElement element(*node, kind.tag ? kind.tag : "card");
  WriteFields(kind.table, *this, common, *node);
}

bool RVCardControl::GetFromXml(const XmlNode& node) {
  ReadFields(GetRuntimeClass().table, *this, node);
  return true;
}

std::unique_ptr<RVCardControl> RVCardControl::GetClone() const {
  return std::unique_ptr<RVCardControl>(new RVCardControl(*this));
}

void RVCardControl::Draw(Graphics&, const tagDraw&) const {}

bool RVCardControl::GetStyleFromFile(const std::wstring&) { return false; }

bool RVCardControl::SetFlags(int bit) {
  flags.reset();
  if (bit < 0) throw std::out_of_range("a card flag is one of the bits 0 to 33");
  flags.set(static_cast<std::size_t>(bit));
  return true;
}

bool RVCardControl::SetFlags(const Flags& set) {
  flags = set;
  return true;
}

void RVCardControl::InitializeId() {
  id = services_->guids->NewGuidText();
  key_ = NextKey();
}

// Reports may be read on other threads.
CardKey RVCardControl::NextKey() {
  static std::atomic<CardKey> last = 0;
  return ++last;
}

RVReportPage* RVCardControl::GetParent() const {
  if (!parent) throw std::logic_error("a card must be given its page before anything asks for it");
  return parent;
}

}  // namespace xrpt
