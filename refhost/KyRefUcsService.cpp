#include "KyRefUcsService.h"

#include "KyRefDocumentManager.h"
#include "KyRefHost.h"
#include "KyRefReadAccess.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbSymbolTable.h"

KyRefUcsService::KyRefUcsService(KyRefHost& host) : m_host(host) {}

Kyro::ErrorStatus KyRefUcsService::getCurrent(KyString& name, KyDbObjectId& id) {
    id.setNull();
    KyDbDatabase* database = m_host.documents().currentDatabase();
    KyRefResbufPtr value;
    if (database == nullptr || m_host.sysVars().get(L"UCSNAME", value) != KyRefSysVarStatus::kOk) {
        return Kyro::eNoCurrentDocument;
    }
    name = value->resval.rstring;
    if (name.isEmpty()) {
        name = L"World";
        return Kyro::eOk;
    }
    KyRefReadAccess<KyDbSymbolTable> records(database->UCSTableId());
    if (records) {
        records->getAt(name, id);
    }
    return Kyro::eOk;
}
