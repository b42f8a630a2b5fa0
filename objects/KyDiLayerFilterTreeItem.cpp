#include "kydi/KyDiLayerFilterTreeItem.h"

#include "kydi/KyDiObservableCollection.h"
#include "kydi/KyDiValueTypes.h"
#include "manager/KyDiReflectedClasses.h"
#include "objects/ItemMembers.h"
#include "rx/KyRxProperty.h"

KYDI_DEFINE_CLASS_MEMBERS(KyDiLayerFilterTreeItem, kLayerFilterTreeItem)

KyDiLayerFilterTreeItem::KyDiLayerFilterTreeItem(const KyString& name,
                                                 const KyDiLayerFilterFlags& flags,
                                                 const KyString& expression,
                                                 std::uint64_t fingerprint,
                                                 KyDiObservableCollection* layers,
                                                 KyDiObservableCollection* subFilters)
    : KyDiLayerFilterItemBase(name, flags),
      m_expression(expression),
      m_subFilters(subFilters),
      m_layers(layers),
      m_fingerprint(fingerprint) {}

KyDiLayerFilterTreeItem::~KyDiLayerFilterTreeItem() {
    tellDeleted();
    delete m_layers;
    m_layers = nullptr;
    delete m_subFilters;
    m_subFilters = nullptr;
}

void KyDiLayerFilterTreeItem::subAddMembers(KyDiMemberArray& members) {
    members.append(ItemMembers::treeItemLayers());
    members.append(ItemMembers::treeItemSubFilters());
    members.append(ItemMembers::treeItemExpression());
}

Kyro::ErrorStatus KyDiLayerFilterTreeItem::getValue(const KyRxPropertyBase* property,
                                                    KyRxValue& value, int index,
                                                    const wchar_t* key) {
    if (property == nullptr) {
        return Kyro::eInvalidInput;
    }
    if (ItemMembers::isNamed(property, L"Layers")) {
        value = KyRxValue(m_layers);
        return Kyro::eOk;
    }
    if (ItemMembers::isNamed(property, L"SubFilters")) {
        value = KyRxValue(m_subFilters);
        return Kyro::eOk;
    }
    if (ItemMembers::isNamed(property, L"Expression")) {
        value = KyRxValue(m_expression);
        return Kyro::eOk;
    }
    return KyDiLayerFilterItemBase::getValue(property, value, index, key);
}
