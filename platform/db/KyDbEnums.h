// Enumerations of the drawing database shared by its users: lineweights,
// how an object takes part in shadows, the modes of opening an object, and
// the boolean operations of regions.
#pragma once

#include "KyPlatformExport.h"
#include "rx/KyRxValueType.h"

namespace KyDb {

// Lineweights in hundredths of a millimetre, and three sentinels: the weight
// of the layer, of the block, and the drawing's default weight.
enum LineWeight : int {
    kLnWt000 = 0,
    kLnWt005 = 5,
    kLnWt009 = 9,
    kLnWt013 = 13,
    kLnWt015 = 15,
    kLnWt018 = 18,
    kLnWt020 = 20,
    kLnWt025 = 25,
    kLnWt030 = 30,
    kLnWt035 = 35,
    kLnWt040 = 40,
    kLnWt050 = 50,
    kLnWt053 = 53,
    kLnWt060 = 60,
    kLnWt070 = 70,
    kLnWt080 = 80,
    kLnWt090 = 90,
    kLnWt100 = 100,
    kLnWt106 = 106,
    kLnWt120 = 120,
    kLnWt140 = 140,
    kLnWt158 = 158,
    kLnWt200 = 200,
    kLnWt211 = 211,
    kLnWtByLayer = -1,
    kLnWtByBlock = -2,
    kLnWtByLwDefault = -3,
};

// Bit 0 keeps the object from receiving shadows, bit 1 from casting them.
enum ShadowFlags : int {
    kShadowsCastAndReceive = 0,
    kShadowsDoesNotReceive = 1,
    kShadowsDoesNotCast = 2,
    kShadowsIgnore = 3,
};

// How an object is opened: any number of readers, one writer, and notify
// opens alongside either.
enum OpenMode {
    kForRead = 0,
    kForWrite = 1,
    kForNotify = 2,
};

// How KyDbRegion::booleanOper combines two regions.
enum BoolOperType {
    kBoolUnite = 0,
    kBoolIntersect = 1,
    kBoolSubtract = 2,
};

}  // namespace KyDb

// Named "KyDbLineWeight". One KyRxEnumTag for each weight: "ByLayer",
// "ByBlock", "Default", then "0.00 mm" to "2.11 mm"; the local names come
// from the platform's resource texts 9000 to 9026. A weight without a tag
// prints as its number.
template <>
KYPLATFORM_API const KyRxValueType& KyRxValueType::Desc<KyDb::LineWeight>::value();
// Named "KyDbShadowFlags". Tags "Casts and receives shadows", "Casts shadows",
// "Receives shadows", "Ignore shadows", local names from texts 9100 to 9103.
// The type carries a KyRxFlagsAttribute: its values are bits.
template <>
KYPLATFORM_API const KyRxValueType& KyRxValueType::Desc<KyDb::ShadowFlags>::value();
