// Not part of the interface: the base of the trackers. A tracker serves the
// known collection of its name and looks the collection up on every call; it
// may watch a system variable, whose change means that currency may have
// changed, and may make an item current by a command of the host.
#pragma once

#include "base/KyString.h"
#include "db/KyDbObjectId.h"
#include "kydi/KyDiCurrencyTracker.h"
#include "kydi/KyDiDynamicObject.h"

struct KyDiEffectiveValue;

using KyDiCurrencyReactorArray =
    KyArray<KyDiCurrencyReactor*, KyArrayMemCopyReallocator<KyDiCurrencyReactor*>>;

class DataItemCurrencyTrackerBase : public KyDiCurrencyTracker {
public:
    // `sysVarName` and `commandFormat` may be null or empty.
    DataItemCurrencyTrackerBase(const wchar_t* collectionName, const wchar_t* sysVarName,
                                const wchar_t* commandFormat);

    const KyString& collectionName() const { return m_collectionName; }
    const KyString& sysVarName() const { return m_sysVarName; }
    const KyString& commandFormat() const { return m_commandFormat; }

    // A reactor stands once; removing an absent one does nothing.
    void addReactor(KyDiCurrencyReactor* reactor) override;
    void removeReactor(KyDiCurrencyReactor* reactor) override;

    // The item that shows `value`; null by default.
    virtual KyDiDynamicObject* findItem(const KyDiEffectiveValue& value);
    // A system variable was set (`succeeded`); nothing by default.
    virtual void sysVarChanged(const wchar_t* name, bool succeeded);

    // Tells every reactor that currency may have changed.
    void notifyReactors();

protected:
    // The items of the tracker's collection as they stand; empty without it.
    const KyDiItemArray& collectionItems() const;
    // The first item of the collection that stands for the record `id`.
    KyDiDynamicObject* itemOfRecord(KyDbObjectId id) const;
    // The first item of the collection for which `match` answers true; null
    // when none does.
    template <typename Match>
    KyDiDynamicObject* firstItem(Match match) const {
        const KyDiItemArray& items = collectionItems();
        for (int i = 0; i < items.length(); ++i) {
            if (match(items[i])) {
                return items[i];
            }
        }
        return nullptr;
    }
    // The text of `item`'s value; its name when it has no value (an entry
    // of a list of names).
    static KyString valueTextOf(KyDiDynamicObject* item);

private:
    KyString m_collectionName;
    KyString m_sysVarName;
    KyString m_commandFormat;
    KyDiCurrencyReactorArray m_reactors;
};
