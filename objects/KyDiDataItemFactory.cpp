#include "kydi/KyDiDataItemFactory.h"

#include "db/KyCmColor.h"
#include "db/KyCmTransparency.h"
#include "db/KyDbLayerTableRecord.h"
#include "db/KyDbReservedStrings.h"
#include "kydi/KyDiDbComplexItem.h"
#include "kydi/KyDiDbDictionaryItem.h"
#include "kydi/KyDiDbLayerItem.h"
#include "kydi/KyDiDbNamedItem.h"
#include "kydi/KyDiNamedItem.h"
#include "manager/KyDiManagerState.h"
#include "manager/LocalDataItemCache.h"
#include "objects/DataItemOwnership.h"

namespace {

bool isValueItemType(const KyRxValueType& type) {
    return type == KyRxValueType::Desc<KyCmColor>::value() ||
           type == KyRxValueType::Desc<KyCmTransparency>::value();
}

// The name of a transparency's item when its maker gives none: ByLayer or
// ByBlock in the user's language, or the transparency in whole percent,
// rounded down (alpha 255, opaque, is "0"; alpha 0 is "100"). Whichever road
// makes the item first, it is named so.
KyString transparencyName(const KyCmTransparency& transparency) {
    switch (transparency.method()) {
        case KyCmTransparency::kByLayer:
            return kydbGetReservedString(KyDb::kByLayer, true);
        case KyCmTransparency::kByBlock:
            return kydbGetReservedString(KyDb::kByBlock, true);
        default:
            return KyString::formatted(L"%d", (25500 - transparency.alpha() * 100) / 255);
    }
}

// A record's item: a layer is always a layer item, whichever road makes its
// item first, so that its writes go out as layer commands.
KyDiDbItem* newRecordItem(KyDbObjectId id, const KyDbObjectId* dictionaryId, bool layerItem) {
    if (layerItem || KyRxClass::isDerivedFrom(id.objectClass(), KyDbLayerTableRecord::desc())) {
        return new KyDiDbLayerItem(id);
    }
    if (dictionaryId != nullptr) {
        return new KyDiDbDictionaryItem(id, *dictionaryId);
    }
    return new KyDiDbItem(id);
}

}  // namespace

KyDiDynamicObject* createDataItem(const KyString& name, const KyRxValue& value,
                                  const KyDbFullSubentPath* subent,
                                  const KyDbObjectId* dictionaryId, bool layerItem) {
    LocalDataItemCache* cache = kydiManagerState().localItemCache;
    if (const KyDbObjectId* id = valueCast<KyDbObjectId>(&value)) {
        // A row without a record ("ByLayer") is still an item, by its name.
        if (id->isNull()) {
            return new KyDiDbNamedItem(*id, name);
        }
        if (subent != nullptr) {
            return new KyDiDbComplexItem(*id, *subent);
        }
        if (cache == nullptr) {
            return newRecordItem(*id, dictionaryId, layerItem);
        }
        if (KyDiDbItem* cached = cache->findItem(*id)) {
            return cached;
        }
        KyDiDbItem* item = newRecordItem(*id, dictionaryId, layerItem);
        cache->addItem(item);
        return item;
    }
    if (cache != nullptr && isValueItemType(value.type())) {
        if (KyDiItem* cached = cache->findValueItem(value)) {
            return cached;
        }
        const KyCmTransparency* transparency = valueCast<KyCmTransparency>(&value);
        auto* item = new KyDiNamedItem(
            name.isEmpty() && transparency != nullptr ? transparencyName(*transparency) : name,
            value);
        cache->addValueItem(item);
        return item;
    }
    return new KyDiNamedItem(name, value);
}

void deleteItem(KyDiDynamicObject* item) {
    DataItemOwnership::disposeDataItem(item);
}
