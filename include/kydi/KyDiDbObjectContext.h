// KyDiDbObjectContext: a context that stands for one database object. Its
// members are those of the object that a palette shows, and every read and
// write goes to the object: a read opens it for read (erased objects too), a
// write opens it for write under the document lock.
//
// A client derives from it and says which object it wants (getObjectId); the
// context binds to that object whenever it is asked whether it is active,
// and reports a change without names when the object was closed after a
// change or erased. It is not bound when made, and it has no factory: the
// client adds it to the context manager (addContext) and takes it out
// (removeContext) before deleting it, and before the layer stops.
#pragma once

#include "db/KyDbObjectId.h"
#include "kydi/KyDiContextBase.h"
#include "kydi/KyDiProxy.h"

class KyDbObject;
class KyDbObjectReactor;

class KYDI_API KyDiDbObjectContext : public KyDiContextBase, public KyDiProxy {
public:
    static KyRxClass* desc();
    KyRxClass* isA() const override;

    explicit KyDiDbObjectContext(const wchar_t* name);
    ~KyDiDbObjectContext() override;

    // The object the context is bound to now; null until it binds.
    KyDbObjectId boundObjectId() const { return m_objectId; }

    Kyro::ErrorStatus getValue(const KyRxPropertyBase* property, KyRxValue& value, int index,
                               const wchar_t* key) override;
    // "Varies" is handed to the property on the object open for read, with
    // no lock: it never marks the drawing as changed.
    Kyro::ErrorStatus setValue(const KyRxPropertyBase* property, const KyRxValue& value, int index,
                               const wchar_t* key) override;
    KyRxValueIterator* newValueIterator(const KyRxPropertyBase* property) override;

    void subDatabaseToBeDestroyed(void* database) override;

    // The object's reactor calls these.
    void objectErased(const KyDbObject* object, bool erasing);
    void objectClosed(KyDbObjectId id);

protected:
    // The object the context is to stand for; the null id (the default)
    // stands for none.
    virtual KyDbObjectId getObjectId() const;

    KyRxMemberIterator* subNewMemberIterator() override;
    // Binds to the object getObjectId names: true when there is one.
    bool subIsActive() const override;
    short subPriority() const override;

private:
    void unbind();
    // Whether `property` is a member of the bound object (true when the
    // object can't be opened: the access tells that failure).
    bool resolves(const KyRxPropertyBase* property) const;

    mutable KyDbObjectId m_objectId;
    KyDbObjectReactor* m_objectReactor;
};
