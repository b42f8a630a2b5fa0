#include "kydi/KyDiCollection.h"

#include "collections/KyDiImpCollection.h"

KyDiCollection::KyDiCollection(KyDiImpCollection* imp) : m_imp(imp) {}

KyDiCollection::~KyDiCollection() {
    delete m_imp;
    m_imp = nullptr;
}

const KyDiItemArray& KyDiCollection::getItems(void** context) const {
    if (context != nullptr) {
        *context = m_imp->itemsContext;
    }
    return m_imp->items;
}
