// KyDbLongTransaction: a long transaction: objects checked out of
// another database for editing. It holds nothing yet; its class is known so
// that objects can be tested against it.
#pragma once

#include "KyPlatformExport.h"
#include "db/KyDbObject.h"

class KYPLATFORM_API KyDbLongTransaction : public KyDbObject {
public:
    KYRX_DECLARE_MEMBERS(KyDbLongTransaction);
    KyDbLongTransaction();
    ~KyDbLongTransaction() override;
};
