#include "KyAppEnumCollectionWatch.h"

#include "KyAppCollectionWatch.h"
#include "kydi/KyDiObservableEnumCollection.h"

KyAppEnumCollectionWatch::KyAppEnumCollectionWatch(std::string name,
                                                   KyDiObservableEnumCollection* collection,
                                                   std::ostream& out)
    : m_name(std::move(name)), m_collection(collection), m_out(out) {
    m_collection->addReactor(this);
}

KyAppEnumCollectionWatch::~KyAppEnumCollectionWatch() {
    m_collection->removeReactor(this);
}

void KyAppEnumCollectionWatch::currencyChanged() {
    m_out << "currentItemChanged " << m_name << ' '
          << KyAppCollectionWatch::itemText(m_collection->getCurrentItem()) << '\n';
}
