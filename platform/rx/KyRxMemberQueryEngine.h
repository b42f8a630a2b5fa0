// The member query engine: which members an object has. It collects the
// object's class chain (the object's class first, then its parents) and the
// facet classes that providers add for the object, and lets a query context
// turn that class list into a member iterator.
#pragma once

#include <vector>

#include "base/KyArray.h"
#include "rx/KyRxMember.h"

using KyRxClassArray = KyArray<const KyRxClass*, KyArrayMemCopyReallocator<const KyRxClass*>>;

// Walks members. The iterator does not own what it shows.
class KYPLATFORM_API KyRxMemberIterator {
public:
    virtual ~KyRxMemberIterator();
    virtual bool done() const = 0;
    // Moves on; answers whether the end is reached.
    virtual bool next() = 0;
    virtual KyRxMember* current() const = 0;
    // Moves to the first member at or after the current one with this exact
    // name and answers it; null (and done) when there is none.
    virtual KyRxMember* find(const wchar_t* name);

protected:
    KyRxMemberIterator() = default;
};

// Decides which members of a list of classes a query sees.
class KYPLATFORM_API KyRxMemberQueryContext : public KyRxObject {
public:
    KYRX_DECLARE_MEMBERS(KyRxMemberQueryContext);
    ~KyRxMemberQueryContext() override;
    // A new iterator owned by the caller, or null.
    KyRxMemberIterator* newMemberIterator(const KyRxClassArray& classes) const;

protected:
    KyRxMemberQueryContext() = default;
    virtual KyRxMemberIterator* subNewMemberIterator(const KyRxClassArray& classes) const = 0;
};

// Adds facet classes, whose members a query shows on objects of other classes.
class KYPLATFORM_API KyRxFacetProvider : public KyRxObject {
public:
    KYRX_DECLARE_MEMBERS(KyRxFacetProvider);
    ~KyRxFacetProvider() override;
    virtual void getFacets(const KyRxObject* object, const KyRxMemberQueryContext* context,
                           KyRxClassArray& facets) = 0;

protected:
    KyRxFacetProvider() = default;
};

// Told when a member is added to a class and when a member goes.
class KYPLATFORM_API KyRxMemberReactor {
public:
    virtual ~KyRxMemberReactor();
    virtual void memberAdded(const KyRxMember* member);
    virtual void memberDeleted(const KyRxMember* member);

protected:
    KyRxMemberReactor() = default;
};

class KYPLATFORM_API KyRxMemberQueryEngine {
public:
    static KyRxMemberQueryEngine* theEngine();

    // The first member named `name` (exactly) that the context shows on the
    // object; null when absent. A null context is the default context.
    KyRxMember* find(const KyRxObject* object, const wchar_t* name,
                     const KyRxMemberQueryContext* context = nullptr) const;
    // A new iterator over the object's members, owned by the caller; null for
    // a null object or when the context builds none.
    KyRxMemberIterator* newMemberIterator(const KyRxObject* object,
                                          const KyRxMemberQueryContext* context = nullptr) const;
    // The class list the engine hands to a context for this object.
    void getClasses(const KyRxObject* object, const KyRxMemberQueryContext* context,
                    KyRxClassArray& classes) const;

    // Every member of every class, in the order given.
    const KyRxMemberQueryContext* defaultContext() const;
    // Like the default context, but a member of a class earlier in the list
    // (a derived class, or the object's own class over a facet) hides a
    // member of the same name further on.
    const KyRxMemberQueryContext* promotingContext() const;

    void addReactor(KyRxMemberReactor* reactor);
    void removeReactor(KyRxMemberReactor* reactor);
    void addFacetProvider(KyRxFacetProvider* provider);
    void removeFacetProvider(KyRxFacetProvider* provider);

    // Used by the member classes.
    void notifyMemberAdded(const KyRxMember* member) const;
    void notifyMemberDeleted(const KyRxMember* member) const;

private:
    KyRxMemberQueryEngine();
    std::vector<KyRxMemberReactor*> m_reactors;
    std::vector<KyRxFacetProvider*> m_providers;
};
