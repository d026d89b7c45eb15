// A fresh picture for a card that shows a camera's: what the server is asked, and what becomes of its answer.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "platform/Host.h"
#include "platform/Xml.h"

namespace xrpt {

class RVEditControlWnd;

// The place that is asked, with the device's driver, type, address and socket, and the document that goes with it:
// <params><deviceParams><uri/><streaming/><refreshTime/></deviceParams></params>.
std::string CameraPlace(const Device& device);
std::string CameraParams(const Device& device);

// The "image" of an "ipcamImage" without "errors"; a handle on nothing in any other answer.
XmlNode ImageOfAnswer(const XmlDocument& answer);

// Fetches pictures for the alternative that the one selected conditioned card shows. A picture is nothing of the
// report: no step of the history, and the report stays unmodified.
class CameraPicture {
 public:
  using Told = std::function<void(const std::wstring& problem)>;

  // The frame must outlive it. Answers that come after its own end are dropped.
  explicit CameraPicture(RVEditControlWnd& frame);

  // Whether that alternative shows a camera's picture.
  bool IsMeant() const;
  // `told` hears once: a sentence for people, or nothing when the new picture is shown.
  void Refresh(const Told& told);

 private:
  struct Asked {
    std::wstring container;  // ids of the cards
    std::wstring card;
  };
  std::wstring Take(const Asked& asked, const std::string& body);

  RVEditControlWnd& frame_;
  std::shared_ptr<CameraPicture*> self_;
};

}  // namespace xrpt
