// Not part of the interface: a collection whose items stand for the records
// under one owner object (a symbol table, a dictionary). One reactor, put on
// the owner and on every record listed, hears the drawing change, and keeps
// what it heard as cheaply as it can: a refill asked for when the owner
// changed (a record came or went) or a record was erased or unerased, the id
// of a record that changed otherwise. Erased records of the owner are
// watched too, so that an undo of their erase is heard.
//
//   a record appended        -> the owner closes -> refill -> itemsChanged (added)
//   a record changed/renamed -> its id pending   -> itemsModified
//   a record erased          -> refill           -> itemsChanged (removed)
//   an erase undone          -> refill           -> itemsChanged (added), the same item
//   the owner leaves memory  -> deactivate now   -> collectionReset
#pragma once

#include <map>
#include <set>

#include "collections/KyDiImpCollectionBase.h"
#include "manager/KyDiObjectModifiedReactor.h"

class KyDiImpDbObjectCollection : public KyDiImpCollectionBase {
    // A pending record id, in the order of the ids' addresses.
    struct IdOrder {
        bool operator()(const KyDbObjectId& a, const KyDbObjectId& b) const { return a < b; }
    };

public:
    // The records noted as changed since the last update.
    using PendingObjects = std::set<KyDbObjectId, IdOrder>;

    KyDiImpDbObjectCollection(const wchar_t* name, KyDiCurrencyTracker* tracker);
    explicit KyDiImpDbObjectCollection(const wchar_t* name);
    ~KyDiImpDbObjectCollection() override;

    KyDbObjectId ownerId() const { return m_ownerId; }
    const PendingObjects& pendingObjects() const { return m_pendingObjects; }

    // Walks the table or dictionary of `db` into `list`, sets `owner`, and
    // notes the erased records to watch in `erased`. False when it failed.
    virtual bool subFillFromDatabase(bool initial, KyDbDatabase* db, KyDbObjectId& owner,
                                     KyDiItemArray& list, KyArray<KyDbObjectId>& erased,
                                     void** context) = 0;
    virtual void addPendingObject(const KyDbObjectId& id);
    virtual void objectGoodbye(const KyDbObject* object);
    virtual void objectClosed(KyDbObjectId id);
    virtual void objectErased(const KyDbObject* object, bool erasing);

    void subApplyItemChanges(KyDiItemArray& added, KyDiItemArray& removed,
                             KyDiItemArray& modified) override;
    void subCollectModified(KyDiItemArray& modified) override;
    void subClearPending() override;
    void discardPending() override;
    void subReleaseResources() override;
    void subDetach(KyDbObject* closing) override;
    void subAttach() override;
    bool subFill(bool initial, KyDbDatabase* db, KyDiItemArray& list, void** context) override;
    int subFindItem(const KyDiItemArray& list, KyDiDynamicObject* item) override;
    bool subTooManyChanges() const override;

    // The record an item stands for; the null id for an item of none.
    static KyDbObjectId idOf(KyDiDynamicObject* item);
    // Puts `reactor` on the object of `id` once (erased objects too); false
    // when the object can't be opened.
    static bool attachOnce(KyDbObjectId id, KyDbObjectReactor* reactor);
    // Takes `reactor` off the object of `id`: off `closing` directly when that
    // is the object (it is leaving memory and can't be opened).
    static bool detachFrom(KyDbObjectId id, const KyDbObject* closing, KyDbObjectReactor* reactor);

protected:
    PendingObjects& mutablePendingObjects() { return m_pendingObjects; }

private:
    // The position of record `id` in the list; -1 when no item stands for it.
    int indexOfRecord(KyDbObjectId id);

    KyDbObjectId m_ownerId;
    KyArray<KyDbObjectId> m_watchedErased;
    PendingObjects m_pendingObjects;
    // Where each record stood in the list when last looked at.
    std::map<KyDbObjectId, int, IdOrder> m_positions;
    KyDiObjectModifiedReactor<KyDiImpDbObjectCollection>* m_objectReactor;
};
