// Puts whatever bytes on the clipboard and pastes them as cards, as formulas and as text styles: what was taken can be
// saved and opened again.
#include "FuzzHost.h"
#include "editor/RVEditControlWnd.h"
#include "editor/TextStyles.h"
#include "formulas/CDlgFormules.h"
#include "support/AnsweringPort.h"

namespace xrpt {
namespace {

class NoFormulas final : public FormulesPort {
 public:
  bool EditFormule(CDlgNewFormule&) override { return false; }
  bool AskUpdateUses(const std::wstring&, const std::wstring&, std::size_t) override { return true; }
  void ShowMessage(int) override {}
};

void PasteCards(FuzzHost& host) {
  AnsweringPort port;
  RVEditControlWnd frame(port);
  frame.CurrentPage().ControlPaste();
  frame.Queue().Drain();
  const Path file = FuzzHost::File("report.xrpt");
  host.files->Put(file, frame.Report().TemplateText());
  RVReport again;
  Expect(again.LoadFile(file).loaded);
  Expect(again.pages[0]->cards.Size() == frame.Report().pages[0]->cards.Size());
}

void PasteFormulas() {
  NoFormulas port;
  CDlgFormules table(XmlDocument("formules"), {}, port);
  const bool changed = table.PasteFromClipboard();
  Expect(changed == !table.Rows().empty());
}

void Check(FuzzHost& host, const std::string& text) {
  host.files->Clear();
  host.host->clipboard->PutToClipboard({text, {}, {}});
  PasteCards(host);
  PasteFormulas();
  for (const std::wstring& name : PasteStyles(text)) Expect(IsValidId(name));
}

}  // namespace
}  // namespace xrpt

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static xrpt::FuzzHost host;
  xrpt::Check(host, std::string(reinterpret_cast<const char*>(data), size));
  return 0;
}
