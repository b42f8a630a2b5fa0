// KyDbMText: text of several lines at a position, with a height, a width to
// wrap at (0 for none) and a text style. An MText appended without a style
// takes the database's current text style. The height may be driven by a
// formula.
#pragma once

#include "KyPlatformExport.h"
#include "base/KyString.h"
#include "db/KyDbEntity.h"
#include "db/KyDbFormulaValue.h"

class KYPLATFORM_API KyDbMText : public KyDbEntity {
public:
    KYRX_DECLARE_MEMBERS(KyDbMText);
    KyDbMText();
    ~KyDbMText() override;

    const KyGePoint3d& location() const { return m_location; }
    Kyro::ErrorStatus setLocation(const KyGePoint3d& location);
    // Positive (eInvalidInput); 1 for a new text. A plain height drops the
    // formula.
    double textHeight() const { return m_height.value; }
    Kyro::ErrorStatus setTextHeight(double height);
    // The formula the height was evaluated from; empty for a plain height.
    const KyString& textHeightFormula() const { return m_height.formula; }
    // Sets the formula and the height it evaluates to, in one change:
    // eInvalidInput for a text that is not a formula or a height that is not
    // positive, eWasNotOpenForWrite as setTextHeight.
    Kyro::ErrorStatus setTextHeightFormula(const wchar_t* text);
    // Not negative (eInvalidInput).
    double width() const { return m_width; }
    Kyro::ErrorStatus setWidth(double width);
    const KyString& contents() const { return m_contents; }
    Kyro::ErrorStatus setContents(const wchar_t* contents);
    // A text style record.
    KyDbObjectId textStyle() const { return m_style; }
    Kyro::ErrorStatus setTextStyle(KyDbObjectId styleId);
    Kyro::ErrorStatus setTextStyle(const wchar_t* styleName);

protected:
    void subAppended(KyDbDatabase* database) override;
    void subSaveState(KyDbStateFiler& filer) const override;
    Kyro::ErrorStatus subRestoreState(KyDbStateFiler& filer) override;

private:
    KyGePoint3d m_location;
    KyString m_contents;
    KyDbObjectId m_style;
    KyDbFormulaValue<double> m_height = KyDbFormulaValue<double>::plain(1.0);
    double m_width = 0.0;
};
