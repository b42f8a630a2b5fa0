// KyDbSymbolTable: a table of named records (layers, linetypes, blocks ...),
// kept in the order they were added. Names are unique among the records that
// are not erased, without regard to case. Records are never taken out: an
// erased record keeps its place, is found only when asked for with
// getErased, and comes back where it was when unerased.
//
// Adding a record changes the table: closing the table after an add tells its
// reactors modified and objectClosed(table id). The new record is open for
// write after the add; the caller closes it.
#pragma once

#include <unordered_map>

#include "KyPlatformExport.h"
#include "db/KyDbEnums.h"
#include "db/KyDbNames.h"
#include "db/KyDbObject.h"

class KyDbSymbolTableIterator;
class KyDbSymbolTableRecord;

class KYPLATFORM_API KyDbSymbolTable : public KyDbObject {
public:
    KYRX_DECLARE_MEMBERS(KyDbSymbolTable);
    ~KyDbSymbolTable() override;

    // Adds a new record at the end, with `handle` or the next free one. The
    // table must be open for write (eWasNotOpenForWrite) and in a database
    // (eNotInDatabase). Refuses a record of another class
    // (eNotThatKindOfClass), one in a database already (eAlreadyInDb), an
    // invalid name (eInvalidName), a name taken (eDuplicateRecordName), a
    // taken handle (eHandleInUse).
    Kyro::ErrorStatus add(KyDbSymbolTableRecord* record);
    Kyro::ErrorStatus add(KyDbObjectId& id, KyDbSymbolTableRecord* record,
                          KyDbHandle handle = KyDbHandle());
    // Adds a record as add() does, with the same checks and the same undo
    // record, but tells no one: no objectAppended, and the table is not
    // marked changed, so its close tells nothing either. This is how records
    // that an external reference brings come in; who watches the table learns
    // of them from the end of the command that attached the reference.
    Kyro::ErrorStatus addWithoutNotice(KyDbObjectId& id, KyDbSymbolTableRecord* record,
                                       KyDbHandle handle = KyDbHandle());

    // The record of `name`, in any case. Without getErased only records that
    // are not erased; with it, an erased record answers when no other record
    // has the name (the latest erased one). eKeyNotFound when none,
    // eInvalidInput for an empty name.
    Kyro::ErrorStatus getAt(const wchar_t* name, KyDbObjectId& id, bool getErased = false) const;
    Kyro::ErrorStatus getIdAt(const wchar_t* name, KyDbObjectId& id, bool getErased = false) const {
        return getAt(name, id, getErased);
    }
    // Finds and opens the record; the caller closes it.
    Kyro::ErrorStatus getAt(const wchar_t* name, KyDbSymbolTableRecord*& record,
                            KyDb::OpenMode mode, bool openErased = false) const;
    bool has(const wchar_t* name) const;
    bool has(KyDbObjectId id) const;

    // A new iterator (the caller deletes it), started at the first (or last)
    // record; with skipDeleted it passes over erased records.
    Kyro::ErrorStatus newIterator(KyDbSymbolTableIterator*& iterator, bool atBeginning = true,
                                  bool skipDeleted = true) const;

    // Records in the table, erased ones included.
    int recordCount() const { return m_records.length(); }
    // The ids of the records in table order; without `withErased` only those
    // of records that are not erased.
    void getRecordIds(KyArray<KyDbObjectId>& ids, bool withErased = false) const;
    // The class its records must be of.
    const KyRxClass* recordClass() const { return subRecordClass(); }

protected:
    KyDbSymbolTable();
    // A table can't be erased: the drawing can't do without it.
    Kyro::ErrorStatus subErase(bool erasing) override;
    virtual const KyRxClass* subRecordClass() const;
    // The iterator of this kind of table, not started.
    virtual KyDbSymbolTableIterator* subNewIterator() const;

private:
    friend class KyDbSymbolTableIterator;
    friend class KyDbSymbolTableRecord;

    using Index = std::unordered_map<KyString, KyDbObjectId, KyDbNames::Hash, KyDbNames::Equal>;

    Kyro::ErrorStatus insert(KyDbObjectId& id, KyDbSymbolTableRecord* record, KyDbHandle handle,
                             bool announce);
    // The live record of `name`, null if none.
    KyDbObjectId liveRecord(const wchar_t* name) const;
    void indexAdd(const wchar_t* name, KyDbObjectId id);
    void indexRemove(const wchar_t* name, KyDbObjectId id);
    // After undo has put names back, the index is made again at the next use.
    void markIndexStale() { m_indexStale = true; }
    const Index& index() const;

    KyArray<KyDbObjectId> m_records;
    mutable Index m_index;
    mutable bool m_indexStale = false;
};
