// Image cards: a picture of the store.
#include "formulas/checks/HostChecks.h"
#include "formulas/checks/HostCodes.h"

namespace xrpt {

bool CheckStaticImage(Inspector& inspector, const XmlNode& card, tagSDebugData& data, bool conditioned) {
  const XmlNode image = card.Node("image");
  if (image && inspector.HasPicture(image)) return true;
  return inspector.Raise(conditioned ? HostCode(L"CONDITIONALCTRL_IMAGE_EMPTY") : HostCode(L"IMAGECTRL_IMAGE_EMPTY"),
                         data);
}

}  // namespace xrpt
