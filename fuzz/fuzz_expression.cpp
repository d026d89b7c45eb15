// Feeds the evaluator whatever text, as an expression and as a table of formulas, one a line: it must answer, and what
// it says must fit together.
#include <cstdlib>

#include "host/DefaultHost.h"
#include "platform/Text.h"
#include "platform/Xml.h"

namespace xrpt {
namespace {

struct Session {
  Session() {
    HostOptions options;
    options.cfgFolder = options.imagesFolder = options.stateFolder = "nowhere";
    options.settingsFile = "nowhere/settings.ini";
    options.dpi = 96;
    options.logToStderr = false;
    host = MakeDefaultHost(options);
    InstallHost(host.get());
  }
  std::unique_ptr<Host> host;
};

void Expect(bool holds) {
  if (!holds) std::abort();
}

// Line i is the formula A, B, C ...; the first line is the expression too.
struct Table {
  explicit Table(const std::wstring& text) {
    for (std::size_t at = 0; at <= text.size() && names.size() < 26;) {
      const std::size_t end = std::min(text.find(L'\n', at), text.size());
      names.emplace_back(1, static_cast<wchar_t>(L'A' + names.size()));
      texts.push_back(text.substr(at, end - at));
      XmlNode formula = document.Root().NewChild("formule");
      formula.SetValue("name", names.back());
      formula.SetValue("text", texts.back());
      at = end + 1;
    }
  }
  XmlDocument document{"formules"};
  std::vector<std::wstring> names, texts;
};

void CheckTokens(const ExpressionService& expressions, const std::wstring& text) {
  std::size_t end = 0;
  for (const RVToken& token : expressions.TokenProducer().Tokens(text)) {
    Expect(token.Position() >= end && token.Length() > 0);
    end = token.Position() + token.Length();
    Expect(end <= text.size());
  }
}

void Check(ExpressionService& expressions, const std::wstring& text) {
  CheckTokens(expressions, text);
  const Table table(text);
  const auto evaluator = expressions.NewEvaluator(table.texts.front());
  const int analysis = evaluator->AnalizeExpression();
  Expect(analysis <= kLogicalExpression || !evaluator->ErrorText().empty());
  evaluator->SetFormules(table.document);
  double value = 0.0;
  int type = -1;
  const int code = evaluator->Evaluate(value, type);
  if (code == kEvaluated || code == kNoLiveValue) {
    Expect(type == analysis);
    Expect(expressions.CheckBucles(table.names, table.texts, 1) == 0);
    if (type == kLogicalValue) Expect(value == 0.0 || value == 1.0);
  }
  Expect((code == kUndefinedNames) == !evaluator->GetUndefinedTokens().empty() || analysis > kLogicalExpression);
  Expect(evaluator->ErrorPosition() <= table.texts.front().size() + 1);
}

}  // namespace
}  // namespace xrpt

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static xrpt::Session session;
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  std::wstring text = xrpt::FromUtf8(bytes);
  std::erase(text, L'\0');  // a document's texts end there, and a formula would be another than the one that is checked
  xrpt::Check(*session.host->expressions, text);
  return 0;
}
