// KyDbText: one line of text at a position, with a height, a rotation in
// degrees and a text style. A text appended without a style takes the
// database's current text style. The height may be driven by a formula.
#pragma once

#include "KyPlatformExport.h"
#include "base/KyString.h"
#include "db/KyDbEntity.h"
#include "db/KyDbFormulaValue.h"

class KYPLATFORM_API KyDbText : public KyDbEntity {
public:
    KYRX_DECLARE_MEMBERS(KyDbText);
    KyDbText();
    ~KyDbText() override;

    const KyGePoint3d& position() const { return m_position; }
    Kyro::ErrorStatus setPosition(const KyGePoint3d& position);
    // Positive (eInvalidInput); 1 for a new text. A plain height drops the
    // formula.
    double height() const { return m_height.value; }
    Kyro::ErrorStatus setHeight(double height);
    // The formula the height was evaluated from; empty for a plain height.
    const KyString& heightFormula() const { return m_height.formula; }
    // Sets the formula and the height it evaluates to, in one change:
    // eInvalidInput for a text that is not a formula or a height that is not
    // positive, eWasNotOpenForWrite as setHeight.
    Kyro::ErrorStatus setHeightFormula(const wchar_t* text);
    const KyString& textString() const { return m_text; }
    Kyro::ErrorStatus setTextString(const wchar_t* text);
    double rotation() const { return m_rotation; }
    Kyro::ErrorStatus setRotation(double degrees);
    // A text style record.
    KyDbObjectId textStyle() const { return m_style; }
    Kyro::ErrorStatus setTextStyle(KyDbObjectId styleId);
    Kyro::ErrorStatus setTextStyle(const wchar_t* styleName);

protected:
    void subAppended(KyDbDatabase* database) override;
    void subSaveState(KyDbStateFiler& filer) const override;
    Kyro::ErrorStatus subRestoreState(KyDbStateFiler& filer) override;

private:
    KyGePoint3d m_position;
    KyString m_text;
    KyDbObjectId m_style;
    KyDbFormulaValue<double> m_height = KyDbFormulaValue<double>::plain(1.0);
    double m_rotation = 0.0;
};
