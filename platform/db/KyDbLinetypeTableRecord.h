// KyDbLinetypeTableRecord: a linetype: a description and a pattern of dash
// lengths (positive a dash, negative a gap, 0 a dot). ByBlock, ByLayer and
// Continuous can't be renamed or erased.
#pragma once

#include "KyPlatformExport.h"
#include "base/KyArray.h"
#include "db/KyDbSymbolTableRecord.h"

class KYPLATFORM_API KyDbLinetypeTableRecord : public KyDbSymbolTableRecord {
public:
    KYRX_DECLARE_MEMBERS(KyDbLinetypeTableRecord);
    KyDbLinetypeTableRecord();
    ~KyDbLinetypeTableRecord() override;

    const KyString& comments() const { return m_comments; }
    Kyro::ErrorStatus setComments(const wchar_t* comments);

    int numDashes() const { return m_dashes.length(); }
    double dashLengthAt(int index) const;
    const KyArray<double>& pattern() const { return m_dashes; }
    Kyro::ErrorStatus setPattern(const KyArray<double>& dashes);
    // The sum of the absolute dash lengths.
    double patternLength() const;

    // ByBlock, ByLayer or Continuous.
    bool isStandardLinetype() const;

protected:
    Kyro::ErrorStatus subCheckRename(const wchar_t* newName) const override;
    Kyro::ErrorStatus subErase(bool erasing) override;
    void subSaveState(KyDbStateFiler& filer) const override;
    Kyro::ErrorStatus subRestoreState(KyDbStateFiler& filer) override;

private:
    KyString m_comments;
    KyArray<double> m_dashes;
};
