// Colours the parts of an expression while it is typed, and marks the names that nothing defines.
#pragma once

#include <QSyntaxHighlighter>
#include <set>
#include <string>

#include "platform/Expressions.h"

namespace xrpt {

// Places of a text, counted in the library's characters and in the toolkit's.
class TextPlaces {
 public:
  explicit TextPlaces(const QString& text);
  const std::wstring& Wide() const { return wide_; }
  int ToToolkit(std::size_t position) const;
  std::size_t FromToolkit(int position) const;

 private:
  std::wstring wide_;
  std::vector<int> offsets_;  // of each character, and the end; empty when both count alike
};

class ExpressionColors final : public QSyntaxHighlighter {
 public:
  explicit ExpressionColors(QTextDocument* document) : QSyntaxHighlighter(document) {}
  // Formulas that expressions may use.
  void SetKnownNames(std::set<std::wstring, std::less<>> names);

 protected:
  void highlightBlock(const QString& block) override;

 private:
  void ReadTokens();
  QTextCharFormat FormatOf(const RVToken& token) const;

  struct Part {
    int begin;
    int end;
    QTextCharFormat format;
  };
  std::set<std::wstring, std::less<>> names_;
  std::vector<Part> parts_;
  QString read_;  // the text they are of
  bool isDark_ = false;
};

}  // namespace xrpt
