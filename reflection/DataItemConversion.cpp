// The conversions between host values and data items, in both directions.
#include "db/KyCmColor.h"
#include "db/KyCmTransparency.h"
#include "db/KyDbObjectId.h"
#include "kydi/KyDiCollection.h"
#include "kydi/KyDiDataItemFactory.h"
#include "kydi/KyDiDbItem.h"
#include "kydi/KyDiFunctions.h"
#include "kydi/KyDiManager.h"
#include "kydi/KyDiValueTypes.h"
#include "manager/KyDiManagerState.h"
#include "rx/KyRxMethod.h"
#include "rx/KyRxProperty.h"
#include "rx/KyRxStandardAttributes.h"

bool KyDiConvertToDataItem(KyRxValue& value) {
    const KyRxValueType& type = value.type();
    if (const KyDbObjectId* id = valueCast<KyDbObjectId>(&value)) {
        // A null id has no record to stand for: it stays an id.
        if (id->isNull()) {
            return false;
        }
        value = KyRxValue(createDataItem(KyString(), value));
    } else if (const KyCmColor* color = valueCast<KyCmColor>(&value)) {
        // The colour's one value item, named as the colour list names it.
        value = KyRxValue(createDataItem(color->colorNameForDisplay(), value));
    } else if (type == KyRxValueType::Desc<KyCmTransparency>::value()) {
        value = KyRxValue(createDataItem(KyString(), value));
    } else if (type.enumeration() != nullptr &&
               type.attributes().get(KyRxFlagsAttribute::desc()) == nullptr) {
        // A value of an enumeration becomes the item of its tag in the
        // enumeration's collection; bit flags stay values.
        const KyRxEnumTag* tag = value.getEnumTag();
        KyDiCollection* collection =
            tag != nullptr ? KyDiManager::getCollection(type.enumeration()) : nullptr;
        if (collection != nullptr) {
            const KyDiItemArray& items = collection->getItems();
            for (int i = 0; i < items.length(); ++i) {
                const KyRxValue* itemValue = items[i]->value();
                if (itemValue != nullptr && &itemValue->type() == &tag->value().type() &&
                    type.equalTo(itemValue->valuePtr(), tag->value().valuePtr())) {
                    value = KyRxValue(items[i]);
                    break;
                }
            }
        }
    }
    return true;
}

bool KyDiConvertFromDataItem(const KyRxPropertyBase* property, KyRxValue& value) {
    // The one member that takes items as they are.
    if (property != nullptr && property == kydiManagerState().itemTakingMember) {
        return true;
    }
    KyDiDynamicObject* const* object = valueCast<KyDiDynamicObject*>(&value);
    if (object == nullptr || *object == nullptr) {
        return true;
    }
    auto* item = kyrxCast<KyDiItem>(static_cast<KyRxObject*>(*object));
    if (item == nullptr) {
        return true;
    }
    if (const auto* dbItem = kyrxCast<KyDiDbItem>(static_cast<KyRxObject*>(item))) {
        value = KyRxValue(dbItem->objectId());
        return true;
    }
    const KyRxValue* itemValue = item->value();
    if (itemValue == nullptr) {
        return true;
    }
    if (const KyCmColor* color = valueCast<KyCmColor>(itemValue)) {
        value = KyRxValue(*color);
    } else if (const KyCmTransparency* transparency = valueCast<KyCmTransparency>(itemValue)) {
        value = KyRxValue(*transparency);
    } else if (property != nullptr && property->type().enumeration() != nullptr &&
               property->type().size() == itemValue->type().size()) {
        // An item of an enumerated value carries the payload; the property
        // gives it its type.
        value = KyRxValue(property->type(), itemValue->valuePtr());
    }
    return true;
}
