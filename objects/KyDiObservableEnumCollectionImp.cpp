#include "objects/KyDiObservableEnumCollectionImp.h"

#include "collections/KyDiImpCollectionBase.h"
#include "currency/DataItemCurrencyTrackerBase.h"
#include "kydi/KyDiCurrencyTracker.h"
#include "manager/host/KyDiHostAccess.h"

void EnumCurrencyReactor::currencyChanged() {
    m_collection->flags |= KyDiObservableEnumCollectionImp::kCurrencyPending;
}

KyDiObservableEnumCollectionImp::KyDiObservableEnumCollectionImp(
    const IKyRxEnumeration* values, KyDiCurrencyTracker* currencyTracker)
    : enumeration(values), tracker(currencyTracker), reactors(0, 8) {
    if (tracker != nullptr) {
        currencyReactor = new EnumCurrencyReactor(this);
        tracker->addReactor(currencyReactor);
    }
}

KyDiObservableEnumCollectionImp::~KyDiObservableEnumCollectionImp() {
    releaseTracker();
    reactors.setPhysicalLength(0);
}

void KyDiObservableEnumCollectionImp::releaseTracker() {
    if (tracker != nullptr && currencyReactor != nullptr) {
        tracker->removeReactor(currencyReactor);
    }
    delete currencyReactor;
    currencyReactor = nullptr;
    tracker = nullptr;
}

void KyDiObservableEnumCollectionImp::documentToBeDestroyed(KyDiDocument document) {
    if (document == boundDocument && document != kKyDiNoDocument &&
        document != kKyDiUnboundDocument) {
        currentItem = nullptr;
        previousCurrentItem = KyDiImpCollectionBase::kNoItem;
        flags = 0;
        boundDocument = kKyDiUnboundDocument;
    }
}

void KyDiObservableEnumCollectionImp::refresh() {
    const KyDiDocument document = KyDiHostAccess::currentDocument();
    if (document == boundDocument) {
        previousCurrentItem = currentItem;
        if (tracker != nullptr && document != kKyDiNoDocument) {
            tracker->update();
            if ((flags & kCurrencyPending) != 0) {
                currentItem = tracker->getCurrentItem();
            }
        }
    } else {
        if (boundDocument != kKyDiNoDocument && boundDocument != kKyDiUnboundDocument) {
            currentItem = nullptr;
            previousCurrentItem = KyDiImpCollectionBase::kNoItem;
            itemsContext = nullptr;
            boundDocument = kKyDiUnboundDocument;
        }
        if (document != kKyDiNoDocument && KyDiHostAccess::databaseOf(document) != nullptr) {
            boundDocument = document;
            if (tracker != nullptr) {
                currentItem = tracker->getCurrentItem();
            }
            // Other users of the tracker look again too.
            if (auto* shared = dynamic_cast<DataItemCurrencyTrackerBase*>(tracker)) {
                shared->notifyReactors();
            }
        }
    }
    flags = 0;
    if (currentItem != previousCurrentItem) {
        const KyDiCurrencyReactorList copy = reactors;
        for (int i = 0; i < copy.length(); ++i) {
            copy[i]->currencyChanged();
        }
    }
}
