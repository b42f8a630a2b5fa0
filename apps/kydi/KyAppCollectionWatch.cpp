#include "KyAppCollectionWatch.h"

#include "KyAppValue.h"
#include "kydi/KyDiFunctions.h"
#include "kydi/KyDiObservableCollection.h"

KyAppCollectionWatch::KyAppCollectionWatch(std::string name, KyDiObservableCollection* collection,
                                           std::ostream& out)
    : m_name(std::move(name)), m_collection(collection), m_out(out) {
    m_collection->addReactor(this);
}

KyAppCollectionWatch::~KyAppCollectionWatch() {
    m_collection->removeReactor(this);
}

std::string KyAppCollectionWatch::itemText(KyDiDynamicObject* item) {
    return item != nullptr ? KyAppValue::text(KyDiGetItemName(item).utf8()).format()
                           : std::string("none");
}

std::string KyAppCollectionWatch::listText(const KyDiItemArray& items) {
    std::string text = "[";
    for (int i = 0; i < items.length(); ++i) {
        text += (i > 0 ? ", " : "") + itemText(items[i]);
    }
    return text + "]";
}

void KyAppCollectionWatch::itemsChanged(const KyDiItemArray& added, const KyDiItemArray& removed) {
    m_out << "itemsChanged " << m_name << " added=" << listText(added)
          << " removed=" << listText(removed) << '\n';
}

void KyAppCollectionWatch::itemsModified(const KyDiItemArray& modified) {
    m_out << "itemsModified " << m_name << ' ' << listText(modified) << '\n';
}

void KyAppCollectionWatch::collectionReset() {
    m_out << "collectionReset " << m_name << '\n';
}

void KyAppCollectionWatch::currentItemChanged(KyDiDynamicObject* item) {
    m_out << "currentItemChanged " << m_name << ' ' << itemText(item) << '\n';
}

void KyAppCollectionWatch::activeChanged(bool active) {
    m_out << "activeChanged " << m_name << (active ? " true" : " false") << '\n';
}
