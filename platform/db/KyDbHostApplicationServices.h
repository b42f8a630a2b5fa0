// KyDbHostApplicationServices: what the drawing database asks of the host
// application. The platform has a built-in object; a host installs its own
// (derived) object with kydbSetHostApplicationServices.
#pragma once

#include "KyPlatformExport.h"
#include "base/KyroErrorStatus.h"

class KyDbColorService;
class KyDbDatabase;

class KYPLATFORM_API KyDbHostApplicationServices {
public:
    KyDbHostApplicationServices();
    virtual ~KyDbHostApplicationServices();
    KyDbHostApplicationServices(const KyDbHostApplicationServices&) = delete;
    KyDbHostApplicationServices& operator=(const KyDbHostApplicationServices&) = delete;

    // The database that commands work on, and the default of KyAxDocLock.
    // A database that is deleted stops being the working database.
    virtual KyDbDatabase* workingDatabase() const;
    virtual void setWorkingDatabase(KyDbDatabase* database);

    // The host's colours; null when the host has none (the default).
    virtual KyDbColorService* colorService() const;

    // Asked by KyAxDocLock for each lock of `database`: eOk grants it (the
    // default), any other status refuses it and is the lock's status.
    virtual Kyro::ErrorStatus lockDocument(KyDbDatabase* database);
    // Told when a granted lock ends.
    virtual void unlockDocument(KyDbDatabase* database);

private:
    KyDbDatabase* m_workingDatabase = nullptr;
};

// The host's services: the installed object, or the platform's own.
KYPLATFORM_API KyDbHostApplicationServices* kydbHostApplicationServices();
// Installs the host's object (not owned; the host keeps it alive while it is
// installed). Null puts the platform's own back.
KYPLATFORM_API void kydbSetHostApplicationServices(KyDbHostApplicationServices* services);

// The units in which lineweights are shown: 0 inches, any other value
// millimetres (the setting at start).
extern KYPLATFORM_API short gLineWeightUnits;
