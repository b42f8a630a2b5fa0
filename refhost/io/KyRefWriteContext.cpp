#include "KyRefWriteContext.h"

#include "KyRefMemberList.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbDictionary.h"
#include "db/KyDbLayerStateManager.h"
#include "db/KyDbObjectPointer.h"
#include "db/KyDbSymbolTableRecord.h"

KyRefWriteContext::KyRefWriteContext(KyDbDatabase* database, const KyRefDrawingExtras* extras)
    : m_database(database), m_extras(extras) {
    if (database != nullptr) {
        m_layerStates = database->getLayerStateManager()->layerStatesDictionaryId(false);
    }
}

const std::string& KyRefWriteContext::recordName(KyDbObjectId id) {
    const auto cached = m_names.find(id.stub());
    if (cached != m_names.end()) {
        return cached->second;
    }
    std::string name;
    if (!id.isNull()) {
        KyDbObjectPointer<KyDbSymbolTableRecord> record(id, KyDb::kForRead, true);
        if (record.openStatus() == Kyro::eOk) {
            name = kyrefUtf8(record->name());
        }
    }
    return m_names.emplace(id.stub(), std::move(name)).first->second;
}

const std::string& KyRefWriteContext::entryKey(KyDbObjectId id) {
    const auto cached = m_names.find(id.stub());
    if (cached != m_names.end()) {
        return cached->second;
    }
    std::string key;
    if (!id.isNull()) {
        KyDbObjectId ownerId;
        {
            KyDbObjectPointer<KyDbObject> object(id, KyDb::kForRead, true);
            if (object.openStatus() == Kyro::eOk) {
                ownerId = object->ownerId();
            }
        }
        KyDbObjectPointer<KyDbDictionary> owner(ownerId, KyDb::kForRead, true);
        KyString wide;
        if (owner.openStatus() == Kyro::eOk && owner->nameAt(id, wide) == Kyro::eOk) {
            key = kyrefUtf8(wide);
        }
    }
    return m_names.emplace(id.stub(), std::move(key)).first->second;
}

const KyRefDrawingExtras::Form* KyRefWriteContext::form(KyDbObjectId id) const {
    return m_extras != nullptr ? m_extras->form(KyDbHandle(id.handle())) : nullptr;
}

void KyRefWriteContext::shape(KyRefJson& out, KyDbObjectId id,
                              const KyRefMemberList& members) const {
    members.shape(out, form(id));
}

bool KyRefWriteContext::isLeftOut(KyDbObjectId id) const {
    if (!m_layerStates.isNull() && id == m_layerStates) {
        return true;
    }
    return m_omitsAdded && m_extras != nullptr && m_extras->isAdded(KyDbHandle(id.handle()));
}
