// Internal to the platform, not part of its interface: the reflected members
// that tone operator parameters and the types derived from them share. Each
// value type adds them for its own payload type, since a member reads only
// values of the type it belongs to.
#pragma once

#include "gi/KyGiToneOperatorParameters.h"
#include "rx/KyRxValueMemberProperty.h"

template <typename Params>
void kygiAddToneOperatorMembers(KyRxMemberCollectionBuilder& builder) {
    using Number = KyRxValueMemberProperty<Params, double>;
    using Whole = KyRxValueMemberProperty<Params, int>;
    builder.add(new Number(
        L"Brightness", builder.owner(), [](const Params& p) { return p.brightness(); },
        [](Params& p, double value) { return p.setBrightness(value); }));
    builder.add(new Number(
        L"Contrast", builder.owner(), [](const Params& p) { return p.contrast(); },
        [](Params& p, double value) { return p.setContrast(value); }));
    builder.add(new Number(
        L"MidTones", builder.owner(), [](const Params& p) { return p.midTones(); },
        [](Params& p, double value) { return p.setMidTones(value); }));
    builder.add(new Whole(
        L"ExteriorDaylight", builder.owner(),
        [](const Params& p) { return static_cast<int>(p.exteriorDaylight()); },
        [](Params& p, int value) {
            return value >= KyGiToneOperatorParameters::kDaylightOff &&
                   value <= KyGiToneOperatorParameters::kDaylightAuto &&
                   p.setExteriorDaylight(
                       static_cast<KyGiToneOperatorParameters::ExteriorDaylightMode>(value));
        }));
}
