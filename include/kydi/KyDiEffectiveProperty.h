// KyDiEffectiveProperty: the layer, colour, linetype, lineweight, styles and
// transparency of what is selected, or, with nothing selected, what a new
// object would get. One object for the process
// (KyDiManager::getEffectiveProperty); it belongs to the manager.
//
// A getter answers the item of the value among the items of its list (the
// layer's item of the "LAYER" collection, the lineweight's item of the
// lineweights ...):
//   eOk with the item;
//   eOk with a null item when the selected objects differ, or when nothing
//     is selected and nothing is current;
//   eNotApplicable when a selected object has no such value (a line has no
//     dimension style), when no drawing is in front, or before the first
//     refresh pass saw the drawing that is.
// The first read after the selection changed opens every selected entity
// once for all the values that are stale.
//
// A setter with nothing selected makes `item` current the way the user would
// (a command queued on the host's command line, or a direct write where no
// command does it). With a selection it queues the change-property command a
// user would type for the selected objects, unless the host leaves all of
// them alone (on locked layers); a transparency, which no command sets, is
// written directly to every object selected since the selection was last
// empty. The getter tells the old value until the host has done it. A setter
// answers eInvalidInput for a null item, and the document lock's status when
// the drawing can't be locked. Reactors hear of changes at the refresh pass:
// a change of the selection, or of a selected object, is one
// allPropertiesChanged.
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
