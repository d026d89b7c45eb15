// Feeds whatever bytes as a picture: it is one within the bounds or none, at its own size and scaled.
#include "FuzzHost.h"
#include "host/qt/QtHost.h"
#include "host/qt/QtPictures.h"
#include "platform/Base64.h"
#include "platform/ImageFiles.h"

namespace xrpt {
namespace {

void CheckPixels(const PicturePtr& picture) {
  if (!picture || picture->source) return;
  const auto pixels = static_cast<std::size_t>(picture->width) * static_cast<std::size_t>(picture->height);
  Expect(picture->width > 0 && picture->height > 0 && picture->rgb.size() == 3 * pixels);
  Expect(picture->alpha.empty() || picture->alpha.size() == pixels);
  Expect(pixels <= static_cast<std::size_t>(QtPictures::kMaxPixels));
}

void Check(FuzzHost& host, const std::string& bytes) {
  QtPictures pictures;
  const PicturePtr outline = pictures.Outline(bytes);
  // Large ones only take the fuzzer's time.
  if (outline && outline->width * static_cast<long long>(outline->height) > 1'000'000) return;
  CheckPixels(pictures.Decode(bytes));
  CheckPixels(pictures.DecodeScaled(bytes, 16, 9));
  host.files->Put(FuzzHost::File("p.img"), bytes);
  CheckPixels(ReadImageFile(*host.host, L"p", L"./"));
}

}  // namespace
}  // namespace xrpt

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static xrpt::FuzzHost& host = *[] {
    xrpt::EnsureHeadlessQt();
    return new xrpt::FuzzHost();
  }();
  xrpt::Check(host, std::string(reinterpret_cast<const char*>(data), size));
  return 0;
}
