#include "db/KyDbPointListProperty.h"

#include "rx/KyRxArrayValueIterator.h"

KyDbPointListProperty::KyDbPointListProperty(const wchar_t* name, const KyRxObject* owner,
                                             const KyDbPointListAccess& access)
    : KyRxIndexedProperty(name, KyRxValueType::Desc<KyGePoint3d>::value(), owner),
      m_access(access) {}

const KyDbPointList* KyDbPointListProperty::points(const KyRxObject* object,
                                                   Kyro::ErrorStatus& status) const {
    const KyDbPointList* list = m_access.points(object);
    if (list == nullptr) {
        status = Kyro::eNotThatKindOfClass;
        return nullptr;
    }
    status = kydbiReadStatus(object);
    return status == Kyro::eOk ? list : nullptr;
}

KyRxValueIterator* KyDbPointListProperty::subNewValueIterator(const KyRxObject* object) const {
    Kyro::ErrorStatus status = Kyro::eOk;
    const KyDbPointList* list = points(object, status);
    return list != nullptr ? new KyRxArrayValueIterator<KyGePoint3d>(*list) : nullptr;
}

Kyro::ErrorStatus KyDbPointListProperty::subTryGetCount(const KyRxObject* object,
                                                        int& count) const {
    Kyro::ErrorStatus status = Kyro::eOk;
    if (const KyDbPointList* list = points(object, status)) {
        count = list->length();
    }
    return status;
}

Kyro::ErrorStatus KyDbPointListProperty::subGetValue(const KyRxObject* object, int index,
                                                     KyRxValue& value) const {
    Kyro::ErrorStatus status = Kyro::eOk;
    const KyDbPointList* list = points(object, status);
    if (list == nullptr) {
        return status;
    }
    if (!list->isValid(index)) {
        return Kyro::eInvalidIndex;
    }
    value = KyRxValue((*list)[index]);
    return Kyro::eOk;
}

Kyro::ErrorStatus KyDbPointListProperty::subSetValue(KyRxObject* object, int index,
                                                     const KyRxValue& value) const {
    const KyGePoint3d* point = valueCast<KyGePoint3d>(&value);
    if (m_access.points(object) == nullptr) {
        return Kyro::eNotThatKindOfClass;
    }
    if (point == nullptr) {
        return Kyro::eInvalidInput;
    }
    return m_access.setAt(object, index, *point);
}
