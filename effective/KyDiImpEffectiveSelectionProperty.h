// Not part of the interface: the effective property clients are given
// (KyDiManager::getEffectiveProperty). With nothing selected it answers as
// the drawing's does, from the currency trackers. With a selection it opens
// every selected entity once for all the keys that are stale, sees where
// their values agree, and answers the common value's item of the tracker's
// collection: no item when they differ, eNotApplicable when an entity has no
// such value. A write with a selection becomes the change-property command a
// user would type, or a direct write where no command can set the value.
//
// It watches every object selected since the selection was last empty: an
// erase or a change of one of them makes every key stale, reported as one
// allPropertiesChanged at the next refresh pass. The watch ends at the first
// read after the selection empties, when the document changes or goes, and at
// shutdown.
#pragma once

#include <set>

#include "effective/KyDiImpEffectiveProperty.h"
#include "manager/KyDiObjectModifiedReactor.h"

class KyDbObject;
struct KyDiEffectiveValue;

class KyDiImpEffectiveSelectionProperty : public KyDiImpEffectiveProperty {
public:
    KyDiImpEffectiveSelectionProperty();
    // Takes the reactor off what it watches, then deletes it.
    ~KyDiImpEffectiveSelectionProperty() override;

    // Every bound key is stale and the next report covers them all.
    void subHostStateChanged() override;
    // Takes the object reactor off every watched object.
    void releaseObjectReactors() override;
    // The watched objects belong to the document left behind.
    void documentChanged() override;
    // Never computed one by one: a read scans the selection.
    KyDiDynamicObject* computeItem(KyDiEffectiveEntry* entry) override;
    Kyro::ErrorStatus getEntryItem(KyDiEffectiveEntry* entry, KyDiDynamicObject*& item) override;
    Kyro::ErrorStatus setEntryItem(KyDiEffectiveEntry* entry, KyDiDynamicObject* item) override;
    // Success: no item of a selected value, or nothing current with nothing
    // selected, is still a reading.
    Kyro::ErrorStatus missingItemStatus() const override;

    // What the object reactor tells.
    void objectErased(const KyDbObject* object, bool erasing);
    void objectClosed(KyDbObjectId id);

    // The objects that carry the object reactor.
    const std::set<KyDbObjectId>& watchedObjects() const { return m_watched; }

private:
    // The selected objects, in the order of the selection; false without a
    // selection service or when nothing is selected.
    static bool readSelection(KyArray<KyDbObjectId>& ids);
    // Reads every stale bound entry from the entities of `ids` in one pass.
    void scan(const KyArray<KyDbObjectId>& ids);
    // Puts the object reactor on each of `ids` that lacks it.
    void watch(const KyArray<KyDbObjectId>& ids);
    // Folds the value `read` of the entity at `index` into `common`; the
    // entry learns whether the values still agree.
    static void fold(KyDiEffectiveEntry& entry, int index, const KyDiEffectiveValue& read,
                     KyDiEffectiveValue& common);

    KyDiObjectModifiedReactor<KyDiImpEffectiveSelectionProperty>* m_objectReactor;
    std::set<KyDbObjectId> m_watched;
};
