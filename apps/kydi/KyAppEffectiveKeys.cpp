#include "KyAppEffectiveKeys.h"

#include "kydi/KyDiEffectiveProperty.h"

std::span<const KyAppEffectiveKeys::Row> KyAppEffectiveKeys::rows() {
    using Effective = KyDiEffectiveProperty;
    static const Row kRows[] = {
        {"LAYER", &Effective::getLayer, &Effective::setLayer},
        {"DIMSTYLE", &Effective::getDimensionStyle, &Effective::setDimensionStyle},
        {"TEXTSTYLE", &Effective::getTextStyle, &Effective::setTextStyle},
        {"LINETYPE", &Effective::getLinetype, &Effective::setLinetype},
        {"KYRO_MLEADERSTYLE", &Effective::getMLeaderStyle, &Effective::setMLeaderStyle},
        {"KYRO_SECTIONVIEWSTYLE", &Effective::getSectionViewStyle, &Effective::setSectionViewStyle},
        {"KYRO_DETAILVIEWSTYLE", &Effective::getDetailViewStyle, &Effective::setDetailViewStyle},
        {"KYRO_TABLESTYLE", &Effective::getTableStyle, &Effective::setTableStyle},
        {"KYRO_MATERIAL", &Effective::getMaterial, &Effective::setMaterial},
        {"LINEWEIGHT", &Effective::getLineWeight, &Effective::setLineWeight},
        {"COLOR", &Effective::getColor, &Effective::setColor},
        {"TRANSPARENCY", &Effective::getTransparency, &Effective::setTransparency},
    };
    return kRows;
}

const KyAppEffectiveKeys::Row* KyAppEffectiveKeys::find(const std::string& key) {
    for (const Row& row : rows()) {
        if (key == row.key) {
            return &row;
        }
    }
    return nullptr;
}
