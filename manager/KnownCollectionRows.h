// Not part of the interface: the rows that say what each known collection is:
// which tracker follows its current item (with the system variable it watches,
// the database accessors it reads and writes, and the command that makes an
// item current), which class holds the items, and which path reaches it.
#pragma once

#include <span>

#include "base/KyroErrorStatus.h"
#include "db/KyDbObjectId.h"

class KyDbDatabase;
class KyDiCurrencyTracker;
class KyDiImpCollection;

using KyDbIdGetter = KyDbObjectId (KyDbDatabase::*)() const;
using KyDbIdSetter = Kyro::ErrorStatus (KyDbDatabase::*)(KyDbObjectId);
using NewTracker = KyDiCurrencyTracker* (*)(const wchar_t* name, const wchar_t* sysVar,
                                            const wchar_t* commandFormat, KyDbIdGetter getCurrent,
                                            KyDbIdSetter setCurrent);
using NewCollection = KyDiImpCollection* (*)(const wchar_t* name, KyDiCurrencyTracker* tracker,
                                             KyDbIdGetter getTableId);

struct KnownCollectionRow {
    const wchar_t* name = nullptr;
    // Null: the collection has no tracker (yet).
    NewTracker newTracker = nullptr;
    const wchar_t* sysVar = nullptr;
    KyDbIdGetter getCurrent = nullptr;
    KyDbIdSetter setCurrent = nullptr;
    KyDbIdGetter getTableId = nullptr;
    // Null: no class serves the name (yet).
    NewCollection newCollection = nullptr;
    // printf text with one %ls; null sends nothing.
    const wchar_t* commandFormat = nullptr;
    const wchar_t* path = nullptr;
};

// A tracker over an enumerated value; its command takes one %d.
struct KnownEnumRow {
    const wchar_t* name = nullptr;
    NewTracker newTracker = nullptr;
    const wchar_t* sysVar = nullptr;
    const wchar_t* commandFormat = nullptr;
};
// A tracker of a value of the drawing that has no list of its own: the same
// four fields.
using DrawingTrackerRow = KnownEnumRow;

class KnownCollectionRows {
public:
    // The thirty rows of the known collections, in their order.
    static std::span<const KnownCollectionRow> staticRows();
    // The trackers over enumerated values, closed by a row with a null name.
    static const KnownEnumRow* enumRows();
    // The trackers of the drawing context's values without a list, closed by
    // a row with a null name.
    static const DrawingTrackerRow* drawingTrackerRows();
};
