#include "xrpt/ReportFiles.h"

#include <unistd.h>

#include <CLI/CLI.hpp>
#include <iostream>

#include "model/RVReport.h"
#include "platform/Json.h"
#include "platform/Text.h"
#include "xrpt/Options.h"

namespace xrpt {
namespace {

std::string AsJson(const Path& file, const TemplateMatch& match) {
  JsonWriter out;
  out.BeginObject();
  const auto text = [&out](const char* key, const auto& value) {
    out.Key(key);
    out.String(value);
  };
  text("file", std::string_view(file.native()));
  out.Key("page");
  out.Int(match.page);
  text("id", std::wstring_view(match.id));
  text("tag", std::string_view(match.tag));
  text("field", std::string_view(match.field));
  out.Key("position");
  out.Int(static_cast<long long>(match.position));
  text("text", std::wstring_view(match.text));
  out.EndObject();
  return out.Text();
}

// "report.xrpt: page 1, label title, textStr at 7: Energy of the month"
std::string AsLine(const Path& file, const TemplateMatch& match) {
  const std::string page = match.page == 0 ? "" : "page " + std::to_string(match.page) + ", ";
  std::string text = ToUtf8(match.text);
  std::replace(text.begin(), text.end(), '\n', ' ');
  return file.string() + ": " + page + match.tag + " " + ToUtf8(match.id) + ", " + match.field + " at " +
         std::to_string(match.position) + ": " + text;
}

}  // namespace

void FilesOptions::AddText(CLI::App& command) {
  command.add_option("TEXT", text, "What to look for; one that begins with a minus follows --")->required();
}

void FilesOptions::AddPaths(CLI::App& command) {
  command.add_option("PATH", paths, "Report files, and folders of them")->required();
  command.add_flag("--case", matchCase, "Capital and small letters differ");
  command.add_option("--format", format, "text or json (default: text on a terminal, else json)")
      ->check(CLI::IsMember({"text", "json"}));
}

bool FilesOptions::AsJson() const { return format.empty() ? isatty(STDOUT_FILENO) == 0 : format == "json"; }

std::vector<Path> ReportsOf(const std::vector<std::string>& paths) {
  std::vector<Path> files;
  for (const Path path : paths) {
    std::error_code ignored;
    if (!std::filesystem::is_directory(path, ignored)) {
      files.push_back(path);
      continue;
    }
    const std::vector<Path> inFolder = CurrentHost().files->List(path, kReportEnding);
    files.insert(files.end(), inFolder.begin(), inFolder.end());
  }
  return files;
}

bool WithTemplate(const Path& file,
                  const std::function<std::string(const std::string& bytes, const XmlNode& root)>& work) {
  FileError unread;
  const std::optional<std::string> bytes = CurrentHost().files->Read(file, XmlDocument::kMaxBytes, &unread);
  XmlError error{unread.reason, 0};
  XmlDocument document;
  if (bytes && document.Parse(*bytes, &error)) error.message = work(*bytes, document.Root());
  if (!error.message.empty()) PrintError(file.string(), error.message);
  return error.message.empty();
}

MatchPrinter::MatchPrinter(bool asJson) : asJson_(asJson) {
  if (asJson_) std::cout << "[";
}

MatchPrinter::~MatchPrinter() {
  if (asJson_) std::cout << (count_ > 0 ? "\n]\n" : "]\n");
  std::cout << std::flush;
}

void MatchPrinter::Print(const Path& file, const std::vector<TemplateMatch>& matches) {
  for (const TemplateMatch& match : matches) {
    if (asJson_) {
      std::cout << (count_ > 0 ? ",\n  " : "\n  ") << AsJson(file, match);
    } else {
      std::cout << AsLine(file, match) << '\n';
    }
    ++count_;
  }
}

}  // namespace xrpt
