// KyDbSymbolTableRecord: a named record of a symbol table. A name of the form
// "XREF|name", where XREF names an external reference block of the drawing,
// marks a record that belongs to that reference (isDependent).
#pragma once

#include "KyPlatformExport.h"
#include "base/KyString.h"
#include "db/KyDbObject.h"

class KyDbSymbolTable;

class KYPLATFORM_API KyDbSymbolTableRecord : public KyDbObject {
public:
    KYRX_DECLARE_MEMBERS(KyDbSymbolTableRecord);
    ~KyDbSymbolTableRecord() override;

    // The name; the pointer stays valid while the name does not change.
    Kyro::ErrorStatus getName(const wchar_t*& name) const;
    Kyro::ErrorStatus getName(KyString& name) const;
    const KyString& name() const { return m_name; }
    // Renames the record: eInvalidName, eDuplicateRecordName (another record
    // of the table has the name), eCannotBeRenamed (a standard record whose
    // name is fixed), eWasNotOpenForWrite.
    Kyro::ErrorStatus setName(const wchar_t* name);

    // True when the name is "XREF|name" and XREF is an external reference
    // block of the database.
    bool isDependent() const;

protected:
    KyDbSymbolTableRecord();

    // A standard record answers eCannotBeRenamed here.
    virtual Kyro::ErrorStatus subCheckRename(const wchar_t* newName) const;
    // Gives this record the name of `other` and `other` this one's, past the
    // checks of setName: how a drawing hands a fixed name from one record to
    // another. Both open for write (eWasNotOpenForWrite), not erased
    // (eWasErased), in one table (eNotApplicable).
    Kyro::ErrorStatus swapNames(KyDbSymbolTableRecord& other);
    // The table the record stands in; null before it is added.
    KyDbSymbolTable* ownerTable() const;

    void subSaveState(KyDbStateFiler& filer) const override;
    Kyro::ErrorStatus subRestoreState(KyDbStateFiler& filer) override;
    Kyro::ErrorStatus subErase(bool erasing) override;
    void subErasedChanged(bool erasing) override;

private:
    KyString m_name;
};
