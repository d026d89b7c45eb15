// Text styles: named fonts in files of their own, shared by the cards of many reports. What the style dialogs do,
// without the dialogs: list, open, check, save, rename, remove, copy and paste.
#pragma once

#include <string>
#include <vector>

#include "model/FieldTable.h"
#include "platform/Color.h"
#include "platform/Files.h"
#include "platform/Fonts.h"
#include "platform/SystemNames.h"

namespace xrpt {

// One style as the edit dialog holds it.
struct tagStyleCfg {
  using FieldRoot = tagStyleCfg;
  static const FieldTable<tagStyleCfg>& Table();
  bool operator==(const tagStyleCfg& other) const;

  std::wstring name;  // empty: a new style
  Font font;
  double orientation = 0.0;  // degrees
  Color color = kBlack;
};

// A style that goes by another name now.
struct StyleRenaming {
  std::wstring from;
  std::wstring to;
};

// How an edit began and what it may do.
struct StyleEdit {
  std::wstring openedName;  // empty: a new style
  bool overWrite = false;   // an existing style of the new name may be replaced, after asking
  bool forceNew = false;    // saved as a new style; the opened one stays
};

// Text ids: what is wrong with a style, and the question to ask first.
inline constexpr int kStyleExists = 717;
inline constexpr int kAskRemoveStyles = 720;
inline constexpr int kStyleNameMissing = 724;
inline constexpr int kStyleSizeNotPositive = 725;
inline constexpr int kAskOverwriteStyle = 32644;
inline constexpr int kStyleNameNotValid = 32764;

// Whether a name can be a style's: a plain file name that leaves room for the identifier.
bool IsValidId(std::wstring_view name);

// Styles of the configuration folder that can be read and have a font.
std::vector<tagStyleCfg> ListStyles();
std::vector<std::wstring> StyleNames();
bool HasStyle(const std::wstring& name);
// The style of a name; a new one's values for an empty name or a file that cannot be read.
tagStyleCfg OpenStyle(const std::wstring& name);
// 0 when the style can be saved, else the text id of the message; kAskOverwriteStyle is a question, and anything but No
// allows saving.
int CheckStyle(const tagStyleCfg& style, const StyleEdit& edit);
// Saves a style that was checked. A renamed style keeps its identifier, and its file moves.
SaveResult SaveStyle(const tagStyleCfg& style, const StyleEdit& edit);
// Deletes the files; how many there were.
int RemoveStyles(const std::vector<std::wstring>& names);

// The clipboard text of the styles; those that cannot be read are left out.
std::string CopyStyles(const std::vector<std::wstring>& names);
// Adds the styles of a clipboard text under new identifiers and names that no style has. The names given; none when the
// text is something else.
std::vector<std::wstring> PasteStyles(std::string clipboard);
// The name itself, or the first of name_1, name_2, ... that is free.
std::wstring UniqueStyleName(const std::wstring& name, const std::vector<std::wstring>& taken);

}  // namespace xrpt
