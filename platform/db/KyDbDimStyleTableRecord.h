// KyDbDimStyleTableRecord: a dimension style: the text style of its
// dimensions, and dimension variables by name (any case), each a value.
// "Standard" can't be renamed or erased.
#pragma once

#include <utility>
#include <vector>

#include "KyPlatformExport.h"
#include "db/KyDbSymbolTableRecord.h"
#include "rx/KyRxValue.h"

class KYPLATFORM_API KyDbDimStyleTableRecord : public KyDbSymbolTableRecord {
public:
    KYRX_DECLARE_MEMBERS(KyDbDimStyleTableRecord);
    KyDbDimStyleTableRecord();
    ~KyDbDimStyleTableRecord() override;

    // A text style record; a style added without one gets "Standard".
    KyDbObjectId dimtxsty() const { return m_textStyle; }
    Kyro::ErrorStatus setDimtxsty(KyDbObjectId textStyleId);

    // eKeyNotFound for a variable the style does not set.
    Kyro::ErrorStatus getValue(const wchar_t* name, KyRxValue& value) const;
    // Sets a variable; an empty value takes it out.
    Kyro::ErrorStatus setValue(const wchar_t* name, const KyRxValue& value);
    // The variables the style sets, in the order they were first set.
    KyStringArray valueNames() const;

protected:
    Kyro::ErrorStatus subCheckRename(const wchar_t* newName) const override;
    Kyro::ErrorStatus subErase(bool erasing) override;
    void subAppended(KyDbDatabase* database) override;
    void subSaveState(KyDbStateFiler& filer) const override;
    Kyro::ErrorStatus subRestoreState(KyDbStateFiler& filer) override;

private:
    int indexOf(const wchar_t* name) const;

    KyDbObjectId m_textStyle;
    std::vector<std::pair<KyString, KyRxValue>> m_values;
};
