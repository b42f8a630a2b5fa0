#include "db/KyDbMText.h"

#include "db/KyDbClassSupport.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbStateFiler.h"
#include "db/KyDbTextStyleTableRecord.h"

namespace {

const KyDbPropertyRow kMTextRows[] = {
    {L"TextString", kydbiAccess<&KyDbMText::contents, &KyDbMText::setContents>(),
     KyDbCategory::kText, 1},
    {L"TextStyleId",
     kydbiAccess<&KyDbMText::textStyle,
                 kydbiSetter<KyDbMText, KyDbObjectId>(&KyDbMText::setTextStyle)>(),
     KyDbCategory::kText, 2, L"/TextStyleTableId/Items"},
    {L"Height", kydbiAccess<&KyDbMText::textHeight, &KyDbMText::setTextHeight>(),
     KyDbCategory::kText, 3, nullptr, nullptr,
     kydbiFormula<&KyDbMText::textHeightFormula, &KyDbMText::setTextHeightFormula>()},
    {L"Width", kydbiAccess<&KyDbMText::width, &KyDbMText::setWidth>(), KyDbCategory::kText, 4},
    {L"Position", kydbiAccess<&KyDbMText::location, &KyDbMText::setLocation>(),
     KyDbCategory::kGeometry, 1},
};

}  // namespace

KYDB_DEFINE_ENTITY(KyDbMText, KyDbEntity, kMTextRows, L"MTEXT")

KyDbMText::KyDbMText() = default;

KyDbMText::~KyDbMText() = default;

Kyro::ErrorStatus KyDbMText::setLocation(const KyGePoint3d& location) {
    return setMember(m_location, location);
}

Kyro::ErrorStatus KyDbMText::setTextHeight(double height) {
    return height > 0.0 ? setMember(m_height, KyDbFormulaValue<double>::plain(height))
                        : Kyro::eInvalidInput;
}

Kyro::ErrorStatus KyDbMText::setTextHeightFormula(const wchar_t* text) {
    KyDbFormulaValue<double> height;
    if (const Kyro::ErrorStatus status = height.evaluate(text); status != Kyro::eOk) {
        return status;
    }
    return height.value > 0.0 ? setMember(m_height, height) : Kyro::eInvalidInput;
}

Kyro::ErrorStatus KyDbMText::setWidth(double width) {
    return width >= 0.0 ? setMember(m_width, width) : Kyro::eInvalidInput;
}

Kyro::ErrorStatus KyDbMText::setContents(const wchar_t* contents) {
    return setMember(m_contents, KyString(contents));
}

Kyro::ErrorStatus KyDbMText::setTextStyle(KyDbObjectId styleId) {
    return setReference(m_style, styleId, KyDbTextStyleTableRecord::desc());
}

Kyro::ErrorStatus KyDbMText::setTextStyle(const wchar_t* styleName) {
    return setReference(m_style, styleName, &KyDbDatabase::textStyleTableId,
                        KyDbTextStyleTableRecord::desc());
}

void KyDbMText::subAppended(KyDbDatabase* database) {
    KyDbEntity::subAppended(database);
    if (m_style.isNull()) {
        m_style = database->textstyle();
    }
}

void KyDbMText::subSaveState(KyDbStateFiler& filer) const {
    KyDbEntity::subSaveState(filer);
    filer.write(m_location);
    filer.writeString(m_contents);
    filer.write(m_style);
    m_height.save(filer);
    filer.write(m_width);
}

Kyro::ErrorStatus KyDbMText::subRestoreState(KyDbStateFiler& filer) {
    if (const Kyro::ErrorStatus status = KyDbEntity::subRestoreState(filer); status != Kyro::eOk) {
        return status;
    }
    filer.read(m_location);
    filer.read(m_contents);
    filer.read(m_style);
    m_height.restore(filer);
    filer.read(m_width);
    return filer.status();
}
