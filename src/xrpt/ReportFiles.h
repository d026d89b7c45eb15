// What search and replace share: the files they are told to go through, and how they say what they found.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "formulas/TemplateTexts.h"
#include "platform/Files.h"

namespace CLI {
class App;
}

namespace xrpt {

struct FilesOptions {
  std::string text;
  std::vector<std::string> paths;
  bool matchCase = false;
  std::string format;

  void AddText(CLI::App& command);
  void AddPaths(CLI::App& command);
  // Asked for, or because nobody reads along.
  bool AsJson() const;
};

// The reports that the paths name: files as they are, of folders all that end with ".xrpt", by name.
std::vector<Path> ReportsOf(const std::vector<std::string>& paths);

// Reads and parses a file and hands both over. False, and a line on standard error, when it cannot be read or `work`
// gives a reason.
bool WithTemplate(const Path& file,
                  const std::function<std::string(const std::string& bytes, const XmlNode& root)>& work);

// Prints the matches file after file, as lines or as one JSON list.
class MatchPrinter {
 public:
  explicit MatchPrinter(bool asJson);
  // Ends the list.
  ~MatchPrinter();
  MatchPrinter(const MatchPrinter&) = delete;
  MatchPrinter& operator=(const MatchPrinter&) = delete;

  void Print(const Path& file, const std::vector<TemplateMatch>& matches);
  std::size_t Count() const { return count_; }

 private:
  bool asJson_;
  std::size_t count_ = 0;
};

}  // namespace xrpt
