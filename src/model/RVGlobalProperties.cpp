#include "model/RVGlobalProperties.h"

#include "model/Codecs.h"
#include "model/FieldRows.h"
#include "model/FieldTexts.h"
#include "model/FieldWalk.h"
#include "model/RVCardImage.h"

namespace xrpt {
namespace {

using Page = RVGlobalProperties;

constexpr FieldPanel Millimetres(int textId, double minimum) {
  return {textId, FieldGroup::Page, FieldEditor::Decimal, minimum, 10000.0};
}

template <auto Member>
constexpr PageRow Size(const char* name, int textId, double minimum) {
  return Field<Page, codec::Decimal, Member>(nullptr, name, nullptr, Millimetres(textId, minimum));
}

constexpr PageRow kRows[] = {
    Field<Page, codec::String, &Page::id>(nullptr, "id", nullptr),
    Field<Page, codec::String, &Page::name>(nullptr, "name", nullptr,
                                            {text::kPageName, FieldGroup::Page, FieldEditor::Text}),
    Size<&Page::width>("width", text::kWidth, 1.0),
    Size<&Page::height>("height", text::kHeight, 1.0),
    Size<&Page::rounded>("rounded", text::kRounded, 0.0),
    NotCompared(Size<&Page::xgrid>("xgrid", text::kGridX, -1000.0)),
    NotCompared(Size<&Page::ygrid>("ygrid", text::kGridY, -1000.0)),
    Field<Page, codec::Colour, &Page::backcolor>(nullptr, nullptr, nullptr,
                                                 {text::kSurround, FieldGroup::Page, FieldEditor::Color}),
    Field<Page, codec::Integer, &Page::pageMode>(nullptr, nullptr, nullptr),
};

}  // namespace

ScreenScale::ScreenScale(ModelServices& from)
    : pixelsPerMmX(from.screen->DpiX() / 25.4), pixelsPerMmY(from.screen->DpiY() / 25.4), services(&from) {}

BackgroundCard::BackgroundCard(ModelServices& services) : card_(std::make_unique<RVCardImage>(services)) {
  card_->backcolor = kWhite;
}

BackgroundCard::BackgroundCard(const BackgroundCard& other) : card_(std::make_unique<RVCardImage>(*other)) {}

BackgroundCard& BackgroundCard::operator=(const BackgroundCard& other) {
  if (this != &other) card_ = std::make_unique<RVCardImage>(*other);
  return *this;
}

BackgroundCard::~BackgroundCard() = default;

RVGlobalProperties::RVGlobalProperties(ModelServices& services)
    : id(services.guids->NewGuidText()),
      name(id),
      backcolor(services.screen->ButtonFace()),
      screen(services),
      background_(services) {
  // A new page's picture covers it; reading a page without one does the same.
  background_->width = width;
  background_->height = height;
}

const PageTable& RVGlobalProperties::Table() {
  static constexpr PageTable kTable{nullptr, kRows};
  return kTable;
}

bool RVGlobalProperties::operator==(const RVGlobalProperties& other) const {
  return EqualFields(Table(), *this, other) && *background_ == *other.background_ && lists == other.lists;
}

bool RVGlobalProperties::HasSameRows(const RVGlobalProperties& other) const {
  return SameFields(Table(), *this, other) && background_->HasSameRows(*other.background_) && lists == other.lists;
}

bool RVGlobalProperties::GetFromXml(const XmlNode& page) {
  ReadValues(page);
  ReadBackground(page.Node(kBackgroundTag));
  return true;
}

void RVGlobalProperties::ReadValues(const XmlNode& page) { ReadFields(Table(), *this, page); }

void RVGlobalProperties::ReadBackground(const XmlNode& element) {
  if (element) {
    background_->GetFromXml(element);
    return;
  }
  background_->DeleteOriginalImage();
  background_->width = width;
  background_->height = height;
}

bool RVGlobalProperties::SaveTemplate(XmlWriter* page) const {
  if (!page) {
    screen.services->logger->Log(4, L"RVGlobalProperties::SaveTemplate(): nullptr incoming parameter!");
    return false;
  }
  WriteFields(Table(), *this, *page);
  if (background_->HasImageId()) {
    const XmlElement element(*page, kBackgroundTag);
    background_->SaveTemplate(page, false);
  }
  return true;
}

bool RVGlobalProperties::ThereAreBackground() const { return background_->HasImageData(); }

void RVGlobalProperties::DeleteBackground() { background_->DeleteOriginalImage(); }

}  // namespace xrpt
