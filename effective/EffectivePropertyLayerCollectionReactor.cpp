#include "effective/EffectivePropertyLayerCollectionReactor.h"

#include "effective/EffectiveKeys.h"
#include "effective/KyDiImpEffectiveProperty.h"
#include "kydi/KyDiManager.h"
#include "kydi/KyDiObservableCollection.h"

EffectivePropertyLayerCollectionReactor::EffectivePropertyLayerCollectionReactor(
    KyDiImpEffectiveProperty* owner)
    : m_owner(owner), m_layers(KyDiManager::getKnownCollection(EffectiveKeys::kLayer)) {
    if (m_layers != nullptr) {
        m_layers->addReactor(this);
    }
}

EffectivePropertyLayerCollectionReactor::~EffectivePropertyLayerCollectionReactor() {
    if (m_layers != nullptr) {
        m_layers->removeReactor(this);
    }
}

void EffectivePropertyLayerCollectionReactor::itemsModified(const KyDiItemArray& /*modified*/) {
    markKeys();
}

void EffectivePropertyLayerCollectionReactor::collectionReset() {
    markKeys();
}

void EffectivePropertyLayerCollectionReactor::currentItemChanged(KyDiDynamicObject* /*item*/) {
    markKeys();
}

void EffectivePropertyLayerCollectionReactor::markKeys() {
    for (int i = 0; i < m_keys.length(); ++i) {
        m_owner->markKey(m_keys[i]);
    }
}
