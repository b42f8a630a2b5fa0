// KyDbViewCallout: the callout of a section or a detail view: the mark on a
// drawing that says where a view is taken, with its points (the cut line of
// a section, the centre and a point of the boundary of a detail), a label
// ("A", "B" ...) and the view style it is drawn in.
//
// The kind says which styles fit: a section callout takes a section view
// style of the drawing's section view style dictionary, a detail callout a
// detail view style of the detail view style dictionary (eNotThatKindOfClass
// for any other style). A callout appended without a style takes the
// database's current style of its kind (CVIEWSECTIONSTYLE,
// CVIEWDETAILSTYLE). A new callout is a section callout.
#pragma once

#include "KyPlatformExport.h"
#include "base/KyArray.h"
#include "base/KyString.h"
#include "db/KyDbEntity.h"

class KYPLATFORM_API KyDbViewCallout : public KyDbEntity {
public:
    KYRX_DECLARE_MEMBERS(KyDbViewCallout);
    // The kinds, numbered as the host's view style functions number them
    // (KyDbViewStyleModule.h).
    enum Kind : int { kSection = 1, kDetail = 2 };

    KyDbViewCallout();
    ~KyDbViewCallout() override;

    int kind() const { return m_kind; }
    // kSection or kDetail (eInvalidInput otherwise). A style that does not fit
    // the new kind gives way, in the same change, to the database's current
    // style of that kind (to none for a callout in no database, which takes
    // it when it is appended).
    Kyro::ErrorStatus setKind(int kind);

    KyDbObjectId viewStyle() const { return m_style; }
    Kyro::ErrorStatus setViewStyle(KyDbObjectId styleId);
    // The style `styleName` (any case) of the dictionary of the callout's kind.
    Kyro::ErrorStatus setViewStyle(const wchar_t* styleName);

    const KyArray<KyGePoint3d>& points() const { return m_points; }
    Kyro::ErrorStatus setPoints(const KyArray<KyGePoint3d>& points);
    Kyro::ErrorStatus setPointAt(int index, const KyGePoint3d& point);

    const KyString& label() const { return m_label; }
    Kyro::ErrorStatus setLabel(const wchar_t* label);

    // The class of the styles a callout of `kind` takes, null for no kind.
    static const KyRxClass* styleClass(int kind);
    // The dictionary that holds the styles of `kind` in `database`; null for
    // no kind or no database.
    static KyDbObjectId styleDictionaryId(const KyDbDatabase* database, int kind);
    // True when `styleId` is a style of `kind` in its database's dictionary of
    // that kind, erased or not.
    static bool isStyleOfKind(KyDbObjectId styleId, int kind);

protected:
    void subAppended(KyDbDatabase* database) override;
    void subSaveState(KyDbStateFiler& filer) const override;
    Kyro::ErrorStatus subRestoreState(KyDbStateFiler& filer) override;

private:
    // The database's current style of `kind`.
    static KyDbObjectId currentStyle(const KyDbDatabase* database, int kind);

    int m_kind = kSection;
    KyDbObjectId m_style;
    KyArray<KyGePoint3d> m_points;
    KyString m_label;
};
