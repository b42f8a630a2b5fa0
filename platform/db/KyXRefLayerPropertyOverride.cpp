#include "db/KyXRefLayerPropertyOverride.h"

#include "db/KyDbLayerTableRecord.h"
#include "db/KyDbOpenObject.h"

namespace {

// Calls `read` with the layer, opened for read here or taken as the caller
// has it open; false when it can't be read.
template <typename Read>
bool readLayer(KyDbObjectId layerId, Read read) {
    KyDbObject* object = nullptr;
    bool openedHere = false;
    if (accessKyDbObjectForRead(object, layerId, &KyDbLayerTableRecord::desc, openedHere, true) !=
        Kyro::eOk) {
        return false;
    }
    const bool answer = read(*static_cast<const KyDbLayerTableRecord*>(object));
    if (openedHere) {
        object->close();
    }
    return answer;
}

}  // namespace

bool KyXRefLayerPropertyOverride::hasAnyXRefLayerOverrides(KyDbObjectId layerId) {
    return readLayer(layerId,
                     [](const KyDbLayerTableRecord& layer) { return layer.hasXrefOverrides(); });
}

bool KyXRefLayerPropertyOverride::hasXRefLayerOverride(KyDbObjectId layerId,
                                                       const wchar_t* propertyName) {
    return readLayer(layerId, [propertyName](const KyDbLayerTableRecord& layer) {
        return layer.hasXrefOverride(propertyName);
    });
}
