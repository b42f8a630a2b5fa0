// KyDbSymbolTableIterator: a walk over a table's records in table order,
// forwards or backwards, over the table's own list (nothing is allocated per
// record). Records added during the walk are reached when they lie ahead.
#pragma once

#include "KyPlatformExport.h"
#include "base/KyroErrorStatus.h"
#include "db/KyDbEnums.h"
#include "db/KyDbObjectId.h"

class KyDbSymbolTable;
class KyDbSymbolTableRecord;

class KYPLATFORM_API KyDbSymbolTableIterator {
public:
    virtual ~KyDbSymbolTableIterator();
    KyDbSymbolTableIterator(const KyDbSymbolTableIterator&) = delete;
    KyDbSymbolTableIterator& operator=(const KyDbSymbolTableIterator&) = delete;

    // Goes to the first (or last) record, passing over erased ones with
    // skipDeleted.
    void start(bool atBeginning = true, bool skipDeleted = true);
    bool done() const;
    // Goes to the next (or previous) record.
    void step(bool forward = true, bool skipDeleted = true);
    // Goes to the record `id`; eKeyNotFound when it is not in the table.
    Kyro::ErrorStatus seek(KyDbObjectId id);

    // The record here: eInvalidIndex past the end.
    Kyro::ErrorStatus getRecordId(KyDbObjectId& id) const;
    // Opens the record here; the caller closes it.
    Kyro::ErrorStatus getRecord(KyDbSymbolTableRecord*& record, KyDb::OpenMode mode,
                                bool openErased = false) const;

protected:
    explicit KyDbSymbolTableIterator(const KyDbSymbolTable* table);

private:
    void skipErased(bool forward);

    const KyDbSymbolTable* m_table;
    int m_index = 0;
};
