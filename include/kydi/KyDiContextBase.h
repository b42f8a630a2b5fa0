// KyDiContextBase: the base of the layer's own contexts, and of the object
// contexts a client derives from (KyDiDbObjectContext). A context knows the
// name it was built under, and the manager drives the contexts its factories
// built through four hooks: once per refresh pass, when the host invalidates
// everything, when a database goes away, and at shutdown.
//
// Its members are those of its class that a palette shows, each wrapped so
// that it reads through the context.
#pragma once

#include "base/KyString.h"
#include "kydi/KyDiContext.h"

class KYDI_API KyDiContextBase : public KyDiContext {
public:
    static KyRxClass* desc();
    KyRxClass* isA() const override;

    const KyString& name() const { return m_name; }

    // Called once per refresh pass; the answer is not read.
    virtual int subRefresh();
    virtual void subInvalidate();
    // The argument is always null.
    virtual void subDatabaseToBeDestroyed(void* database);
    virtual void subTerminate();

protected:
    explicit KyDiContextBase(const wchar_t* name) : m_name(name) {}

    // The members of the context's class that pass the palette's filter on
    // this context, wrapped.
    KyRxMemberIterator* newFilteredMemberIterator();
    // The same for the members of another object, read through this context.
    KyRxMemberIterator* newFilteredMemberIterator(const KyRxObject* object);

private:
    KyString m_name;
};
