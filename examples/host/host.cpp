// A host in one file: an application of its own that embeds the editor. It brings its own texts, configuration folder,
// plant, readings and evaluator, and takes everything else from the embedded default.
//
//   sample_host FOLDER
//
// makes a report in the folder, lays a formula card on it, evaluates the formula, undoes, redoes and saves, and says
// what happened. A real host shows its windows where this one has none.
#include <iostream>
#include <map>

#include "canvas/PageEdit.h"
#include "editor/CDlgEditor.h"
#include "host/DefaultHost.h"
#include "model/RVCardFormule.h"
#include "platform/Host.h"
#include "platform/Text.h"

namespace {

using namespace xrpt;

// --- Own texts: some in the words of this plant, the rest as they are ---

class PlantTexts final : public TextService {
 public:
  explicit PlantTexts(std::unique_ptr<TextService> others) : others_(std::move(others)) {}
  std::wstring Text(int id) const override {
    constexpr int kUntitled = 32468;
    return id == kUntitled ? L"Unnamed shift sheet" : others_->Text(id);
  }

 private:
  std::unique_ptr<TextService> others_;
};

// --- Own folders ---

class PlantSetup final : public SetupService {
 public:
  explicit PlantSetup(Path folder) : folder_(std::move(folder)) {}
  Path CfgPath() const override { return folder_; }
  Path ImagesPath() const override { return folder_ / "images"; }
  std::wstring RegisterKey() const override { return L"Software\\SampleHost"; }

 private:
  Path folder_;
};

// --- Own plant and its readings, as they would come from a database or a field bus ---

class Plant final : public DeviceCatalogue {
 public:
  std::vector<Device> Devices() override {
    return {{L"MAIN", L"Main meter", {{L"P", L"Active power"}, {L"E", L"Active energy"}}},
            {L"BOILER", L"Boiler", {{L"T", L"Temperature"}}}};
  }
};

class Readings final : public ValueService {
 public:
  std::optional<double> Reading(std::wstring_view variable) override {
    const auto found = values_.find(variable);
    return found == values_.end() ? std::nullopt : std::optional(found->second);
  }

 private:
  std::map<std::wstring, double, std::less<>> values_ = {{L"MAIN.P", 120.5}, {L"BOILER.T", 78.0}};
};

// --- Own evaluator: knows what energy costs here, and leaves the rest to the embedded one ---

class PricedExpressions final : public ExpressionService {
 public:
  explicit PricedExpressions(std::unique_ptr<ExpressionService> embedded) : embedded_(std::move(embedded)) {}
  std::unique_ptr<RVEvaluator> NewEvaluator(std::wstring_view text) override {
    return embedded_->NewEvaluator(WithPrice(std::wstring(text)));
  }
  const RVTokenProducer& TokenProducer() const override { return embedded_->TokenProducer(); }
  std::wstring ErrorMsg(int code) const override { return embedded_->ErrorMsg(code); }
  int CheckBucles(std::span<const std::wstring> names, std::span<const std::wstring> texts, int index) const override {
    return embedded_->CheckBucles(names, texts, index);
  }
  bool isThereAModuleInExpression(std::wstring_view text) const override {
    return embedded_->isThereAModuleInExpression(text);
  }

 private:
  // As long as the word it stands for, so that places in error messages stay right.
  static std::wstring WithPrice(std::wstring text) {
    constexpr std::wstring_view kWord = L"PRICE";
    constexpr std::wstring_view kPrice = L"0.142";
    for (std::size_t at = text.find(kWord); at != text.npos; at = text.find(kWord, at)) text.replace(at, 5, kPrice);
    return text;
  }

  std::unique_ptr<ExpressionService> embedded_;
};

std::unique_ptr<Host> MakeHost(const Path& folder) {
  HostOptions options;
  options.cfgFolder = folder;
  options.stateFolder = folder / "state";
  options.settingsFile = folder / "settings.ini";
  options.language = "en";
  std::unique_ptr<Host> host = MakeDefaultHost(options);
  host->setup = std::make_unique<PlantSetup>(folder);
  host->texts = std::make_unique<PlantTexts>(std::move(host->texts));
  host->devices = std::make_unique<Plant>();
  host->values = std::make_unique<Readings>();
  host->expressions = std::make_unique<PricedExpressions>(std::move(host->expressions));
  return host;
}

// --- What the editor asks of the application round it ---

// A window that shows nothing. A real one invalidates and scrolls a window of its toolkit, and sends mouse, keys and
// timers to the RVEditTemplateWnd it is given in PageWindowReady.
class NoWindow final : public WindowPort {
 public:
  Rect ClientRect() const override { return {0, 0, 1000, 800}; }
  void Invalidate() override {}
  void SetCapture() override {}
  void ReleaseCapture() override {}
  void SetFocus() override {}
  void SetCursor(Cursor) override {}
  void SetTimer(int, int) override {}
  void KillTimer(int) override {}
  void SetScrollInfo(ScrollAxis, const ScrollInfo&) override {}
  Point CursorPosition() const override { return {}; }
  bool IsControlDown() const override { return false; }
  void TrackPopupMenu(const std::vector<MenuItem>&, Point) override {}
};

class SamplePort final : public EditorPort {
 public:
  std::unique_ptr<WindowPort> NewPageWindow() override { return std::make_unique<NoWindow>(); }
  void PageWindowReady(WindowPort&, RVEditTemplateWnd&) override {}
  void PageWindowGone(WindowPort&) override {}
  void PagesChanged() override {}
  void StateChanged() override {}
  bool RunCommand(const char*) override { return false; }
  Answer Ask(int textId) override {
    std::cout << "asked: " << ToUtf8(HostText(textId)) << "\n";
    return Answer::Yes;
  }
  void Tell(int textId) override { std::cout << ToUtf8(HostText(textId)) << "\n"; }
  std::optional<std::wstring> ChooseReport(const std::wstring&) override { return std::nullopt; }
};

// --- What this program does with it ---

void AddFormula(RVEditControlWnd& frame, const std::wstring& text) {
  PageEdit edit = frame.CurrentPage().Edit({});
  auto card = std::make_unique<RVCardFormule>();
  card->field = L"MAIN.P";
  card->value = text;
  edit.Cards().PushFront(std::move(card));
}

void PrintValue(const std::wstring& text) {
  double value = 0.0;
  int type = kNumericValue;
  const auto evaluator = CurrentHost().expressions->NewEvaluator(text);
  const int code = evaluator->Evaluate(value, type);
  std::cout << ToUtf8(text) << " = " << value << " (" << code << ")\n";
}

int Work() {
  constexpr wchar_t kCost[] = L"[MAIN.P] * PRICE";
  SamplePort port;
  CDlgEditor editor(port);
  editor.OnInitialUpdate();
  std::cout << "new: " << ToUtf8(editor.Frame().Caption()) << "\n";
  AddFormula(editor.Frame(), kCost);
  PrintValue(kCost);
  std::cout << "undone: " << editor.OnUndo() << ", cards " << editor.Frame().CurrentPage().Page().cards.Size() << "\n";
  editor.Frame().Redo();
  editor.Save();
  editor.Deliver();
  std::cout << "saved: " << editor.Frame().Report().File().string() << "\n";
  return editor.Frame().IsModified() ? 1 : 0;
}

}  // namespace

int main(int count, char** arguments) {
  if (count != 2) {
    std::cerr << "sample_host FOLDER: makes a report in the folder\n";
    return 2;
  }
  const std::unique_ptr<Host> host = MakeHost(arguments[1]);
  InstallHost(host.get());  // before any card exists, and for as long as one does
  return Work();
}
