// KyDbViewTableRecord: a named view, of model space or of paper space.
#pragma once

#include "KyPlatformExport.h"
#include "db/KyDbAbstractViewTableRecord.h"

class KYPLATFORM_API KyDbViewTableRecord : public KyDbAbstractViewTableRecord {
public:
    KYRX_DECLARE_MEMBERS(KyDbViewTableRecord);
    KyDbViewTableRecord();
    ~KyDbViewTableRecord() override;

    bool isPaperspaceView() const { return m_paperSpace; }
    Kyro::ErrorStatus setIsPaperspaceView(bool paperSpace);

protected:
    void subSaveState(KyDbStateFiler& filer) const override;
    Kyro::ErrorStatus subRestoreState(KyDbStateFiler& filer) override;

private:
    bool m_paperSpace = false;
};
