// The helpers a client calls on the dynamic objects it holds.
#include "kydi/KyDiFunctions.h"

#include <cwchar>
#include <memory>

#include "collections/KyDiImpCollectionBase.h"
#include "db/KyDbObjectPointer.h"
#include "db/KyDbSubEntityProvider.h"
#include "kydi/KyDiDbComplexItem.h"
#include "kydi/KyDiObservableCollection.h"
#include "manager/KnownCollectionRegistry.h"
#include "manager/KyDiManagerState.h"
#include "reflection/PropertyWrapping.h"
#include "rx/KyRxMemberQueryEngine.h"
#include "rx/KyRxProperty.h"
#include "rx/KyRxStandardAttributes.h"

KyString KyDiGetItemName(KyDiDynamicObject* object) {
    if (object == nullptr) {
        return KyString();
    }
    const std::unique_ptr<KyRxMemberIterator> members(object->newMemberIterator());
    if (members == nullptr) {
        return KyString();
    }
    for (; !members->done(); members->next()) {
        const auto* property = kyrxCast<KyRxProperty>(members->current());
        if (property == nullptr || std::wcscmp(property->name(), L"Name") != 0) {
            continue;
        }
        KyRxValue value;
        if (property->getValue(object, value) != Kyro::eOk) {
            continue;
        }
        if (const KyString* text = valueCast<KyString>(&value)) {
            return *text;
        }
        if (const wchar_t* const* text = valueCast<const wchar_t*>(&value)) {
            return KyString(*text);
        }
    }
    return KyString();
}

KyString KyDiGetSubEntityClassName(KyDiDynamicObject* object) {
    const auto* item = kyrxCast<KyDiDbItem>(static_cast<KyRxObject*>(object));
    if (item == nullptr) {
        return KyString();
    }
    KyDbObjectPointer<KyDbObject> opened(item->objectId(), KyDb::kForRead);
    if (opened.openStatus() != Kyro::eOk) {
        return KyString();
    }
    KyRxObject* subEntity = nullptr;
    if (const auto* complex = kyrxCast<KyDiDbComplexItem>(static_cast<const KyRxObject*>(item))) {
        // An id that names no part counts as the object itself.
        KyDbSubEntityProvider::open(opened.object(), subEntity, complex->subentPath().subentId(),
                                    KyDb::kForRead);
    }
    const KyRxObject* shown = subEntity != nullptr ? subEntity : opened.object();
    const KyString name(shown->isA() != nullptr ? shown->isA()->name() : L"");
    if (subEntity != nullptr) {
        KyDbSubEntityProvider::close(opened.object(), subEntity);
    }
    return name;
}

KyString KyDiGetDescription(const KyRxMember* member) {
    const KyRxMember* source = PropertyWrapping::sourceMember(member);
    return KyRxDescriptionAttribute::getDescription(source != nullptr ? source : member);
}

KyRxMember* KyDiFindMember(const KyRxObject* object, const wchar_t* name) {
    auto* dynamicObject = kyrxCast<KyDiDynamicObject>(const_cast<KyRxObject*>(object));
    if (dynamicObject == nullptr) {
        KyRxMemberQueryEngine* engine = KyRxMemberQueryEngine::theEngine();
        return engine->find(object, name, engine->promotingContext());
    }
    const std::unique_ptr<KyRxMemberIterator> members(dynamicObject->newMemberIterator());
    for (; members != nullptr && !members->done(); members->next()) {
        if (name != nullptr && std::wcscmp(members->current()->name(), name) == 0) {
            return members->current();
        }
    }
    return nullptr;
}

namespace {

KyDiImpCollectionBase* knownBody(const wchar_t* name) {
    KyDiObservableCollection* collection = KnownCollectionRegistry::getKnownCollection(name);
    return collection != nullptr ? static_cast<KyDiImpCollectionBase*>(collection->imp()) : nullptr;
}

}  // namespace

bool KyDiNotifyCollectionReset(const wchar_t* name) {
    KyDiImpCollectionBase* body = knownBody(name);
    if (body == nullptr) {
        return false;
    }
    body->requestReset();
    return true;
}

bool KyDiNotifyCollectionModified(const wchar_t* name) {
    KyDiImpCollectionBase* body = knownBody(name);
    if (body == nullptr) {
        return false;
    }
    body->requestRefill();
    return true;
}

void KyDiNotifyRecentBlockCollectionReset() {
    // Without a collection of recent blocks (none made, or none can be) there
    // is nothing to reset.
    if (KyDiImpCollectionBase* body = knownBody(L"RECENTBLOCK")) {
        body->requestReset();
    }
}

KyDiCurrencyTracker* KyDiGetCurrencyTracker(const wchar_t* name) {
    // Nothing is made before initialize or after uninitialize.
    const KyDiManagerState& state = kydiManagerState();
    if (state.host == nullptr || state.managerShutDown) {
        return nullptr;
    }
    return KnownCollectionRegistry::getCurrencyTracker(name, true);
}

KyDiKnownCollectionNames KyDiGetKnownCollectionNames() {
    const KyDiManagerState& state = kydiManagerState();
    KyDiKnownCollectionNames names;
    for (const KnownCollectionRow& row : state.knownCollectionRows) {
        KyDiKnownCollectionName entry;
        entry.name = row.name;
        entry.built = state.knownCollections.contains(row.name);
        entry.available = row.newCollection != nullptr;
        names.append(entry);
    }
    return names;
}
