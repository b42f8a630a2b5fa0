// KyDiObservableCollection: a live collection. Its items follow the drawing:
// at each refresh pass the collection brings its list up to date and tells
// its reactors what changed (KyDiCollectionReactor). It has a current item
// when a tracker follows one.
#pragma once

#include "kydi/KyDiCollection.h"

class KyDiCollectionReactor;

class KYDI_API KyDiObservableCollection : public KyDiCollection {
public:
    explicit KyDiObservableCollection(KyDiImpCollection* imp);
    ~KyDiObservableCollection() override;

    // The current item as of the last refresh; null without a tracker.
    KyDiDynamicObject* getCurrentItem() const;
    // Whether a tracker follows a current item in this collection.
    bool hasTracker() const;
    // Asks the tracker to make `item` current, within a document lock. The
    // change shows at a later refresh, as currentItemChanged; nothing happens
    // for an inactive collection, one without a tracker, or a document that
    // can't be locked.
    void setCurrentItem(KyDiDynamicObject* item);
    // True while the collection stands for a drawing in front.
    bool isActive() const;

    // Null is ignored; a reactor added twice is told twice; removal takes the
    // first occurrence and ignores an unknown reactor.
    void addReactor(KyDiCollectionReactor* reactor);
    void removeReactor(KyDiCollectionReactor* reactor);

    // Lets go of the drawing and the tracker; the manager calls it at shutdown.
    void destroy();
};
