// KyDiObservableCollection: a collection whose changes a client can watch.
#pragma once

#include "kydi/KyDiCollection.h"

class KYDI_API KyDiObservableCollection : public KyDiCollection {
public:
    explicit KyDiObservableCollection(KyDiImpCollection* imp);
    ~KyDiObservableCollection() override;
};
