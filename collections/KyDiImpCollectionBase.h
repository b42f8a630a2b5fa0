// Not part of the interface: the implementation behind every observable
// collection. Host notifications never touch the list: they set pending work
// (a reset, a refill, a currency check) or note ids, and the refresh pass
// calls update(), which brings the list into line with the drawing and tells
// the reactors once, in a fixed order: a reset, or the items added and
// removed and then those modified; a change of activity; a change of the
// current item. Items that leave are given up only after every reactor has
// returned, so a reactor may read them in the call that reports them.
//
// A collection is bound to one document (or to none, or unbound after it let
// go of one). A document switch needs no event: update() sees another current
// document and resets from it.
#pragma once

#include <functional>

#include <map>
#include <set>

#include "base/KyString.h"
#include "collections/KyDiImpCollection.h"
#include "db/KyDbObjectId.h"
#include "kydi/KyDiTypes.h"

class DataItemCurrencyReactor;
class KyDbDatabase;
class KyDbObject;
class KyDiDbItem;
class KyDiCollectionReactor;
class KyDiCurrencyTracker;
class KyDiObservableCollection;

using KyDiCollectionReactorArray =
    KyArray<KyDiCollectionReactor*, KyArrayMemCopyReallocator<KyDiCollectionReactor*>>;

class KyDiImpCollectionBase : public KyDiImpCollection {
public:
    enum PendingFlag : unsigned {
        kResetPending = 0x1,
        kRefillPending = 0x2,
        kCurrencyPending = 0x8,
    };
    enum Trait : unsigned {
        // deactivate leaves the items alone (the colour list).
        kKeepItemsWhenUnbound = 0x1,
        // The refresh pass also tells it what the selection erased.
        kSelectionDependent = 0x2,
    };
    enum ChangeBit : unsigned {
        kChangeReset = 0x1,
        kChangeActive = 0x10,
    };
    // The value of previousCurrentItem that no item's address can have: the
    // next comparison always sees a change.
    static KyDiDynamicObject* const kNoItem;

    // `tracker` is the registry's; the collection tells it its reactor.
    KyDiImpCollectionBase(const wchar_t* name, KyDiCurrencyTracker* tracker);
    explicit KyDiImpCollectionBase(const wchar_t* name);
    ~KyDiImpCollectionBase() override;

    const KyString& name() const { return m_name; }
    KyDiCurrencyTracker* tracker() const { return m_tracker; }
    KyDiDocument boundDocument() const { return m_boundDocument; }
    KyDiDynamicObject* currentItem() const { return m_currentItem; }
    unsigned pendingFlags() const { return m_pendingFlags; }
    unsigned traits() const { return m_traits; }
    KyDiCollectionReactorArray& reactors() { return m_reactors; }
    // Set by the factory of a known collection.
    void setTraits(unsigned traits) { m_traits = traits; }

    // The public object over this body, which takes it over: a
    // KyDiObservableCollection, or a class of it that offers more of the body.
    virtual KyDiObservableCollection* newPublicObject();

    // Bound to a document that the host still answers a database for.
    virtual bool isActive() const;
    // Lets go of the tracker and of what the collection listens to; the
    // object stays until it is deleted.
    virtual void destroy();
    virtual void subPrepareUpdate();
    virtual void subApplyItemChanges(KyDiItemArray& added, KyDiItemArray& removed,
                                     KyDiItemArray& modified);
    virtual void subCollectModified(KyDiItemArray& modified);
    virtual void subClearPending();
    virtual void requestReset();
    virtual void subHostStateChanged();
    virtual void subInvalidate();
    virtual void subDrawingContentChanged();
    virtual void subCommandEnded(const wchar_t* command);
    virtual void subUcsChanged();
    virtual void updateIfPending();
    virtual void discardPending();
    virtual void subReleaseResources();
    virtual void requestRefill();
    virtual void requestCurrencyCheck();
    virtual void subDetach(KyDbObject* closing);
    virtual void subAttach();
    // Produces the list for `db` in `list`: the collection's own items as
    // part of a reset (`initial`), a scratch list for a merge otherwise.
    // False when the fill failed.
    virtual bool subFill(bool initial, KyDbDatabase* db, KyDiItemArray& list, void** context) = 0;
    // The index of `item`'s counterpart in `list`, or -1.
    virtual int subFindItem(const KyDiItemArray& list, KyDiDynamicObject* item) = 0;
    virtual bool subTooManyChanges() const;
    virtual bool subReservedQuery() const;
    // Brings the list up to date and tells the reactors.
    virtual void update();
    // Merges a fresh fill into the list; `newItems` is consumed.
    virtual void subMergeItems(KyDiItemArray& added, KyDiItemArray& removed,
                               KyDiItemArray& modified, KyDiItemArray& newItems);
    virtual unsigned subFilterChangeBits(unsigned bits);
    virtual void subSelectionRefreshed(const std::set<KyDiDbItem*>& erased);

    // Whether any collection is in the middle of an update.
    static bool isAnyUpdateRunning() { return s_updatesRunning > 0; }

    // The fill of a new collection: binds it to `document` and fills from it,
    // telling nobody.
    void bindToDocument(KyDiDocument document);
    // Lets go of `document` when the collection is bound to it: stops
    // listening (`closing`, when given, is an object leaving memory that must
    // not be opened again), forgets the current item and the items.
    void deactivate(KyDiDocument document, KyDbObject* closing);

protected:
    // The merge of collections whose items are kept by the cache: a survivor
    // whose display name changed is modified; new items go at the end.
    void mergeByIdentity(KyDiItemArray& added, KyDiItemArray& removed, KyDiItemArray& modified,
                         KyDiItemArray& newItems);
    // The merge of collections whose fills make new items: matched by display
    // name, the old item stays and the new one is given up.
    void mergeByName(KyDiItemArray& added, KyDiItemArray& removed, KyDiItemArray& newItems);

    // Takes the items for which `leaves` answers true out of the list, out
    // of hearing, and tells the reactors of their removal, as an update
    // would.
    void removeItems(const std::function<bool(KyDiDynamicObject*)>& leaves);

    void setPending(unsigned flags) { m_pendingFlags |= flags; }
    void clearPending(unsigned flags) { m_pendingFlags &= ~flags; }

private:
    unsigned refreshItems(KyDiItemArray& added, KyDiItemArray& removed, KyDiItemArray& modified);
    // `toldActive`: the activity the clients knew before this update.
    unsigned resetItems(unsigned bits, bool toldActive);
    // Fills the collection's own list from `document`, takes the tracker's
    // current item and starts listening; false when the fill failed.
    bool fillFrom(KyDbDatabase* db);
    void tellReactors(unsigned bits, const KyDiItemArray& added, const KyDiItemArray& removed,
                      const KyDiItemArray& modified);
    static bool isValidBinding(KyDiDocument document) {
        return document != kKyDiNoDocument && document != kKyDiUnboundDocument;
    }

    static int s_updatesRunning;

    KyString m_name;
    KyDiCurrencyTracker* m_tracker = nullptr;
    unsigned m_pendingFlags = 0;
    unsigned m_traits = 0;
    KyDiDocument m_boundDocument = kKyDiUnboundDocument;
    KyDiDynamicObject* m_currentItem = nullptr;
    KyDiDynamicObject* m_previousCurrentItem = nullptr;
    DataItemCurrencyReactor* m_currencyReactor = nullptr;
    bool m_wasActive = false;
    KyDiCollectionReactorArray m_reactors;
};
