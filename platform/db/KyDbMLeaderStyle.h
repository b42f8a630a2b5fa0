// KyDbMLeaderStyle: a multileader style: its name and the text
// style of its text. The style "Standard" of a drawing can't be renamed or
// erased. One added to a drawing without a text style takes the drawing's
// "Standard" text style.
#pragma once

#include "KyPlatformExport.h"
#include "db/KyDbObject.h"

class KYPLATFORM_API KyDbMLeaderStyle : public KyDbObject {
public:
    KYRX_DECLARE_MEMBERS(KyDbMLeaderStyle);
    KyDbMLeaderStyle();
    ~KyDbMLeaderStyle() override;

    const KyString& name() const { return m_name; }
    Kyro::ErrorStatus setName(const wchar_t* value);
    KyDbObjectId textStyleId() const { return m_textStyle; }
    Kyro::ErrorStatus setTextStyleId(KyDbObjectId value);

protected:
    Kyro::ErrorStatus subErase(bool erasing) override;
    void subAppended(KyDbDatabase* database) override;
    void subSaveState(KyDbStateFiler& filer) const override;
    Kyro::ErrorStatus subRestoreState(KyDbStateFiler& filer) override;

private:
    // True for a name that a drawing keeps as it is.
    bool hasFixedName() const;
    KyString m_name;
    KyDbObjectId m_textStyle;
};
