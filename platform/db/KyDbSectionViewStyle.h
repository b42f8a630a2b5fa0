// KyDbSectionViewStyle: the style of section views.
#pragma once

#include "KyPlatformExport.h"
#include "db/KyDbModelDocViewStyle.h"

class KYPLATFORM_API KyDbSectionViewStyle : public KyDbModelDocViewStyle {
public:
    KYRX_DECLARE_MEMBERS(KyDbSectionViewStyle);
    KyDbSectionViewStyle();
    ~KyDbSectionViewStyle() override;
};
