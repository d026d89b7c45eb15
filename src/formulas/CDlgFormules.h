// The table of a report's formulas while it is edited: list, add, modify, delete, copy and paste. What the dialog does,
// without the dialog; nothing reaches the report before `OnOK`.
#pragma once

#include <optional>

#include "formulas/CDlgNewFormule.h"
#include "formulas/References.h"

namespace xrpt {

inline constexpr std::string_view kFormulesClipboardRoot = "formulesClipboard";

// What the table asks of whoever shows it.
class FormulesPort {
 public:
  virtual ~FormulesPort() = default;
  // Lets the user write a formula; true when that was closed with OK.
  virtual bool EditFormule(CDlgNewFormule& dialog) = 0;
  // Whether the cards and formulas that use a formula shall use it by its new name.
  virtual bool AskUpdateUses(const std::wstring& from, const std::wstring& to, std::size_t uses) = 0;
  virtual void ShowMessage(int textId) = 0;
};

class CDlgFormules {
 public:
  // Larger clipboards are taken for something else.
  static constexpr std::size_t kClipboardLimit = 8u << 20;  // bytes

  // `usesInCards`: how many texts of the report's cards use each formula. The port must outlive the dialog.
  CDlgFormules(const XmlDocument& formules, UseCounts usesInCards, FormulesPort& port);

  const FormulaTable& Rows() const { return rows_; }
  // Formulas and cards that use the formula of a row.
  std::size_t UsesOfRow(std::size_t row) const;
  // Row numbers, ascending.
  const std::vector<std::size_t>& Selection() const { return selection_; }
  void Select(std::vector<std::size_t> rows);

  // Each says whether it changed the table.
  bool OnXciAdd();
  // Of the one row that is selected.
  bool OnXciModify();
  bool OnXciDelete();
  bool PasteFromClipboard();
  // False when no row is selected.
  bool CopyToClipboard() const;

  struct Buttons {
    bool modify = false;
    bool remove = false;
    bool copy = false;
  };
  Buttons UpdateButtons() const;

  XmlDocument GetXmlDocFromList() const { return FormulasDocument(kFormulesRoot, rows_); }
  // What the report's formulas become. Nothing, and a message, while formulas refer to each other in a circle.
  std::optional<XmlDocument> OnOK();
  // To be carried into the cards, in the order in which the user agreed to them.
  const std::vector<Renaming>& RenamingsInCards() const { return renamings_; }

 private:
  void InitializeFields(const XmlDocument& formules);
  void Rename(const std::wstring& from, const std::wstring& to);
  void CountUses();

  FormulesPort& port_;
  FormulaTable rows_;
  std::vector<std::size_t> selection_;
  UseCounts usesInCards_;
  UseCounts usesInRows_;
  std::vector<Renaming> renamings_;
};

}  // namespace xrpt
