#include "kydi/KyDiColorCollection.h"

#include "collections/KyDiImpColorCollection.h"

KyDiColorCollection::KyDiColorCollection(KyDiImpCollection* imp) : KyDiObservableCollection(imp) {}

KyDiColorCollection::~KyDiColorCollection() = default;

KyDiDynamicObject* KyDiColorCollection::addItem(const KyCmColor& color) {
    return static_cast<KyDiImpColorCollection*>(imp())->addItem(color);
}
