// A camera's new picture: what the server is asked, and what its answer does to the card and to nothing else.
#include <gmock/gmock.h>

#include "editor/CameraPicture.h"
#include "editor/EditorTexts.h"
#include "editor/RVEditControlWnd.h"
#include "model/RVCardConditioned.h"
#include "model/RVCardDynamicImage.h"
#include "platform/Base64.h"
#include "platform/Text.h"
#include "support/AnsweringPort.h"
#include "support/OwnFormat.h"
#include "support/TestHost.h"

namespace xrpt {
namespace {

using ::testing::HasSubstr;

class Server final : public HttpService {
 public:
  void Post(const std::string& where, const std::string& what, std::function<void(const HttpAnswer&)> then) override {
    place = where;
    document = what;
    answer = std::move(then);
  }
  std::string place, document;
  std::function<void(const HttpAnswer&)> answer;
};

class Camera : public HostTest {
 protected:
  Camera() {
    host->pictures = std::make_unique<OwnFormat>();
    host->http = std::make_unique<Server>();
    host.WriteCfg("devices.xml",
                  "<devices><server>http://plant:80</server><device><id>CAM</id><name>Gate</name><driver>IP &amp; "
                  "é</driver><type>7</type><address>10.0.0.1</address><uri>/live</uri><streaming>F</streaming>"
                  "<refreshTime>5</refreshTime></device></devices>");
    auto container = std::make_unique<RVCardConditioned>();
    container->id = L"C";
    auto image = std::make_unique<RVCardDynamicImage>();
    image->id = L"I";
    image->variable = L"CAM.PICTURE";
    container->AddAlternative(std::move(image));
    container->current = 0;
    frame.CurrentPage().Edit({0, 1}).Cards().PushFront(std::move(container));
    frame.CurrentPage().SelectControls({L"C"});
  }
  Server& Http() { return static_cast<Server&>(*host->http); }
  bool HasPicture() {
    const auto* container = dynamic_cast<const RVCardConditioned*>(frame.CurrentPage().Page().cards.Find(L"C"));
    return static_cast<const RVCardDynamicImage&>(*container->cards[0]).GetPicture() != nullptr;
  }
  void Refresh() {
    said = "nothing";
    camera->Refresh([this](const std::wstring& problem) { said = ToUtf8(problem); });
  }
  static std::string Answer(const std::string& bytes) {
    return "<ipcamImage><image><image64>" + EncodeBase64(bytes) + "</image64></image></ipcamImage>";
  }

  AnsweringPort port;
  RVEditControlWnd frame{port, EditingOptions::Comfort()};
  std::unique_ptr<CameraPicture> camera = std::make_unique<CameraPicture>(frame);
  std::string said;
};

TEST_F(Camera, TheServerIsAskedForTheDeviceOfTheVariable) {
  ASSERT_TRUE(camera->IsMeant());
  Refresh();
  EXPECT_EQ(Http().place,
            "/services/devices/getCommand.xml?command=REFRESH_IMAGE&driver=IP%20%26%20%C3%A9&type=7&address=10.0.0.1"
            "&socket=");
  XmlDocument sent;
  ASSERT_TRUE(sent.Parse(Http().document));
  EXPECT_EQ(sent.Root().Tag(), "params");
  EXPECT_EQ(sent.Root().Value("/deviceParams/uri"), L"/live");
  EXPECT_EQ(sent.Root().Value("/deviceParams/streaming"), L"F");
  EXPECT_EQ(sent.Root().Value("/deviceParams/refreshTime"), L"5");
}

TEST_F(Camera, ItsPictureIsShownAndIsNothingOfTheReport) {
  frame.SetModified(false);
  const std::size_t steps = frame.History().DoneNames().size();
  frame.CurrentPage().BackgroundDrawn();
  Refresh();
  EXPECT_FALSE(HasPicture());
  Http().answer({200, Answer("PIC"), {}});
  EXPECT_EQ(said, "");
  EXPECT_TRUE(HasPicture());
  EXPECT_TRUE(frame.CurrentPage().NeedsBackground()) << "it is painted";
  EXPECT_EQ(frame.History().DoneNames().size(), steps);
  EXPECT_FALSE(frame.IsModified());
}

TEST_F(Camera, WhatIsNoPictureIsSaidInWords) {
  for (const std::string& body :
       {std::string("no document"), std::string("<other/>"), Answer("not a picture"),
        std::string("<ipcamImage><errors/><image><image64>UElD</image64></image></ipcamImage>"),
        std::string("<answer><errors/></answer>")}) {
    Refresh();
    Http().answer({200, body, {}});
    EXPECT_EQ(said, ToUtf8(HostText(text::kNoPictureInAnswer))) << body;
    EXPECT_FALSE(HasPicture()) << body;
  }
  Refresh();
  Http().answer({503, {}, "Service Unavailable"});
  EXPECT_THAT(said, HasSubstr("Service Unavailable"));
}

TEST_F(Camera, WithoutServerOrDeviceNobodyIsAsked) {
  frame.CurrentPage().Edit({0, 1}).Card(0);
  auto& inner = static_cast<RVCardConditioned&>(frame.CurrentPage().Edit({0, 1}).Card(0)).cards[0];
  static_cast<RVCardDynamicImage&>(*inner).variable = L"OTHER.X";
  Refresh();
  EXPECT_EQ(said, ToUtf8(HostText(text::kNoCamera)));
  host.WriteCfg("devices.xml", "<devices/>");
  Refresh();
  EXPECT_EQ(said, ToUtf8(HostText(text::kNoServer)));
  EXPECT_FALSE(Http().answer);
}

TEST_F(Camera, AnAnswerThatComesTooLateDoesNothing) {
  Refresh();
  frame.CurrentPage().Edit({0, 1}).Cards().Remove({0});
  Http().answer({200, Answer("PIC"), {}});
  EXPECT_EQ(said, "");
  Refresh();
  EXPECT_EQ(said, "nothing") << "no card is meant any more";
  camera.reset();
  Http().answer({200, Answer("PIC"), {}});
  EXPECT_EQ(said, "nothing");
}

}  // namespace
}  // namespace xrpt
