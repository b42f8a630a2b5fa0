#include "KyRefLineweightText.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#include "KyRefNumberText.h"
#include "base/KyString.h"
#include "db/KyDbHostApplicationServices.h"
#include "db/KyDbReservedStrings.h"

namespace {

constexpr KyDb::LineWeight kStandardWeights[] = {
    KyDb::kLnWt000, KyDb::kLnWt005, KyDb::kLnWt009, KyDb::kLnWt013, KyDb::kLnWt015, KyDb::kLnWt018,
    KyDb::kLnWt020, KyDb::kLnWt025, KyDb::kLnWt030, KyDb::kLnWt035, KyDb::kLnWt040, KyDb::kLnWt050,
    KyDb::kLnWt053, KyDb::kLnWt060, KyDb::kLnWt070, KyDb::kLnWt080, KyDb::kLnWt090, KyDb::kLnWt100,
    KyDb::kLnWt106, KyDb::kLnWt120, KyDb::kLnWt140, KyDb::kLnWt158, KyDb::kLnWt200, KyDb::kLnWt211,
};

constexpr KyDb::ReservedStringEnumType kWordKinds[] = {KyDb::kByLayer, KyDb::kByBlock,
                                                       KyDb::kDefault};
constexpr KyDb::LineWeight kWordWeights[] = {KyDb::kLnWtByLayer, KyDb::kLnWtByBlock,
                                             KyDb::kLnWtByLwDefault};

constexpr double kMillimetresPerInch = 25.4;

}  // namespace

bool KyRefLineweightText::parse(const wchar_t* text, KyDb::LineWeight& weight) {
    const KyString trimmed = KyString(text).trim();
    const KyString word = trimmed.kwszPtr()[0] == L'_' ? trimmed.mid(1) : trimmed;
    for (std::size_t index = 0; index < std::size(kWordKinds); ++index) {
        if (kydbIsReservedString(word, kWordKinds[index])) {
            weight = kWordWeights[index];
            return true;
        }
    }
    double width = 0.0;
    if (!KyRefNumberText::parseNumber(trimmed, width) || width < 0.0) {
        return false;
    }
    const double hundredths =
        gLineWeightUnits == 0 ? width * kMillimetresPerInch * 100.0 : width * 100.0;
    KyDb::LineWeight nearest = kStandardWeights[0];
    for (const KyDb::LineWeight standard : kStandardWeights) {
        if (std::fabs(hundredths - static_cast<int>(standard)) <
            std::fabs(hundredths - static_cast<int>(nearest))) {
            nearest = standard;
        }
    }
    weight = nearest;
    return true;
}

bool KyRefLineweightText::isStandard(long hundredths) {
    return std::find(std::begin(kStandardWeights), std::end(kStandardWeights),
                     static_cast<KyDb::LineWeight>(hundredths)) != std::end(kStandardWeights);
}
