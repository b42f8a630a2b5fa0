#include "KyRefHostApplicationServices.h"

#include <algorithm>

KyRefHostApplicationServices& KyRefHostApplicationServices::instance() {
    // Never deleted: databases deleted at the end of the process still ask it.
    static auto* const s_instance = new KyRefHostApplicationServices();
    return *s_instance;
}

void KyRefHostApplicationServices::install() {
    KyRefHostApplicationServices& services = instance();
    KyDbHostApplicationServices* installed = kydbHostApplicationServices();
    if (installed != &services) {
        services.setWorkingDatabase(installed->workingDatabase());
        kydbSetHostApplicationServices(&services);
    }
}

void KyRefHostApplicationServices::setReadOnly(const KyDbDatabase* database, bool readOnly) {
    std::erase(m_readOnly, database);
    if (readOnly && database != nullptr) {
        m_readOnly.push_back(database);
    }
}

bool KyRefHostApplicationServices::isReadOnly(const KyDbDatabase* database) const {
    return std::find(m_readOnly.begin(), m_readOnly.end(), database) != m_readOnly.end();
}

Kyro::ErrorStatus KyRefHostApplicationServices::lockDocument(KyDbDatabase* database) {
    return isReadOnly(database) ? Kyro::eDocumentReadOnly : Kyro::eOk;
}
