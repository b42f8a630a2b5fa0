#include "db/KyDbText.h"

#include <cmath>

#include "db/KyDbClassSupport.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbStateFiler.h"
#include "db/KyDbTextStyleTableRecord.h"

namespace {

const KyDbPropertyRow kTextRows[] = {
    {L"TextString", kydbiAccess<&KyDbText::textString, &KyDbText::setTextString>(),
     KyDbCategory::kText, 1},
    {L"TextStyleId",
     kydbiAccess<&KyDbText::textStyle,
                 kydbiSetter<KyDbText, KyDbObjectId>(&KyDbText::setTextStyle)>(),
     KyDbCategory::kText, 2, L"/TextStyleTableId/Items"},
    {L"Height", kydbiAccess<&KyDbText::height, &KyDbText::setHeight>(), KyDbCategory::kText, 3,
     nullptr, nullptr, kydbiFormula<&KyDbText::heightFormula, &KyDbText::setHeightFormula>()},
    {L"Rotation", kydbiAccess<&KyDbText::rotation, &KyDbText::setRotation>(), KyDbCategory::kText,
     4},
    {L"Position", kydbiAccess<&KyDbText::position, &KyDbText::setPosition>(),
     KyDbCategory::kGeometry, 1},
};

}  // namespace

KYDB_DEFINE_ENTITY(KyDbText, KyDbEntity, kTextRows, L"TEXT")

KyDbText::KyDbText() = default;

KyDbText::~KyDbText() = default;

Kyro::ErrorStatus KyDbText::setPosition(const KyGePoint3d& position) {
    return setMember(m_position, position);
}

Kyro::ErrorStatus KyDbText::setHeight(double height) {
    return height > 0.0 ? setMember(m_height, KyDbFormulaValue<double>::plain(height))
                        : Kyro::eInvalidInput;
}

Kyro::ErrorStatus KyDbText::setHeightFormula(const wchar_t* text) {
    KyDbFormulaValue<double> height;
    if (const Kyro::ErrorStatus status = height.evaluate(text); status != Kyro::eOk) {
        return status;
    }
    return height.value > 0.0 ? setMember(m_height, height) : Kyro::eInvalidInput;
}

Kyro::ErrorStatus KyDbText::setTextString(const wchar_t* text) {
    return setMember(m_text, KyString(text));
}

Kyro::ErrorStatus KyDbText::setRotation(double degrees) {
    return std::isfinite(degrees) ? setMember(m_rotation, degrees) : Kyro::eInvalidInput;
}

Kyro::ErrorStatus KyDbText::setTextStyle(KyDbObjectId styleId) {
    return setReference(m_style, styleId, KyDbTextStyleTableRecord::desc());
}

Kyro::ErrorStatus KyDbText::setTextStyle(const wchar_t* styleName) {
    return setReference(m_style, styleName, &KyDbDatabase::textStyleTableId,
                        KyDbTextStyleTableRecord::desc());
}

void KyDbText::subAppended(KyDbDatabase* database) {
    KyDbEntity::subAppended(database);
    if (m_style.isNull()) {
        m_style = database->textstyle();
    }
}

void KyDbText::subSaveState(KyDbStateFiler& filer) const {
    KyDbEntity::subSaveState(filer);
    filer.write(m_position);
    filer.writeString(m_text);
    filer.write(m_style);
    m_height.save(filer);
    filer.write(m_rotation);
}

Kyro::ErrorStatus KyDbText::subRestoreState(KyDbStateFiler& filer) {
    if (const Kyro::ErrorStatus status = KyDbEntity::subRestoreState(filer); status != Kyro::eOk) {
        return status;
    }
    filer.read(m_position);
    filer.read(m_text);
    filer.read(m_style);
    m_height.restore(filer);
    filer.read(m_rotation);
    return filer.status();
}
