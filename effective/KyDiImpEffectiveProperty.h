// Not part of the interface: an effective property, the store behind the
// values that a new object would get (the drawing's instance, which the
// "DRAWING" context shows) or that the selected objects have in common.
//
// For each key it keeps the effective item, whether that item is stale, and
// who wants to hear of a change. It reads and writes through the currency
// trackers of its keys. Notifications only mark keys; a flush, once per
// refresh pass, reports what was marked: one propertyChanged a key in the
// order of the entry table, or one allPropertiesChanged when every bound key
// changed. A key is bound at its first use.
#pragma once

#include <cstdint>
#include <map>
#include <set>
#include <vector>

#include "base/KyArray.h"
#include "base/KyroErrorStatus.h"
#include "effective/KyDiEffectiveEntry.h"
#include "kydi/KyDiTypes.h"

class EffectivePropertyLayerCollectionReactor;
class EffectivePropertyViewportReactor;
class KyDiEffectivePropertyReactor;

class KyDiImpEffectiveProperty {
public:
    enum Pending : std::uint32_t {
        // Something was marked since the last flush.
        kFlushRequested = 0x1,
        // The next report covers every key.
        kReportAll = 0x2,
    };

    KyDiImpEffectiveProperty();
    // Lets go of the reactors: of clients, on the layers, on the trackers.
    virtual ~KyDiImpEffectiveProperty();
    KyDiImpEffectiveProperty(const KyDiImpEffectiveProperty&) = delete;
    KyDiImpEffectiveProperty& operator=(const KyDiImpEffectiveProperty&) = delete;

    // The flush step when something asked for one.
    virtual void flush();
    // Forgets what was marked, without telling anybody.
    virtual void discardPending();
    virtual void subHostStateChanged();
    virtual void releaseObjectReactors();
    // The instance moves to another document, or lets go of its own.
    virtual void documentChanged();
    // `key` was bound to `entry`; null when the binding failed.
    virtual void entryBound(const wchar_t* key, KyDiEffectiveEntry* entry);
    // The tracker's current item, stored in the entry, which is then fresh;
    // null without a tracker.
    virtual KyDiDynamicObject* computeItem(KyDiEffectiveEntry* entry);
    // computeItem into `item`; eInvalidInput when there is none.
    virtual Kyro::ErrorStatus getEntryItem(KyDiEffectiveEntry* entry, KyDiDynamicObject*& item);
    // Makes `item` current through the key's tracker; eInvalidInput without
    // one. The tracker may only queue the change.
    virtual Kyro::ErrorStatus setEntryItem(KyDiEffectiveEntry* entry, KyDiDynamicObject* item);
    // What a read answers when it found no item and the values don't vary.
    virtual Kyro::ErrorStatus missingItemStatus() const;

    // The effective item of `key` in the bound document; null when that is
    // not the current document, without a working database, for a key no
    // entry has, or when nothing is current.
    KyDiDynamicObject* getItem(const wchar_t* key);
    // The same with a status: eNotApplicable in the first three cases, and
    // when a selected object has no such value; eOk with a null item when
    // the selected objects differ.
    Kyro::ErrorStatus getItem(const wchar_t* key, KyDiDynamicObject*& item);
    // Makes `item` current for `key` inside a document lock, and marks the
    // key (also when the tracker refused). eInvalidInput for a null item or
    // an unknown key, the lock's status when it was refused.
    Kyro::ErrorStatus setItem(const wchar_t* key, KyDiDynamicObject* item);
    // The bound entry of `key`, bound at its first demand; null for a key no
    // row has, or whose tracker can't be had.
    KyDiEffectiveEntry* entry(const wchar_t* key);

    // The flush step whether or not anything asked for it: follows the
    // current document (a new one marks every bound key) and reports.
    void flushStep();
    // Marks the bound entry of `key` stale and to be reported; an unbound
    // key is left alone.
    void markKey(const wchar_t* key);
    // Tells documentChanged and forgets the document: nothing binds again
    // until the next flush finds a document.
    void releaseDocument();
    // Takes the reactors off the "VIEWPORT" context and the "LAYER"
    // collection, ahead of their end.
    void releaseDependencyReactors();

    KyDiDocument document() const { return m_document; }

    // Null is ignored; no duplicate check; removal takes the first match.
    void addReactor(KyDiEffectivePropertyReactor* reactor);
    void removeReactor(KyDiEffectivePropertyReactor* reactor);

protected:
    // The bound entries, by key.
    const std::map<const wchar_t*, KyDiEffectiveEntry*>& boundEntries() const { return m_entries; }
    // The instance's copy of every row, in table order.
    std::vector<KyDiEffectiveEntry>& rows() { return m_rows; }
    // The next report is one allPropertiesChanged, however many keys it
    // covers.
    void requestReportAll() { m_pending |= kReportAll; }

private:
    // The current document with a working database, or no document.
    static KyDiDocument currentDocument();
    // Takes what was marked, sets the stale bits of its keys and tells the
    // reactors.
    void report();
    // The binding of the row at `index` to `key`.
    KyDiEffectiveEntry* bind(int index);

    // The instance's copy of every row, in table order; what is bound is
    // found through `m_entries`.
    std::vector<KyDiEffectiveEntry> m_rows;
    std::map<const wchar_t*, KyDiEffectiveEntry*> m_entries;
    // The marked entries; rows in a vector order as the table does.
    std::set<KyDiEffectiveEntry*> m_changed;
    std::uint32_t m_pending = 0;
    KyDiDocument m_document = kKyDiUnboundDocument;
    KyArray<KyDiEffectivePropertyReactor*> m_reactors;
    EffectivePropertyViewportReactor* m_viewportReactor = nullptr;
    EffectivePropertyLayerCollectionReactor* m_layerReactor = nullptr;
    bool m_documentChanging = false;
};
