// The properties of one page: identity, size, rounding, grid and background picture.
#pragma once

#include <array>
#include <memory>
#include <string>
#include <vector>

#include "model/FieldTable.h"
#include "platform/Color.h"
#include "platform/Host.h"

namespace xrpt {

class RVCardImage;
class RVGlobalProperties;

using PageRow = FieldOf<RVGlobalProperties>;
using PageTable = FieldTable<RVGlobalProperties>;

// What a page measures on the screen it was made on: the screen's business, so neither copied nor compared.
struct ScreenScale {
  explicit ScreenScale(ModelServices& services);
  ScreenScale(const ScreenScale& other) : ScreenScale(*other.services) {}
  ScreenScale& operator=(const ScreenScale&) { return *this; }

  double pixelsPerMmX = 0.0;
  double pixelsPerMmY = 0.0;
  double scale = 1.0;
  ModelServices* services;
};

// A page's background picture: always there, and copied with the page.
class BackgroundCard {
 public:
  explicit BackgroundCard(ModelServices& services);
  BackgroundCard(const BackgroundCard& other);
  BackgroundCard& operator=(const BackgroundCard& other);
  ~BackgroundCard();
  RVCardImage& operator*() const { return *card_; }
  RVCardImage* operator->() const { return card_.get(); }

 private:
  std::unique_ptr<RVCardImage> card_;
};

class RVGlobalProperties {
 public:
  using FieldRoot = RVGlobalProperties;
  using StringLists = std::array<std::vector<std::wstring>, 4>;

  explicit RVGlobalProperties(ModelServices& services = InstalledServices());
  RVGlobalProperties(const RVGlobalProperties&) = default;
  RVGlobalProperties& operator=(const RVGlobalProperties&) = default;
  virtual ~RVGlobalProperties() = default;

  static const PageTable& Table();
  static constexpr const char* kBackgroundTag = "backgroundImage";

  // The grid is left out: changing it alone is no change of the page. NaN differs from everything.
  bool operator==(const RVGlobalProperties& other) const;
  bool operator!=(const RVGlobalProperties& other) const { return !(*this == other); }

  // The same in every row, in the picture and in the lists, the grid included, to the last bit: what the history asks.
  bool HasSameRows(const RVGlobalProperties& other) const;

  // Takes what the "page" element holds; missing values stay as they are. True.
  virtual bool GetFromXml(const XmlNode& page);
  // The two halves of it, for whoever goes through the page's elements anyway: the values, and the element of the
  // background picture (a handle on nothing for a page without one).
  void ReadValues(const XmlNode& page);
  void ReadBackground(const XmlNode& element);
  // Writes into the "page" element that is open; false, and logged, without one.
  virtual bool SaveTemplate(XmlWriter* page) const;

  bool ThereAreBackground() const;
  void DeleteBackground();
  RVCardImage& Background() { return *background_; }
  const RVCardImage& Background() const { return *background_; }
  bool IsLandscape() const { return width > height; }

  std::wstring id;
  std::wstring name;
  double width = 210.0;   // millimetres
  double height = 297.0;  // millimetres
  double rounded = 0.0;   // corner radius, millimetres
  // Grid steps in millimetres; a negative one is remembered but switched off, 0 is none.
  double xgrid = -3.0;
  double ygrid = -3.0;
  Color backcolor;  // round and behind the page; not in the file
  std::int32_t pageMode = 0;
  StringLists lists;
  ScreenScale screen;

 private:
  BackgroundCard background_;
};

}  // namespace xrpt
