// KyRefSelectionService: what is selected in each open document: objects by
// id, and sub-entities (faces, edges, vertices, attributes) by their path. A
// path names only the part; its entity is among the ids only when it is
// selected itself. The selection of the current document is what the service
// answers; objects erased since they were selected drop out of it, and so do
// the paths through an erased object. A change of the selection is told to
// the host's reactors (hostStateChanged).
//
// Cells of a table can be selected (selectCells): the table then stands in
// the selection alone, and its sub-selection holds the cells. The next change
// of the selection (any setSelection or clear) clears that sub-selection,
// also when it selects the same table again, as a whole.
//
// A change of properties leaves alone the selected objects on locked layers
// (the first group of filterForWrite) and those that are no entities or
// can't be opened (the second group). getSelectionCounts tells both groups as
// excluded, and those on locked layers as its third count, with the message
// a change of properties prints about them ("2 were on a locked layer.").
// Both answer eInvalidInput for an operation other than a change of
// properties.
#pragma once

#include <map>
#include <vector>

#include "db/KyDbCellRange.h"
#include "db/KyDbFullSubentPath.h"
#include "kydi/KyDiSelectionService.h"
#include "kydi/KyDiTypes.h"

class KyRefHost;

class KyRefSelectionService : public KyDiSelectionService {
public:
    explicit KyRefSelectionService(KyRefHost& host);

    bool hasSelection() override;
    // Appends the selected objects, then the selected sub-entities.
    Kyro::ErrorStatus getSelection(KyArray<KyDbObjectId>& ids, SubentPathArray& paths) override;
    Kyro::ErrorStatus filterForWrite(int mode, int& total, int& excludedA, int& excludedB,
                                     const KyRxClass* filterClass,
                                     KyArray<KyDbObjectId>* excludedIdsA,
                                     KyArray<KyDbObjectId>* excludedIdsB,
                                     const KyString& filterName) override;
    Kyro::ErrorStatus getSelectionCounts(int mode, int& total, int& excluded, int& third,
                                         const KyRxClass* filterClass,
                                         KyArray<KyDbObjectId>* excludedIds,
                                         KyArray<KyDbObjectId>* thirdIds, KyString& text) override;

    // ---- The host's side, for the current document
    std::vector<KyDbObjectId> selection() const;
    std::vector<KyDbFullSubentPath> subentPaths() const;
    // Selects `ids` and no sub-entities.
    void setSelection(const std::vector<KyDbObjectId>& ids);
    void setSelection(const std::vector<KyDbObjectId>& ids,
                      const std::vector<KyDbFullSubentPath>& paths);
    void clear();
    // Selects the cells `cells` of the table `tableId` of the current
    // document: eNoCurrentDocument, eWrongDatabase for a table of another
    // drawing, the failures of opening it as a KyDbTable (eWasErased,
    // eNotThatKindOfClass ...) and of KyDbTable::setSubSelection; a failure
    // leaves the selection as it was.
    Kyro::ErrorStatus selectCells(KyDbObjectId tableId, const KyDbCellRange& cells);

private:
    // The selected objects of a class, sorted for a change of properties.
    struct WriteCheck {
        int total = 0;
        std::vector<KyDbObjectId> onLockedLayers;
        std::vector<KyDbObjectId> unwritable;
    };

    KyDiDocument currentDocument() const;
    // Clears the sub-selection of the table whose cells are selected in
    // `document`; true when there was one.
    bool clearCells(KyDiDocument document);
    // The selection of the current document, of `filterClass` (all objects
    // when it is null).
    WriteCheck checkForWrite(const KyRxClass* filterClass) const;

    // What one document has selected, as it was given: what has been erased
    // since is left out when it is read.
    struct Selection {
        std::vector<KyDbObjectId> ids;
        std::vector<KyDbFullSubentPath> paths;
    };

    KyRefHost& m_host;
    std::map<KyDiDocument, Selection> m_selections;
    // The table whose cells are selected, of each document that has one.
    std::map<KyDiDocument, KyDbObjectId> m_cellTables;
};
