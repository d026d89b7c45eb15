// The properties of a page while they are edited: what the dialog does, without the dialog. It works on a copy;
// `RVEditControlWnd::OnConfig` opens it and makes one step of its OK.
#pragma once

#include <cstddef>
#include <span>

#include "model/RVGlobalProperties.h"

namespace xrpt {

struct PaperFormat {
  const char* name;  // the same in every language: "A4"; empty: see textId
  int textId;
  double width;   // millimetres, upright
  double height;  // millimetres
};

class CDlgGlobalProperties {
 public:
  explicit CDlgGlobalProperties(const RVGlobalProperties& page) : properties(page), opened_(page) {}

  static std::span<const PaperFormat> Formats();
  // What Format says of a size that is none of them.
  static constexpr std::size_t kOwnFormat = static_cast<std::size_t>(-1);

  // The format of the page's size, whichever way it lies.
  std::size_t Format() const;
  // Lying as the page does now. A number that is no format's changes nothing.
  void SetFormat(std::size_t format);
  bool IsLandscape() const { return properties.IsLandscape(); }
  void SetLandscape(bool on);

  // A step that is switched off is remembered with its sign.
  bool IsGridShown() const { return properties.xgrid > 0.0 || properties.ygrid > 0.0; }
  void ShowGrid(bool on);
  // Steps as people give them, in millimetres; the grid stays shown or hidden.
  double GridX() const;
  double GridY() const;
  void SetGrid(double x, double y);

  bool HasPicture() const;
  // The picture as the store names it; empty for none. A new one covers the page.
  std::wstring Picture() const;
  void SetPicture(std::string_view name);
  bool CoversPage() const;
  void CoverPage();

  bool HasChanged() const { return !properties.HasSameRows(opened_); }
  // Gives another page the paper and grid of this one; the rest of it stays.
  void GivePaper(RVGlobalProperties& page) const;

  RVGlobalProperties properties;  // as they are edited
  bool samePaperForAll = false;   // all pages of the report get this one's size, corners and grid

 private:
  RVGlobalProperties opened_;
};

}  // namespace xrpt
