#include "reflection/DbValueAccess.h"

#include <memory>

#include "db/KyAxDocLock.h"
#include "db/KyDbObjectPointer.h"
#include "kydi/KyDiFunctions.h"
#include "manager/NameConverters.h"
#include "reflection/HostValueAccess.h"
#include "reflection/KyDiValueIterator.h"
#include "reflection/PropertyWrapping.h"
#include "rx/KyRxProperty.h"

Kyro::ErrorStatus DbValueAccess::readDbValue(KyDbObjectId id, const KyRxPropertyBase* property,
                                             KyRxValue& value, int index, const wchar_t* key) {
    KyDbObjectPointer<KyDbObject> object(id, KyDb::kForRead, true);
    if (object.openStatus() != Kyro::eOk) {
        return object.openStatus();
    }
    const KyRxMember* source = PropertyWrapping::sourceMember(property);
    if (source == nullptr) {
        return Kyro::eInvalidInput;
    }
    const Kyro::ErrorStatus status =
        HostValueAccess::readHostValue(object.object(), source, value, index, key);
    if (status != Kyro::eOk) {
        return status;
    }
    NameConverters::toLocal(object->isA(), property->name(), value);
    KyDiConvertToDataItem(value);
    return Kyro::eOk;
}

Kyro::ErrorStatus DbValueAccess::writeDbValue(KyDbObjectId id, const KyRxPropertyBase* property,
                                              const KyRxValue& value, int index,
                                              const wchar_t* key) {
    // The lock is asked for whatever the outcome: a refused lock shows as the
    // open's lock violation.
    const KyAxDocLock lock(id.database());
    KyDbObjectPointer<KyDbObject> object(id, KyDb::kForWrite);
    if (object.openStatus() != Kyro::eOk) {
        return object.openStatus();
    }
    const KyRxMember* source = PropertyWrapping::sourceMember(property);
    if (source == nullptr) {
        return Kyro::eInvalidInput;
    }
    KyRxValue hostValue = value;
    KyDiConvertFromDataItem(property, hostValue);
    return HostValueAccess::writeHostValue(object.object(), source, hostValue, index, key);
}

Kyro::ErrorStatus DbValueAccess::writeDbValueInPlace(KyDbObjectId id,
                                                     const KyRxPropertyBase* property,
                                                     const KyRxValue& value, int index,
                                                     const wchar_t* key) {
    KyDbObjectPointer<KyDbObject> object(id, KyDb::kForRead);
    if (object.openStatus() != Kyro::eOk) {
        return object.openStatus();
    }
    const KyRxMember* source = PropertyWrapping::sourceMember(property);
    if (source == nullptr) {
        return Kyro::eInvalidInput;
    }
    return HostValueAccess::writeHostValue(object.object(), source, value, index, key);
}

KyRxValueIterator* DbValueAccess::newConvertedValueIterator(const KyRxObject* object,
                                                            const KyRxPropertyBase* property) {
    const auto* source = kyrxCast<KyRxCollectionProperty>(PropertyWrapping::sourceMember(property));
    if (object == nullptr || source == nullptr) {
        return nullptr;
    }
    const std::unique_ptr<KyRxValueIterator> hostValues(source->newValueIterator(object));
    if (hostValues == nullptr) {
        return nullptr;
    }
    auto* values = new KyDiValueIterator();
    for (; !hostValues->done(); hostValues->next()) {
        KyRxValue value;
        hostValues->current(value);
        KyDiConvertToDataItem(value);
        values->append(value);
    }
    return values;
}
