#include "db/KyDbHostApplicationServices.h"

short gLineWeightUnits = 1;

namespace {

KyDbHostApplicationServices* g_installed = nullptr;

}  // namespace

KyDbHostApplicationServices::KyDbHostApplicationServices() = default;

KyDbHostApplicationServices::~KyDbHostApplicationServices() {
    if (g_installed == this) {
        g_installed = nullptr;
    }
}

KyDbDatabase* KyDbHostApplicationServices::workingDatabase() const {
    return m_workingDatabase;
}

void KyDbHostApplicationServices::setWorkingDatabase(KyDbDatabase* database) {
    m_workingDatabase = database;
}

KyDbColorService* KyDbHostApplicationServices::colorService() const {
    return nullptr;
}

Kyro::ErrorStatus KyDbHostApplicationServices::lockDocument(KyDbDatabase*) {
    return Kyro::eOk;
}

void KyDbHostApplicationServices::unlockDocument(KyDbDatabase*) {}

KyDbHostApplicationServices* kydbHostApplicationServices() {
    if (g_installed != nullptr) {
        return g_installed;
    }
    // Never deleted: databases deleted at the end of the process still ask it.
    static KyDbHostApplicationServices* const s_builtIn = new KyDbHostApplicationServices();
    return s_builtIn;
}

void kydbSetHostApplicationServices(KyDbHostApplicationServices* services) {
    g_installed = services;
}
