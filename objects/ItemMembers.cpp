#include "objects/ItemMembers.h"

#include <cwchar>

#include "db/KyDbObjectId.h"
#include "kydi/KyDiDynamicObject.h"
#include "kydi/KyDiValueTypes.h"
#include "reflection/KyDiCollectionProperty.h"
#include "reflection/KyDiProperty.h"

namespace {

enum Slot : int {
    kComplexItemName,
    kComplexItemParentType,
    kDbNamedItemName,
    kDbDictionaryItemName,
    kNamedItemName,
    kFilterName,
    kFilterIsDynamicFilter,
    kFilterIsDynamicGenerated,
    kFilterAllowRename,
    kFilterAllowDelete,
    kFilterAllowNested,
    kFilterItemLayers,
    kTreeItemSubFilters,
    kTreeItemLayers,
    kTreeItemExpression,
    kSlotCount,
};

// In the order of their release.
KyRxMember* g_members[kSlotCount] = {};

template <typename T>
KyRxMember* property(Slot slot, const wchar_t* name) {
    if (g_members[slot] == nullptr) {
        g_members[slot] = new KyDiProperty(name, KyRxValueType::Desc<T>::value());
    }
    return g_members[slot];
}

}  // namespace

KyRxMember* ItemMembers::namedItemName() {
    return property<KyString>(kNamedItemName, L"Name");
}
KyRxMember* ItemMembers::dbNamedItemName() {
    return property<KyString>(kDbNamedItemName, L"Name");
}
KyRxMember* ItemMembers::dbDictionaryItemName() {
    return property<KyString>(kDbDictionaryItemName, L"Name");
}
KyRxMember* ItemMembers::complexItemName() {
    return property<KyString>(kComplexItemName, L"Name");
}
KyRxMember* ItemMembers::complexItemParentType() {
    return property<KyDiDynamicObject*>(kComplexItemParentType, L"ParentType");
}
KyRxMember* ItemMembers::filterName() {
    return property<KyString>(kFilterName, L"Name");
}
KyRxMember* ItemMembers::filterIsDynamicFilter() {
    return property<bool>(kFilterIsDynamicFilter, L"IsDynamicFilter");
}
KyRxMember* ItemMembers::filterIsDynamicGenerated() {
    return property<bool>(kFilterIsDynamicGenerated, L"IsDynamicGenerated");
}
KyRxMember* ItemMembers::filterAllowRename() {
    return property<bool>(kFilterAllowRename, L"AllowRename");
}
KyRxMember* ItemMembers::filterAllowDelete() {
    return property<bool>(kFilterAllowDelete, L"AllowDelete");
}
KyRxMember* ItemMembers::filterAllowNested() {
    return property<bool>(kFilterAllowNested, L"AllowNested");
}
KyRxMember* ItemMembers::filterItemLayers() {
    if (g_members[kFilterItemLayers] == nullptr) {
        g_members[kFilterItemLayers] =
            new KyDiCollectionProperty(L"Layers", KyRxValueType::Desc<KyDbObjectId>::value());
    }
    return g_members[kFilterItemLayers];
}
KyRxMember* ItemMembers::treeItemSubFilters() {
    return property<KyDiObservableCollection*>(kTreeItemSubFilters, L"SubFilters");
}
KyRxMember* ItemMembers::treeItemLayers() {
    return property<KyDiObservableCollection*>(kTreeItemLayers, L"Layers");
}
KyRxMember* ItemMembers::treeItemExpression() {
    return property<KyString>(kTreeItemExpression, L"Expression");
}

bool ItemMembers::isNamed(const KyRxMember* member, const wchar_t* name) {
    return member != nullptr && std::wcscmp(member->name(), name) == 0;
}

void ItemMembers::releaseAll() {
    for (KyRxMember*& member : g_members) {
        if (member != nullptr) {
            KyRxMember::deleteMember(member);
            member = nullptr;
        }
    }
}
