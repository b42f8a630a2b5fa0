// KyDbTextStyleTableRecord: a text style: its font files, a fixed height (0
// for none), a width factor and an obliquing angle in degrees. "Standard"
// can't be renamed or erased.
#pragma once

#include "KyPlatformExport.h"
#include "db/KyDbSymbolTableRecord.h"

class KYPLATFORM_API KyDbTextStyleTableRecord : public KyDbSymbolTableRecord {
public:
    KYRX_DECLARE_MEMBERS(KyDbTextStyleTableRecord);
    KyDbTextStyleTableRecord();
    ~KyDbTextStyleTableRecord() override;

    const KyString& fileName() const { return m_fileName; }
    Kyro::ErrorStatus setFileName(const wchar_t* fileName);
    const KyString& bigFontFileName() const { return m_bigFontFileName; }
    Kyro::ErrorStatus setBigFontFileName(const wchar_t* fileName);
    // eInvalidInput for a negative height.
    double textSize() const { return m_textSize; }
    Kyro::ErrorStatus setTextSize(double height);
    // eInvalidInput for a factor that isn't positive.
    double xScale() const { return m_xScale; }
    Kyro::ErrorStatus setXScale(double widthFactor);
    double obliquingAngle() const { return m_obliquingAngle; }
    Kyro::ErrorStatus setObliquingAngle(double degrees);

protected:
    Kyro::ErrorStatus subCheckRename(const wchar_t* newName) const override;
    Kyro::ErrorStatus subErase(bool erasing) override;
    void subSaveState(KyDbStateFiler& filer) const override;
    Kyro::ErrorStatus subRestoreState(KyDbStateFiler& filer) override;

private:
    KyString m_fileName;
    KyString m_bigFontFileName;
    double m_textSize = 0.0;
    double m_xScale = 1.0;
    double m_obliquingAngle = 0.0;
};
