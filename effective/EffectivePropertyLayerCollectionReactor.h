// Not part of the interface: the reactor of an effective property on the
// "LAYER" collection. A by-layer value follows the current layer and the
// layer's own settings: when a layer changed, the list was read anew or
// another layer became current, every key on this reactor is marked. It
// stands on the collection from its making to its end.
#pragma once

#include "base/KyArray.h"
#include "kydi/KyDiCollectionReactor.h"

class KyDiImpEffectiveProperty;
class KyDiObservableCollection;

class EffectivePropertyLayerCollectionReactor final : public KyDiCollectionReactor {
public:
    // Stands on the "LAYER" collection, which it makes if needed.
    explicit EffectivePropertyLayerCollectionReactor(KyDiImpEffectiveProperty* owner);
    // Leaves the collection.
    ~EffectivePropertyLayerCollectionReactor() override;
    EffectivePropertyLayerCollectionReactor(const EffectivePropertyLayerCollectionReactor&) =
        delete;
    EffectivePropertyLayerCollectionReactor& operator=(
        const EffectivePropertyLayerCollectionReactor&) = delete;

    void addKey(const wchar_t* key) { m_keys.append(key); }

    void itemsModified(const KyDiItemArray& modified) override;
    void collectionReset() override;
    void currentItemChanged(KyDiDynamicObject* item) override;

private:
    void markKeys();

    KyDiImpEffectiveProperty* m_owner;
    KyArray<const wchar_t*> m_keys;
    KyDiObservableCollection* m_layers = nullptr;
};
