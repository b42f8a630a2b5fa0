// KyDiDataItemReactor: told when a data item is being destroyed, so that a
// client that keeps item pointers can drop them. The reactor must not keep
// the pointer it is given, nor call the item.
#pragma once

#include "kydi/KyDiExport.h"

class KyDiItem;

class KYDI_API KyDiDataItemReactor {
public:
    virtual ~KyDiDataItemReactor();

    // `item` is being destroyed; its address may be compared, nothing more.
    virtual void itemDeleted(KyDiItem* item) = 0;
};
