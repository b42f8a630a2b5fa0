// KyDbDimension: a dimension: its dimension style, the anonymous block that
// shows it (its picture), the points it measures from, the measured value
// and a text that replaces the measurement when it is not empty, and the
// number of decimal places the measurement is shown with (which a formula
// may drive). A dimension appended without a style takes the database's
// current dimension style.
#pragma once

#include "KyPlatformExport.h"
#include "base/KyArray.h"
#include "base/KyString.h"
#include "db/KyDbEntity.h"
#include "db/KyDbFormulaValue.h"

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

    // The decimal places of the measurement as shown: 0 to kMaxDecimalPlaces
    // (eInvalidInput), 4 for a new dimension. A plain number drops the
    // formula.
    static constexpr int kMaxDecimalPlaces = 8;
    int decimalPlaces() const { return m_decimalPlaces.value; }
    Kyro::ErrorStatus setDecimalPlaces(int places);
    // The formula the decimal places were evaluated from; empty for a plain
    // number.
    const KyString& decimalPlacesFormula() const { return m_decimalPlaces.formula; }
    // Sets the formula and the number it evaluates to (truncated toward
    // zero), in one change: eInvalidInput for a text that is not a formula
    // or a number out of range, eWasNotOpenForWrite as setDecimalPlaces.
    Kyro::ErrorStatus setDecimalPlacesFormula(const wchar_t* text);
    // What the dimension shows: its text when it has one, else the
    // measurement with its decimal places ("12.3457").
    KyString displayText() const;

protected:
    void subAppended(KyDbDatabase* database) override;
    void subSaveState(KyDbStateFiler& filer) const override;
    Kyro::ErrorStatus subRestoreState(KyDbStateFiler& filer) override;

private:
    KyDbObjectId m_style;
    KyDbObjectId m_block;
    KyArray<KyGePoint3d> m_points;
    KyString m_text;
    KyDbFormulaValue<int> m_decimalPlaces = KyDbFormulaValue<int>::plain(4);
    double m_measurement = 0.0;
    bool m_hasMeasurement = false;
};
