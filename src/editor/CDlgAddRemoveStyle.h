// The list of text styles: what the dialog does, without the dialog. Styles are files that all reports share, so what
// is done here is done at once and is no step of a report's history; reports follow through
// `RVEditControlWnd::StylesModified`.
#pragma once

#include <utility>
#include <vector>

#include "editor/CDlgNewModifyStyle.h"
#include "editor/EditorPort.h"

namespace xrpt {

// What the list and the edit dialog ask of whoever shows them.
class StylesPort {
 public:
  virtual ~StylesPort() = default;
  // Lets the user write a style; true when that was closed with a saved one.
  virtual bool EditStyle(CDlgNewModifyStyle& dialog) = 0;
  virtual Answer Ask(int textId) = 0;
  virtual void Tell(int textId) = 0;
  // A style could not be written: one sentence for people.
  virtual void TellFailure(const std::wstring& sentence) = 0;
};

enum class StyleColumn { Name, Face, Size };

class CDlgAddRemoveStyle {
 public:
  // Larger clipboards are taken for something else.
  static constexpr std::size_t kClipboardLimit = 8u << 20;  // bytes

  // The port must outlive the list.
  explicit CDlgAddRemoveStyle(StylesPort& port) : port_(port) { UpdateList(); }

  const std::vector<tagStyleCfg>& Rows() const { return rows_; }
  // Reads the folder again, in the order chosen; what was selected stays selected.
  void UpdateList();
  // By the column; by the same one again, the other way round.
  void OrderList(StyleColumn column);

  // Row numbers, ascending.
  std::vector<std::size_t> Selection() const;
  void Select(const std::vector<std::size_t>& rows);

  struct Buttons {
    bool modify = false;
    bool remove = false;
    bool copy = false;
  };
  Buttons UpdateButtons() const;

  // Each says whether it changed a style.
  bool OnStyleNew();
  // Of the one row that is selected.
  bool OnStyleModify();
  // A new style that begins as the selected one.
  bool OnStyleDuplicate();
  bool OnStyleRemove();
  bool PasteFromClipboard();
  // False when no row is selected.
  bool CopyToClipboard() const;

  // The new names of styles since this was asked last, in the order in which they were given.
  std::vector<StyleRenaming> TakeRenamings() { return std::exchange(renamings_, {}); }

 private:
  bool NewModifyStyle(CDlgNewModifyStyle& dialog);
  void Sort();

  StylesPort& port_;
  std::vector<tagStyleCfg> rows_;
  std::vector<std::wstring> selected_;  // names
  StyleColumn order_ = StyleColumn::Name;
  bool isDescending_ = false;
  std::vector<StyleRenaming> renamings_;
};

}  // namespace xrpt
