// Not part of the interface: how the effective property of the selection
// reads each of its twelve values from a selected entity, and gives the
// selection a value. A getter fills a record of the value's kind, or answers
// eNotApplicable for an entity of no class that has the value. A setter
// mostly queues the change-property command a user would type; what no
// command can set (the transparency) is written directly, and the view
// styles go through the host's view style module.
#pragma once

#include <set>

#include "base/KyString.h"
#include "base/KyroErrorStatus.h"
#include "db/KyDbObjectId.h"

class KyDbEntity;
class KyDiDynamicObject;
struct KyDiEffectiveValue;

class EffectiveSelectionAccessors {
public:
    using Watched = std::set<KyDbObjectId>;

    static Kyro::ErrorStatus getLayer(KyDbEntity* entity, KyDiEffectiveValue& value);
    static Kyro::ErrorStatus getLinetype(KyDbEntity* entity, KyDiEffectiveValue& value);
    static Kyro::ErrorStatus getMaterial(KyDbEntity* entity, KyDiEffectiveValue& value);
    static Kyro::ErrorStatus getLineweight(KyDbEntity* entity, KyDiEffectiveValue& value);
    static Kyro::ErrorStatus getColor(KyDbEntity* entity, KyDiEffectiveValue& value);
    static Kyro::ErrorStatus getDimensionStyle(KyDbEntity* entity, KyDiEffectiveValue& value);
    static Kyro::ErrorStatus getTextStyle(KyDbEntity* entity, KyDiEffectiveValue& value);
    static Kyro::ErrorStatus getTableStyle(KyDbEntity* entity, KyDiEffectiveValue& value);
    static Kyro::ErrorStatus getMLeaderStyle(KyDbEntity* entity, KyDiEffectiveValue& value);
    static Kyro::ErrorStatus getSectionViewStyle(KyDbEntity* entity, KyDiEffectiveValue& value);
    static Kyro::ErrorStatus getDetailViewStyle(KyDbEntity* entity, KyDiEffectiveValue& value);
    static Kyro::ErrorStatus getTransparency(KyDbEntity* entity, KyDiEffectiveValue& value);

    // A layer of an external reference (a name holding "|") is not sent.
    static Kyro::ErrorStatus setLayer(KyDiDynamicObject* item, const Watched& watched);
    static Kyro::ErrorStatus setLinetype(KyDiDynamicObject* item, const Watched& watched);
    // No command sets materials: nothing happens.
    static Kyro::ErrorStatus setMaterial(KyDiDynamicObject* item, const Watched& watched);
    // In the units the host shows lineweights in.
    static Kyro::ErrorStatus setLineweight(KyDiDynamicObject* item, const Watched& watched);
    // By book and name, as a true colour, or by the colour's own name.
    static Kyro::ErrorStatus setColor(KyDiDynamicObject* item, const Watched& watched);
    static Kyro::ErrorStatus setDimensionStyle(KyDiDynamicObject* item, const Watched& watched);
    static Kyro::ErrorStatus setTextStyle(KyDiDynamicObject* item, const Watched& watched);
    static Kyro::ErrorStatus setTableStyle(KyDiDynamicObject* item, const Watched& watched);
    static Kyro::ErrorStatus setMLeaderStyle(KyDiDynamicObject* item, const Watched& watched);
    static Kyro::ErrorStatus setSectionViewStyle(KyDiDynamicObject* item, const Watched& watched);
    static Kyro::ErrorStatus setDetailViewStyle(KyDiDynamicObject* item, const Watched& watched);
    // Written directly to every watched object, those on locked layers too.
    static Kyro::ErrorStatus setTransparency(KyDiDynamicObject* item, const Watched& watched);

    // The text the lineweight setter sends for `weight` (in hundredths of a
    // millimetre, or a negative by-layer, by-block or default marker).
    static KyString lineweightText(int weight);
};
