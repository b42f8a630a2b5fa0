#include "kydi/KyDiDbObjectContext.h"

#include <memory>

#include "collections/KyDiImpDbObjectCollection.h"
#include "db/KyAxDocLock.h"
#include "db/KyDbObjectPointer.h"
#include "manager/KyDiObjectModifiedReactor.h"
#include "manager/KyDiReflectedClasses.h"
#include "manager/host/KyDiHostAccess.h"
#include "reflection/DbValueAccess.h"
#include "rx/KyRxMemberQueryEngine.h"
#include "rx/KyRxProperty.h"

KYDI_DEFINE_CLASS_MEMBERS(KyDiDbObjectContext, kDbObjectContext)

KyDiDbObjectContext::KyDiDbObjectContext(const wchar_t* name)
    : KyDiContextBase(name),
      m_objectReactor(new KyDiObjectModifiedReactor<KyDiDbObjectContext>(this)) {}

KyDiDbObjectContext::~KyDiDbObjectContext() {
    unbind();
    delete m_objectReactor;
}

KyDbObjectId KyDiDbObjectContext::getObjectId() const {
    return KyDbObjectId::kNull;
}

short KyDiDbObjectContext::subPriority() const {
    return -1;
}

bool KyDiDbObjectContext::subIsActive() const {
    // The binding happens here: the context manager asks every pass.
    if (KyDiHostAccess::currentDocument() == kKyDiNoDocument) {
        return false;
    }
    const KyDbObjectId wanted = getObjectId();
    if (wanted == m_objectId) {
        return !m_objectId.isNull();
    }
    KyDiImpDbObjectCollection::detachFrom(m_objectId, nullptr, m_objectReactor);
    // An object that can't be opened stays bound by its id, without a
    // reactor.
    m_objectId = wanted;
    if (!wanted.isNull()) {
        KyDiImpDbObjectCollection::attachOnce(wanted, m_objectReactor);
    }
    return !wanted.isNull();
}

void KyDiDbObjectContext::unbind() {
    if (!m_objectId.isNull()) {
        KyDiImpDbObjectCollection::detachFrom(m_objectId, nullptr, m_objectReactor);
    }
    m_objectId = KyDbObjectId::kNull;
}

void KyDiDbObjectContext::subDatabaseToBeDestroyed(void* /*database*/) {
    unbind();
}

void KyDiDbObjectContext::objectErased(const KyDbObject* /*object*/, bool /*erasing*/) {
    notifyChanged(this, nullptr, nullptr);
}

void KyDiDbObjectContext::objectClosed(KyDbObjectId /*id*/) {
    notifyChanged(this, nullptr, nullptr);
}

KyRxMemberIterator* KyDiDbObjectContext::subNewMemberIterator() {
    KyDbObjectPointer<KyDbObject> object(m_objectId, KyDb::kForRead);
    if (object.openStatus() != Kyro::eOk) {
        return nullptr;
    }
    return newFilteredMemberIterator(object.object());
}

bool KyDiDbObjectContext::resolves(const KyRxPropertyBase* property) const {
    // A member listed for another object (before the context was bound anew)
    // is no member of this one.
    KyDbObjectPointer<KyDbObject> object(m_objectId, KyDb::kForRead, true);
    if (object.openStatus() != Kyro::eOk || property == nullptr) {
        return object.openStatus() != Kyro::eOk;  // the open's failure is told by the access
    }
    KyRxMemberQueryEngine* engine = KyRxMemberQueryEngine::theEngine();
    return engine->find(object.object(), property->name(), engine->promotingContext()) != nullptr;
}

Kyro::ErrorStatus KyDiDbObjectContext::getValue(const KyRxPropertyBase* property, KyRxValue& value,
                                                int index, const wchar_t* key) {
    if (!resolves(property)) {
        return Kyro::eInvalidInput;
    }
    return DbValueAccess::readDbValue(m_objectId, property, value, index, key);
}

Kyro::ErrorStatus KyDiDbObjectContext::setValue(const KyRxPropertyBase* property,
                                                const KyRxValue& value, int index,
                                                const wchar_t* key) {
    if (!resolves(property)) {
        return Kyro::eInvalidInput;
    }
    if (value.isVaries()) {
        return DbValueAccess::writeDbValueInPlace(m_objectId, property, value, index, key);
    }
    return DbValueAccess::writeDbValue(m_objectId, property, value, index, key);
}

KyRxValueIterator* KyDiDbObjectContext::newValueIterator(const KyRxPropertyBase* property) {
    // The platform refuses a write-open outside a document lock.
    const KyAxDocLock lock(m_objectId.database());
    KyDbObjectPointer<KyDbObject> object(m_objectId, KyDb::kForWrite);
    if (object.openStatus() != Kyro::eOk) {
        return nullptr;
    }
    return DbValueAccess::newConvertedValueIterator(object.object(), property);
}
