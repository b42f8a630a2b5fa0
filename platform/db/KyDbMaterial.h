// KyDbMaterial: a material. The standard ones are "ByLayer",
// "ByBlock" and "Global": in a drawing they can't be renamed or erased.
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
    Kyro::ErrorStatus subErase(bool erasing) override;
    void subSaveState(KyDbStateFiler& filer) const override;
    Kyro::ErrorStatus subRestoreState(KyDbStateFiler& filer) override;

private:
    // True for a name that a drawing keeps as it is.
    bool hasFixedName() const;
    KyString m_name;
    KyString m_description;
};
