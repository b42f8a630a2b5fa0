// KyDbUnknownEntity: an entity of a kind the platform does not model, kept
// whole: the name of its kind and its data as opaque text (what a reader
// found), so that a writer can put it back unchanged. It shows the members
// every entity has; its "ClassName" is the name of its kind.
#pragma once

#include "KyPlatformExport.h"
#include "base/KyString.h"
#include "db/KyDbEntity.h"

class KYPLATFORM_API KyDbUnknownEntity : public KyDbEntity {
public:
    KYRX_DECLARE_MEMBERS(KyDbUnknownEntity);
    KyDbUnknownEntity();
    ~KyDbUnknownEntity() override;

    const KyString& typeName() const { return m_typeName; }
    Kyro::ErrorStatus setTypeName(const wchar_t* value);
    const KyString& data() const { return m_data; }
    Kyro::ErrorStatus setData(const wchar_t* value);

protected:
    KyString subReflectedClassName() const override;
    void subSaveState(KyDbStateFiler& filer) const override;
    Kyro::ErrorStatus subRestoreState(KyDbStateFiler& filer) override;

private:
    KyString m_typeName;
    KyString m_data;
};
