// KyRefSelectionService: what is selected in each open document. The
// selection of the current document is what the service answers; objects
// erased since they were selected drop out of it. A change of the selection is
// told to the host's reactors (hostStateChanged).
//
// A change of properties leaves alone the selected objects on locked layers
// (the first group of filterForWrite) and those that are no entities or
// can't be opened (the second group).
#pragma once

#include <map>
#include <vector>

#include "kydi/KyDiSelectionService.h"
#include "kydi/KyDiTypes.h"

class KyRefHost;

class KyRefSelectionService : public KyDiSelectionService {
public:
    explicit KyRefSelectionService(KyRefHost& host);

    bool hasSelection() override;
    // Appends the selected objects; no sub-entities are ever selected.
    Kyro::ErrorStatus getSelection(KyArray<KyDbObjectId>& ids, SubentPathArray& paths) override;
    Kyro::ErrorStatus filterForWrite(int mode, int& total, int& excludedA, int& excludedB,
                                     const KyRxClass* filterClass,
                                     KyArray<KyDbObjectId>* excludedIdsA,
                                     KyArray<KyDbObjectId>* excludedIdsB,
                                     const KyString& filterName) override;

    // ---- The host's side, for the current document
    std::vector<KyDbObjectId> selection() const;
    void setSelection(const std::vector<KyDbObjectId>& ids);
    void clear();

private:
    KyDiDocument currentDocument() const;

    KyRefHost& m_host;
    std::map<KyDiDocument, std::vector<KyDbObjectId>> m_selections;
};
