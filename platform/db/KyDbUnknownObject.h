// KyDbUnknownObject: an object of a kind the platform does not
// model, kept whole: the name of its kind and its data as opaque text (the JSON
// a reader found), so that a writer can put it back unchanged. Its
// "ClassName" is the name of its kind.
#pragma once

#include "KyPlatformExport.h"
#include "db/KyDbObject.h"

class KYPLATFORM_API KyDbUnknownObject : public KyDbObject {
public:
    KYRX_DECLARE_MEMBERS(KyDbUnknownObject);
    KyDbUnknownObject();
    ~KyDbUnknownObject() override;

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
