// KyDbDatabaseReactor: a watcher of everything that happens to the objects of
// one database, put on it with KyDbDatabase::addReactor. Every notification
// does nothing unless overridden. The moments are those of the object
// notifications (KyDbObject.h); a database reactor hears of an object after
// the object's own reactors.
#pragma once

#include "KyPlatformExport.h"
#include "rx/KyRxObject.h"

class KyDbDatabase;
class KyDbObject;

class KYPLATFORM_API KyDbDatabaseReactor : public KyRxObject {
public:
    KYRX_DECLARE_MEMBERS(KyDbDatabaseReactor);
    ~KyDbDatabaseReactor() override;

    // `object` has just come into `database`; it is open for write.
    virtual void objectAppended(const KyDbDatabase* database, const KyDbObject* object);
    // An undo took the append of `object` back; it is erased now.
    virtual void objectUnAppended(const KyDbDatabase* database, const KyDbObject* object);
    // A redo made the append of `object` again; it is unerased now.
    virtual void objectReAppended(const KyDbDatabase* database, const KyDbObject* object);
    // `object`, open for write, is about to change for the first time in this open.
    virtual void objectOpenedForModify(const KyDbDatabase* database, const KyDbObject* object);
    // `object` is being closed after a change.
    virtual void objectModified(const KyDbDatabase* database, const KyDbObject* object);
    // `object` was erased (`erased` true) or unerased (false).
    virtual void objectErased(const KyDbDatabase* database, const KyDbObject* object,
                              bool erased = true);
    // The header variable `name` is about to change, and has changed.
    virtual void headerSysVarWillChange(const KyDbDatabase* database, const wchar_t* name);
    virtual void headerSysVarChanged(const KyDbDatabase* database, const wchar_t* name,
                                     bool success);
    // `database` is being deleted; its objects are still there.
    virtual void goodbye(const KyDbDatabase* database);

protected:
    KyDbDatabaseReactor() = default;
};
