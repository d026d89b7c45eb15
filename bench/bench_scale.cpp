// How the cost of what users do grows with the cards it works on, with its step of the history and the messages it
// posts. What grows too fast fails the run.
#include "CardRows.h"
#include "host/DefaultHost.h"
#include "support/AnsweringPort.h"

namespace xrpt {
namespace {

class FrameDesk final : public Desk {
 public:
  explicit FrameDesk(std::size_t count) : frame_(port_, EditingOptions::Comfort()) {
    port_.answer = Answer::Yes;
    Fill(count);
  }
  RVEditControlWnd& Editor() override { return frame_; }

 private:
  AnsweringPort port_;
  RVEditControlWnd frame_;
};

}  // namespace
}  // namespace xrpt

int main() {
  const auto host = xrpt::MakeDefaultHost({});
  xrpt::InstallHost(host.get());
  return xrpt::MeasureAll([](std::size_t count) { return std::make_unique<xrpt::FrameDesk>(count); }) ? 0 : 1;
}
