// Feeds whatever bytes as the file of a text style: it is a style or none, and what is saved from it reads the same.
#include "FuzzHost.h"
#include "editor/TextStyles.h"

namespace xrpt {
namespace {

void Check(FuzzHost& host, std::string bytes) {
  host.files->Clear();
  host.files->Put(FuzzHost::File("S.Title.XSTY"), std::move(bytes));
  host.host->identifiers->invalidateGuid(GuidKind::Styles, true);
  std::wstring text;
  host.host->styles->StyleName2Id(L"Title", text);
  host.host->styles->StyleId2Name(L"S", text);
  host.host->styles->Font(L"Title");
  ListStyles();
  CopyStyles({L"Title"});
  const tagStyleCfg style = OpenStyle(L"Title");
  const StyleEdit edit{L"Title", true, false};
  const int problem = CheckStyle(style, edit);
  if ((problem != 0 && problem != kAskOverwriteStyle) || !SaveStyle(style, edit)) return;
  // A file holds no control characters and two decimals: what was read once stays as it is.
  const tagStyleCfg kept = OpenStyle(style.name);
  StyleEdit again;
  again.openedName = kept.name;
  if (CheckStyle(kept, again) != 0 || !SaveStyle(kept, again)) return;
  Expect(OpenStyle(kept.name) == kept || !(kept == kept));
}

}  // namespace
}  // namespace xrpt

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static xrpt::FuzzHost host;
  xrpt::Check(host, std::string(reinterpret_cast<const char*>(data), size));
  return 0;
}
