// The checks whose findings the host collects, one function for each kind of card. They look at the card's element and
// never make a card of it. Each says whether it found nothing.
#pragma once

#include <span>

#include "formulas/checks/Inspector.h"

namespace xrpt {

// `conditioned`: the card stands inside a conditioned one, and findings carry that one's code.
bool CheckFormule(Inspector& inspector, const XmlNode& card, tagSDebugData& data, bool conditioned);
bool CheckDate(Inspector& inspector, const XmlNode& card, tagSDebugData& data, bool conditioned);
bool CheckStaticImage(Inspector& inspector, const XmlNode& card, tagSDebugData& data, bool conditioned);
// These stand on pages only.
bool CheckConditioned(Inspector& inspector, const XmlNode& card, tagSDebugData& data, bool conditioned = false);
bool CheckReportGraph(Inspector& inspector, const XmlNode& card, tagSDebugData& data, bool conditioned = false);
bool CheckAnalogBar(Inspector& inspector, const XmlNode& card, tagSDebugData& data, bool conditioned = false);

// Which element is checked how.
struct HostCheckRow {
  std::string_view tag;
  bool (*check)(Inspector&, const XmlNode&, tagSDebugData&, bool conditioned);
  bool insideConditioned;  // also of a card inside a conditioned one
};
std::span<const HostCheckRow> HostCheckRows();
// Null for an element that is not checked.
const HostCheckRow* FindHostCheck(std::string_view tag);

}  // namespace xrpt
