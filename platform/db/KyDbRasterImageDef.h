// KyDbRasterImageDef: the definition of an attached image: the
// path of its file and its size in pixels.
#pragma once

#include "KyPlatformExport.h"
#include "db/KyDbObject.h"

class KYPLATFORM_API KyDbRasterImageDef : public KyDbObject {
public:
    KYRX_DECLARE_MEMBERS(KyDbRasterImageDef);
    KyDbRasterImageDef();
    ~KyDbRasterImageDef() override;

    const KyString& sourceFileName() const { return m_path; }
    Kyro::ErrorStatus setSourceFileName(const wchar_t* value);
    double width() const { return m_width; }
    Kyro::ErrorStatus setWidth(double value);
    double height() const { return m_height; }
    Kyro::ErrorStatus setHeight(double value);

protected:
    void subSaveState(KyDbStateFiler& filer) const override;
    Kyro::ErrorStatus subRestoreState(KyDbStateFiler& filer) override;

private:
    KyString m_path;
    double m_width = 0.0;
    double m_height = 0.0;
};
