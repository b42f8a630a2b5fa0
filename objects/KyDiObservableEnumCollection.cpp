#include "kydi/KyDiObservableEnumCollection.h"

#include "db/KyAxDocLock.h"
#include "kydi/KyDiCurrencyTracker.h"
#include "manager/host/KyDiHostAccess.h"
#include "objects/KyDiObservableEnumCollectionImp.h"

namespace {

KyDiObservableEnumCollectionImp* bodyOf(const KyDiCollection* collection) {
    return static_cast<KyDiObservableEnumCollectionImp*>(collection->imp());
}

}  // namespace

KyDiObservableEnumCollection::KyDiObservableEnumCollection(KyDiImpCollection* imp)
    : KyDiCollection(imp) {}

KyDiObservableEnumCollection::~KyDiObservableEnumCollection() = default;

KyDiDynamicObject* KyDiObservableEnumCollection::getCurrentItem() const {
    return bodyOf(this)->currentItem;
}

void KyDiObservableEnumCollection::setCurrentItem(KyDiDynamicObject* item) {
    KyDiObservableEnumCollectionImp* body = bodyOf(this);
    const KyDiDocument document = body->boundDocument;
    if (document == kKyDiNoDocument || document == kKyDiUnboundDocument ||
        KyDiHostAccess::databaseOf(document) == nullptr || body->tracker == nullptr) {
        return;
    }
    const KyAxDocLock lock;
    if (lock.lockStatus() != Kyro::eOk) {
        return;
    }
    body->tracker->setCurrentItem(item);
}

void KyDiObservableEnumCollection::addReactor(KyDiCurrencyReactor* reactor) {
    if (reactor != nullptr) {
        bodyOf(this)->reactors.append(reactor);
    }
}

void KyDiObservableEnumCollection::removeReactor(KyDiCurrencyReactor* reactor) {
    if (reactor != nullptr) {
        bodyOf(this)->reactors.remove(reactor);
    }
}
