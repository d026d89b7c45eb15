// Which cards a panel is about, and the one way to change them.
#pragma once

#include <functional>
#include <vector>

#include "canvas/PageEdit.h"

namespace xrpt {

class RVEditControlWnd;

enum class FieldsOf {
  Selection,    // the selected cards
  Alternative,  // the card that the one selected conditioned card shows
  Background,   // the page's background picture, while no card is selected
};

// Good until the next change.
std::vector<const RVCardControl*> MeantCards(const RVEditControlWnd& frame, FieldsOf whose);
// The only one; null when none or several are meant.
const RVCardControl* MeantCard(const RVEditControlWnd& frame, FieldsOf whose);

// Changes each of them in one edit, which is one step and joins with those of the same key. Selected cards stay where
// they can be seen on the page.
void ChangeMeant(RVEditControlWnd& frame, FieldsOf whose, const UndoName& name, const JoinKey& joins,
                 const std::function<void(RVCardControl&)>& change);

}  // namespace xrpt
