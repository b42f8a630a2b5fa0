// Not part of the interface: the body of a collection over an enumeration
// with a current item (the lineweights). Its items never change; its current
// item follows the tracker, bound to the document in front, and each change
// of it is told to the currency reactors at the refresh pass.
#pragma once

#include "collections/KyDiImpCollection.h"
#include "kydi/KyDiCurrencyReactor.h"
#include "kydi/KyDiTypes.h"

class IKyRxEnumeration;
class KyDiCurrencyTracker;
class KyDiObservableEnumCollectionImp;

using KyDiCurrencyReactorList =
    KyArray<KyDiCurrencyReactor*, KyArrayMemCopyReallocator<KyDiCurrencyReactor*>>;

// Marks the collection for a currency check when its tracker says so.
class EnumCurrencyReactor final : public KyDiCurrencyReactor {
public:
    explicit EnumCurrencyReactor(KyDiObservableEnumCollectionImp* collection)
        : m_collection(collection) {}
    void currencyChanged() override;

private:
    KyDiObservableEnumCollectionImp* m_collection;
};

class KyDiObservableEnumCollectionImp : public KyDiImpCollection {
public:
    static constexpr unsigned kCurrencyPending = 0x8;

    KyDiObservableEnumCollectionImp(const IKyRxEnumeration* enumeration,
                                    KyDiCurrencyTracker* tracker);
    ~KyDiObservableEnumCollectionImp() override;

    // The refresh pass: follows the current document and the tracker, and
    // tells the reactors when the current item changed.
    void refresh();
    // The document is going: the collection lets go of it.
    void documentToBeDestroyed(KyDiDocument document);
    // Takes the currency reactor off the tracker (at shutdown).
    void releaseTracker();

    const IKyRxEnumeration* enumeration = nullptr;
    unsigned flags = 0;
    KyDiCurrencyTracker* tracker = nullptr;
    KyDiDocument boundDocument = kKyDiUnboundDocument;
    KyDiDynamicObject* currentItem = nullptr;
    KyDiDynamicObject* previousCurrentItem = nullptr;
    EnumCurrencyReactor* currencyReactor = nullptr;
    KyDiCurrencyReactorList reactors;
};
