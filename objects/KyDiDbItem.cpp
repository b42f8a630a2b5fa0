#include "kydi/KyDiDbItem.h"

#include "db/KyDbObjectPointer.h"
#include "kydi/KyDiEditorService.h"
#include "manager/KyDiReflectedClasses.h"
#include "manager/host/KyDiHostAccess.h"
#include "reflection/DbValueAccess.h"
#include "reflection/KyDiMemberIterator.h"
#include "reflection/PropertyWrapping.h"
#include "rx/KyRxMemberQueryEngine.h"

KYDI_DEFINE_CLASS_MEMBERS(KyDiDbItem, kDbItem)

KyDiDbItem::KyDiDbItem(KyDbObjectId objectId) : m_objectId(objectId) {}

KyDiDbItem::~KyDiDbItem() {
    tellDeleted();
}

Kyro::ErrorStatus KyDiDbItem::subGetValueInto(KyRxValue& out) {
    out = KyRxValue(m_objectId);
    return Kyro::eOk;
}

KyRxMemberIterator* KyDiDbItem::subNewItemMemberIterator() {
    if (m_objectId.isNull()) {
        return nullptr;
    }
    // An erased record still shows its members: a client reads the item of a
    // record that went, as a collection reports it removed.
    KyDbObjectPointer<KyDbObject> object(m_objectId, KyDb::kForRead, true);
    if (object.openStatus() != Kyro::eOk) {
        return nullptr;
    }
    KyRxMemberQueryEngine* engine = KyRxMemberQueryEngine::theEngine();
    KyRxMemberIterator* hostMembers =
        engine->newMemberIterator(object.object(), engine->promotingContext());
    if (hostMembers == nullptr) {
        return nullptr;
    }
    KyDiMemberArray members(0, 8);
    for (; !hostMembers->done(); hostMembers->next()) {
        if (const KyRxMember* wrapper = PropertyWrapping::wrapMember(hostMembers->current())) {
            members.append(const_cast<KyRxMember*>(wrapper));
        }
    }
    delete hostMembers;
    return members.isEmpty() ? nullptr : new KyDiMemberIterator(members);
}

Kyro::ErrorStatus KyDiDbItem::getValue(const KyRxPropertyBase* property, KyRxValue& value,
                                       int index, const wchar_t* key) {
    return DbValueAccess::readDbValue(m_objectId, property, value, index, key);
}

Kyro::ErrorStatus KyDiDbItem::setValue(const KyRxPropertyBase* property, const KyRxValue& value,
                                       int index, const wchar_t* key) {
    // "Varies" is handed on as it is, to properties that open the object for
    // write by themselves.
    if (value.isVaries()) {
        return DbValueAccess::writeDbValueInPlace(m_objectId, property, value, index, key);
    }
    const Kyro::ErrorStatus status =
        DbValueAccess::writeDbValue(m_objectId, property, value, index, key);
    // A direct write leaves the command line's prompt open; an empty prompt
    // closes it.
    if (KyDiEditorService* editor = KyDiHostAccess::editor()) {
        editor->prompt(L"");
    }
    return status;
}

KyRxValueIterator* KyDiDbItem::newValueIterator(const KyRxPropertyBase* property) {
    KyDbObjectPointer<KyDbObject> object(m_objectId, KyDb::kForRead);
    if (object.openStatus() != Kyro::eOk) {
        return nullptr;
    }
    return DbValueAccess::newConvertedValueIterator(object.object(), property);
}
