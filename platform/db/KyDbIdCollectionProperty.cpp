#include "db/KyDbIdCollectionProperty.h"

#include "rx/KyRxArrayValueIterator.h"

KyDbIdCollectionProperty::KyDbIdCollectionProperty(const wchar_t* name, const KyRxObject* owner,
                                                   KyDbListIds list)
    : KyRxCollectionProperty(name, KyRxValueType::Desc<KyDbObjectId>::value(), owner),
      m_list(list) {}

Kyro::ErrorStatus KyDbIdCollectionProperty::read(const KyRxObject* object, KyDbIdList& ids) const {
    if (object == nullptr) {
        return Kyro::eNotThatKindOfClass;
    }
    if (const Kyro::ErrorStatus status = kydbiReadStatus(object); status != Kyro::eOk) {
        return status;
    }
    return m_list(object, ids);
}

KyRxValueIterator* KyDbIdCollectionProperty::subNewValueIterator(const KyRxObject* object) const {
    KyDbIdList ids;
    if (read(object, ids) != Kyro::eOk) {
        return nullptr;
    }
    return new KyRxArrayValueIterator<KyDbObjectId>(std::move(ids));
}

Kyro::ErrorStatus KyDbIdCollectionProperty::subTryGetCount(const KyRxObject* object,
                                                           int& count) const {
    KyDbIdList ids;
    const Kyro::ErrorStatus status = read(object, ids);
    if (status == Kyro::eOk) {
        count = ids.length();
    }
    return status;
}
