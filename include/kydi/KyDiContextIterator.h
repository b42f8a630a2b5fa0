// KyDiContextIterator: a snapshot of the contexts the manager held when it
// was made, in name order, so that the caller may change the manager while it
// walks. The caller deletes it.
#pragma once

#include "kydi/KyDiExport.h"

class KyDiContext;
struct KyDiContextSnapshot;

class KYDI_API KyDiContextIterator {
public:
    explicit KyDiContextIterator(KyDiContextSnapshot* snapshot);
    ~KyDiContextIterator();
    KyDiContextIterator(const KyDiContextIterator&) = delete;
    KyDiContextIterator& operator=(const KyDiContextIterator&) = delete;

    bool done() const;
    // Moves on; answers whether the end is reached.
    bool next();
    // The context at the position; undefined once done.
    const KyDiContext* current() const;

private:
    KyDiContextSnapshot* m_snapshot;
};
