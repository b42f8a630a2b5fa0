// KyDbDimension: a dimension: its dimension style, the anonymous block that
// shows it (its picture), the points it measures from, the measured value
// and a text that replaces the measurement when it is not empty. A dimension
// appended without a style takes the database's current dimension style.
#pragma once

#include "KyPlatformExport.h"
#include "base/KyArray.h"
#include "base/KyString.h"
#include "db/KyDbEntity.h"

class KYPLATFORM_API KyDbDimension : public KyDbEntity {
public:
    KYRX_DECLARE_MEMBERS(KyDbDimension);
    KyDbDimension();
    ~KyDbDimension() override;

    // A dimension style record.
    KyDbObjectId dimensionStyle() const { return m_style; }
    Kyro::ErrorStatus setDimensionStyle(KyDbObjectId styleId);
    Kyro::ErrorStatus setDimensionStyle(const wchar_t* styleName);
    // The text style the dimension's text takes: that of its dimension style;
    // null without a style.
    KyDbObjectId textStyle() const;

    // The block that shows the dimension; null for none.
    KyDbObjectId dimBlockId() const { return m_block; }
    Kyro::ErrorStatus setDimBlockId(KyDbObjectId blockId);

    const KyArray<KyGePoint3d>& points() const { return m_points; }
    Kyro::ErrorStatus setPoints(const KyArray<KyGePoint3d>& points);
    Kyro::ErrorStatus setPointAt(int index, const KyGePoint3d& point);

    // The measured value as the drawing keeps it; without one, the distance
    // between the first two points (0 with fewer points).
    double measurement() const;
    bool hasMeasurement() const { return m_hasMeasurement; }
    Kyro::ErrorStatus setMeasurement(double value);
    // Forgets the kept value: the points give it again.
    Kyro::ErrorStatus clearMeasurement();

    const KyString& dimensionText() const { return m_text; }
    Kyro::ErrorStatus setDimensionText(const wchar_t* text);

protected:
    void subAppended(KyDbDatabase* database) override;
    void subSaveState(KyDbStateFiler& filer) const override;
    Kyro::ErrorStatus subRestoreState(KyDbStateFiler& filer) override;

private:
    KyDbObjectId m_style;
    KyDbObjectId m_block;
    KyArray<KyGePoint3d> m_points;
    KyString m_text;
    double m_measurement = 0.0;
    bool m_hasMeasurement = false;
};
