#include "xrpt/ScriptPorts.h"

#include "canvas/RVEditTemplateWnd.h"

namespace xrpt {

std::string_view CursorName(Cursor cursor) {
  switch (cursor) {
    case Cursor::Arrow:
      return "IDC_ARROW";
    case Cursor::SizeWE:
      return "IDC_SIZEWE";
    case Cursor::SizeNS:
      return "IDC_SIZENS";
    case Cursor::SizeNESW:
      return "IDC_SIZENESW";
    case Cursor::SizeNWSE:
      return "IDC_SIZENWSE";
    case Cursor::SizeAll:
      return "IDC_SIZEALL";
    case Cursor::No:
      return "IDC_NO";
    case Cursor::OverCard:
      return "1206";
    case Cursor::Moving:
      return "1207";
    case Cursor::Cross:
      return "IDC_CROSS";
  }
  return "";
}

}  // namespace xrpt
