// What is wrong with the report, a line each; a double click goes to the card it is about.
#pragma once

#include <QTreeWidget>
#include <functional>
#include <string>
#include <vector>

namespace xrpt {

enum class ProblemSeverity { Information, Warning, Error };

struct Problem {
  ProblemSeverity severity = ProblemSeverity::Warning;
  QString text;
  std::wstring cardId;  // empty: about no card
};

class ProblemsList final : public QTreeWidget {
 public:
  explicit ProblemsList(QWidget* parent = nullptr);

  void Add(const Problem& problem);
  void Clear();

  // The user wants to see this card.
  std::function<void(const std::wstring&)> cardChosen;
  // How many there are now.
  std::function<void(int)> countChanged;

 private:
  void ShowNothingFound();
};

}  // namespace xrpt
