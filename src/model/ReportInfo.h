// What a report holds, counted: for the command line and for whoever wants to know before opening it.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "model/RVReport.h"

namespace xrpt {

// How many cards each entry has, by name.
using CountByName = std::map<std::wstring, int>;

struct PageInfo {
  std::wstring name;
  double width = 0.0;   // millimetres
  double height = 0.0;  // millimetres
  CountByName cards;    // by element name, inner cards of conditioned ones included
};

struct ReportInfo {
  std::wstring id;
  std::wstring name;
  std::wstring version;
  bool virtualEnabled = false;
  std::vector<PageInfo> pages;
  CountByName cards;      // of all pages
  CountByName styles;     // text styles in use
  CountByName variables;  // what cards are bound to: fields, series, forced variables
  CountByName pictures;   // "folder/id", backgrounds included
  std::vector<std::wstring> formulas;

  std::string AsText() const;
  std::string AsJson() const;
};

ReportInfo InfoOf(const RVReport& report);

}  // namespace xrpt
