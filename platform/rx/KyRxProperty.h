// Properties: scalar (KyRxProperty), sequences (KyRxCollectionProperty), by
// position (KyRxIndexedProperty) and by name (KyRxDictionaryProperty). The
// public calls pass through the sub* virtuals; a property without a setter
// refuses writes, and says so through isReadOnly so that a palette can show
// it as such before anyone tries.
#pragma once

#include "rx/KyRxMember.h"
#include "rx/KyRxValue.h"

class KYPLATFORM_API KyRxPropertyBase : public KyRxMember {
public:
    KYRX_DECLARE_MEMBERS(KyRxPropertyBase);

    // True when the property refuses every write by construction (it has no
    // setter). False does not promise that a write succeeds: an object may
    // still refuse a value, or refuse writes while it is not open for write.
    bool isReadOnly() const { return subIsReadOnly(); }

protected:
    KyRxPropertyBase(const wchar_t* name, const KyRxValueType& type, const KyRxObject* owner);
    // False unless a property class says otherwise.
    virtual bool subIsReadOnly() const;
    // A property of a type with members (a point, tone parameters) has a
    // sub-property for each of them.
    Kyro::ErrorStatus subChildren(KyRxMemberArray& children) const override;
};

class KYPLATFORM_API KyRxProperty : public KyRxPropertyBase {
public:
    KYRX_DECLARE_MEMBERS(KyRxProperty);

    Kyro::ErrorStatus getValue(const KyRxObject* object, KyRxValue& value) const;
    Kyro::ErrorStatus setValue(KyRxObject* object, const KyRxValue& value) const;

protected:
    KyRxProperty(const wchar_t* name, const KyRxValueType& type, const KyRxObject* owner = nullptr);
    virtual Kyro::ErrorStatus subGetValue(const KyRxObject* object, KyRxValue& value) const;
    virtual Kyro::ErrorStatus subSetValue(KyRxObject* object, const KyRxValue& value) const;
};

// Walks the values of a collection property.
class KYPLATFORM_API KyRxValueIterator {
public:
    virtual ~KyRxValueIterator();
    virtual bool done() const = 0;
    // Moves on; answers whether the end is reached.
    virtual bool next() = 0;
    virtual Kyro::ErrorStatus current(KyRxValue& value) const = 0;

protected:
    KyRxValueIterator() = default;
};

class KYPLATFORM_API KyRxCollectionProperty : public KyRxPropertyBase {
public:
    KYRX_DECLARE_MEMBERS(KyRxCollectionProperty);

    // A new iterator owned by the caller; null when the object has no values.
    KyRxValueIterator* newValueIterator(const KyRxObject* object) const;
    Kyro::ErrorStatus tryGetCount(const KyRxObject* object, int& count) const;

protected:
    KyRxCollectionProperty(const wchar_t* name, const KyRxValueType& type,
                           const KyRxObject* owner = nullptr);
    virtual KyRxValueIterator* subNewValueIterator(const KyRxObject* object) const;
    virtual Kyro::ErrorStatus subTryGetCount(const KyRxObject* object, int& count) const;
    // A collection as such is only read: read-only, unless a kind of
    // collection that can be written (by index, by name) says otherwise.
    bool subIsReadOnly() const override;
};

class KYPLATFORM_API KyRxIndexedProperty : public KyRxCollectionProperty {
public:
    KYRX_DECLARE_MEMBERS(KyRxIndexedProperty);

    Kyro::ErrorStatus getValue(const KyRxObject* object, int index, KyRxValue& value) const;
    Kyro::ErrorStatus setValue(KyRxObject* object, int index, const KyRxValue& value) const;
    Kyro::ErrorStatus insertValue(KyRxObject* object, int index, const KyRxValue& value) const;
    Kyro::ErrorStatus removeValue(KyRxObject* object, int index) const;

protected:
    KyRxIndexedProperty(const wchar_t* name, const KyRxValueType& type,
                        const KyRxObject* owner = nullptr);
    virtual Kyro::ErrorStatus subGetValue(const KyRxObject* object, int index,
                                          KyRxValue& value) const;
    virtual Kyro::ErrorStatus subSetValue(KyRxObject* object, int index,
                                          const KyRxValue& value) const;
    // Insertion and removal are not supported unless a property says so.
    virtual Kyro::ErrorStatus subInsertValue(KyRxObject* object, int index,
                                             const KyRxValue& value) const;
    virtual Kyro::ErrorStatus subRemoveValue(KyRxObject* object, int index) const;
    bool subIsReadOnly() const override;
};

class KYPLATFORM_API KyRxDictionaryProperty : public KyRxCollectionProperty {
public:
    KYRX_DECLARE_MEMBERS(KyRxDictionaryProperty);

    Kyro::ErrorStatus getValue(const KyRxObject* object, const wchar_t* key,
                               KyRxValue& value) const;
    Kyro::ErrorStatus setValue(KyRxObject* object, const wchar_t* key,
                               const KyRxValue& value) const;

protected:
    KyRxDictionaryProperty(const wchar_t* name, const KyRxValueType& type,
                           const KyRxObject* owner = nullptr);
    virtual Kyro::ErrorStatus subGetValue(const KyRxObject* object, const wchar_t* key,
                                          KyRxValue& value) const;
    virtual Kyro::ErrorStatus subSetValue(KyRxObject* object, const wchar_t* key,
                                          const KyRxValue& value) const;
    bool subIsReadOnly() const override;
};

// A property that reads and writes member `subName` of the value of `base`
// (the "X" of a point property), owned by `base`. An inactive sub-property
// answers eNotApplicable; a read-only one refuses writes, and so does one of
// a base that is read-only itself (isReadOnly says so). Null when `base` is
// null or its type has no member `subName`.
KYPLATFORM_API KyRxProperty* makeSubProperty(const KyRxPropertyBase* base, const wchar_t* name,
                                             const wchar_t* subName, bool isActive,
                                             bool isReadOnly);
