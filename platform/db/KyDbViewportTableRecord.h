// KyDbViewportTableRecord: a tiled viewport configuration: the view it shows
// (KyDbAbstractViewTableRecord) and the centre of its window in the
// configuration. The active configuration is named "*Active".
#pragma once

#include "KyPlatformExport.h"
#include "db/KyDbAbstractViewTableRecord.h"

class KYPLATFORM_API KyDbViewportTableRecord : public KyDbAbstractViewTableRecord {
public:
    KYRX_DECLARE_MEMBERS(KyDbViewportTableRecord);
    KyDbViewportTableRecord();
    ~KyDbViewportTableRecord() override;

    const KyGePoint3d& viewCenter() const { return m_viewCenter; }
    Kyro::ErrorStatus setViewCenter(const KyGePoint3d& center);

protected:
    void subSaveState(KyDbStateFiler& filer) const override;
    Kyro::ErrorStatus subRestoreState(KyDbStateFiler& filer) override;

private:
    KyGePoint3d m_viewCenter;
};
