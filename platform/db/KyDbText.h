// KyDbText: one line of text at a position, with a height, a rotation in
// degrees and a text style. A text appended without a style takes the
// database's current text style.
#pragma once

#include "KyPlatformExport.h"
#include "base/KyString.h"
#include "db/KyDbEntity.h"

class KYPLATFORM_API KyDbText : public KyDbEntity {
public:
    KYRX_DECLARE_MEMBERS(KyDbText);
    KyDbText();
    ~KyDbText() override;

    const KyGePoint3d& position() const { return m_position; }
    Kyro::ErrorStatus setPosition(const KyGePoint3d& position);
    // Positive (eInvalidInput); 1 for a new text.
    double height() const { return m_height; }
    Kyro::ErrorStatus setHeight(double height);
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
    double m_height = 1.0;
    double m_rotation = 0.0;
};
