// KyDiEffectiveProperty: the layer, colour, linetype, lineweight, styles and
// transparency that apply now: what a new object would get. One object for
// the process (KyDiManager::getEffectiveProperty); it belongs to the manager.
//
// A getter answers the item of the value among the items of its list (the
// layer's item of the "LAYER" collection, the lineweight's item of the
// lineweights ...):
//   eOk with the item;
//   eOk with a null item when the objects it speaks for differ;
//   eNotApplicable when no drawing is in front, or before the first refresh
//     pass saw the drawing that is;
//   eInvalidInput when nothing is current.
// A setter makes `item` current the way the user would (a command queued on
// the host's command line, or a direct write where no command does it), so
// the getter tells the old value until the host has done it. It answers
// eInvalidInput for a null item, and the document lock's status when the
// drawing can't be locked. Reactors hear of changes at the refresh pass.
#pragma once

#include "base/KyroErrorStatus.h"
#include "kydi/KyDiExport.h"

class KyDiDynamicObject;
class KyDiEffectivePropertyReactor;
class KyDiImpEffectiveProperty;

class KYDI_API KyDiEffectiveProperty {
public:
    // Made by the manager over `imp`, which the manager keeps.
    explicit KyDiEffectiveProperty(KyDiImpEffectiveProperty* imp);
    ~KyDiEffectiveProperty();
    KyDiEffectiveProperty(const KyDiEffectiveProperty&) = delete;
    KyDiEffectiveProperty& operator=(const KyDiEffectiveProperty&) = delete;

    Kyro::ErrorStatus getLayer(KyDiDynamicObject*& item);
    Kyro::ErrorStatus setLayer(KyDiDynamicObject* item);
    Kyro::ErrorStatus getDimensionStyle(KyDiDynamicObject*& item);
    Kyro::ErrorStatus setDimensionStyle(KyDiDynamicObject* item);
    Kyro::ErrorStatus getTextStyle(KyDiDynamicObject*& item);
    Kyro::ErrorStatus setTextStyle(KyDiDynamicObject* item);
    Kyro::ErrorStatus getLinetype(KyDiDynamicObject*& item);
    Kyro::ErrorStatus setLinetype(KyDiDynamicObject* item);
    Kyro::ErrorStatus getMLeaderStyle(KyDiDynamicObject*& item);
    Kyro::ErrorStatus setMLeaderStyle(KyDiDynamicObject* item);
    Kyro::ErrorStatus getSectionViewStyle(KyDiDynamicObject*& item);
    Kyro::ErrorStatus setSectionViewStyle(KyDiDynamicObject* item);
    Kyro::ErrorStatus getDetailViewStyle(KyDiDynamicObject*& item);
    Kyro::ErrorStatus setDetailViewStyle(KyDiDynamicObject* item);
    Kyro::ErrorStatus getTableStyle(KyDiDynamicObject*& item);
    Kyro::ErrorStatus setTableStyle(KyDiDynamicObject* item);
    Kyro::ErrorStatus getMaterial(KyDiDynamicObject*& item);
    Kyro::ErrorStatus setMaterial(KyDiDynamicObject* item);
    Kyro::ErrorStatus getLineWeight(KyDiDynamicObject*& item);
    Kyro::ErrorStatus setLineWeight(KyDiDynamicObject* item);
    Kyro::ErrorStatus getColor(KyDiDynamicObject*& item);
    Kyro::ErrorStatus setColor(KyDiDynamicObject* item);
    Kyro::ErrorStatus getTransparency(KyDiDynamicObject*& item);
    Kyro::ErrorStatus setTransparency(KyDiDynamicObject* item);

    // Null is ignored; a reactor added twice is told twice; removal takes
    // the first occurrence. Not owned: a client removes its reactor before
    // the reactor goes.
    void addReactor(KyDiEffectivePropertyReactor* reactor);
    void removeReactor(KyDiEffectivePropertyReactor* reactor);

    // The implementation, for the library's own use.
    KyDiImpEffectiveProperty* imp() const { return m_imp; }

private:
    KyDiImpEffectiveProperty* m_imp;
};
