#include "kydi/KyDiCollectionReactor.h"

KyDiCollectionReactor::KyDiCollectionReactor() = default;

KyDiCollectionReactor::~KyDiCollectionReactor() = default;

void KyDiCollectionReactor::itemsChanged(const KyDiItemArray& /*added*/,
                                         const KyDiItemArray& /*removed*/) {}

void KyDiCollectionReactor::itemsModified(const KyDiItemArray& /*modified*/) {}

void KyDiCollectionReactor::collectionReset() {}

void KyDiCollectionReactor::currentItemChanged(KyDiDynamicObject* /*item*/) {}

void KyDiCollectionReactor::activeChanged(bool /*active*/) {}
