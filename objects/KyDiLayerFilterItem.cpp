#include "kydi/KyDiLayerFilterItem.h"

#include "kydi/KyDiFunctions.h"
#include "manager/KyDiReflectedClasses.h"
#include "objects/ItemMembers.h"
#include "reflection/KyDiValueIterator.h"
#include "rx/KyRxProperty.h"

KYDI_DEFINE_CLASS_MEMBERS(KyDiLayerFilterItem, kLayerFilterItem)

KyDiLayerFilterItem::KyDiLayerFilterItem(const KyString& name, const KyDiLayerFilterFlags& flags,
                                         const KyArray<KyDbObjectId>& layers)
    : KyDiLayerFilterItemBase(name, flags), m_layers(layers) {}

KyDiLayerFilterItem::~KyDiLayerFilterItem() {
    tellDeleted();
}

void KyDiLayerFilterItem::subAddMembers(KyDiMemberArray& members) {
    members.append(ItemMembers::filterItemLayers());
}

Kyro::ErrorStatus KyDiLayerFilterItem::getValue(const KyRxPropertyBase* property, KyRxValue& value,
                                                int index, const wchar_t* key) {
    if (property == nullptr) {
        return Kyro::eInvalidInput;
    }
    // An element of "Layers", as a collection property is read by index.
    if (key == nullptr && index >= 0) {
        value = KyRxValue(m_layers[index]);
        return Kyro::eOk;
    }
    return KyDiLayerFilterItemBase::getValue(property, value, index, key);
}

KyRxValueIterator* KyDiLayerFilterItem::newValueIterator(const KyRxPropertyBase* property) {
    if (!ItemMembers::isNamed(property, L"Layers")) {
        return nullptr;
    }
    auto* iterator = new KyDiValueIterator();
    for (int i = 0; i < m_layers.length(); ++i) {
        iterator->append(KyRxValue(m_layers[i]));
    }
    return iterator;
}

const KyArray<KyDbObjectId>& GetFilterLayers(KyDiDynamicObject* item) {
    return static_cast<KyDiLayerFilterItem*>(item)->layers();
}
