// KyDbAttribute: a named text of a block reference: its tag and its text.
// An attribute belongs to its block reference (its owner), which keeps it
// (KyDbBlockReference::appendAttribute); it stands in no block's list.
#pragma once

#include "KyPlatformExport.h"
#include "db/KyDbText.h"

class KYPLATFORM_API KyDbAttribute : public KyDbText {
public:
    KYRX_DECLARE_MEMBERS(KyDbAttribute);
    KyDbAttribute();
    KyDbAttribute(const wchar_t* tag, const wchar_t* text);
    ~KyDbAttribute() override;

    // Not empty (eInvalidInput).
    const KyString& tag() const { return m_tag; }
    Kyro::ErrorStatus setTag(const wchar_t* tag);

protected:
    void subSaveState(KyDbStateFiler& filer) const override;
    Kyro::ErrorStatus subRestoreState(KyDbStateFiler& filer) override;

private:
    KyString m_tag;
};
