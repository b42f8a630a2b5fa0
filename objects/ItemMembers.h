// Not part of the interface: the reflected members that the item classes
// show, each built once at its first use, shared by every item, and released
// by uninitialize after every item has gone. None of them has an owner class;
// each reads and writes through the item it is asked on.
#pragma once

#include "rx/KyRxProperty.h"

class ItemMembers {
public:
    // "Name" of KyDiNamedItem, KyDiDbNamedItem, KyDiDbDictionaryItem.
    static KyRxMember* namedItemName();
    static KyRxMember* dbNamedItemName();
    static KyRxMember* dbDictionaryItemName();
    // "Name" and "ParentType" of KyDiDbComplexItem.
    static KyRxMember* complexItemName();
    static KyRxMember* complexItemParentType();
    // The six members every layer filter item shows, in order: "Name",
    // "IsDynamicFilter", "IsDynamicGenerated", "AllowRename", "AllowDelete",
    // "AllowNested".
    static KyRxMember* filterName();
    static KyRxMember* filterIsDynamicFilter();
    static KyRxMember* filterIsDynamicGenerated();
    static KyRxMember* filterAllowRename();
    static KyRxMember* filterAllowDelete();
    static KyRxMember* filterAllowNested();
    // "Layers" of KyDiLayerFilterItem.
    static KyRxMember* filterItemLayers();
    // "SubFilters", "Layers" and "Expression" of KyDiLayerFilterTreeItem.
    static KyRxMember* treeItemSubFilters();
    static KyRxMember* treeItemLayers();
    static KyRxMember* treeItemExpression();

    // True when `member` is not null and has exactly this name.
    static bool isNamed(const KyRxMember* member, const wchar_t* name);

    // Deletes the members that were built, in a fixed order, and clears them.
    static void releaseAll();
};
