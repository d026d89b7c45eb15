// The actions of what dialogs decide: formulas, virtual devices and go-back variables, search and replace. Each opens
// the dialog, does the one thing and closes it with OK, and prints what came of it.
#include "editor/ReportDialogs.h"
#include "platform/Host.h"
#include "platform/Json.h"
#include "platform/Text.h"
#include "xrpt/Output.h"
#include "xrpt/ScriptRunner.h"

namespace xrpt {
namespace {

// What a user would type into the formula dialogs and answer to them.
class TypedFormula final : public FormulesPort {
 public:
  TypedFormula(Formula typed, Answer answer) : typed_(std::move(typed)), answer_(answer) {}

  bool EditFormule(CDlgNewFormule& dialog) override {
    dialog.name = typed_.name;
    dialog.text = typed_.text;
    const bool accepted = dialog.OnOK();
    result = dialog.Result();
    return accepted;
  }
  bool AskUpdateUses(const std::wstring&, const std::wstring&, std::size_t) override { return answer_ == Answer::Yes; }
  void ShowMessage(int textId) override { result = {textId, HostText(textId), false}; }

  FormulaResult result;

 private:
  Formula typed_;
  Answer answer_;
};

class TypedSource final : public VirtualSetupPort {
 public:
  TypedSource(std::wstring typed, Answer answer) : typed_(std::move(typed)), answer_(answer) {}

  // Whoever is asked again gives up.
  std::optional<std::wstring> AskIdentification(int, int, const std::wstring&) override {
    return std::exchange(typed_, std::nullopt);
  }
  void ShowMessage(int id) override { textId = id; }
  bool AskUpdateUses(const std::wstring&, const std::wstring&, std::size_t) override { return answer_ == Answer::Yes; }
  bool AskDeleteUsed(const std::wstring&, std::size_t) override { return answer_ == Answer::Yes; }

  int textId = 0;

 private:
  std::optional<std::wstring> typed_;
  Answer answer_;
};

void Write(JsonWriter& out, const char* key, bool value) {
  out.Key(key);
  out.Bool(value);
}

void Write(JsonWriter& out, const char* key, std::size_t value) {
  out.Key(key);
  out.Int(static_cast<long long>(value));
}

void Write(JsonWriter& out, const char* key, const std::wstring& value) {
  out.Key(key);
  out.String(value);
}

// A list of objects of two texts each.
template <class Pairs>
void Write(JsonWriter& out, const char* key, const char* first, const char* second, const Pairs& pairs) {
  out.Key(key);
  out.BeginArray();
  for (const auto& [left, right] : pairs) {
    out.BeginObject();
    Write(out, first, left);
    Write(out, second, right);
    out.EndObject();
  }
  out.EndArray();
}

std::vector<std::pair<std::wstring, std::wstring>> PairsOf(const SourceList& sources) {
  std::vector<std::pair<std::wstring, std::wstring>> pairs;
  for (std::size_t i = 0; i < sources.Size(); ++i) pairs.emplace_back(sources.ids[i], sources.names[i]);
  return pairs;
}

template <class Write>
std::string PrintObject(const Write& write) {
  JsonWriter out;
  out.BeginObject();
  write(out);
  out.EndObject();
  xrpt::Print(out.Text() + "\n");
  return {};
}

// The rows of these names; none when one of them is no formula's.
std::vector<std::size_t> RowsOf(const FormulaTable& table, const std::vector<std::string>& names, std::size_t count) {
  std::vector<std::size_t> rows;
  for (std::size_t i = 0; i < count; ++i) {
    const Formula* formula = FindFormula(table, FromUtf8(names[i]));
    if (!formula) return {};
    rows.push_back(static_cast<std::size_t>(formula - table.data()));
  }
  return rows;
}

std::size_t RowOf(const SourceList& sources, const std::string& name) {
  const auto at = std::find(sources.names.begin(), sources.names.end(), FromUtf8(name));
  return static_cast<std::size_t>(at - sources.names.begin());
}

bool HasCase(const std::vector<std::string>& arguments, std::size_t fixed) { return arguments.size() > fixed; }

}  // namespace

// --- Formulas ---

template <class Operation>
std::string ScriptRunner::InFormulas(const Formula& typed, const Operation& operation) {
  TypedFormula port(typed, editor_.answer);
  CDlgFormules dialog = OpenFormulas(frame_, port);
  const bool accepted = operation(dialog, port) && AcceptFormulas(frame_, dialog);
  return PrintObject([&](JsonWriter& out) {
    std::vector<std::pair<std::wstring, std::wstring>> formulas;
    for (const Formula& formula : ReadFormulas(frame_.Report().formules)) {
      formulas.emplace_back(formula.name, formula.text);
    }
    Write(out, "accepted", accepted);
    Write(out, "textId", static_cast<std::size_t>(port.result.textId));
    Write(out, "shown", port.result.shown);
    Write(out, "formulas", "name", "text", formulas);
  });
}

std::string ScriptRunner::FormulaAdd(Arguments arguments) {
  return InFormulas({FromUtf8(arguments[0]), FromUtf8(arguments[1])},
                    [](CDlgFormules& dialog, const TypedFormula&) { return dialog.OnXciAdd(); });
}

// One that stays as it is was accepted, too.
std::string ScriptRunner::FormulaModify(Arguments arguments) {
  return InFormulas({FromUtf8(arguments[1]), FromUtf8(arguments[2])},
                    [&](CDlgFormules& dialog, const TypedFormula& port) {
                      dialog.Select(RowsOf(dialog.Rows(), arguments, 1));
                      dialog.OnXciModify();
                      return port.result.accepted;
                    });
}

std::string ScriptRunner::FormulaDelete(Arguments arguments) {
  return InFormulas({}, [&](CDlgFormules& dialog, const TypedFormula&) {
    dialog.Select(RowsOf(dialog.Rows(), arguments, arguments.size()));
    return dialog.OnXciDelete();
  });
}

std::string ScriptRunner::FormulaCopy(Arguments arguments) {
  return InFormulas({}, [&](CDlgFormules& dialog, const TypedFormula&) {
    dialog.Select(RowsOf(dialog.Rows(), arguments, arguments.size()));
    return dialog.CopyToClipboard();
  });
}

std::string ScriptRunner::FormulaPaste(Arguments) {
  return InFormulas({}, [](CDlgFormules& dialog, const TypedFormula&) { return dialog.PasteFromClipboard(); });
}

// --- Virtual devices and go-back variables ---

template <class Operation>
std::string ScriptRunner::InSources(const std::string& typed, const Operation& operation) {
  TypedSource port(FromUtf8(typed), editor_.answer);
  RVDlgReportVirtualDeviceSetup dialog = OpenSources(frame_, port);
  const bool accepted = operation(dialog) && AcceptSources(frame_, dialog);
  return PrintObject([&](JsonWriter& out) {
    const RVReport& report = frame_.Report();
    Write(out, "accepted", accepted);
    Write(out, "textId", static_cast<std::size_t>(port.textId));
    Write(out, "devices", "id", "name", PairsOf(ReadSources(SourceKind::VirtualDevice, report.virtualDevices)));
    Write(out, "gobacks", "id", "name", PairsOf(ReadSources(SourceKind::GoBackVariable, report.goBackVariables)));
  });
}

using Setup = RVDlgReportVirtualDeviceSetup;

std::string ScriptRunner::DeviceAdd(Arguments arguments) {
  return InSources(arguments[0], [](Setup& dialog) { return dialog.OnAdd(); });
}

std::string ScriptRunner::DeviceModify(Arguments arguments) {
  return InSources(arguments[1], [&](Setup& dialog) { return dialog.OnModify(RowOf(dialog.devices, arguments[0])); });
}

std::string ScriptRunner::DeviceDelete(Arguments arguments) {
  return InSources({}, [&](Setup& dialog) { return dialog.OnDelete(RowOf(dialog.devices, arguments[0])); });
}

std::string ScriptRunner::GoBackAdd(Arguments arguments) {
  return InSources(arguments[0], [](Setup& dialog) { return dialog.OnGoBackAdd(); });
}

std::string ScriptRunner::GoBackModify(Arguments arguments) {
  return InSources(arguments[1],
                   [&](Setup& dialog) { return dialog.OnGoBackModify(RowOf(dialog.goBacks, arguments[0])); });
}

std::string ScriptRunner::GoBackDelete(Arguments arguments) {
  return InSources({}, [&](Setup& dialog) { return dialog.OnGoBackDelete(RowOf(dialog.goBacks, arguments[0])); });
}

// --- Search and replace ---

std::string ScriptRunner::Search(Arguments arguments) {
  search_.text = FromUtf8(arguments[0]);
  search_.matchCase = HasCase(arguments, 1);
  const bool found = search_.Search();
  return PrintObject([&](JsonWriter& out) {
    Write(out, "found", found);
    Write(out, "page", found ? frame_.CurrentPageIndex() + 1 : 0);
    Write(out, "id", found ? Page().SelectedCardId() : std::wstring());
  });
}

void ScriptRunner::TypeReplace(Arguments arguments) {
  search_.text = FromUtf8(arguments[0]);
  search_.replacement = FromUtf8(arguments[1]);
  search_.matchCase = HasCase(arguments, 2);
}

std::string ScriptRunner::Replace(Arguments arguments) {
  TypeReplace(arguments);
  return PrintObject([&](JsonWriter& out) { Write(out, "replaced", search_.Replace()); });
}

std::string ScriptRunner::ReplaceAll(Arguments arguments) {
  TypeReplace(arguments);
  return PrintObject([&](JsonWriter& out) { Write(out, "replaced", search_.ReplaceAll()); });
}

}  // namespace xrpt
