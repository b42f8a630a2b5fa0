#include "KyRefRecordReferences.h"

#include <memory>

#include "KyRefReadAccess.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbDictionary.h"
#include "db/KyDbLayerTableRecord.h"
#include "db/KyDbSymbolTable.h"
#include "io/KyRefDrawingExtras.h"
#include "rx/KyRxClass.h"
#include "rx/KyRxMemberQueryEngine.h"
#include "rx/KyRxProperty.h"

namespace {

// An object that is neither erased nor in an erased block.
bool stands(KyDbObjectId id) {
    if (!id.isValid() || id.isErased()) {
        return false;
    }
    KyRefReadAccess<KyDbObject> object(id);
    return object && !object->ownerId().isErased();
}

bool holds(const KyRxValue& value, KyDbObjectId id) {
    const KyDbObjectId* held = valueCast<KyDbObjectId>(&value);
    return held != nullptr && *held == id;
}

// True when a property of `object` that holds ids holds `id`.
bool refersTo(const KyDbObject* object, KyDbObjectId id) {
    const KyRxValueType& idType = KyRxValueType::Desc<KyDbObjectId>::value();
    const std::unique_ptr<KyRxMemberIterator> members(
        KyRxMemberQueryEngine::theEngine()->newMemberIterator(object));
    for (; members != nullptr && !members->done(); members->next()) {
        const KyRxMember* member = members->current();
        if (&member->type() != &idType) {
            continue;
        }
        if (const auto* property = kyrxCast<KyRxProperty>(member)) {
            KyRxValue value;
            if (property->getValue(object, value) == Kyro::eOk && holds(value, id)) {
                return true;
            }
        } else if (const auto* list = kyrxCast<KyRxCollectionProperty>(member)) {
            const std::unique_ptr<KyRxValueIterator> values(list->newValueIterator(object));
            for (; values != nullptr && !values->done(); values->next()) {
                KyRxValue value;
                if (values->current(value) == Kyro::eOk && holds(value, id)) {
                    return true;
                }
            }
        }
    }
    return false;
}

// True when `object` is a layer that shows the linetype `id` in a viewport
// that stands (the overrides of one that is gone refer to nothing).
bool overridesWith(const KyDbObject* object, KyDbObjectId id) {
    const auto* layer = kyrxCast<KyDbLayerTableRecord>(object);
    if (layer == nullptr) {
        return false;
    }
    KyArray<KyDbObjectId> viewports;
    layer->getOverriddenViewports(viewports);
    for (int i = 0; i < viewports.length(); ++i) {
        if (!stands(viewports[i])) {
            continue;
        }
        bool overridden = false;
        if (layer->linetypeObjectId(viewports[i], overridden) == id && overridden) {
            return true;
        }
    }
    return false;
}

bool isContainer(KyDbObjectId id) {
    const KyRxClass* objectClass = id.objectClass();
    return objectClass == nullptr || objectClass->isDerivedFrom(KyDbSymbolTable::desc()) ||
           objectClass->isDerivedFrom(KyDbDictionary::desc());
}

}  // namespace

bool KyRefRecordReferences::isReferenced(const KyDbDatabase* database, KyDbObjectId id) {
    // What the drawing file's objects kept whole name by name.
    if (const KyRefDrawingExtras* extras = KyRefDrawingExtras::find(database)) {
        for (const KyDbHandle& handle : extras->holdersOf(id)) {
            KyDbObjectId holder;
            if (database->getKyDbObjectId(holder, handle) == Kyro::eOk && stands(holder)) {
                return true;
            }
        }
    }
    const std::uint64_t end = database->handseed().value();
    for (std::uint64_t handle = 1; handle < end; ++handle) {
        KyDbObjectId objectId;
        if (database->getKyDbObjectId(objectId, KyDbHandle(handle)) != Kyro::eOk ||
            objectId == id || objectId.isErased() || isContainer(objectId)) {
            continue;
        }
        KyRefReadAccess<KyDbObject> object(objectId);
        if (object && !object->ownerId().isErased() &&
            (refersTo(object.object(), id) || overridesWith(object.object(), id))) {
            return true;
        }
    }
    return false;
}
