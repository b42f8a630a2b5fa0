// KyDbObjectReactor: a transient watcher of database objects, put on an object
// with KyDbObject::addReactor. Every notification does nothing unless
// overridden. When each one comes is told in KyDbObject.h; the object passed
// is open (at least for notify) for the length of the call, so a reactor may
// read it and may add or remove reactors on it, but must not close it.
#pragma once

#include "KyPlatformExport.h"
#include "db/KyDbObjectId.h"
#include "rx/KyRxObject.h"

class KyDbObject;

class KYPLATFORM_API KyDbObjectReactor : public KyRxObject {
public:
    KYRX_DECLARE_MEMBERS(KyDbObjectReactor);
    ~KyDbObjectReactor() override;

    // The change of the write-open that `object` was in has been given up.
    virtual void cancelled(const KyDbObject* object);
    // `object` was copied into `newObject`.
    virtual void copied(const KyDbObject* object, const KyDbObject* newObject);
    // `object` was erased (`erasing` true) or unerased (false), at that moment.
    virtual void erased(const KyDbObject* object, bool erasing = true);
    // `object` is leaving memory with its database.
    virtual void goodbye(const KyDbObject* object);
    // `object`, open for write, is about to change for the first time in this open.
    virtual void openedForModify(const KyDbObject* object);
    // `object` is being closed after a change.
    virtual void modified(const KyDbObject* object);
    // An undo or redo has just restored the state of `object`.
    virtual void modifyUndone(const KyDbObject* object);
    // The extended data of `object` changed.
    virtual void modifiedXData(const KyDbObject* object);
    // An undo took the append of `object` back (the object is erased now).
    virtual void unappended(const KyDbObject* object);
    // A redo made the append of `object` again (the object is unerased now).
    virtual void reappended(const KyDbObject* object);
    // The object of `objectId` was closed after a change; it is closed now.
    virtual void objectClosed(KyDbObjectId objectId);

protected:
    KyDbObjectReactor() = default;
};
