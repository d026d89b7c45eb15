// xrpt style: the text styles of a configuration folder, as the style dialogs treat them.
#include <CLI/CLI.hpp>
#include <fstream>
#include <iostream>
#include <iterator>
#include <memory>
#include <optional>
#include <vector>

#include "editor/CDlgAddRemoveStyle.h"
#include "model/CommonRows.h"
#include "model/FieldWalk.h"
#include "platform/Json.h"
#include "platform/Numbers.h"
#include "platform/Text.h"
#include "xrpt/Commands.h"
#include "xrpt/Options.h"

namespace xrpt {
namespace {

struct StyleOptions : CommonOptions {
  std::vector<std::string> names;
  std::string format = "text";
  // What to set; nothing keeps what the style has.
  std::optional<std::string> face, word, color;
  std::optional<double> size, orientation;
  std::optional<std::string> was;
  bool overwrite = false;

  std::vector<std::wstring> Names() const {
    std::vector<std::wstring> wide;
    for (const std::string& name : names) wide.push_back(FromUtf8(name));
    return wide;
  }
};

// Answers for a user who agreed beforehand; what is refused is printed.
class PrintingPort final : public StylesPort {
 public:
  bool EditStyle(CDlgNewModifyStyle&) override { return false; }
  Answer Ask(int) override { return Answer::Yes; }
  void Tell(int textId) override { std::cout << textId << ' ' << ToUtf8(HostText(textId)) << '\n'; }
  void TellFailure(const std::wstring& sentence) override {
    std::cerr << "xrpt: " << ToUtf8(sentence) << '\n';
    couldNotWrite = true;
  }

  bool couldNotWrite = false;
};

// Red first, as people write colours; files hold blue first.
std::string RedFirst(Color color) { return FormatColor(Rgb(BlueOf(color), GreenOf(color), RedOf(color))); }

Color FromRedFirst(const std::string& digits) {
  const Color turned = ParseColor(digits);
  return Rgb(BlueOf(turned), GreenOf(turned), RedOf(turned));
}

// As the options name them.
const char* LabelOf(const FieldOf<tagStyleCfg>& row) {
  return row.panel.editor == FieldEditor::FontFace ? "face" : row.name;
}

std::string Shown(const FieldOf<tagStyleCfg>& row, const tagStyleCfg& style) {
  return row.panel.editor == FieldEditor::Color ? RedFirst(style.color) : ToUtf8(row.text(style));
}

bool IsNumber(const FieldOf<tagStyleCfg>& row) {
  return row.panel.editor == FieldEditor::Decimal || row.panel.editor == FieldEditor::Angle;
}

void Write(JsonWriter& out, const tagStyleCfg& style) {
  out.BeginObject();
  out.Key("name");
  out.String(style.name);
  ForEachField(tagStyleCfg::Table(), [&](const FieldOf<tagStyleCfg>& row) {
    out.Key(LabelOf(row));
    IsNumber(row) ? out.Number(ParseDecimal(row.text(style))) : out.String(Shown(row, style));
  });
  out.EndObject();
}

std::string AsText(const tagStyleCfg& style) {
  std::string text = "name: " + ToUtf8(style.name) + "\n";
  ForEachField(tagStyleCfg::Table(), [&](const FieldOf<tagStyleCfg>& row) {
    text += std::string(LabelOf(row)) + ": " + Shown(row, style) + "\n";
  });
  return text;
}

int List(const StyleOptions& options) {
  PrintingPort port;
  const CDlgAddRemoveStyle dialog(port);
  JsonWriter out(2);
  out.BeginArray();
  for (const tagStyleCfg& style : dialog.Rows()) {
    Write(out, style);
    if (options.format == "text") std::cout << ToUtf8(style.name) << '\n';
  }
  out.EndArray();
  if (options.format == "json") std::cout << out.Text() << '\n';
  return kNothingToReport;
}

// False, and a line on standard error for each, when a style is not there.
bool AreThere(const std::vector<std::wstring>& names) {
  bool all = true;
  for (const std::wstring& name : names) {
    if (HasStyle(name)) continue;
    PrintError(ToUtf8(name), "no such style");
    all = false;
  }
  return all;
}

int Show(const StyleOptions& options) {
  if (!AreThere(options.Names())) return kCouldNotRun;
  const tagStyleCfg style = OpenStyle(options.Names().front());
  JsonWriter out(2);
  Write(out, style);
  std::cout << (options.format == "json" ? out.Text() + "\n" : AsText(style));
  return kNothingToReport;
}

void Apply(const StyleOptions& options, tagStyleCfg& style) {
  style.name = options.Names().front();
  if (options.face) style.font.face = FromUtf8(*options.face);
  if (options.size) style.font.size = *options.size;
  if (options.word) FindField(tagStyleCfg::Table(), "style")->assign(style, *options.word);
  if (options.color) style.color = FromRedFirst(*options.color);
  if (options.orientation) style.orientation = *options.orientation;
}

int Set(const StyleOptions& options) {
  if (options.was && !AreThere({FromUtf8(*options.was)})) return kCouldNotRun;
  const std::wstring name = options.Names().front();
  const std::wstring opened = options.was ? FromUtf8(*options.was) : HasStyle(name) ? name : std::wstring();
  PrintingPort port;
  CDlgNewModifyStyle dialog(port, OpenStyle(opened));
  dialog.SetOverWrite(options.overwrite);
  Apply(options, dialog.style);
  const bool refused = dialog.OnOK() == CDlgNewModifyStyle::Outcome::StaysOpen;
  if (port.couldNotWrite) return kCouldNotRun;
  return refused ? kFindings : kNothingToReport;
}

int Remove(const StyleOptions& options) {
  const bool all = AreThere(options.Names());
  RemoveStyles(options.Names());
  return all ? kNothingToReport : kCouldNotRun;
}

int Copy(const StyleOptions& options) {
  const bool all = AreThere(options.Names());
  std::cout << CopyStyles(options.Names()) << '\n';
  return all ? kNothingToReport : kCouldNotRun;
}

// Nothing for a file that cannot be read or is too large for a clipboard.
std::optional<std::string> ReadClipboard(const std::string& file) {
  if (file == "-") return std::string(std::istreambuf_iterator<char>(std::cin), {});
  FileError error;
  std::optional<std::string> text = CurrentHost().files->Read(file, CDlgAddRemoveStyle::kClipboardLimit, &error);
  if (!text) PrintError(file, error.reason);
  return text;
}

int Paste(const StyleOptions& options) {
  std::optional<std::string> text = ReadClipboard(options.names.front());
  if (!text) return kCouldNotRun;
  const std::vector<std::wstring> pasted = PasteStyles(std::move(*text));
  for (const std::wstring& name : pasted) std::cout << ToUtf8(name) << '\n';
  return pasted.empty() ? kFindings : kNothingToReport;
}

using StyleCommand = int (*)(const StyleOptions& options);

// The options of one subcommand.
class Subcommand {
 public:
  Subcommand(CLI::App& parent, const char* name, const char* help, StyleCommand run, int& status)
      : options(std::make_shared<StyleOptions>()), app(*parent.add_subcommand(name, help)) {
    options->AddFolders(app);
    app.callback([chosen = options, run, &status] {
      const HostSession session(*chosen);
      status = run(*chosen);
    });
  }
  void AddNames(const char* what, int least, int most) {
    app.add_option(what, options->names)->required()->expected(least, most);
  }
  void AddFormat() {
    app.add_option("--format", options->format, "text or json")
        ->check(CLI::IsMember({"text", "json"}))
        ->capture_default_str();
  }

  std::shared_ptr<StyleOptions> options;
  CLI::App& app;
};

constexpr int kAnyNumber = 1 << 20;

void AddSet(CLI::App& style, int& status) {
  Subcommand set(style, "set", "Make a style or change one; what is not named stays", Set, status);
  set.AddNames("NAME", 1, 1);
  set.app.add_option("--face", set.options->face, "Font face");
  set.app.add_option("--size", set.options->size, "Points");
  set.app.add_option("--style", set.options->word, "NORMAL, BOLD, ITALIC or ITALICBOLD")
      ->check(CLI::IsMember({"NORMAL", "BOLD", "ITALIC", "ITALICBOLD"}));
  set.app.add_option("--color", set.options->color, "Six hexadecimal digits, red first")
      ->check([](const std::string& digits) {
        const bool valid =
            digits.size() == 6 && digits.find_first_not_of("0123456789abcdefABCDEF") == std::string::npos;
        return valid ? std::string() : "not six hexadecimal digits: " + digits;
      });
  set.app.add_option("--orientation", set.options->orientation, "Degrees");
  set.app.add_option("--was", set.options->was, "The style's name before: it is renamed");
  set.app.add_flag("--overwrite", set.options->overwrite, "Replace another style of that name");
}

}  // namespace

void AddStyle(CLI::App& program, int& status) {
  CLI::App& style = *program.add_subcommand("style", "List, make, change, remove, copy and paste text styles");
  style.require_subcommand(1);
  Subcommand list(style, "list", "The styles of the folder", List, status);
  list.AddFormat();
  Subcommand show(style, "show", "One style", Show, status);
  show.AddNames("NAME", 1, 1);
  show.AddFormat();
  AddSet(style, status);
  Subcommand(style, "remove", "Delete styles; cards keep their last font", Remove, status)
      .AddNames("NAME", 1, kAnyNumber);
  Subcommand(style, "copy", "Print styles as the clipboard holds them", Copy, status).AddNames("NAME", 1, kAnyNumber);
  Subcommand(style, "paste", "Add styles from a clipboard text (- for standard input); prints the names given", Paste,
             status)
      .AddNames("FILE", 1, 1);
  style.footer(
      "Examples:\n  xrpt style list --config examples/config\n  xrpt style set Title --face Arial --size 14 --color "
      "C00000 --config DIR\n  xrpt style set Heading --was Title --config DIR\n  xrpt style copy Title --config A | "
      "xrpt "
      "style paste - --config B\nExit status: 0 done, 1 refused or nothing to paste, 2 could not run.");
}

}  // namespace xrpt
