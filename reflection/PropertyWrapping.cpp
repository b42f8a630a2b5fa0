#include "reflection/PropertyWrapping.h"

#include "manager/KyDiManagerModule.h"
#include "manager/KyDiManagerState.h"
#include "reflection/KyDiCollectionProperty.h"
#include "reflection/KyDiDictionaryProperty.h"
#include "reflection/KyDiIndexedProperty.h"
#include "reflection/KyDiMemberIterator.h"
#include "reflection/KyDiProperty.h"

namespace {

// The layer's own properties and the wrappers stand for themselves.
bool isLayerProperty(const KyRxMember* member) {
    return kyrxCast<KyDiProperty>(member) != nullptr ||
           kyrxCast<KyDiCollectionProperty>(member) != nullptr ||
           kyrxCast<KyDiIndexedProperty>(member) != nullptr ||
           kyrxCast<KyDiDictionaryProperty>(member) != nullptr;
}

}  // namespace

const KyRxMember* PropertyWrapping::wrapMember(const KyRxMember* member) {
    if (member == nullptr) {
        return nullptr;
    }
    if (kyrxCast<KyRxPropertyBase>(member) == nullptr || isLayerProperty(member)) {
        return member;
    }
    const auto& wrapped = kydiManagerState().wrappedMembers;
    if (const auto found = wrapped.find(member); found != wrapped.end() && found->second) {
        return found->second;
    }
    // The wrapper tree mirrors the host's: a sub-property belongs to the
    // wrapper of the property it belongs to.
    const KyRxObject* owner = member->owner();
    if (kyrxCast<KyRxPropertyBase>(owner) != nullptr) {
        owner = wrapMember(static_cast<const KyRxMember*>(owner));
    }
    if (const auto* property = kyrxCast<KyRxProperty>(member)) {
        auto* wrapper = new KyDiProperty(property, owner);
        KyDiManagerModule::registerWrappedMember(member, wrapper);
        return wrapper;
    }
    if (const auto* indexed = kyrxCast<KyRxIndexedProperty>(member)) {
        auto* wrapper = new KyDiIndexedProperty(indexed, owner);
        KyDiManagerModule::registerWrappedMember(member, wrapper->collectionSide());
        KyDiManagerModule::registerWrappedMember(member, wrapper);
        return wrapper;
    }
    if (const auto* dictionary = kyrxCast<KyRxDictionaryProperty>(member)) {
        auto* wrapper = new KyDiDictionaryProperty(dictionary, owner);
        KyDiManagerModule::registerWrappedMember(member, wrapper->collectionSide());
        KyDiManagerModule::registerWrappedMember(member, wrapper);
        return wrapper;
    }
    if (const auto* collection = kyrxCast<KyRxCollectionProperty>(member)) {
        auto* wrapper = new KyDiCollectionProperty(collection, owner);
        KyDiManagerModule::registerWrappedMember(member, wrapper);
        return wrapper;
    }
    return member;
}

const KyRxMember* PropertyWrapping::sourceMember(const KyRxObject* wrapper) {
    if (const auto* property = kyrxCast<KyDiProperty>(wrapper)) {
        return property->sourceProperty();
    }
    if (const auto* indexed = kyrxCast<KyDiIndexedProperty>(wrapper)) {
        return indexed->sourceProperty();
    }
    if (const auto* dictionary = kyrxCast<KyDiDictionaryProperty>(wrapper)) {
        return dictionary->sourceProperty();
    }
    if (const auto* collection = kyrxCast<KyDiCollectionProperty>(wrapper)) {
        return collection->sourceProperty();
    }
    return nullptr;
}

KyRxMemberIterator* PropertyWrapping::wrapMembers(KyRxMemberIterator* source) {
    auto* members = new KyDiMemberIterator();
    for (; source != nullptr && !source->done(); source->next()) {
        const KyRxMember* member = source->current();
        const KyRxMember* wrapper = wrapMember(member);
        members->append(const_cast<KyRxMember*>(wrapper != nullptr ? wrapper : member));
    }
    return members;
}
