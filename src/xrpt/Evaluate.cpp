// xrpt evaluate: what the evaluator makes of an expression, and what the formula dialog would say of it.
#include <CLI/CLI.hpp>
#include <iostream>
#include <limits>
#include <memory>

#include "formulas/CDlgNewFormule.h"
#include "platform/Json.h"
#include "platform/Numbers.h"
#include "platform/Text.h"
#include "xrpt/Commands.h"
#include "xrpt/Options.h"

namespace xrpt {
namespace {

struct EvaluateOptions : CommonOptions {
  std::string expression;
  std::string name;
  std::string was;
  bool hasName = false;
  std::string format = "text";
};

void Write(JsonWriter& out, const char* key, const std::vector<std::wstring>& texts) {
  out.Key(key);
  out.BeginArray();
  for (const std::wstring& text : texts) out.String(text);
  out.EndArray();
}

void Write(JsonWriter& out, const char* key, const std::wstring& text) {
  out.Key(key);
  out.String(text);
}

void Write(JsonWriter& out, const char* key, long long number) {
  out.Key(key);
  out.Int(number);
}

// Null for what was not reached, is infinite or no number.
void Write(JsonWriter& out, const char* key, bool reached, double number) {
  out.Key(key);
  out.Number(reached ? number : std::numeric_limits<double>::quiet_NaN());
}

std::string AsJson(const ExpressionReport& report, const FormulaResult& result) {
  JsonWriter out(2);
  out.BeginObject();
  Write(out, "analysis", report.analysis);
  Write(out, "evaluation", report.IsExpression(), report.evaluation.value_or(0));
  Write(out, "type", report.HasValue(), report.type);
  Write(out, "value", report.HasValue(), report.value);
  Write(out, "undefined", report.undefined);
  Write(out, "variables", report.variables);
  Write(out, "error", report.error);
  Write(out, "position", static_cast<long long>(report.position));
  Write(out, "textId", result.textId);
  Write(out, "shown", result.shown);
  out.Key("accepted");
  out.Bool(result.accepted);
  out.EndObject();
  return out.Text() + "\n";
}

std::string Listed(const char* title, const std::vector<std::wstring>& texts) {
  std::string line;
  for (const std::wstring& text : texts) line += (line.empty() ? title : ", ") + ToUtf8(text);
  return line.empty() ? line : line + "\n";
}

// The expression with a mark under the place of its error, unless that says what the dialog says.
std::string Pointed(const std::string& expression, const ExpressionReport& report, const FormulaResult& result) {
  if (report.error.empty() || report.error == result.shown) return {};
  if (report.position == 0) return ToUtf8(report.error) + "\n";
  return expression + "\n" + std::string(report.position - 1, ' ') + "^ " + ToUtf8(report.error) + "\n";
}

// The value of what no formula can be: a condition's 1 or 0.
std::string Valued(const ExpressionReport& report, const FormulaResult& result) {
  return report.HasValue() && !result.accepted ? "value: " + FormatExact(report.value) + "\n" : std::string();
}

std::string AsText(const std::string& expression, const ExpressionReport& report, const FormulaResult& result) {
  return ToUtf8(result.shown) + "\n" + Valued(report, result) + Pointed(expression, report, result) +
         Listed("undefined: ", report.undefined) + Listed("variables: ", report.variables);
}

int Evaluate(const EvaluateOptions& options) {
  const HostSession session(options);
  RVReport report;
  if (!options.report.empty() && !OpenReport(options, report)) return kCouldNotRun;
  CDlgNewFormule dialog(ReadFormulas(report.formules), FromUtf8(options.was));
  dialog.name = FromUtf8(options.name);
  dialog.text = FromUtf8(options.expression);
  const FormulaResult& result = options.hasName ? dialog.Evaluate() : dialog.EvaluateExpression();
  std::cout << (options.format == "json" ? AsJson(dialog.Report(), result)
                                         : AsText(options.expression, dialog.Report(), result));
  return result.accepted ? kNothingToReport : kFindings;
}

}  // namespace

void AddEvaluate(CLI::App& program, int& status) {
  CLI::App* command = program.add_subcommand("evaluate", "Evaluate an expression as the formula dialog does");
  const auto options = std::make_shared<EvaluateOptions>();
  command->add_option("EXPRESSION", options->expression, "One that begins with a minus follows --")->required();
  command->add_option("--report", options->report, "A report whose formulas the expression may use");
  CLI::Option* name = command->add_option("--name", options->name, "Judge it as the formula of this name");
  command->add_option("--was", options->was, "The name that formula had before")->needs(name);
  command->add_option("--format", options->format, "text or json")
      ->check(CLI::IsMember({"text", "json"}))
      ->capture_default_str();
  options->AddFolders(*command);
  command->footer(
      "Examples:\n  xrpt evaluate '2^3^2 + max(1, 2)'\n  xrpt evaluate --report Power_quality --config examples/config "
      "--format json -- '-[MAIN.P] / 2'\n  xrpt evaluate --report Power_quality --config examples/config --name Demand "
      "'Peak * 2'\nExit status: 0 the dialog accepts it, 1 it does not.");
  command->callback([options, name, &status] {
    options->hasName = name->count() > 0;
    status = Evaluate(*options);
  });
}

}  // namespace xrpt
