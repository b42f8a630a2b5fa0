// KyDbDictionaryWithDefault: a dictionary that names one of its entries as
// its default (the plot style name dictionary, whose default is "Normal").
#pragma once

#include "KyPlatformExport.h"
#include "db/KyDbDictionary.h"

class KYPLATFORM_API KyDbDictionaryWithDefault : public KyDbDictionary {
public:
    KYRX_DECLARE_MEMBERS(KyDbDictionaryWithDefault);
    KyDbDictionaryWithDefault();
    ~KyDbDictionaryWithDefault() override;

    // The default entry; null when none is set.
    KyDbObjectId defaultId() const { return m_default; }
    // An entry of this dictionary, or null (eKeyNotFound for another id).
    Kyro::ErrorStatus setDefaultId(KyDbObjectId id);

protected:
    void subSaveState(KyDbStateFiler& filer) const override;
    Kyro::ErrorStatus subRestoreState(KyDbStateFiler& filer) override;

private:
    KyDbObjectId m_default;
};
