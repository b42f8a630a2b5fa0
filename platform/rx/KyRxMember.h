// KyRxMember: a reflected member of a class (a property, a method, an
// enumeration tag). Members take their memory through their own operator new
// and leave only through deleteMember, which first tells the query engine's
// member reactors that the member goes.
#pragma once

#include <cstddef>

#include "base/KyArray.h"
#include "base/KyString.h"
#include "rx/KyRxAttribute.h"
#include "rx/KyRxObject.h"

class KyRxValueType;
class KyRxMember;

using KyRxMemberArray = KyArray<const KyRxMember*, KyArrayMemCopyReallocator<const KyRxMember*>>;

class KYPLATFORM_API KyRxMember : public KyRxObject {
public:
    KYRX_DECLARE_MEMBERS(KyRxMember);

    const wchar_t* name() const { return m_name.kwszPtr(); }
    const KyRxValueType& type() const { return *m_type; }
    // The class or the property this member belongs to; may be null.
    const KyRxObject* owner() const { return m_owner; }
    KyRxAttributeCollection& attributes() { return m_attributes; }
    const KyRxAttributeCollection& attributes() const { return m_attributes; }

    // The name shown to a user, in the current language.
    KyString localName() const { return subLocalName(); }
    // The sub-members (the coordinates of a point property ...); null when
    // the member has none. The array belongs to the member.
    const KyRxMemberArray* children() const;

    // Tells the member reactors of the query engine, then deletes the member
    // and the children it made. Null is ignored.
    static void deleteMember(const KyRxMember* member);

    static void* operator new(size_t size);
    static void operator delete(void* block) noexcept;
    // Members alive in the process, for leak checks.
    static int liveCount();

protected:
    KyRxMember(const wchar_t* name, const KyRxValueType& type, const KyRxObject* owner);
    ~KyRxMember() override;

    // Fills `children` with new members owned by this one; the default has none.
    virtual Kyro::ErrorStatus subChildren(KyRxMemberArray& children) const;
    // Answers an array that the member keeps itself; the default answers
    // eNotImplementedYet so that children() falls back to subChildren.
    virtual Kyro::ErrorStatus subChildrenEx(const KyRxMemberArray*& children) const;
    // The default is the text of the member's KyRxLocalizedNameAttribute, or
    // its name.
    virtual KyString subLocalName() const;

private:
    KyString m_name;
    const KyRxValueType* m_type;
    const KyRxObject* m_owner;
    KyRxAttributeCollection m_attributes;
    mutable KyRxMemberArray* m_children = nullptr;
    mutable bool m_childrenBuilt = false;
};

// The members of one class, in the order its builder added them. Owns them.
class KYPLATFORM_API KyRxMemberCollection {
public:
    explicit KyRxMemberCollection(const KyRxClass* owner) : m_owner(owner) {}
    KyRxMemberCollection(const KyRxMemberCollection&) = delete;
    KyRxMemberCollection& operator=(const KyRxMemberCollection&) = delete;
    ~KyRxMemberCollection();

    const KyRxClass* owner() const { return m_owner; }
    int count() const { return m_members.length(); }
    KyRxMember* getAt(int index) const { return m_members[index]; }
    KyRxMember* find(const wchar_t* name) const;

private:
    friend class KyRxMemberCollectionBuilder;
    const KyRxClass* m_owner;
    KyArray<KyRxMember*> m_members;
};

// Handed to a class's member builder: adds members to the class.
class KYPLATFORM_API KyRxMemberCollectionBuilder {
public:
    KyRxMemberCollectionBuilder(KyRxMemberCollection& collection, const KyRxClass* owner)
        : m_collection(collection), m_owner(owner) {}
    // The collection takes the member over; null is ignored.
    void add(KyRxMember* member);
    const KyRxClass* owner() const { return m_owner; }

private:
    KyRxMemberCollection& m_collection;
    const KyRxClass* m_owner;
};
