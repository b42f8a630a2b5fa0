#include "collections/CSelectedItemHelper.h"

#include "db/KyDbObject.h"
#include "db/KyDbOpenObject.h"
#include "db/KyDbSubEntityProvider.h"
#include "kydi/KyDiDbComplexItem.h"

CSelectedItemHelper::CSelectedItemHelper(
    KyDiDbItem* item, KyDb::OpenMode mode,
    KyDiDataSelectedItemCollectionImp::SubEntitySelection selection) {
    if (item == nullptr) {
        m_status = Kyro::eNullObjectPointer;
        return;
    }
    m_status = kydbOpenObject(m_object, item->objectId(), mode);
    if (m_status != Kyro::eOk) {
        m_object = nullptr;
        return;
    }
    using Selection = KyDiDataSelectedItemCollectionImp;
    if (selection == Selection::kSubEntities) {
        if (const auto* part = kyrxCast<KyDiDbComplexItem>(static_cast<KyRxObject*>(item))) {
            const Kyro::ErrorStatus status = KyDbSubEntityProvider::open(
                m_object, m_subEntityObject, part->subentPath().subentId(), mode);
            // An object without the part is the item's object alone.
            m_status = status == Kyro::eNullSubentity ? Kyro::eOk : status;
        }
    } else if (selection == Selection::kCellsOrComplex) {
        m_status = KyDbSubEntityProvider::open(m_object, m_subEntityObject, KyDbSubentId(), mode);
    }
}

CSelectedItemHelper::~CSelectedItemHelper() {
    if (m_object == nullptr) {
        return;
    }
    if (m_subEntityObject != nullptr) {
        KyDbSubEntityProvider::close(m_object, m_subEntityObject);
    }
    m_object->close();
}

KyRxObject* CSelectedItemHelper::object() const {
    return m_subEntityObject != nullptr ? m_subEntityObject : m_object;
}
