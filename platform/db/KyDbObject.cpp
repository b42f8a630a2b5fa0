#include "db/KyDbObject.h"

#include "db/KyDbClassSupport.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbObjectAccess.h"
#include "db/KyDbStateFiler.h"
#include "db/KyDbUndoController.h"
#include "rx/KyRxClass.h"
#include "rx/KyRxStandardAttributes.h"

namespace {

Kyro::ErrorStatus getClassName(const KyRxObject* object, KyRxValue& value) {
    const KyDbObject* dbObject = kyrxCast<KyDbObject>(object);
    if (dbObject == nullptr) {
        return Kyro::eNotThatKindOfClass;
    }
    value = KyRxValue(dbObject->reflectedClassName());
    return Kyro::eOk;
}

Kyro::ErrorStatus getLocalizedName(const KyRxObject* object, KyRxValue& value) {
    const KyDbObject* dbObject = kyrxCast<KyDbObject>(object);
    if (dbObject == nullptr) {
        return Kyro::eNotThatKindOfClass;
    }
    value = KyRxValue(dbObject->localizedClassName());
    return Kyro::eOk;
}

// What every object shows: the names of its kind, which need no open, as a
// selection groups objects by them.
const KyDbPropertyRow kObjectRows[] = {
    {L"ClassName", kydbiReadOnly<KyString>(&getClassName)},
    {L"LocalizedName", kydbiReadOnly<KyString>(&getLocalizedName)},
};

}  // namespace

KYDB_DEFINE_BASE_CLASS(KyDbObject, KyRxObject, kObjectRows)

namespace {

KyDbClassIdHook g_classIdHook = nullptr;

std::uint64_t hashName(const wchar_t* name, std::uint64_t seed) {
    std::uint64_t hash = seed;
    for (const wchar_t* p = name; *p != L'\0'; ++p) {
        hash ^= static_cast<std::uint64_t>(*p);
        hash *= 1099511628211ull;
    }
    return hash;
}

}  // namespace

KyDbObject::KyDbObject() = default;

KyDbObject::~KyDbObject() {
    delete m_reactors;
}

KyDbObjectId KyDbObject::objectId() const {
    return KyDbObjectId(m_stub);
}

Kyro::ErrorStatus KyDbObject::setOwnerId(KyDbObjectId ownerId) {
    if (const Kyro::ErrorStatus status = checkWritable(); status != Kyro::eOk) {
        return status;
    }
    if (ownerId == m_ownerId) {
        return Kyro::eOk;
    }
    assertWriteEnabled();
    m_ownerId = ownerId;
    return Kyro::eOk;
}

KyDbDatabase* KyDbObject::database() const {
    return m_stub != nullptr ? m_stub->database : nullptr;
}

KyDbHandle KyDbObject::handle() const {
    return KyDbHandle(m_stub != nullptr ? m_stub->handle : 0);
}

Kyro::ErrorStatus KyDbObject::close() {
    if (m_stub == nullptr) {
        return Kyro::eOk;
    }
    if (m_openDepth == 0 && m_deepReaders == 0 && m_deepNotifiers == 0) {
        return Kyro::eInvalidOpenState;
    }
    KyDbObjectAccess::close(this);
    return Kyro::eOk;
}

Kyro::ErrorStatus KyDbObject::upgradeOpen() {
    if (m_stub == nullptr || m_writer) {
        return Kyro::eOk;
    }
    if (m_readers == 0) {
        return Kyro::eInvalidOpenState;
    }
    if (m_readers > 1) {
        return Kyro::eWasOpenedForRead;
    }
    return KyDbObjectAccess::upgrade(this);
}

Kyro::ErrorStatus KyDbObject::downgradeOpen() {
    if (m_stub == nullptr) {
        return Kyro::eOk;
    }
    if (!m_writer) {
        return Kyro::eWasNotOpenForWrite;
    }
    KyDbObjectAccess::endWrite(this, true);
    return Kyro::eOk;
}

bool KyDbObject::isReadEnabled() const {
    return m_stub == nullptr || m_writer || m_readers > 0 || m_notifying > 0;
}

bool KyDbObject::isWriteEnabled() const {
    return m_stub == nullptr || m_writer;
}

bool KyDbObject::isNotifyEnabled() const {
    return m_stub == nullptr || m_writer || m_readers > 0 || m_notifiers > 0 || m_notifying > 0;
}

Kyro::ErrorStatus KyDbObject::checkWritable() const {
    return isWriteEnabled() ? Kyro::eOk : Kyro::eWasNotOpenForWrite;
}

Kyro::ErrorStatus KyDbObject::checkCanOwn(const KyDbObject* child) const {
    if (!isDatabaseResident()) {
        return Kyro::eNotInDatabase;
    }
    if (const Kyro::ErrorStatus status = checkWritable(); status != Kyro::eOk) {
        return status;
    }
    if (child == nullptr) {
        return Kyro::eNullObjectPointer;
    }
    return child->isDatabaseResident() ? Kyro::eAlreadyInDb : Kyro::eOk;
}

Kyro::ErrorStatus KyDbObject::appendOwned(KyDbObject* child, KyDbHandle handle,
                                          KyDbObjectId& newId) {
    if (const Kyro::ErrorStatus status = KyDbObjectAccess::checkHandle(database(), handle);
        status != Kyro::eOk) {
        return status;
    }
    assertWriteEnabled();
    return KyDbObjectAccess::append(database(), child, objectId(), handle, newId);
}

Kyro::ErrorStatus KyDbObject::assertWriteEnabled() {
    if (m_stub == nullptr) {
        return Kyro::eOk;
    }
    if (!m_writer) {
        return Kyro::eWasNotOpenForWrite;
    }
    if ((m_flags & kChanged) == 0) {
        KyDbObjectAccess::startChange(this);
    }
    return Kyro::eOk;
}

Kyro::ErrorStatus KyDbObject::erase(bool erasing) {
    if (m_stub == nullptr) {
        return Kyro::eNotInDatabase;
    }
    if (!m_writer) {
        return Kyro::eWasNotOpenForWrite;
    }
    if (erasing == isErased()) {
        return erasing ? Kyro::eWasErased : Kyro::eWasNotErased;
    }
    if (erasing && m_stub->database != nullptr && m_stub->database->isCurrentItem(objectId())) {
        return Kyro::eCannotBeErasedByCaller;
    }
    return KyDbObjectAccess::setErased(this, erasing, true, true);
}

bool KyDbObject::isErased() const {
    return m_stub != nullptr && (m_stub->flags & KyDbStub::kErased) != 0;
}

Kyro::ErrorStatus KyDbObject::getClassID(KyGuid* classId) const {
    if (classId == nullptr) {
        return Kyro::eInvalidInput;
    }
    if (g_classIdHook != nullptr) {
        const Kyro::ErrorStatus status = g_classIdHook(this, classId);
        if (status != Kyro::eNotApplicable) {
            return status;
        }
    }
    return subGetClassID(classId);
}

Kyro::ErrorStatus KyDbObject::subGetClassID(KyGuid* classId) const {
    // A name-based id: the same class gets the same id in every process.
    const wchar_t* name = isA()->name();
    const std::uint64_t high = hashName(name, 14695981039346656037ull);
    const std::uint64_t low = hashName(name, 0x6A09E667F3BCC909ull);
    classId->data1 = static_cast<std::uint32_t>(high >> 32);
    classId->data2 = static_cast<std::uint16_t>(high >> 16);
    classId->data3 = static_cast<std::uint16_t>((high & 0x0FFFu) | 0x5000u);
    for (int i = 0; i < 8; ++i) {
        classId->data4[i] = static_cast<std::uint8_t>(low >> (56 - 8 * i));
    }
    classId->data4[0] = static_cast<std::uint8_t>((classId->data4[0] & 0x3Fu) | 0x80u);
    return Kyro::eOk;
}

Kyro::ErrorStatus KyDbObject::addReactor(KyDbObjectReactor* reactor) {
    if (reactor == nullptr) {
        return Kyro::eNullObjectPointer;
    }
    if (!isNotifyEnabled()) {
        return Kyro::eInvalidOpenState;
    }
    if (m_reactors == nullptr) {
        m_reactors = new KyDbReactorList();
    }
    if (!m_reactors->contains(reactor)) {
        m_reactors->append(reactor);
    }
    return Kyro::eOk;
}

Kyro::ErrorStatus KyDbObject::removeReactor(KyDbObjectReactor* reactor) {
    if (reactor == nullptr) {
        return Kyro::eNullObjectPointer;
    }
    if (!isNotifyEnabled()) {
        return Kyro::eInvalidOpenState;
    }
    if (m_reactors == nullptr || !m_reactors->remove(reactor)) {
        return Kyro::eInvalidInput;
    }
    return Kyro::eOk;
}

Kyro::ErrorStatus KyDbObject::addPersistentReactor(KyDbObjectId reactorId) {
    if (reactorId.isNull()) {
        return Kyro::eNullObjectId;
    }
    if (const Kyro::ErrorStatus status = checkWritable(); status != Kyro::eOk) {
        return status;
    }
    if (m_stub != nullptr && reactorId.database() != m_stub->database) {
        return Kyro::eWrongDatabase;
    }
    if (hasPersistentReactor(reactorId)) {
        return Kyro::eOk;
    }
    assertWriteEnabled();
    if (m_reactors == nullptr) {
        m_reactors = new KyDbReactorList();
    }
    m_reactors->append(KyDbObjectAccess::persistentEntry(reactorId));
    return Kyro::eOk;
}

Kyro::ErrorStatus KyDbObject::removePersistentReactor(KyDbObjectId reactorId) {
    if (const Kyro::ErrorStatus status = checkWritable(); status != Kyro::eOk) {
        return status;
    }
    if (!hasPersistentReactor(reactorId)) {
        return Kyro::eInvalidInput;
    }
    assertWriteEnabled();
    m_reactors->remove(KyDbObjectAccess::persistentEntry(reactorId));
    return Kyro::eOk;
}

bool KyDbObject::hasPersistentReactor(KyDbObjectId reactorId) const {
    return !reactorId.isNull() && m_reactors != nullptr &&
           m_reactors->contains(KyDbObjectAccess::persistentEntry(reactorId));
}

const KyDbReactorList* KyDbObject::reactors() const {
    static const KyDbReactorList kNone;
    return m_reactors != nullptr ? m_reactors : &kNone;
}

void KyDbObject::saveState(KyDbStateFiler& filer) const {
    subSaveState(filer);
}

Kyro::ErrorStatus KyDbObject::restoreState(KyDbStateFiler& filer) {
    if (const Kyro::ErrorStatus status = assertWriteEnabled(); status != Kyro::eOk) {
        return status;
    }
    filer.rewind();
    const Kyro::ErrorStatus status = subRestoreState(filer);
    return status != Kyro::eOk ? status : filer.status();
}

Kyro::ErrorStatus KyDbObject::copyFrom(const KyRxObject* other) {
    if (other == nullptr) {
        return Kyro::eInvalidInput;
    }
    if (other == this) {
        return Kyro::eOk;
    }
    if (other->isA() != isA()) {
        return Kyro::eNotThatKindOfClass;
    }
    KyDbStateFiler filer;
    static_cast<const KyDbObject*>(other)->saveState(filer);
    return restoreState(filer);
}

void KyDbObject::subSaveState(KyDbStateFiler& filer) const {
    // The persistent reactors are the one state every object has.
    int count = 0;
    if (m_reactors != nullptr) {
        for (void* entry : *m_reactors) {
            count += KyDbObjectAccess::isPersistentEntry(entry) ? 1 : 0;
        }
    }
    filer.write(count);
    if (m_reactors != nullptr) {
        for (void* entry : *m_reactors) {
            if (KyDbObjectAccess::isPersistentEntry(entry)) {
                filer.write(KyDbObjectAccess::persistentId(entry));
            }
        }
    }
}

Kyro::ErrorStatus KyDbObject::subRestoreState(KyDbStateFiler& filer) {
    int count = 0;
    if (!filer.read(count)) {
        return filer.status();
    }
    // Transient reactors stay where they are; the persistent ones are replaced.
    if (m_reactors != nullptr) {
        for (int i = m_reactors->length() - 1; i >= 0; --i) {
            if (KyDbObjectAccess::isPersistentEntry((*m_reactors)[i])) {
                m_reactors->removeAt(i);
            }
        }
    }
    for (int i = 0; i < count; ++i) {
        KyDbObjectId id;
        if (!filer.read(id)) {
            return filer.status();
        }
        if (m_reactors == nullptr) {
            m_reactors = new KyDbReactorList();
        }
        m_reactors->append(KyDbObjectAccess::persistentEntry(id));
    }
    return Kyro::eOk;
}

Kyro::ErrorStatus KyDbObject::subErase(bool) {
    return Kyro::eOk;
}

void KyDbObject::subErasedChanged(bool) {}

void KyDbObject::subAppended(KyDbDatabase*) {}

KyString KyDbObject::subReflectedClassName() const {
    return KyString();
}

KyString KyDbObject::localizedClassName() const {
    KyString name = reflectedClassName();
    return name.isEmpty() ? KyRxLocalizedNameAttribute::getLocalizedName(isA()) : name;
}

void KyDbObject::cancelled(const KyDbObject*) {}
void KyDbObject::copied(const KyDbObject*, const KyDbObject*) {}
void KyDbObject::erased(const KyDbObject*, bool) {}
void KyDbObject::goodbye(const KyDbObject*) {}
void KyDbObject::openedForModify(const KyDbObject*) {}
void KyDbObject::modified(const KyDbObject*) {}
void KyDbObject::modifyUndone(const KyDbObject*) {}
void KyDbObject::modifiedXData(const KyDbObject*) {}
void KyDbObject::unappended(const KyDbObject*) {}
void KyDbObject::reappended(const KyDbObject*) {}
void KyDbObject::objectClosed(KyDbObjectId) {}

KyDbObjectId kydbPersistentReactorObjectId(const void* entry) {
    return entry != nullptr && KyDbObjectAccess::isPersistentEntry(entry)
               ? KyDbObjectAccess::persistentId(entry)
               : KyDbObjectId();
}

void kydbSetClassIdHook(KyDbClassIdHook hook) {
    g_classIdHook = hook;
}
