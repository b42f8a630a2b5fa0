#include "db/KyDbDimension.h"

#include <cmath>

#include "db/KyDbBlockTableRecord.h"
#include "db/KyDbClassSupport.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbDimStyleTableRecord.h"
#include "db/KyDbStateFiler.h"

namespace {

using Dimension = KyDbDimension;

const KyDbPropertyRow kDimensionRows[] = {
    {L"DimensionStyleId",
     kydbiAccess<&Dimension::dimensionStyle,
                 kydbiSetter<Dimension, KyDbObjectId>(&Dimension::setDimensionStyle)>(),
     KyDbCategory::kMisc, 0, L"/DimStyleTableId/Items"},
    {L"Measurement", kydbiAccess<&Dimension::measurement>(), KyDbCategory::kMisc, 1},
    {L"DecimalPlaces", kydbiAccess<&Dimension::decimalPlaces, &Dimension::setDecimalPlaces>(),
     KyDbCategory::kMisc, 2, nullptr, nullptr,
     kydbiFormula<&Dimension::decimalPlacesFormula, &Dimension::setDecimalPlacesFormula>()},
    {L"DimensionText", kydbiAccess<&Dimension::dimensionText, &Dimension::setDimensionText>(),
     KyDbCategory::kText, 1},
    {L"TextStyleId", kydbiAccess<&Dimension::textStyle>(), KyDbCategory::kText, 2,
     L"/TextStyleTableId/Items"},
    {L"Points",
     {},
     KyDbCategory::kGeometry,
     1,
     nullptr,
     &kydbiPointList<Dimension, &Dimension::points, &Dimension::setPointAt>},
    {L"DimBlockId", kydbiAccess<&Dimension::dimBlockId>()},
};

}  // namespace

KYDB_DEFINE_ENTITY(KyDbDimension, KyDbEntity, kDimensionRows, L"DIMENSION")

KyDbDimension::KyDbDimension() = default;

KyDbDimension::~KyDbDimension() = default;

Kyro::ErrorStatus KyDbDimension::setDimensionStyle(KyDbObjectId styleId) {
    return setReference(m_style, styleId, KyDbDimStyleTableRecord::desc());
}

Kyro::ErrorStatus KyDbDimension::setDimensionStyle(const wchar_t* styleName) {
    return setReference(m_style, styleName, &KyDbDatabase::dimStyleTableId,
                        KyDbDimStyleTableRecord::desc());
}

KyDbObjectId KyDbDimension::textStyle() const {
    // Read through the id: the style may be open elsewhere, and this is a read.
    const auto* style =
        m_style.isValid() ? kyrxCast<KyDbDimStyleTableRecord>(m_style.stub()->object) : nullptr;
    return style != nullptr ? style->dimtxsty() : KyDbObjectId();
}

Kyro::ErrorStatus KyDbDimension::setDimBlockId(KyDbObjectId blockId) {
    if (blockId.isNull()) {
        return setMember(m_block, blockId);
    }
    return setReference(m_block, blockId, KyDbBlockTableRecord::desc());
}

Kyro::ErrorStatus KyDbDimension::setPoints(const KyArray<KyGePoint3d>& points) {
    return setMember(m_points, points);
}

Kyro::ErrorStatus KyDbDimension::setPointAt(int index, const KyGePoint3d& point) {
    return setPointIn(m_points, index, point);
}

double KyDbDimension::measurement() const {
    if (m_hasMeasurement) {
        return m_measurement;
    }
    return m_points.length() >= 2 ? m_points[0].distanceTo(m_points[1]) : 0.0;
}

Kyro::ErrorStatus KyDbDimension::setMeasurement(double value) {
    if (!std::isfinite(value)) {
        return Kyro::eInvalidInput;
    }
    if (const Kyro::ErrorStatus status = checkWritable(); status != Kyro::eOk) {
        return status;
    }
    if (!m_hasMeasurement || m_measurement != value) {
        assertWriteEnabled();
        m_measurement = value;
        m_hasMeasurement = true;
    }
    return Kyro::eOk;
}

Kyro::ErrorStatus KyDbDimension::clearMeasurement() {
    return setMember(m_hasMeasurement, false);
}

Kyro::ErrorStatus KyDbDimension::setDimensionText(const wchar_t* text) {
    return setMember(m_text, KyString(text));
}

namespace {

bool isDecimalPlaces(int places) {
    return places >= 0 && places <= KyDbDimension::kMaxDecimalPlaces;
}

}  // namespace

Kyro::ErrorStatus KyDbDimension::setDecimalPlaces(int places) {
    return isDecimalPlaces(places)
               ? setMember(m_decimalPlaces, KyDbFormulaValue<int>::plain(places))
               : Kyro::eInvalidInput;
}

Kyro::ErrorStatus KyDbDimension::setDecimalPlacesFormula(const wchar_t* text) {
    KyDbFormulaValue<int> places;
    if (const Kyro::ErrorStatus status = places.evaluate(text); status != Kyro::eOk) {
        return status;
    }
    return isDecimalPlaces(places.value) ? setMember(m_decimalPlaces, places) : Kyro::eInvalidInput;
}

KyString KyDbDimension::displayText() const {
    if (!m_text.isEmpty()) {
        return m_text;
    }
    return KyString::formatted(L"%.*f", m_decimalPlaces.value, measurement());
}

void KyDbDimension::subAppended(KyDbDatabase* database) {
    KyDbEntity::subAppended(database);
    if (m_style.isNull()) {
        m_style = database->dimstyle();
    }
}

void KyDbDimension::subSaveState(KyDbStateFiler& filer) const {
    KyDbEntity::subSaveState(filer);
    filer.write(m_style);
    filer.write(m_block);
    filer.writeArray(m_points);
    filer.writeString(m_text);
    filer.write(m_measurement);
    filer.write(m_hasMeasurement);
    m_decimalPlaces.save(filer);
}

Kyro::ErrorStatus KyDbDimension::subRestoreState(KyDbStateFiler& filer) {
    if (const Kyro::ErrorStatus status = KyDbEntity::subRestoreState(filer); status != Kyro::eOk) {
        return status;
    }
    filer.read(m_style);
    filer.read(m_block);
    filer.readArray(m_points);
    filer.read(m_text);
    filer.read(m_measurement);
    filer.read(m_hasMeasurement);
    m_decimalPlaces.restore(filer);
    return filer.status();
}
