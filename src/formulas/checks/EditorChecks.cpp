#include "formulas/checks/EditorChecks.h"

#include <algorithm>

#include "formulas/checks/CheckTexts.h"

namespace xrpt {
namespace {

int WithoutFonts(const Host& host) {
  return host.fonts->Presence(L"Arial") == FacePresence::Unknown ? text::kFacesUnknown : 0;
}

int WithoutPictures(const Host& host) { return host.pictures->CanDecode() ? 0 : text::kPicturesUnknown; }

constexpr EditorCheck kChecks[] = {
    {.code = {L"CARD_OUTSIDE_PAGE", text::kCardOutsidePage, Severity::Warning}, .card = OutsidePage},
    {.code = {L"TEXT_CUT_OFF", text::kTextCutOff, Severity::Warning}, .scope = CardScope::InnerToo, .card = TextCutOff},
    {.code = {L"FONT_NOT_INSTALLED", text::kFontNotInstalled, Severity::Information},
     .report = MissingFaces,
     .unavailable = WithoutFonts},
    {.code = {L"PICTURE_LOW_RESOLUTION", text::kPictureLowResolution, Severity::Information},
     .scope = CardScope::InnerAndBackgrounds,
     .card = CoarsePicture,
     .unavailable = WithoutPictures},
    {.code = {L"FORMULA_UNUSED", text::kFormulaUnused, Severity::Information}, .report = UnusedFormulas},
    {.code = {L"FORMULA_UNKNOWN_NAME", text::kFormulaUnknownName, Severity::Error}, .report = UnknownNames},
    {.code = {L"STYLE_UNKNOWN", text::kStyleUnknown, Severity::Warning},
     .scope = CardScope::InnerToo,
     .card = UnknownStyle},
    {.code = {L"CARD_ID_SHARED", text::kCardIdShared, Severity::Warning}, .report = SharedIds},
    {.code = {L"CARD_WITHOUT_ID", text::kCardWithoutId, Severity::Warning}, .card = WithoutId},
    {.code = {L"CARD_HIDDEN", text::kCardHidden, Severity::Warning}, .report = HiddenCards},
    {.code = {kNameSharedCode, text::kReportNameShared, Severity::Warning}},
    {.code = {kUnreadableCode, text::kReportUnreadable, Severity::Error}},
};

}  // namespace

std::span<const EditorCheck> EditorChecks() { return kChecks; }

const CheckCode* FindEditorCode(std::wstring_view name) {
  const auto row = std::find_if(std::begin(kChecks), std::end(kChecks),
                                [name](const EditorCheck& c) { return c.code.name == name; });
  return row == std::end(kChecks) ? nullptr : &row->code;
}

}  // namespace xrpt
