// KyDbPlaceHolder: an entry that only holds its key: a plot style
// name in the plot style name dictionary.
#pragma once

#include "KyPlatformExport.h"
#include "db/KyDbObject.h"

class KYPLATFORM_API KyDbPlaceHolder : public KyDbObject {
public:
    KYRX_DECLARE_MEMBERS(KyDbPlaceHolder);
    KyDbPlaceHolder();
    ~KyDbPlaceHolder() override;
};
