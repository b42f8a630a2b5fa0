#include "db/KyDbLayout.h"

#include "db/KyDbBlockTableRecord.h"
#include "db/KyDbClassSupport.h"
#include "db/KyDbRecordReference.h"
#include "db/KyDbStateFiler.h"

namespace {

const KyDbPropertyRow kLayoutRows[] = {
    {L"Name", kydbiAccess<&KyDbLayout::layoutName, &KyDbLayout::setLayoutName>(),
     KyDbCategory::kGeneral, 0},
    {L"TabOrder", kydbiAccess<&KyDbLayout::tabOrder, &KyDbLayout::setTabOrder>(),
     KyDbCategory::kGeneral, 1},
    {L"BlockTableRecordId", kydbiAccess<&KyDbLayout::getBlockTableRecordId>()},
    {L"PageSetupName", kydbiAccess<&KyDbLayout::pageSetupName, &KyDbLayout::setPageSetupName>(),
     KyDbCategory::kMisc, 0},
    {L"PlotStyleTable", kydbiAccess<&KyDbLayout::plotStyleTable, &KyDbLayout::setPlotStyleTable>(),
     KyDbCategory::kMisc, 1},
    {L"RasterResolution", kydbiAccess<&KyDbLayout::rasterDpi, &KyDbLayout::setRasterDpi>(),
     KyDbCategory::kMisc, 2},
};

}  // namespace

KYDB_DEFINE_CLASS(KyDbLayout, KyDbPlotSettings, kLayoutRows)

KyDbLayout::KyDbLayout() = default;

KyDbLayout::~KyDbLayout() = default;

bool KyDbLayout::hasFixedName() const {
    return modelType();
}

Kyro::ErrorStatus KyDbLayout::setLayoutName(const wchar_t* value) {
    if (value == nullptr || value[0] == L'\0') {
        return Kyro::eInvalidInput;
    }
    if (const Kyro::ErrorStatus status = checkWritable(); status != Kyro::eOk) {
        return status;
    }
    // One being made or read takes any name; in a drawing the name stays.
    if (isDatabaseResident() && hasFixedName() && m_layoutName.compare(value) != 0) {
        return Kyro::eCannotBeRenamed;
    }
    return setMember(m_layoutName, KyString(value));
}

Kyro::ErrorStatus KyDbLayout::subErase(bool erasing) {
    return erasing && hasFixedName() ? Kyro::eCannotBeErasedByCaller : Kyro::eOk;
}

Kyro::ErrorStatus KyDbLayout::setTabOrder(int value) {
    if (value < 0) {
        return Kyro::eInvalidInput;
    }
    return setMember(m_tabOrder, value);
}

Kyro::ErrorStatus KyDbLayout::setBlockTableRecordId(KyDbObjectId value) {
    if (!value.isNull()) {
        if (const Kyro::ErrorStatus status = checkWritable(); status != Kyro::eOk) {
            return status;
        }
        if (const Kyro::ErrorStatus status =
                KyDbRecordReference::check(this, value, KyDbBlockTableRecord::desc());
            status != Kyro::eOk) {
            return status;
        }
    }
    return setMember(m_block, value);
}

bool KyDbLayout::modelType() const {
    return tabOrder() == 0;
}

Kyro::ErrorStatus KyDbLayout::setPlotStyleTable(const wchar_t* value) {
    return setMember(m_plotStyleTable, KyString(value));
}

Kyro::ErrorStatus KyDbLayout::setPageSetupName(const wchar_t* value) {
    return setMember(m_pageSetupName, KyString(value));
}

Kyro::ErrorStatus KyDbLayout::setRasterDpi(short value) {
    if (value != 0 && (value < kMinRasterDpi || value > kMaxRasterDpi)) {
        return Kyro::eInvalidInput;
    }
    return setMember(m_rasterDpi, value);
}

void KyDbLayout::subSaveState(KyDbStateFiler& filer) const {
    KyDbPlotSettings::subSaveState(filer);
    filer.writeString(m_layoutName);
    filer.write(m_tabOrder);
    filer.write(m_block);
    filer.writeString(m_plotStyleTable);
    filer.writeString(m_pageSetupName);
    filer.write(m_rasterDpi);
}

Kyro::ErrorStatus KyDbLayout::subRestoreState(KyDbStateFiler& filer) {
    if (const Kyro::ErrorStatus status = KyDbPlotSettings::subRestoreState(filer);
        status != Kyro::eOk) {
        return status;
    }
    filer.read(m_layoutName);
    filer.read(m_tabOrder);
    filer.read(m_block);
    filer.read(m_plotStyleTable);
    filer.read(m_pageSetupName);
    filer.read(m_rasterDpi);
    return filer.status();
}
