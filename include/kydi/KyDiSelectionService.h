// KyDiSelectionService: what the user has selected in the current document,
// and which selected objects a property change must leave alone.
#pragma once

#include "base/KyArray.h"
#include "base/KyString.h"
#include "base/KyroErrorStatus.h"
#include "db/KyDbObjectId.h"
#include "kydi/KyDiExport.h"

class KyRxClass;
// A path from a selected entity down to one of its faces, edges, vertices or
// attributes (db/KyDbFullSubentPath.h). It copies through constructors, hence
// the reallocator below.
class KyDbFullSubentPath;

class KYDI_API KyDiSelectionService {
public:
    using SubentPathArray =
        KyArray<KyDbFullSubentPath, KyArrayObjectCopyReallocator<KyDbFullSubentPath>>;

    // The operation that filterForWrite and getSelectionCounts sort the
    // selection for: a change of properties.
    static constexpr int kChangeProperties = 1;

    virtual ~KyDiSelectionService() = default;

    // True when something is selected.
    virtual bool hasSelection() = 0;
    // Appends the selected objects to `ids` and the selected sub-entities to
    // `paths`; Kyro::eOk on success.
    virtual Kyro::ErrorStatus getSelection(KyArray<KyDbObjectId>& ids, SubentPathArray& paths) = 0;
    // Counts the selected objects of `filterClass` named `filterName` (all
    // objects when the class is null) that a change of properties must leave
    // alone, in two groups, and sets `total` to the number selected. Non-null
    // lists get the ids of each group. `mode` is kChangeProperties.
    virtual Kyro::ErrorStatus filterForWrite(int mode, int& total, int& excludedA, int& excludedB,
                                             const KyRxClass* filterClass,
                                             KyArray<KyDbObjectId>* excludedIdsA,
                                             KyArray<KyDbObjectId>* excludedIdsB,
                                             const KyString& filterName) = 0;
    // The figures of the selection for the operation `mode`
    // (kChangeProperties): `total` objects of `filterClass` are selected (all
    // objects when the class is null), and the operation must leave
    // `excluded` of them alone. `third` is a count of the host's own among
    // the excluded ones and `text` the host's message about them. Non-null
    // lists get the ids of the excluded objects and of those of the third
    // count.
    virtual Kyro::ErrorStatus getSelectionCounts(int mode, int& total, int& excluded, int& third,
                                                 const KyRxClass* filterClass,
                                                 KyArray<KyDbObjectId>* excludedIds,
                                                 KyArray<KyDbObjectId>* thirdIds,
                                                 KyString& text) = 0;
};
