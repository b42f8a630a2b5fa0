// KyDbDetailViewStyle: the style of detail views.
#pragma once

#include "KyPlatformExport.h"
#include "db/KyDbModelDocViewStyle.h"

class KYPLATFORM_API KyDbDetailViewStyle : public KyDbModelDocViewStyle {
public:
    KYRX_DECLARE_MEMBERS(KyDbDetailViewStyle);
    KyDbDetailViewStyle();
    ~KyDbDetailViewStyle() override;
};
