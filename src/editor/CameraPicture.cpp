#include "editor/CameraPicture.h"

#include <algorithm>

#include "canvas/UndoTexts.h"
#include "editor/EditorTexts.h"
#include "editor/MeantCards.h"
#include "editor/RVEditControlWnd.h"
#include "model/RVCardConditioned.h"
#include "model/RVCardDynamicImage.h"
#include "platform/HttpService.h"
#include "platform/Text.h"

namespace xrpt {
namespace {

constexpr char kPlace[] = "/services/devices/getCommand.xml?command=REFRESH_IMAGE";
constexpr const wchar_t* kInPlace[] = {L"driver", L"type", L"address", L"socket"};
constexpr const wchar_t* kInParams[] = {L"uri", L"streaming", L"refreshTime"};

// As a part of an address: all but letters, digits and a few signs as bytes in hexadecimal.
std::string Escaped(std::wstring_view text) {
  static constexpr char kDigits[] = "0123456789ABCDEF";
  static constexpr std::string_view kPlain = "-._~";
  std::string escaped;
  for (const char c : ToUtf8(text)) {
    const auto byte = static_cast<unsigned char>(c);
    const bool isPlain = (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
    if (isPlain || kPlain.find(c) != std::string_view::npos) {
      escaped += c;
    } else {
      escaped.append({'%', kDigits[byte >> 4], kDigits[byte & 15]});
    }
  }
  return escaped;
}

const RVCardDynamicImage* Meant(const RVEditControlWnd& frame) {
  return dynamic_cast<const RVCardDynamicImage*>(MeantCard(frame, FieldsOf::Alternative));
}

// The device that a variable belongs to; nothing when the plant has none of that name.
std::optional<Device> DeviceOf(const std::wstring& variable) {
  Host& host = CurrentHost();
  const std::wstring id = host.variables->SplitDriverVariable(variable).device;
  const std::vector<Device> devices = host.devices->Devices();
  const auto found =
      std::find_if(devices.begin(), devices.end(), [&](const Device& device) { return device.id == id; });
  return found == devices.end() ? std::nullopt : std::optional(*found);
}

RVCardDynamicImage* FindImage(RVCardConditioned& container, const std::wstring& id) {
  for (const auto& card : container.cards) {
    auto* image = dynamic_cast<RVCardDynamicImage*>(card.get());
    if (image && image->id == id) return image;
  }
  return nullptr;
}

}  // namespace

std::string CameraPlace(const Device& device) {
  std::string place = kPlace;
  for (const wchar_t* name : kInPlace) place += '&' + ToUtf8(name) + '=' + Escaped(device.Setting(name));
  return place;
}

std::string CameraParams(const Device& device) {
  XmlDocument document("params");
  XmlNode params = document.Root().NewChild("deviceParams");
  for (const wchar_t* name : kInParams) params.SetValue(ToUtf8(name), device.Setting(name));
  return document.Text();
}

XmlNode ImageOfAnswer(const XmlDocument& answer) {
  const XmlNode root = answer.Root();
  if (root.Node("errors")) return {};
  const XmlNode picture = root.Tag() == "ipcamImage" ? root : root.Node("ipcamImage");
  return picture.Node("errors") ? XmlNode() : picture.Node("image");
}

CameraPicture::CameraPicture(RVEditControlWnd& frame) : frame_(frame), self_(std::make_shared<CameraPicture*>(this)) {}

bool CameraPicture::IsMeant() const { return Meant(frame_) != nullptr; }

void CameraPicture::Refresh(const Told& told) {
  const RVCardDynamicImage* card = Meant(frame_);
  if (!card) return;
  HttpService* http = CurrentHost().http.get();
  if (!http || CurrentHost().devices->Server().empty()) return told(HostText(text::kNoServer));
  const std::optional<Device> device = DeviceOf(card->variable);
  if (!device) return told(HostText(text::kNoCamera));
  const Asked asked{MeantCard(frame_, FieldsOf::Selection)->id, card->id};
  http->Post(CameraPlace(*device), CameraParams(*device),
             [told, asked, self = std::weak_ptr(self_)](const HttpAnswer& answer) {
               const auto alive = self.lock();
               if (!alive) return;
               told(answer.reason.empty() ? (*alive)->Take(asked, answer.body)
                                          : FormatText(HostText(text::kNoAnswer), FromUtf8(answer.reason)));
             });
}

// The card may have gone meanwhile, or stand on a page that is not shown.
std::wstring CameraPicture::Take(const Asked& asked, const std::string& body) {
  XmlDocument answer;
  const bool isRead = answer.Parse(body);
  const XmlNode image = isRead ? ImageOfAnswer(answer) : XmlNode();
  if (!image) return HostText(text::kNoPictureInAnswer);
  int outcome = 0;
  for (std::size_t i = 0; i < frame_.PageCount(); ++i) {
    RVEditTemplateWnd& page = frame_.Page(i);
    if (!page.Page().cards.Find(asked.container)) continue;
    PageEdit edit = page.Edit({text::kChange, 1});
    auto* container = dynamic_cast<RVCardConditioned*>(edit.Card(asked.container));
    RVCardDynamicImage* card = container ? FindImage(*container, asked.card) : nullptr;
    if (card) outcome = card->refreshImage(image);
    edit.EndQuietly();
  }
  return outcome == 0 ? std::wstring() : HostText(text::kNoPictureInAnswer);
}

}  // namespace xrpt
