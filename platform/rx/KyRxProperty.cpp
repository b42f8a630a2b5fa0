// Properties: the public calls pass through the sub* virtuals, whose defaults
// refuse. A property of a composite type (a point) offers a sub-property for
// each property of the type, made by makeSubProperty.
#include "rx/KyRxProperty.h"

#include "rx/KyRxBoxedValue.h"
#include "rx/KyRxClass.h"
#include "rx/KyRxStandardAttributes.h"

KYRX_DEFINE_MEMBERS(KyRxPropertyBase, KyRxMember)
KYRX_DEFINE_MEMBERS(KyRxProperty, KyRxPropertyBase)
KYRX_DEFINE_MEMBERS(KyRxCollectionProperty, KyRxPropertyBase)
KYRX_DEFINE_MEMBERS(KyRxIndexedProperty, KyRxCollectionProperty)
KYRX_DEFINE_MEMBERS(KyRxDictionaryProperty, KyRxCollectionProperty)

KyRxPropertyBase::KyRxPropertyBase(const wchar_t* name, const KyRxValueType& type,
                                   const KyRxObject* owner)
    : KyRxMember(name, type, owner) {}

bool KyRxPropertyBase::subIsReadOnly() const {
    return false;
}

Kyro::ErrorStatus KyRxPropertyBase::subChildren(KyRxMemberArray& children) const {
    const KyRxMemberCollection* members = type().members();
    if (members == nullptr) {
        return Kyro::eNotApplicable;
    }
    for (int i = 0; i < members->count(); ++i) {
        const KyRxMember* member = members->getAt(i);
        if (kyrxCast<KyRxProperty>(member) == nullptr) {
            continue;
        }
        if (KyRxProperty* sub =
                makeSubProperty(this, member->name(), member->name(), true, false)) {
            children.append(sub);
        }
    }
    return children.isEmpty() ? Kyro::eNotApplicable : Kyro::eOk;
}

KyRxProperty::KyRxProperty(const wchar_t* name, const KyRxValueType& type, const KyRxObject* owner)
    : KyRxPropertyBase(name, type, owner) {}

Kyro::ErrorStatus KyRxProperty::getValue(const KyRxObject* object, KyRxValue& value) const {
    return subGetValue(object, value);
}

Kyro::ErrorStatus KyRxProperty::setValue(KyRxObject* object, const KyRxValue& value) const {
    return subSetValue(object, value);
}

Kyro::ErrorStatus KyRxProperty::subGetValue(const KyRxObject* /*object*/,
                                            KyRxValue& /*value*/) const {
    return Kyro::eNotImplementedYet;
}

Kyro::ErrorStatus KyRxProperty::subSetValue(KyRxObject* /*object*/,
                                            const KyRxValue& /*value*/) const {
    // A property without a setter is read-only.
    return Kyro::eNotApplicable;
}

KyRxValueIterator::~KyRxValueIterator() = default;

KyRxCollectionProperty::KyRxCollectionProperty(const wchar_t* name, const KyRxValueType& type,
                                               const KyRxObject* owner)
    : KyRxPropertyBase(name, type, owner) {}

KyRxValueIterator* KyRxCollectionProperty::newValueIterator(const KyRxObject* object) const {
    return subNewValueIterator(object);
}

Kyro::ErrorStatus KyRxCollectionProperty::tryGetCount(const KyRxObject* object, int& count) const {
    return subTryGetCount(object, count);
}

KyRxValueIterator* KyRxCollectionProperty::subNewValueIterator(const KyRxObject* /*object*/) const {
    return nullptr;
}

Kyro::ErrorStatus KyRxCollectionProperty::subTryGetCount(const KyRxObject* /*object*/,
                                                         int& /*count*/) const {
    return Kyro::eNotImplementedYet;
}

bool KyRxCollectionProperty::subIsReadOnly() const {
    return true;
}

KyRxIndexedProperty::KyRxIndexedProperty(const wchar_t* name, const KyRxValueType& type,
                                         const KyRxObject* owner)
    : KyRxCollectionProperty(name, type, owner) {}

Kyro::ErrorStatus KyRxIndexedProperty::getValue(const KyRxObject* object, int index,
                                                KyRxValue& value) const {
    return subGetValue(object, index, value);
}

Kyro::ErrorStatus KyRxIndexedProperty::setValue(KyRxObject* object, int index,
                                                const KyRxValue& value) const {
    return subSetValue(object, index, value);
}

Kyro::ErrorStatus KyRxIndexedProperty::insertValue(KyRxObject* object, int index,
                                                   const KyRxValue& value) const {
    return subInsertValue(object, index, value);
}

Kyro::ErrorStatus KyRxIndexedProperty::removeValue(KyRxObject* object, int index) const {
    return subRemoveValue(object, index);
}

Kyro::ErrorStatus KyRxIndexedProperty::subGetValue(const KyRxObject* /*object*/, int /*index*/,
                                                   KyRxValue& /*value*/) const {
    return Kyro::eNotImplementedYet;
}

Kyro::ErrorStatus KyRxIndexedProperty::subSetValue(KyRxObject* /*object*/, int /*index*/,
                                                   const KyRxValue& /*value*/) const {
    return Kyro::eNotApplicable;
}

Kyro::ErrorStatus KyRxIndexedProperty::subInsertValue(KyRxObject* /*object*/, int /*index*/,
                                                      const KyRxValue& /*value*/) const {
    return Kyro::eNotSupported;
}

Kyro::ErrorStatus KyRxIndexedProperty::subRemoveValue(KyRxObject* /*object*/, int /*index*/) const {
    return Kyro::eNotSupported;
}

bool KyRxIndexedProperty::subIsReadOnly() const {
    return false;
}

KyRxDictionaryProperty::KyRxDictionaryProperty(const wchar_t* name, const KyRxValueType& type,
                                               const KyRxObject* owner)
    : KyRxCollectionProperty(name, type, owner) {}

Kyro::ErrorStatus KyRxDictionaryProperty::getValue(const KyRxObject* object, const wchar_t* key,
                                                   KyRxValue& value) const {
    return subGetValue(object, key, value);
}

Kyro::ErrorStatus KyRxDictionaryProperty::setValue(KyRxObject* object, const wchar_t* key,
                                                   const KyRxValue& value) const {
    return subSetValue(object, key, value);
}

Kyro::ErrorStatus KyRxDictionaryProperty::subGetValue(const KyRxObject* /*object*/,
                                                      const wchar_t* /*key*/,
                                                      KyRxValue& /*value*/) const {
    return Kyro::eNotImplementedYet;
}

Kyro::ErrorStatus KyRxDictionaryProperty::subSetValue(KyRxObject* /*object*/,
                                                      const wchar_t* /*key*/,
                                                      const KyRxValue& /*value*/) const {
    return Kyro::eNotApplicable;
}

bool KyRxDictionaryProperty::subIsReadOnly() const {
    return false;
}

namespace {

// Member `subName` of the value of a composite property. Reads take the whole
// value from the base property and read the member on a box around it; writes
// change the member in a copy and write the whole value back.
class KyRxSubProperty : public KyRxProperty {
public:
    KyRxSubProperty(const KyRxPropertyBase& base, const wchar_t* name, const KyRxProperty& source,
                    bool isActive, bool isReadOnly)
        : KyRxProperty(name, source.type(), &base),
          m_base(base),
          m_source(source),
          m_isActive(isActive),
          m_isReadOnly(isReadOnly) {}

protected:
    Kyro::ErrorStatus subGetValue(const KyRxObject* object, KyRxValue& value) const override {
        const KyRxProperty* base = kyrxCast<KyRxProperty>(&m_base);
        if (!m_isActive || base == nullptr) {
            return Kyro::eNotApplicable;
        }
        KyRxValue whole;
        const Kyro::ErrorStatus status = base->getValue(object, whole);
        if (status != Kyro::eOk) {
            return status;
        }
        KyRxBoxedValueOnStack box(whole);
        return m_source.getValue(&box, value);
    }

    Kyro::ErrorStatus subSetValue(KyRxObject* object, const KyRxValue& value) const override {
        const KyRxProperty* base = kyrxCast<KyRxProperty>(&m_base);
        if (!m_isActive || m_isReadOnly || base == nullptr) {
            return Kyro::eNotApplicable;
        }
        KyRxValue whole;
        Kyro::ErrorStatus status = base->getValue(object, whole);
        if (status != Kyro::eOk) {
            return status;
        }
        KyRxBoxedValueOnStack box(whole);
        status = m_source.setValue(&box, value);
        if (status != Kyro::eOk) {
            return status;
        }
        return base->setValue(object, whole);
    }

    // Read-only when made so, when inactive, when the member of the type has
    // no setter, or when the whole value can't be written back.
    bool subIsReadOnly() const override {
        return !m_isActive || m_isReadOnly || m_source.isReadOnly() || m_base.isReadOnly() ||
               kyrxCast<KyRxProperty>(&m_base) == nullptr;
    }

    // Its own localized name when it has one, else the type member's.
    KyString subLocalName() const override {
        if (attributes().get(KyRxLocalizedNameAttribute::desc()) != nullptr) {
            return KyRxProperty::subLocalName();
        }
        return m_source.localName();
    }

private:
    const KyRxPropertyBase& m_base;
    const KyRxProperty& m_source;
    bool m_isActive;
    bool m_isReadOnly;
};

}  // namespace

KyRxProperty* makeSubProperty(const KyRxPropertyBase* base, const wchar_t* name,
                              const wchar_t* subName, bool isActive, bool isReadOnly) {
    if (base == nullptr || name == nullptr) {
        return nullptr;
    }
    const KyRxMemberCollection* members = base->type().members();
    if (members == nullptr) {
        return nullptr;
    }
    const KyRxProperty* source = kyrxCast<KyRxProperty>(members->find(subName));
    if (source == nullptr) {
        return nullptr;
    }
    return new KyRxSubProperty(*base, name, *source, isActive, isReadOnly);
}
