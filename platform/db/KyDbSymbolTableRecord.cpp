#include "db/KyDbSymbolTableRecord.h"

#include <utility>

#include "db/KyDbBlockTable.h"
#include "db/KyDbBlockTableRecord.h"
#include "db/KyDbClassSupport.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbNames.h"
#include "db/KyDbStateFiler.h"
#include "db/KyDbSymbolTable.h"
#include "rx/KyRxClass.h"

namespace {

const KyDbPropertyRow kRecordRows[] = {
    {L"Name", kydbiAccess<&KyDbSymbolTableRecord::name, &KyDbSymbolTableRecord::setName>(),
     KyDbCategory::kGeneral, 0},
    {L"IsDependent", kydbiAccess<&KyDbSymbolTableRecord::isDependent>(), KyDbCategory::kGeneral,
     90},
};

}  // namespace

KYDB_DEFINE_BASE_CLASS(KyDbSymbolTableRecord, KyDbObject, kRecordRows)

KyDbSymbolTableRecord::KyDbSymbolTableRecord() = default;

KyDbSymbolTableRecord::~KyDbSymbolTableRecord() = default;

Kyro::ErrorStatus KyDbSymbolTableRecord::getName(const wchar_t*& name) const {
    name = m_name.kwszPtr();
    return Kyro::eOk;
}

Kyro::ErrorStatus KyDbSymbolTableRecord::getName(KyString& name) const {
    name = m_name;
    return Kyro::eOk;
}

KyDbSymbolTable* KyDbSymbolTableRecord::ownerTable() const {
    const KyDbStub* stub = ownerId().stub();
    return stub != nullptr && stub->object != nullptr ? kyrxCast<KyDbSymbolTable>(stub->object)
                                                      : nullptr;
}

Kyro::ErrorStatus KyDbSymbolTableRecord::subCheckRename(const wchar_t*) const {
    return Kyro::eOk;
}

Kyro::ErrorStatus KyDbSymbolTableRecord::setName(const wchar_t* name) {
    if (const Kyro::ErrorStatus status = checkWritable(); status != Kyro::eOk) {
        return status;
    }
    if (const Kyro::ErrorStatus status = KyDbNames::checkRecordName(name); status != Kyro::eOk) {
        return status;
    }
    if (m_name.compare(name) == 0) {
        return Kyro::eOk;
    }
    KyDbSymbolTable* table = ownerTable();
    if (table != nullptr) {
        if (const Kyro::ErrorStatus status = subCheckRename(name); status != Kyro::eOk) {
            return status;
        }
        const KyDbObjectId holder = table->liveRecord(name);
        if (!holder.isNull() && holder != objectId() && !isErased()) {
            return Kyro::eDuplicateRecordName;
        }
    }
    assertWriteEnabled();
    if (table != nullptr && !isErased()) {
        table->indexRemove(m_name, objectId());
        table->indexAdd(name, objectId());
    }
    m_name = name;
    return Kyro::eOk;
}

Kyro::ErrorStatus KyDbSymbolTableRecord::swapNames(KyDbSymbolTableRecord& other) {
    if (const Kyro::ErrorStatus status = checkWritable(); status != Kyro::eOk) {
        return status;
    }
    if (const Kyro::ErrorStatus status = other.checkWritable(); status != Kyro::eOk) {
        return status;
    }
    if (isErased() || other.isErased()) {
        return Kyro::eWasErased;
    }
    KyDbSymbolTable* table = ownerTable();
    if (table == nullptr || other.ownerTable() != table || &other == this) {
        return Kyro::eNotApplicable;
    }
    assertWriteEnabled();
    other.assertWriteEnabled();
    table->indexRemove(m_name, objectId());
    table->indexRemove(other.m_name, other.objectId());
    std::swap(m_name, other.m_name);
    table->indexAdd(m_name, objectId());
    table->indexAdd(other.m_name, other.objectId());
    return Kyro::eOk;
}

bool KyDbSymbolTableRecord::isDependent() const {
    const int bar = m_name.find(L'|');
    const KyDbDatabase* db = database();
    if (bar <= 0 || db == nullptr) {
        return false;
    }
    const KyDbStub* tableStub = db->blockTableId().stub();
    if (tableStub == nullptr || tableStub->object == nullptr) {
        return false;
    }
    KyDbObjectId blockId;
    const KyString prefix = m_name.left(bar);
    if (static_cast<const KyDbSymbolTable*>(tableStub->object)->getAt(prefix, blockId) !=
        Kyro::eOk) {
        return false;
    }
    const auto* block = kyrxCast<KyDbBlockTableRecord>(blockId.stub()->object);
    return block != nullptr && block->isFromExternalReference();
}

void KyDbSymbolTableRecord::subSaveState(KyDbStateFiler& filer) const {
    KyDbObject::subSaveState(filer);
    filer.writeString(m_name);
}

Kyro::ErrorStatus KyDbSymbolTableRecord::subRestoreState(KyDbStateFiler& filer) {
    if (const Kyro::ErrorStatus status = KyDbObject::subRestoreState(filer); status != Kyro::eOk) {
        return status;
    }
    KyString name;
    if (!filer.read(name)) {
        return filer.status();
    }
    if (name.compare(m_name) != 0) {
        // Names may cross while a group is put back: the index is made anew.
        if (KyDbSymbolTable* table = ownerTable()) {
            table->markIndexStale();
        }
        m_name = name;
    }
    return Kyro::eOk;
}

Kyro::ErrorStatus KyDbSymbolTableRecord::subErase(bool erasing) {
    if (!erasing) {
        if (KyDbSymbolTable* table = ownerTable(); table != nullptr) {
            const KyDbObjectId holder = table->liveRecord(m_name);
            if (!holder.isNull() && holder != objectId()) {
                return Kyro::eDuplicateRecordName;
            }
        }
    }
    return Kyro::eOk;
}

void KyDbSymbolTableRecord::subErasedChanged(bool erasing) {
    KyDbSymbolTable* table = ownerTable();
    if (table == nullptr) {
        return;
    }
    if (isRestoring()) {
        table->markIndexStale();
    } else if (erasing) {
        table->indexRemove(m_name, objectId());
    } else {
        table->indexAdd(m_name, objectId());
    }
}
