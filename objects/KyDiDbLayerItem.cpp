#include "kydi/KyDiDbLayerItem.h"

#include "kydi/KyDiFunctions.h"
#include "manager/KyDiReflectedClasses.h"
#include "objects/LayerCommands.h"
#include "reflection/PropertyWrapping.h"
#include "rx/KyRxProperty.h"

KYDI_DEFINE_CLASS_MEMBERS(KyDiDbLayerItem, kDbLayerItem)

KyDiDbLayerItem::KyDiDbLayerItem(KyDbObjectId objectId) : KyDiDbItem(objectId) {}

KyDiDbLayerItem::~KyDiDbLayerItem() {
    tellDeleted();
}

Kyro::ErrorStatus KyDiDbLayerItem::setValue(const KyRxPropertyBase* property,
                                            const KyRxValue& value, int index, const wchar_t* key) {
    if (value.isVaries() || property == nullptr) {
        return KyDiDbItem::setValue(property, value, index, key);
    }
    const LayerCommands::Handler handler = LayerCommands::handlerFor(property->name());
    const KyRxMember* source = PropertyWrapping::sourceMember(property);
    if (handler != nullptr && source != nullptr) {
        // The command takes the host's value: a colour item becomes its colour.
        KyRxValue hostValue = value;
        KyDiConvertFromDataItem(static_cast<const KyRxPropertyBase*>(source), hostValue);
        if (handler(this, hostValue)) {
            return Kyro::eOk;
        }
    }
    // A handler that could not send leaves the write to the record.
    return KyDiDbItem::setValue(property, value, index, key);
}
