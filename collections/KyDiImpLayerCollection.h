// Not part of the interface: the "LAYER" collection, the layers of the
// current drawing. What a layer item shows depends on the viewport the user
// works in as well as on its record: a layer may be frozen in one viewport
// and not in the next, and a record may carry overrides for a viewport. So
// beside the records, the collection listens to the "VIEWPORT" context, and
// when the viewport changes it compares what it sees with what it saw,
// reporting each layer whose viewport state changed as modified:
//   - a layer frozen or thawed in the new viewport;
//   - a layer with overrides in the new viewport, at every such change, and
//     once more when it has lost them.
// The binding itself reports nothing. New layers come by a database reactor
// and by the table's change (one merge); attaching an external reference
// adds layers without the table's usual notifications, so its command ending
// asks for a refill. Layers of external references are listed.
#pragma once

#include <set>

#include "collections/KyDiImpSymbolTableItemCollection.h"
#include "kydi/KyDiContextReactor.h"

class KyDiContext;
class KyDiImpLayerCollectionDbReactor;

class KyDiImpLayerCollection : public KyDiImpSymbolTableItemCollection, public KyDiContextReactor {
public:
    KyDiImpLayerCollection(const wchar_t* name, KyDiCurrencyTracker* tracker,
                           TableIdGetter getTableId);
    ~KyDiImpLayerCollection() override;

    void subCommandEnded(const wchar_t* command) override;
    void subReleaseResources() override;
    void subDetach(KyDbObject* closing) override;
    void subAttach() override;
    bool subFillFromDatabase(bool initial, KyDbDatabase* db, KyDbObjectId& owner,
                             KyDiItemArray& list, KyArray<KyDbObjectId>& erased,
                             void** context) override;
    void objectClosed(KyDbObjectId id) override;
    bool subIncludeRecord(const KyDbSymbolTableRecord* record) const override;

    void contextChanged(const KyDiContextChange* change) override;
    void activeContextsChanged() override;

    // Compares the current viewport's frozen layers and overrides with what
    // was seen last, and notes each layer that differs as changed.
    void refreshViewportState();

private:
    using IdSet = PendingObjects;

    // Whether layer `id` has overrides in the current viewport; false without
    // a viewport or when the record can't be opened.
    bool hasOverrides(KyDbObjectId id) const;

    IdSet* m_viewportFrozenLayers;
    IdSet* m_overriddenLayers;
    KyDbObjectId m_currentViewportId;
    KyDiImpLayerCollectionDbReactor* m_databaseReactor = nullptr;
    KyDiContext* m_viewportContext = nullptr;
};
