#include "kydi/KyDiObservableCollection.h"

#include "collections/KyDiImpCollectionBase.h"
#include "db/KyAxDocLock.h"
#include "kydi/KyDiCurrencyTracker.h"

namespace {

KyDiImpCollectionBase* bodyOf(const KyDiCollection* collection) {
    return static_cast<KyDiImpCollectionBase*>(collection->imp());
}

}  // namespace

KyDiObservableCollection::KyDiObservableCollection(KyDiImpCollection* imp) : KyDiCollection(imp) {}

KyDiObservableCollection::~KyDiObservableCollection() = default;

KyDiDynamicObject* KyDiObservableCollection::getCurrentItem() const {
    return bodyOf(this)->currentItem();
}

bool KyDiObservableCollection::hasTracker() const {
    return bodyOf(this)->tracker() != nullptr;
}

void KyDiObservableCollection::setCurrentItem(KyDiDynamicObject* item) {
    KyDiImpCollectionBase* body = bodyOf(this);
    if (!body->isActive() || body->tracker() == nullptr) {
        return;
    }
    // A document that can't be locked can't take the change: nothing happens.
    const KyAxDocLock lock;
    if (lock.lockStatus() != Kyro::eOk) {
        return;
    }
    body->tracker()->setCurrentItem(item);
}

bool KyDiObservableCollection::isActive() const {
    return bodyOf(this)->isActive();
}

void KyDiObservableCollection::addReactor(KyDiCollectionReactor* reactor) {
    if (reactor != nullptr) {
        bodyOf(this)->reactors().append(reactor);
    }
}

void KyDiObservableCollection::removeReactor(KyDiCollectionReactor* reactor) {
    if (reactor != nullptr) {
        bodyOf(this)->reactors().remove(reactor);
    }
}

void KyDiObservableCollection::destroy() {
    bodyOf(this)->destroy();
}
