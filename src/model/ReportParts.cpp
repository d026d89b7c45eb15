#include "model/ReportParts.h"

#include "platform/XmlStretches.h"

namespace xrpt {
namespace {

constexpr std::string_view kPage = "page";

// A page's cards are made as they come by; what stands beside them is little, and kept until the page ends.
class PageReader final : public XmlVisitor {
 public:
  void Begin(RVReportPage& page) {
    page_ = &page;
    page.BeginReading();
    rest_.Create(kPage);
  }
  void Child(const XmlNode& element) override {
    if (!page_->ReadCard(element)) rest_.Root().Append(element);
  }
  void End() override { page_->EndReading(rest_.Root()); }

 private:
  RVReportPage* page_ = nullptr;
  XmlDocument rest_;
};

class ReportReader final : public XmlVisitor {
 public:
  explicit ReportReader(ModelServices& services) : services_(services) {}

  void Child(const XmlNode& element) override {
    if (element.Tag() == kPage) {
      AddPage().SetTemplate(element);
    } else {
      parts.rest.Root().Append(element);
    }
  }
  XmlVisitor* Inside(std::string_view tag) override {
    if (tag != kPage) return nullptr;
    page_.Begin(AddPage());
    return &page_;
  }

  ReportParts parts;

 private:
  RVReportPage& AddPage() { return *parts.pages.emplace_back(std::make_shared<RVReportPage>(services_)); }

  ModelServices& services_;
  PageReader page_;
};

}  // namespace

std::optional<ReportParts> ReadReportParts(std::string_view text, ModelServices& services) {
  ReportReader reader(services);
  if (!VisitStretches(text, reader.parts.rest.Root().Tag(), reader)) return std::nullopt;
  return std::move(reader.parts);
}

}  // namespace xrpt
