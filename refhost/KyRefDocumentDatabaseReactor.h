// KyRefDocumentDatabaseReactor: watches the database of an open document.
// A change of the drawing marks the document modified; a change of a header
// variable outside the host's commands is reported to the host's reactors as
// the change of a system variable, as a write by the data item layer itself
// (under its own document lock) must be. A change of a layout goes to the
// document's watch of plot settings, and the host tells it.
#pragma once

#include "db/KyDbDatabaseReactor.h"

class KyRefDocument;
class KyRefHost;

class KyRefDocumentDatabaseReactor : public KyDbDatabaseReactor {
public:
    KyRefDocumentDatabaseReactor(KyRefHost& host, KyRefDocument& document);

    void objectAppended(const KyDbDatabase* database, const KyDbObject* object) override;
    void objectOpenedForModify(const KyDbDatabase* database, const KyDbObject* object) override;
    void objectModified(const KyDbDatabase* database, const KyDbObject* object) override;
    void objectErased(const KyDbDatabase* database, const KyDbObject* object, bool erased) override;
    void headerSysVarWillChange(const KyDbDatabase* database, const wchar_t* name) override;
    void headerSysVarChanged(const KyDbDatabase* database, const wchar_t* name,
                             bool success) override;

private:
    KyRefHost& m_host;
    KyRefDocument& m_document;
};
