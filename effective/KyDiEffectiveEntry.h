// Not part of the interface: one effective value of an effective property,
// as a row of the entry table. The row names the key (the collection or
// tracker that holds the value) and the drawing context's property that shows
// it; an instance of the effective property keeps its own copy of each row,
// in which it records the tracker it reads, its reactor on that tracker, the
// item last read and whether that item is stale.
#pragma once

#include <cstdint>
#include <set>

#include "base/KyroErrorStatus.h"
#include "db/KyDbObjectId.h"

class EffectivePropertyCurrencyReactor;
class KyDbEntity;
class KyDiCurrencyTracker;
class KyDiDynamicObject;
struct KyDiEffectiveValue;

// Reads the value of a row from one selected entity: eOk with the record
// filled, eNotApplicable for an entity of no class that has the value.
using EffectiveSelectionGetter = Kyro::ErrorStatus (*)(KyDbEntity* entity,
                                                       KyDiEffectiveValue& value);
// Gives the selected objects `item`; `watched` holds every object selected
// since the selection was last empty.
using EffectiveSelectionSetter = Kyro::ErrorStatus (*)(KyDiDynamicObject* item,
                                                       const std::set<KyDbObjectId>& watched);

struct KyDiEffectiveEntry {
    enum Flags : std::uint32_t {
        // `item` is stale: the next read asks the tracker. Every row starts so.
        kEntryDirty = 0x2,
        // A selected object has no such value.
        kEntryNotApplicable = 0x4,
        // The selected objects differ.
        kEntryVaries = 0x8,
        // The value depends on the viewport the user works in: the first
        // binding of the key in the process puts it on the viewport reactor.
        kEntryViewportDependent = 0x10,
        // The value depends on the layers (a by-layer value): the first
        // binding puts the key on the layer collection's reactor.
        kEntryLayerDependent = 0x20,
    };

    const wchar_t* key = nullptr;
    const wchar_t* propertyName = nullptr;
    std::uint32_t flags = kEntryDirty;
    KyDiCurrencyTracker* tracker = nullptr;
    // Owned by the instance that bound the row.
    EffectivePropertyCurrencyReactor* currencyReactor = nullptr;
    KyDiDynamicObject* item = nullptr;
    // How the selection's instance reads and writes the value; null for a
    // row the selection has no value of.
    EffectiveSelectionGetter selectionGetter = nullptr;
    EffectiveSelectionSetter selectionSetter = nullptr;
    // 1 for a key whose values are the items of a collection.
    std::uint64_t collectionBacked = 0;
};
