// KyDbMText: text of several lines at a position, with a height, a width to
// wrap at (0 for none) and a text style. An MText appended without a style
// takes the database's current text style.
#pragma once

#include "KyPlatformExport.h"
#include "base/KyString.h"
#include "db/KyDbEntity.h"

class KYPLATFORM_API KyDbMText : public KyDbEntity {
public:
    KYRX_DECLARE_MEMBERS(KyDbMText);
    KyDbMText();
    ~KyDbMText() override;

    const KyGePoint3d& location() const { return m_location; }
    Kyro::ErrorStatus setLocation(const KyGePoint3d& location);
    // Positive (eInvalidInput); 1 for a new text.
    double textHeight() const { return m_height; }
    Kyro::ErrorStatus setTextHeight(double height);
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
    double m_height = 1.0;
    double m_width = 0.0;
};
