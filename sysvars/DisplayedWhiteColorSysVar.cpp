#include "sysvars/DisplayedWhiteColorSysVar.h"

#include "db/KyCmColor.h"
#include "db/KyDbColorService.h"
#include "db/KyDbHostApplicationServices.h"
#include "sysvars/SysVarValue.h"

namespace {

// What index 7 shows without a colour service of the host.
constexpr unsigned int kDefaultWhite = 0x1000007;
constexpr int kWhiteIndex = 7;

}  // namespace

int DisplayedWhiteColorSysVar::getVar(resbuf* out) {
    const KyDbColorService* colors = kydbHostApplicationServices()->colorService();
    const unsigned int packed =
        colors != nullptr ? colors->trueColorOf(kWhiteIndex) : kDefaultWhite;
    KyCmColor color;
    color.setRGB(static_cast<unsigned char>(packed & 0xFF),
                 static_cast<unsigned char>((packed >> 8) & 0xFF),
                 static_cast<unsigned char>((packed >> 16) & 0xFF));
    SysVarValue::setText(*out, color.colorNameForDisplay());
    return KYRT_NORM;
}

Kyro::ErrorStatus DisplayedWhiteColorSysVar::subSetValue(const resbuf& /*value*/,
                                                         bool /*viaCommand*/) {
    return Kyro::eCannotSetSysVar;
}
