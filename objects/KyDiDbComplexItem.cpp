#include "kydi/KyDiDbComplexItem.h"

#include "kydi/KyDiDataItemFactory.h"
#include "kydi/KyDiValueTypes.h"
#include "manager/KyDiReflectedClasses.h"
#include "objects/ItemMembers.h"
#include "reflection/KyDiMemberIterator.h"

KYDI_DEFINE_CLASS_MEMBERS(KyDiDbComplexItem, kDbComplexItem)

KyDiDbComplexItem::KyDiDbComplexItem(KyDbObjectId objectId, const KyDbFullSubentPath& path)
    : KyDiDbItem(objectId), m_path(path) {}

KyDiDbComplexItem::~KyDiDbComplexItem() {
    tellDeleted();
}

KyRxMemberIterator* KyDiDbComplexItem::subNewItemMemberIterator() {
    return KyDiMemberIterator::over(
        {ItemMembers::complexItemName(), ItemMembers::complexItemParentType()});
}

namespace {

const wchar_t* subEntityName(KyDb::SubentType type) {
    switch (type) {
        case KyDb::kFaceSubentType:
            return L"FaceSubEntity";
        case KyDb::kEdgeSubentType:
            return L"EdgeSubEntity";
        case KyDb::kVertexSubentType:
            return L"VertexSubEntity";
        default:
            return L"SubEntity";
    }
}

}  // namespace

Kyro::ErrorStatus KyDiDbComplexItem::getValue(const KyRxPropertyBase* property, KyRxValue& value,
                                              int /*index*/, const wchar_t* /*key*/) {
    if (property == nullptr) {
        return Kyro::eInvalidInput;
    }
    if (ItemMembers::isNamed(property, L"Name")) {
        value = KyRxValue(KyString(subEntityName(m_path.subentId().type())));
    } else if (ItemMembers::isNamed(property, L"ParentType")) {
        // The item of the entity the sub-entity belongs to, through which a
        // client reads the parent's kind.
        const KyArray<KyDbObjectId>& path = m_path.objectIds();
        const KyDbObjectId parent = path.isEmpty() ? KyDbObjectId() : path.first();
        KyDiDynamicObject* item =
            parent.isNull() ? nullptr : createDataItem(KyString(), KyRxValue(parent));
        value = KyRxValue(item);
    }
    return Kyro::eOk;
}
