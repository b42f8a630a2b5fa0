#include "KyRefXrefLayers.h"

#include <memory>
#include <vector>

#include "KyRefReadAccess.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbLayerTableRecord.h"
#include "db/KyDbLinetypeTableRecord.h"
#include "db/KyDbObjectPointer.h"
#include "db/KyDbStandardContent.h"
#include "db/KyDbSymbolTable.h"

namespace {

// The records of a table that are not erased, in table order.
std::vector<KyDbObjectId> recordsOf(KyDbObjectId tableId) {
    KyArray<KyDbObjectId> ids;
    if (KyRefReadAccess<KyDbSymbolTable> table(tableId); table) {
        table->getRecordIds(ids);
    }
    return std::vector<KyDbObjectId>(ids.begin(), ids.end());
}

KyString dependentName(const KyString& blockName, const KyString& name) {
    return KyString::formatted(L"%ls|%ls", blockName.kwszPtr(), name.kwszPtr());
}

// Finds the drawing's linetype for a linetype of the reference, and adds it
// as a dependent record when the drawing has none yet.
class LinetypeMap {
public:
    LinetypeMap(KyDbDatabase* database, const KyString& blockName)
        : m_database(database), m_blockName(blockName) {}

    KyDbObjectId find(KyDbObjectId referenceLinetype, KyString& error) {
        KyRefReadAccess<KyDbLinetypeTableRecord> linetype(referenceLinetype);
        if (!linetype) {
            return KyDbObjectId();
        }
        const KyString name = linetype->isStandardLinetype()
                                  ? linetype->name()
                                  : dependentName(m_blockName, linetype->name());
        KyDbObjectPointer<KyDbSymbolTable> table(m_database->linetypeTableId(), KyDb::kForWrite);
        if (!table) {
            error = L"Cannot change the linetypes of the drawing.";
            return KyDbObjectId();
        }
        KyDbObjectId id;
        if (table->getAt(name, id) == Kyro::eOk) {
            return id;
        }
        auto* record = new KyDbLinetypeTableRecord();
        record->setName(name);
        record->setComments(linetype->comments());
        record->setPattern(linetype->pattern());
        if (table->addWithoutNotice(id, record) != Kyro::eOk) {
            delete record;
            error.format(L"Cannot add linetype \"%ls\".", name.kwszPtr());
            return KyDbObjectId();
        }
        record->close();
        return id;
    }

private:
    KyDbDatabase* m_database;
    KyString m_blockName;
};

// A copy of a layer of the reference under its dependent name, not in a
// database yet.
std::unique_ptr<KyDbLayerTableRecord> dependentLayer(const KyDbLayerTableRecord& source,
                                                     const KyString& name, KyDbObjectId linetype) {
    auto layer = std::make_unique<KyDbLayerTableRecord>();
    layer->setName(name);
    layer->setColor(source.color());
    if (!linetype.isNull()) {
        layer->setLinetypeObjectId(linetype);
    }
    layer->setLineWeight(source.lineWeight());
    layer->setTransparency(source.transparency());
    layer->setPlotStyleName(source.plotStyleName());
    layer->setIsOff(source.isOff());
    layer->setIsFrozen(source.isFrozen());
    layer->setIsLocked(source.isLocked());
    layer->setIsPlottable(source.isPlottable());
    layer->setIsFrozenInNewViewports(source.isFrozenInNewViewports());
    layer->setDescription(source.description());
    return layer;
}

}  // namespace

int KyRefXrefLayers::bring(const KyDbDatabase* reference, KyDbDatabase* database,
                           const KyString& blockName, KyString& error) {
    LinetypeMap linetypes(database, blockName);
    int added = 0;
    for (const KyDbObjectId& id : recordsOf(reference->layerTableId())) {
        KyRefReadAccess<KyDbLayerTableRecord> source(id);
        if (!source || source->name().compare(KyDbStandardContent::kLayerZero) == 0 ||
            source->name().find(L'|') >= 0) {
            continue;
        }
        const KyString name = dependentName(blockName, source->name());
        const KyDbObjectId linetype = linetypes.find(source->linetypeObjectId(), error);
        if (!error.isEmpty()) {
            return -1;
        }
        std::unique_ptr<KyDbLayerTableRecord> layer =
            dependentLayer(*source.object(), name, linetype);
        KyDbObjectPointer<KyDbSymbolTable> table(database->layerTableId(), KyDb::kForWrite);
        KyDbObjectId newId;
        if (!table || table->addWithoutNotice(newId, layer.get()) != Kyro::eOk) {
            error.format(L"Cannot add layer \"%ls\".", name.kwszPtr());
            return -1;
        }
        layer.release()->close();
        ++added;
    }
    return added;
}
