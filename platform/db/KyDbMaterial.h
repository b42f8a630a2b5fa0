// KyDbMaterial: a material. The standard ones are "ByLayer",
// "ByBlock" and "Global".
#pragma once

#include "KyPlatformExport.h"
#include "db/KyDbObject.h"

class KYPLATFORM_API KyDbMaterial : public KyDbObject {
public:
    KYRX_DECLARE_MEMBERS(KyDbMaterial);
    KyDbMaterial();
    ~KyDbMaterial() override;

    const KyString& name() const { return m_name; }
    Kyro::ErrorStatus setName(const wchar_t* value);
    const KyString& description() const { return m_description; }
    Kyro::ErrorStatus setDescription(const wchar_t* value);

protected:
    void subSaveState(KyDbStateFiler& filer) const override;
    Kyro::ErrorStatus subRestoreState(KyDbStateFiler& filer) override;

private:
    KyString m_name;
    KyString m_description;
};
