#include "db/KyDbBlockTableRecord.h"

#include "db/KyDbBlockTableRecordIterator.h"
#include "db/KyDbClassSupport.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbEntity.h"
#include "db/KyDbLayout.h"
#include "db/KyDbObjectAccess.h"
#include "db/KyDbRecordReference.h"
#include "db/KyDbStandardContent.h"
#include "db/KyDbStateFiler.h"

namespace {

const KyDbPropertyRow kBlockTableRecordRows[] = {
    {L"Description",
     kydbiAccess<&KyDbBlockTableRecord::comments, &KyDbBlockTableRecord::setComments>(),
     KyDbCategory::kGeneral, 1},
    {L"Origin", kydbiAccess<&KyDbBlockTableRecord::origin, &KyDbBlockTableRecord::setOrigin>(),
     KyDbCategory::kGeometry, 1},
    {L"PathName",
     kydbiAccess<&KyDbBlockTableRecord::pathName, &KyDbBlockTableRecord::setPathName>(),
     KyDbCategory::kMisc, 1},
    {L"IsFromExternalReference", kydbiAccess<&KyDbBlockTableRecord::isFromExternalReference>(),
     KyDbCategory::kMisc, 2},
    {L"IsFromOverlayReference",
     kydbiAccess<&KyDbBlockTableRecord::isFromOverlayReference,
                 &KyDbBlockTableRecord::setIsFromOverlayReference>(),
     KyDbCategory::kMisc, 3},
    {L"IsLayout", kydbiAccess<&KyDbBlockTableRecord::isLayout>(), KyDbCategory::kMisc, 4},
    {L"IsAnonymous", kydbiAccess<&KyDbBlockTableRecord::isAnonymous>(), KyDbCategory::kMisc, 5},
    {L"LayoutId", kydbiAccess<&KyDbBlockTableRecord::getLayoutId>()},
};

}  // namespace

KYDB_DEFINE_CLASS(KyDbBlockTableRecord, KyDbSymbolTableRecord, kBlockTableRecordRows)

KyDbBlockTableRecord::KyDbBlockTableRecord() = default;

KyDbBlockTableRecord::~KyDbBlockTableRecord() = default;

Kyro::ErrorStatus KyDbBlockTableRecord::setOrigin(const KyGePoint3d& origin) {
    return setMember(m_origin, origin);
}

Kyro::ErrorStatus KyDbBlockTableRecord::setComments(const wchar_t* comments) {
    return setMember(m_comments, KyString(comments));
}

Kyro::ErrorStatus KyDbBlockTableRecord::setLayoutId(KyDbObjectId layoutId) {
    if (!layoutId.isNull()) {
        if (const Kyro::ErrorStatus status = checkWritable(); status != Kyro::eOk) {
            return status;
        }
        if (const Kyro::ErrorStatus status =
                KyDbRecordReference::check(this, layoutId, KyDbLayout::desc());
            status != Kyro::eOk) {
            return status;
        }
    }
    return setMember(m_layout, layoutId);
}

Kyro::ErrorStatus KyDbBlockTableRecord::setPathName(const wchar_t* path) {
    return setMember(m_path, KyString(path));
}

Kyro::ErrorStatus KyDbBlockTableRecord::setIsFromOverlayReference(bool overlay) {
    return setMember(m_overlay, overlay);
}

KyDbDatabase* KyDbBlockTableRecord::xrefDatabase(bool) const {
    return kydbIsLiveDatabase(m_xrefDatabase, m_xrefSerial) ? m_xrefDatabase : nullptr;
}

void KyDbBlockTableRecord::setXrefDatabase(KyDbDatabase* database) {
    m_xrefDatabase = database;
    m_xrefSerial = database != nullptr ? database->serial() : 0;
}

Kyro::ErrorStatus KyDbBlockTableRecord::takePaperSpaceName(KyDbBlockTableRecord* paperSpace) {
    if (paperSpace == nullptr || !isLayout() || isSpaceBlock() ||
        paperSpace->name().compareNoCase(KyDbStandardContent::kPaperSpaceName) != 0) {
        return Kyro::eNotApplicable;
    }
    return swapNames(*paperSpace);
}

bool KyDbBlockTableRecord::isSpaceBlock() const {
    return name().compareNoCase(KyDbStandardContent::kModelSpaceName) == 0 ||
           name().compareNoCase(KyDbStandardContent::kPaperSpaceName) == 0;
}

bool KyDbBlockTableRecord::isAnonymous() const {
    return name().kwszPtr()[0] == L'*' && !isLayout() && !isSpaceBlock();
}

Kyro::ErrorStatus KyDbBlockTableRecord::appendKyDbEntity(KyDbEntity* entity) {
    KyDbObjectId id;
    return appendKyDbEntity(id, entity);
}

Kyro::ErrorStatus KyDbBlockTableRecord::appendKyDbEntity(KyDbObjectId& id, KyDbEntity* entity,
                                                         KyDbHandle handle) {
    if (const Kyro::ErrorStatus status = checkCanOwn(entity); status != Kyro::eOk) {
        return status;
    }
    KyDbObjectId newId;
    if (const Kyro::ErrorStatus status = appendOwned(entity, handle, newId); status != Kyro::eOk) {
        return status;
    }
    m_entities.append(newId);
    id = newId;
    KyDbObjectAccess::announceAppend(entity);
    return Kyro::eOk;
}

Kyro::ErrorStatus KyDbBlockTableRecord::newIterator(KyDbBlockTableRecordIterator*& iterator,
                                                    bool atBeginning, bool skipDeleted) const {
    iterator = new KyDbBlockTableRecordIterator(this);
    iterator->start(atBeginning, skipDeleted);
    return Kyro::eOk;
}

Kyro::ErrorStatus KyDbBlockTableRecord::getBlockReferenceIds(KyArray<KyDbObjectId>& ids, bool,
                                                             bool) const {
    ids.setLogicalLength(0);
    for (const KyDbObjectId& id : m_references) {
        if (id.isValid() && !id.isErased()) {
            ids.append(id);
        }
    }
    return Kyro::eOk;
}

void KyDbBlockTableRecord::addReference(KyDbObjectId referenceId) {
    if (!m_references.contains(referenceId)) {
        m_references.append(referenceId);
    }
}

void KyDbBlockTableRecord::removeReference(KyDbObjectId referenceId) {
    m_references.remove(referenceId);
}

Kyro::ErrorStatus KyDbBlockTableRecord::subCheckRename(const wchar_t* newName) const {
    if (isSpaceBlock()) {
        return Kyro::eCannotBeRenamed;
    }
    return KyDbSymbolTableRecord::subCheckRename(newName);
}

Kyro::ErrorStatus KyDbBlockTableRecord::subErase(bool erasing) {
    if (erasing && isSpaceBlock()) {
        return Kyro::eCannotBeErasedByCaller;
    }
    return KyDbSymbolTableRecord::subErase(erasing);
}

void KyDbBlockTableRecord::subSaveState(KyDbStateFiler& filer) const {
    KyDbSymbolTableRecord::subSaveState(filer);
    filer.write(m_origin);
    filer.writeString(m_comments);
    filer.write(m_layout);
    filer.writeString(m_path);
    filer.write(m_overlay);
}

Kyro::ErrorStatus KyDbBlockTableRecord::subRestoreState(KyDbStateFiler& filer) {
    if (const Kyro::ErrorStatus status = KyDbSymbolTableRecord::subRestoreState(filer);
        status != Kyro::eOk) {
        return status;
    }
    filer.read(m_origin);
    filer.read(m_comments);
    filer.read(m_layout);
    filer.read(m_path);
    filer.read(m_overlay);
    return filer.status();
}
