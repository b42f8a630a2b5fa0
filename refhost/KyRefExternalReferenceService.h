// KyRefExternalReferenceService: the reference host's side of the external
// reference contract (KyDiExternalReferenceHost): the background colour shown
// behind the external references of each open drawing. Tests and scripts set
// it per document; a drawing without a setting shows none (a colour of the
// method kNone). The host hands the object to the data item layer with
// KyDiManager::initializeXRefHost.
#pragma once

#include <map>

#include "db/KyCmColor.h"
#include "kydi/KyDiExternalReferenceHost.h"
#include "kydi/KyDiTypes.h"

class KyRefHost;

class KyRefExternalReferenceService : public KyDiExternalReferenceHost {
public:
    explicit KyRefExternalReferenceService(KyRefHost& host);

    // The colour of the document that owns `database`, of the current
    // document when it is null. eNoCurrentDocument for a null database
    // without a current document; eInvalidInput for a database that no open
    // document owns (a drawing read in the background). `out` is left alone
    // on failure.
    Kyro::ErrorStatus getBackgroundOverride(KyCmColor& out, KyDbDatabase* database) override;

    // ---- State that tests and scripts set
    // Sets the colour of `document`; a colour of the method kNone takes the
    // setting back.
    void setBackgroundOverride(KyDiDocument document, const KyCmColor& color);

private:
    KyRefHost& m_host;
    std::map<KyDiDocument, KyCmColor> m_backgrounds;
};
