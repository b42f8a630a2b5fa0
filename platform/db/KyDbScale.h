// KyDbScale: an annotation scale: its name ("1:50") and how many
// paper units stand for how many drawing units.
#pragma once

#include "KyPlatformExport.h"
#include "db/KyDbObject.h"

class KYPLATFORM_API KyDbScale : public KyDbObject {
public:
    KYRX_DECLARE_MEMBERS(KyDbScale);
    KyDbScale();
    ~KyDbScale() override;

    const KyString& scaleName() const { return m_name; }
    Kyro::ErrorStatus setScaleName(const wchar_t* value);
    // Positive (eInvalidInput otherwise).
    double paperUnits() const { return m_paperUnits; }
    Kyro::ErrorStatus setPaperUnits(double value);
    double drawingUnits() const { return m_drawingUnits; }
    Kyro::ErrorStatus setDrawingUnits(double value);
    // paperUnits / drawingUnits.
    double scale() const { return m_paperUnits / m_drawingUnits; }

protected:
    void subSaveState(KyDbStateFiler& filer) const override;
    Kyro::ErrorStatus subRestoreState(KyDbStateFiler& filer) override;

private:
    KyString m_name;
    double m_paperUnits = 1.0;
    double m_drawingUnits = 1.0;
};
