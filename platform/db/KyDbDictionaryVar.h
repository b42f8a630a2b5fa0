// KyDbDictionaryVar: a drawing variable kept in a dictionary (the
// variable dictionary) rather than in the header: its value as text.
#pragma once

#include "KyPlatformExport.h"
#include "db/KyDbObject.h"

class KYPLATFORM_API KyDbDictionaryVar : public KyDbObject {
public:
    KYRX_DECLARE_MEMBERS(KyDbDictionaryVar);
    KyDbDictionaryVar();
    ~KyDbDictionaryVar() override;

    const KyString& value() const { return m_value; }
    Kyro::ErrorStatus setValue(const wchar_t* value);

protected:
    void subSaveState(KyDbStateFiler& filer) const override;
    Kyro::ErrorStatus subRestoreState(KyDbStateFiler& filer) override;

private:
    KyString m_value;
};
