#include "db/KyDbDatabase.h"

#include <algorithm>
#include <unordered_map>

#include "db/KyDbBlockTable.h"
#include "db/KyDbBlockTableRecord.h"
#include "db/KyDbClassSupport.h"
#include "db/KyDbDatabaseReactor.h"
#include "db/KyDbDictionary.h"
#include "db/KyDbDimStyleTable.h"
#include "db/KyDbHeader.h"
#include "db/KyDbHostApplicationServices.h"
#include "db/KyDbLayerStateManager.h"
#include "db/KyDbLayerTable.h"
#include "db/KyDbLayout.h"
#include "db/KyDbLinetypeTable.h"
#include "db/KyDbObjectAccess.h"
#include "db/KyDbObjectPointer.h"
#include "db/KyDbOpenObject.h"
#include "db/KyDbRecordReference.h"
#include "db/KyDbStandardContent.h"
#include "db/KyDbTextStyleTable.h"
#include "db/KyDbUCSTable.h"
#include "db/KyDbUndoController.h"
#include "db/KyDbViewTable.h"
#include "db/KyDbViewportTable.h"
#include "ge/KyGePoint3d.h"
#include "rx/KyRxClass.h"

namespace {

// The tables and dictionaries of a drawing, the first steps of reference
// paths ("/LayerTableId/Items"). "RenderSettingsDictionary" names the render
// presets' dictionary the way paths of render settings spell it.
const KyDbPropertyRow kDatabaseRows[] = {
    {L"BlockTableId", kydbiAccess<&KyDbDatabase::blockTableId>()},
    {L"LayerTableId", kydbiAccess<&KyDbDatabase::layerTableId>()},
    {L"LinetypeTableId", kydbiAccess<&KyDbDatabase::linetypeTableId>()},
    {L"TextStyleTableId", kydbiAccess<&KyDbDatabase::textStyleTableId>()},
    {L"DimStyleTableId", kydbiAccess<&KyDbDatabase::dimStyleTableId>()},
    {L"ViewTableId", kydbiAccess<&KyDbDatabase::viewTableId>()},
    {L"ViewportTableId", kydbiAccess<&KyDbDatabase::viewportTableId>()},
    {L"UCSTableId", kydbiAccess<&KyDbDatabase::UCSTableId>()},
    {L"NamedObjectsDictionaryId", kydbiAccess<&KyDbDatabase::namedObjectsDictionaryId>()},
    {L"LayoutDictionaryId", kydbiAccess<&KyDbDatabase::layoutDictionaryId>()},
    {L"MaterialDictionaryId", kydbiAccess<&KyDbDatabase::materialDictionaryId>()},
    {L"PlotSettingsDictionaryId", kydbiAccess<&KyDbDatabase::plotSettingsDictionaryId>()},
    {L"PlotStyleNameDictionaryId", kydbiAccess<&KyDbDatabase::plotStyleNameDictionaryId>()},
    {L"ScaleListDictionaryId", kydbiAccess<&KyDbDatabase::scaleListDictionaryId>()},
    {L"VisualStyleDictionaryId", kydbiAccess<&KyDbDatabase::visualStyleDictionaryId>()},
    {L"TableStyleDictionaryId", kydbiAccess<&KyDbDatabase::tableStyleDictionaryId>()},
    {L"MLeaderStyleDictionaryId", kydbiAccess<&KyDbDatabase::mleaderStyleDictionaryId>()},
    {L"DetailViewStyleDictionaryId", kydbiAccess<&KyDbDatabase::detailViewStyleDictionaryId>()},
    {L"SectionViewStyleDictionaryId", kydbiAccess<&KyDbDatabase::sectionViewStyleDictionaryId>()},
    {L"RenderSettingsDictionaryId", kydbiAccess<&KyDbDatabase::renderSettingsDictionaryId>()},
    {L"RenderSettingsDictionary", kydbiAccess<&KyDbDatabase::renderSettingsDictionaryId>()},
    {L"VariableDictionaryId", kydbiAccess<&KyDbDatabase::variableDictionaryId>()},
};

}  // namespace

KYDB_DEFINE_CLASS_EX(KyDbDatabase, KyRxObject, nullptr, &kydbiBuildMembers<kDatabaseRows>)

namespace {

// Databases that have not been deleted, with their serial numbers. Plain
// pointers stay valid to the end of the process, so a late check is safe.
std::unordered_map<const KyDbDatabase*, std::uint64_t>* g_liveDatabases = nullptr;
std::uint64_t g_lastSerial = 0;

}  // namespace

KyDbDatabase::KyDbDatabase(bool buildDefaultDrawing)
    : m_header(new KyDbHeader()),
      m_undo(new KyDbUndoController(this)),
      m_layerStates(new KyDbLayerStateManager(this)),
      m_serial(++g_lastSerial) {
    if (g_liveDatabases == nullptr) {
        g_liveDatabases = new std::unordered_map<const KyDbDatabase*, std::uint64_t>();
    }
    (*g_liveDatabases)[this] = m_serial;
    // What the database is made with can't be taken back.
    m_undo->setRecording(false);
    makeTablesAndRoot(!buildDefaultDrawing);
    if (buildDefaultDrawing) {
        KyDbStandardContent::add(this, KyDbStandardContent::kAll);
    }
    m_undo->clear();
    m_undo->setRecording(true);
}

KyDbDatabase::~KyDbDatabase() {
    m_destroying = true;
    KyDbObjectAccess::tellDatabaseReactors(
        this, [this](KyDbDatabaseReactor* reactor) { reactor->goodbye(this); });
    for (KyDbObject* object : m_objects) {
        KyDbObjectAccess::sayGoodbye(object);
    }
    KyDbHostApplicationServices* services = kydbHostApplicationServices();
    if (services->workingDatabase() == this) {
        services->setWorkingDatabase(nullptr);
    }
    g_liveDatabases->erase(this);
    delete m_undo;
    m_undo = nullptr;
    delete m_layerStates;
    m_layerStates = nullptr;
    for (KyDbObject* object : m_objects) {
        KyDbObjectAccess::forget(object);
    }
    for (auto it = m_objects.rbegin(); it != m_objects.rend(); ++it) {
        delete *it;
    }
    delete m_header;
}

void KyDbDatabase::makeTablesAndRoot(bool provisional) {
    auto make = [this, provisional](KyDbObject* object) {
        KyDbObjectId id;
        KyDbObjectAccess::append(this, object, KyDbObjectId(), KyDbHandle(), id);
        object->close();
        if (provisional) {
            m_provisional.push_back(id.stub());
        }
        return id;
    };
    m_blockTable = make(new KyDbBlockTable());
    m_layerTable = make(new KyDbLayerTable());
    m_linetypeTable = make(new KyDbLinetypeTable());
    m_textStyleTable = make(new KyDbTextStyleTable());
    m_dimStyleTable = make(new KyDbDimStyleTable());
    m_viewTable = make(new KyDbViewTable());
    m_viewportTable = make(new KyDbViewportTable());
    m_ucsTable = make(new KyDbUCSTable());
    m_namedObjects = make(new KyDbDictionary());
}

// ---- Objects and handles

KyDbStub* KyDbDatabase::stubOfHandle(std::uint64_t handle) const {
    const auto it = m_byHandle.find(handle);
    return it != m_byHandle.end() ? it->second : nullptr;
}

void KyDbDatabase::registerStub(KyDbStub* stub) {
    m_byHandle[stub->handle] = stub;
    m_handseed = std::max(m_handseed, stub->handle + 1);
}

Kyro::ErrorStatus KyDbDatabase::moveProvisional(KyDbStub* holder) {
    const auto it = std::find(m_provisional.begin(), m_provisional.end(), holder);
    if (it == m_provisional.end()) {
        return Kyro::eHandleInUse;
    }
    m_byHandle.erase(holder->handle);
    holder->handle = m_handseed;
    registerStub(holder);
    return Kyro::eOk;
}

Kyro::ErrorStatus KyDbDatabase::addKyDbObject(KyDbObjectId& id, KyDbObject* object,
                                              KyDbHandle handle) {
    if (object == nullptr) {
        return Kyro::eNullObjectPointer;
    }
    if (const Kyro::ErrorStatus status = checkWriteLock(); status != Kyro::eOk) {
        return status;
    }
    KyDbObjectId newId;
    const Kyro::ErrorStatus status =
        KyDbObjectAccess::append(this, object, KyDbObjectId(), handle, newId);
    if (status != Kyro::eOk) {
        return status;
    }
    id = newId;
    KyDbObjectAccess::announceAppend(object);
    return Kyro::eOk;
}

Kyro::ErrorStatus KyDbDatabase::getKyDbObjectId(KyDbObjectId& id, KyDbHandle handle) const {
    KyDbStub* stub = stubOfHandle(handle.value());
    if (stub == nullptr) {
        return Kyro::eKeyNotFound;
    }
    id = KyDbObjectId(stub);
    return Kyro::eOk;
}

Kyro::ErrorStatus KyDbDatabase::setObjectHandle(KyDbObjectId id, KyDbHandle handle) {
    if (id.isNull()) {
        return Kyro::eNullObjectId;
    }
    if (id.database() != this) {
        return Kyro::eWrongDatabase;
    }
    if (handle.isNull()) {
        return Kyro::eNullHandle;
    }
    KyDbStub* stub = id.stub();
    const auto it = std::find(m_provisional.begin(), m_provisional.end(), stub);
    if (it == m_provisional.end()) {
        return stub->handle == handle.value() ? Kyro::eOk : Kyro::eNotApplicable;
    }
    if (KyDbStub* holder = stubOfHandle(handle.value()); holder != nullptr && holder != stub) {
        if (const Kyro::ErrorStatus status = moveProvisional(holder); status != Kyro::eOk) {
            return status;
        }
    }
    m_provisional.erase(std::find(m_provisional.begin(), m_provisional.end(), stub));
    m_byHandle.erase(stub->handle);
    stub->handle = handle.value();
    registerStub(stub);
    return Kyro::eOk;
}

// ---- Tables and dictionaries

KyDbObjectId KyDbDatabase::namedObjectsEntryId(const wchar_t* key) const {
    const KyDbStub* stub = m_namedObjects.stub();
    if (stub == nullptr || stub->object == nullptr) {
        return KyDbObjectId();
    }
    KyDbObjectId id;
    static_cast<const KyDbDictionary*>(stub->object)->getAt(key, id);
    return id;
}

KyDbObjectId KyDbDatabase::layoutDictionaryId() const {
    return namedObjectsEntryId(KyDbStandardContent::kLayoutKey);
}
KyDbObjectId KyDbDatabase::materialDictionaryId() const {
    return namedObjectsEntryId(KyDbStandardContent::kMaterialKey);
}
KyDbObjectId KyDbDatabase::plotSettingsDictionaryId() const {
    return namedObjectsEntryId(KyDbStandardContent::kPlotSettingsKey);
}
KyDbObjectId KyDbDatabase::plotStyleNameDictionaryId() const {
    return namedObjectsEntryId(KyDbStandardContent::kPlotStyleNameKey);
}
KyDbObjectId KyDbDatabase::scaleListDictionaryId() const {
    return namedObjectsEntryId(KyDbStandardContent::kScaleListKey);
}
KyDbObjectId KyDbDatabase::visualStyleDictionaryId() const {
    return namedObjectsEntryId(KyDbStandardContent::kVisualStyleKey);
}
KyDbObjectId KyDbDatabase::tableStyleDictionaryId() const {
    return namedObjectsEntryId(KyDbStandardContent::kTableStyleKey);
}
KyDbObjectId KyDbDatabase::mleaderStyleDictionaryId() const {
    return namedObjectsEntryId(KyDbStandardContent::kMLeaderStyleKey);
}
KyDbObjectId KyDbDatabase::detailViewStyleDictionaryId() const {
    return namedObjectsEntryId(KyDbStandardContent::kDetailViewStyleKey);
}
KyDbObjectId KyDbDatabase::sectionViewStyleDictionaryId() const {
    return namedObjectsEntryId(KyDbStandardContent::kSectionViewStyleKey);
}
KyDbObjectId KyDbDatabase::renderSettingsDictionaryId() const {
    return namedObjectsEntryId(KyDbStandardContent::kRenderSettingsKey);
}
KyDbObjectId KyDbDatabase::variableDictionaryId() const {
    return namedObjectsEntryId(KyDbStandardContent::kVariableKey);
}

Kyro::ErrorStatus KyDbDatabase::getNamedObjectsDictionary(KyDbDictionary*& dictionary,
                                                          KyDb::OpenMode mode) {
    return kydbOpenObject(dictionary, m_namedObjects, mode);
}

Kyro::ErrorStatus KyDbDatabase::getSymbolTable(KyDbSymbolTable*& table, KyDbObjectId tableId,
                                               KyDb::OpenMode mode) {
    if (tableId.database() != this) {
        table = nullptr;
        return Kyro::eWrongDatabase;
    }
    return kydbOpenObject(table, tableId, mode);
}

// ---- Header

KyDbObjectId KyDbDatabase::idVariable(const wchar_t* name) const {
    const KyDbObjectId* id = valueCast<KyDbObjectId>(m_header->find(name));
    return id != nullptr ? *id : KyDbObjectId();
}

Kyro::ErrorStatus KyDbDatabase::setIdVariable(const wchar_t* name, KyDbObjectId id) {
    return setHeaderVar(name, KyRxValue(id));
}

KyDbObjectId KyDbDatabase::clayer() const {
    return idVariable(L"CLAYER");
}
Kyro::ErrorStatus KyDbDatabase::setClayer(KyDbObjectId id) {
    return setIdVariable(L"CLAYER", id);
}
KyDbObjectId KyDbDatabase::celtype() const {
    return idVariable(L"CELTYPE");
}
Kyro::ErrorStatus KyDbDatabase::setCeltype(KyDbObjectId id) {
    return setIdVariable(L"CELTYPE", id);
}
KyDbObjectId KyDbDatabase::textstyle() const {
    return idVariable(L"TEXTSTYLE");
}
Kyro::ErrorStatus KyDbDatabase::setTextstyle(KyDbObjectId id) {
    return setIdVariable(L"TEXTSTYLE", id);
}
KyDbObjectId KyDbDatabase::dimstyle() const {
    return idVariable(L"DIMSTYLE");
}
Kyro::ErrorStatus KyDbDatabase::setDimstyle(KyDbObjectId id) {
    return setIdVariable(L"DIMSTYLE", id);
}
KyDbObjectId KyDbDatabase::tablestyle() const {
    return idVariable(L"CTABLESTYLE");
}
Kyro::ErrorStatus KyDbDatabase::setTablestyle(KyDbObjectId id) {
    return setIdVariable(L"CTABLESTYLE", id);
}
KyDbObjectId KyDbDatabase::mleaderstyle() const {
    return idVariable(L"CMLEADERSTYLE");
}
Kyro::ErrorStatus KyDbDatabase::setMLeaderstyle(KyDbObjectId id) {
    return setIdVariable(L"CMLEADERSTYLE", id);
}
KyDbObjectId KyDbDatabase::cmaterial() const {
    return idVariable(L"CMATERIAL");
}
Kyro::ErrorStatus KyDbDatabase::setCmaterial(KyDbObjectId id) {
    return setIdVariable(L"CMATERIAL", id);
}
KyDbObjectId KyDbDatabase::detailViewStyle() const {
    return idVariable(L"CVIEWDETAILSTYLE");
}
Kyro::ErrorStatus KyDbDatabase::setDetailViewStyle(KyDbObjectId id) {
    return setIdVariable(L"CVIEWDETAILSTYLE", id);
}
KyDbObjectId KyDbDatabase::sectionViewStyle() const {
    return idVariable(L"CVIEWSECTIONSTYLE");
}
Kyro::ErrorStatus KyDbDatabase::setSectionViewStyle(KyDbObjectId id) {
    return setIdVariable(L"CVIEWSECTIONSTYLE", id);
}
KyDbObjectId KyDbDatabase::ucsBase() const {
    return idVariable(L"UCSBASE");
}
Kyro::ErrorStatus KyDbDatabase::setUcsBase(KyDbObjectId id) {
    return setIdVariable(L"UCSBASE", id);
}

KyCmColor KyDbDatabase::cecolor() const {
    const KyCmColor* color = valueCast<KyCmColor>(m_header->find(L"CECOLOR"));
    return color != nullptr ? *color : KyCmColor();
}
Kyro::ErrorStatus KyDbDatabase::setCecolor(const KyCmColor& color) {
    return setHeaderVar(L"CECOLOR", KyRxValue(color));
}

KyCmTransparency KyDbDatabase::cetransparency() const {
    const KyCmTransparency* value = valueCast<KyCmTransparency>(m_header->find(L"CETRANSPARENCY"));
    return value != nullptr ? *value : KyCmTransparency();
}
Kyro::ErrorStatus KyDbDatabase::setCetransparency(const KyCmTransparency& transparency) {
    return setHeaderVar(L"CETRANSPARENCY", KyRxValue(transparency));
}

KyDb::LineWeight KyDbDatabase::celweight() const {
    const KyDb::LineWeight* weight = valueCast<KyDb::LineWeight>(m_header->find(L"CELWEIGHT"));
    return weight != nullptr ? *weight : KyDb::kLnWtByLayer;
}
Kyro::ErrorStatus KyDbDatabase::setCelweight(KyDb::LineWeight weight) {
    return setHeaderVar(L"CELWEIGHT", KyRxValue(weight));
}

KyDb::ShadowFlags KyDbDatabase::cshadow() const {
    const KyDb::ShadowFlags* flags = valueCast<KyDb::ShadowFlags>(m_header->find(L"CSHADOW"));
    return flags != nullptr ? *flags : KyDb::kShadowsCastAndReceive;
}
Kyro::ErrorStatus KyDbDatabase::setCshadow(KyDb::ShadowFlags flags) {
    return setHeaderVar(L"CSHADOW", KyRxValue(flags));
}

bool KyDbDatabase::tilemode() const {
    const bool* value = valueCast<bool>(m_header->find(L"TILEMODE"));
    return value == nullptr || *value;
}
Kyro::ErrorStatus KyDbDatabase::setTilemode(bool tilemode) {
    return setHeaderVar(L"TILEMODE", KyRxValue(tilemode));
}

bool KyDbDatabase::plotStyleMode() const {
    const bool* value = valueCast<bool>(m_header->find(L"PSTYLEMODE"));
    return value == nullptr || *value;
}
Kyro::ErrorStatus KyDbDatabase::setPlotStyleMode(bool colorDependent) {
    return setHeaderVar(L"PSTYLEMODE", KyRxValue(colorDependent));
}

Kyro::ErrorStatus KyDbDatabase::getHeaderVar(const wchar_t* name, KyRxValue& value) const {
    const KyRxValue* found = m_header->find(name);
    if (found == nullptr) {
        return Kyro::eKeyNotFound;
    }
    value = *found;
    return Kyro::eOk;
}

Kyro::ErrorStatus KyDbDatabase::checkVariable(const wchar_t* name, const KyRxValue& value) const {
    const KyDbHeader::Row* row = KyDbHeader::findRow(name);
    if (row == nullptr) {
        return value.isEmpty() ? Kyro::eInvalidInput : Kyro::eOk;
    }
    if (&value.type() != &KyDbHeader::typeOf(*row)) {
        return Kyro::eInvalidInput;
    }
    switch (row->kind) {
        case KyDbHeader::Kind::kObjectId: {
            const KyDbObjectId id = *valueCast<KyDbObjectId>(&value);
            if (id.isNull()) {
                return row->nullAllowed ? Kyro::eOk : Kyro::eNullObjectId;
            }
            if (id.database() != this || !id.isValid()) {
                return Kyro::eWrongDatabase;
            }
            if (id.isErased()) {
                return Kyro::eWasErased;
            }
            const KyDbObjectId container = (this->*(row->container))();
            if (container.isNull() || id.stub()->object->ownerId() != container) {
                return Kyro::eNotThatKindOfClass;
            }
            return Kyro::eOk;
        }
        case KyDbHeader::Kind::kColor:
            return valueCast<KyCmColor>(&value)->isNone() ? Kyro::eInvalidInput : Kyro::eOk;
        case KyDbHeader::Kind::kTransparency:
            return valueCast<KyCmTransparency>(&value)->isInvalid() ? Kyro::eInvalidInput
                                                                    : Kyro::eOk;
        case KyDbHeader::Kind::kLineWeight:
            return KyDbRecordReference::isStandardWeight(*valueCast<KyDb::LineWeight>(&value))
                       ? Kyro::eOk
                       : Kyro::eInvalidInput;
        case KyDbHeader::Kind::kShadowFlags: {
            const int flags = *valueCast<KyDb::ShadowFlags>(&value);
            return flags >= 0 && flags <= 3 ? Kyro::eOk : Kyro::eInvalidInput;
        }
        case KyDbHeader::Kind::kBool:
            break;
    }
    return Kyro::eOk;
}

namespace {

// Whether a header variable is handed the value it holds: exactly, also for
// points, which compare equal within a tolerance. A variable keeps what it
// is given, so that a drawing is saved as it was read.
bool isSameHeaderValue(const KyRxValue& current, const KyRxValue& value) {
    const KyGePoint3d* a = valueCast<KyGePoint3d>(&current);
    const KyGePoint3d* b = valueCast<KyGePoint3d>(&value);
    if (a != nullptr && b != nullptr) {
        return a->x == b->x && a->y == b->y && a->z == b->z;
    }
    return current == value;
}

}  // namespace

Kyro::ErrorStatus KyDbDatabase::setHeaderVar(const wchar_t* name, const KyRxValue& value) {
    if (name == nullptr || name[0] == L'\0') {
        return Kyro::eInvalidInput;
    }
    if (const Kyro::ErrorStatus status = checkVariable(name, value); status != Kyro::eOk) {
        return status;
    }
    if (const Kyro::ErrorStatus status = checkWriteLock(); status != Kyro::eOk) {
        return status;
    }
    const KyRxValue* current = m_header->find(name);
    if (current != nullptr && isSameHeaderValue(*current, value)) {
        return Kyro::eOk;
    }
    writeHeaderValue(name, value, true);
    return Kyro::eOk;
}

void KyDbDatabase::writeHeaderValue(const wchar_t* name, const KyRxValue& value, bool record) {
    KyDbObjectAccess::tellDatabaseReactors(this, [this, name](KyDbDatabaseReactor* reactor) {
        reactor->headerSysVarWillChange(this, name);
    });
    if (record) {
        m_undo->recordHeader(name, m_header->find(name));
    }
    m_header->set(name, value);
    KyDbObjectAccess::tellDatabaseReactors(this, [this, name](KyDbDatabaseReactor* reactor) {
        reactor->headerSysVarChanged(this, name, true);
    });
}

void KyDbDatabase::restoreHeaderValue(const wchar_t* name, const KyRxValue* value) {
    KyDbObjectAccess::tellDatabaseReactors(this, [this, name](KyDbDatabaseReactor* reactor) {
        reactor->headerSysVarWillChange(this, name);
    });
    if (value != nullptr) {
        m_header->set(name, *value);
    } else {
        m_header->remove(name);
    }
    KyDbObjectAccess::tellDatabaseReactors(this, [this, name](KyDbDatabaseReactor* reactor) {
        reactor->headerSysVarChanged(this, name, true);
    });
}

KyStringArray KyDbDatabase::headerVarNames() const {
    return m_header->names();
}

bool KyDbDatabase::isCurrentItem(KyDbObjectId id) const {
    if (id.isNull()) {
        return false;
    }
    // Every erase asks: the typed rows are few, the header's names many.
    for (const KyDbHeader::Row& row : KyDbHeader::rows()) {
        if (row.kind == KyDbHeader::Kind::kObjectId && idVariable(row.name) == id) {
            return true;
        }
    }
    return false;
}

// ---- Reactors and locks

Kyro::ErrorStatus KyDbDatabase::addReactor(KyDbDatabaseReactor* reactor) {
    if (reactor == nullptr) {
        return Kyro::eNullObjectPointer;
    }
    if (!m_reactors.contains(reactor)) {
        m_reactors.append(reactor);
    }
    return Kyro::eOk;
}

Kyro::ErrorStatus KyDbDatabase::removeReactor(KyDbDatabaseReactor* reactor) {
    return m_reactors.remove(reactor) ? Kyro::eOk : Kyro::eInvalidInput;
}

Kyro::ErrorStatus KyDbDatabase::checkWriteLock() const {
    return !m_lockRequired || m_lockCount > 0 ? Kyro::eOk : Kyro::eLockViolation;
}

void KyDbDatabase::writeOpenEnded() {
    if (m_writeOpenCount == 0 && m_undo != nullptr) {
        m_undo->endImplicitGroup();
    }
}

KyDbObjectId kydbCurrentLayoutId(const KyDbDatabase* database) {
    if (database == nullptr) {
        return KyDbObjectId();
    }
    const KyDbStub* stub = database->blockTableId().stub();
    if (stub == nullptr || stub->object == nullptr) {
        return KyDbObjectId();
    }
    const auto* blocks = static_cast<const KyDbBlockTable*>(stub->object);
    KyDbObjectId blockId;
    const wchar_t* name = database->tilemode() ? KyDbStandardContent::kModelSpaceName
                                               : KyDbStandardContent::kPaperSpaceName;
    if (blocks->getAt(name, blockId) != Kyro::eOk) {
        return KyDbObjectId();
    }
    return static_cast<const KyDbBlockTableRecord*>(blockId.stub()->object)->getLayoutId();
}

Kyro::ErrorStatus kydbSetCurrentLayoutId(KyDbDatabase* database, KyDbObjectId layoutId) {
    if (layoutId.isNull()) {
        return Kyro::eNullObjectId;
    }
    if (database == nullptr || layoutId.database() != database || !layoutId.isValid()) {
        return Kyro::eWrongDatabase;
    }
    if (layoutId.isErased()) {
        return Kyro::eWasErased;
    }
    if (!KyRxClass::isDerivedFrom(layoutId.objectClass(), KyDbLayout::desc())) {
        return Kyro::eNotThatKindOfClass;
    }
    if (const Kyro::ErrorStatus status = database->checkWriteLock(); status != Kyro::eOk) {
        return status;
    }
    KyDbObjectId blockId;
    bool model = false;
    {
        KyDbObjectPointer<KyDbLayout> layout(layoutId, KyDb::kForRead);
        if (!layout) {
            return layout.openStatus();
        }
        blockId = layout->getBlockTableRecordId();
        model = layout->modelType();
    }
    if (model) {
        return database->setTilemode(true);
    }
    KyDbObjectId paperId;
    {
        KyDbObjectPointer<KyDbSymbolTable> blocks(database->blockTableId(), KyDb::kForRead);
        if (!blocks || blocks->getAt(KyDbStandardContent::kPaperSpaceName, paperId) != Kyro::eOk) {
            return Kyro::eNotApplicable;
        }
    }
    if (blockId != paperId) {
        KyDbObjectPointer<KyDbBlockTableRecord> block(blockId, KyDb::kForWrite);
        KyDbObjectPointer<KyDbBlockTableRecord> paper(paperId, KyDb::kForWrite);
        if (!block || !paper) {
            return !block ? block.openStatus() : paper.openStatus();
        }
        if (const Kyro::ErrorStatus status = block->takePaperSpaceName(paper.object());
            status != Kyro::eOk) {
            return status;
        }
    }
    return database->setTilemode(false);
}

bool kydbIsLiveDatabase(const KyDbDatabase* database, std::uint64_t serial) {
    if (database == nullptr || g_liveDatabases == nullptr) {
        return false;
    }
    const auto it = g_liveDatabases->find(database);
    return it != g_liveDatabases->end() && it->second == serial;
}
