// The way the host's checks go through a report: its pages and their cards in document order, and then what it declares
// and nobody uses.
#pragma once

#include "formulas/checks/Inspector.h"

namespace xrpt {

// Who wants to know how far the walk is, or to end it.
class WalkWatcher {
 public:
  virtual ~WalkWatcher() = default;
  // A report's walk begins; the sum of the reported steps is at most `steps`.
  virtual void Begins(const tagSDebugData&, std::size_t /*steps*/) {}
  virtual void Step() {}
  // Asked before each page and each card.
  virtual bool StopAsked() const { return false; }
};

// Checks one report. A walk that was stopped does not judge what nobody uses, for it has not seen all.
void WalkReport(const XmlNode& root, Inspector& inspector, WalkWatcher& watcher);

// One card of a page that has an identifier; `data.place` says where it stands.
void CheckCard(Inspector& inspector, const XmlNode& card, tagSDebugData& data);

// The first virtual device, and the first go-back variable, that no card refers to.
void CheckUnusedDeclarations(const Inspector& inspector, tagSDebugData& data);

}  // namespace xrpt
