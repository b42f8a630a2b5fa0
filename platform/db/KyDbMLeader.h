// KyDbMLeader: a multileader: leader lines through its points to a text, in
// a multileader style. Its text takes the text style of its multileader
// style. A multileader appended without a style takes the database's current
// multileader style.
#pragma once

#include "KyPlatformExport.h"
#include "base/KyArray.h"
#include "base/KyString.h"
#include "db/KyDbEntity.h"

class KYPLATFORM_API KyDbMLeader : public KyDbEntity {
public:
    KYRX_DECLARE_MEMBERS(KyDbMLeader);
    KyDbMLeader();
    ~KyDbMLeader() override;

    // A multileader style (KyDbMLeaderStyle) of the drawing.
    KyDbObjectId MLeaderStyle() const { return m_style; }
    Kyro::ErrorStatus setMLeaderStyle(KyDbObjectId styleId);
    Kyro::ErrorStatus setMLeaderStyle(const wchar_t* styleName);
    // The text style of the multileader style; null without a style.
    KyDbObjectId textStyleId() const;

    const KyArray<KyGePoint3d>& points() const { return m_points; }
    Kyro::ErrorStatus setPoints(const KyArray<KyGePoint3d>& points);
    Kyro::ErrorStatus setPointAt(int index, const KyGePoint3d& point);

    const KyString& contents() const { return m_contents; }
    Kyro::ErrorStatus setContents(const wchar_t* contents);

protected:
    void subAppended(KyDbDatabase* database) override;
    void subSaveState(KyDbStateFiler& filer) const override;
    Kyro::ErrorStatus subRestoreState(KyDbStateFiler& filer) override;

private:
    KyDbObjectId m_style;
    KyArray<KyGePoint3d> m_points;
    KyString m_contents;
};
