#include "objects/DataItemOwnership.h"

#include "db/KyCmColor.h"
#include "db/KyCmTransparency.h"
#include "kydi/KyDiDbComplexItem.h"
#include "kydi/KyDiDbItem.h"

void DataItemOwnership::disposeDataItem(KyDiDynamicObject* item) {
    if (item == nullptr) {
        return;
    }
    if (auto* dbItem = kyrxCast<KyDiDbItem>(static_cast<KyRxObject*>(item))) {
        if (!dbItem->objectId().isNull()) {
            if (kyrxCast<KyDiDbComplexItem>(static_cast<KyRxObject*>(item)) != nullptr) {
                delete item;
            }
            return;
        }
    }
    KyRxValue value;
    if (item->value(value) == Kyro::eOk &&
        (&value.type() == &KyRxValueType::Desc<KyCmColor>::value() ||
         &value.type() == &KyRxValueType::Desc<KyCmTransparency>::value())) {
        return;
    }
    delete item;
}
