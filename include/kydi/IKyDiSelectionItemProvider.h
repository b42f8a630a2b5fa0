// IKyDiSelectionItemProvider: the selection sorted by kind of object, as a
// property palette's list of object types shows it, and the narrowing of the
// selection to one kind. The "SELECTION" context provides it:
//
//   auto* kinds = dynamic_cast<IKyDiSelectionItemProvider*>(
//       KyDiManager::getContextManager()->getContext(L"SELECTION", true));
//
// A group holds the selected objects of one class and "ClassName", in the
// order first met in the selection. A filter narrows the context's members
// and values to one group; it lasts until the selection changes, and
// setting it tells nobody: the caller reads the context again.
#pragma once

#include "base/KyArray.h"
#include "base/KyString.h"
#include "kydi/KyDiExport.h"

class KyRxClass;

struct KyDiSelectionItem {
    KyRxClass* objectClass = nullptr;
    // The objects' "ClassName" (empty for most) and "LocalizedName".
    KyString className;
    KyString localizedName;
    int count = 0;
    // What the host's image service answers for the group.
    int analysis = 0;
};

class KYDI_API IKyDiSelectionItemProvider {
public:
    virtual ~IKyDiSelectionItemProvider();

    virtual int getItemCount() = 0;
    // An empty record for an index out of range.
    virtual KyDiSelectionItem getItem(int index) = 0;
    virtual KyRxClass* getFilterClass() = 0;
    virtual KyString getFilterName() = 0;
    // Narrows to the group of `cls` without a "ClassName"; null lifts the
    // filter. False when no such group is selected.
    virtual bool setFilterClass(KyRxClass* cls) = 0;
    // Narrows to the group of "ClassName" `name`, or of `cls` without one
    // when `name` is empty; null lifts the filter.
    virtual bool setFilter(KyRxClass* cls, KyString name) = 0;
    // Whether a group's class is named in `names`.
    virtual bool containsAnyClass(const KyArray<KyString>& names) = 0;
    // Whether every group's class is named in `names`.
    virtual bool containsOnlyClasses(const KyArray<KyString>& names) = 0;
    // What the host's image service answers for the whole selection.
    virtual int getAllGroupsFlag() = 0;
};
