#include "db/KyDbPolyline.h"

#include "db/KyDbClassSupport.h"
#include "db/KyDbStateFiler.h"

namespace {

const KyDbPropertyRow kPolylineRows[] = {
    {L"Points",
     {},
     KyDbCategory::kGeometry,
     1,
     nullptr,
     &kydbiPointList<KyDbPolyline, &KyDbPolyline::points, &KyDbPolyline::setPointAt>},
    {L"Closed", kydbiAccess<&KyDbPolyline::isClosed, &KyDbPolyline::setClosed>(),
     KyDbCategory::kGeometry, 2},
    {L"GlobalWidth", kydbiAccess<&KyDbPolyline::constantWidth, &KyDbPolyline::setConstantWidth>(),
     KyDbCategory::kGeometry, 3},
    {L"Length", kydbiAccess<&KyDbPolyline::length>(), KyDbCategory::kGeometry, 4},
};

}  // namespace

KYDB_DEFINE_ENTITY(KyDbPolyline, KyDbEntity, kPolylineRows, L"POLYLINE")

KyDbPolyline::KyDbPolyline() = default;

KyDbPolyline::~KyDbPolyline() = default;

Kyro::ErrorStatus KyDbPolyline::setPoints(const KyArray<KyGePoint3d>& points) {
    return setMember(m_points, points);
}

Kyro::ErrorStatus KyDbPolyline::setPointAt(int index, const KyGePoint3d& point) {
    return setPointIn(m_points, index, point);
}

Kyro::ErrorStatus KyDbPolyline::addVertexAt(int index, const KyGePoint3d& point) {
    if (const Kyro::ErrorStatus status = checkWritable(); status != Kyro::eOk) {
        return status;
    }
    if (index < 0 || index > m_points.length()) {
        return Kyro::eInvalidIndex;
    }
    assertWriteEnabled();
    m_points.insertAt(index, point);
    return Kyro::eOk;
}

Kyro::ErrorStatus KyDbPolyline::removeVertexAt(int index) {
    if (const Kyro::ErrorStatus status = checkWritable(); status != Kyro::eOk) {
        return status;
    }
    if (!m_points.isValid(index)) {
        return Kyro::eInvalidIndex;
    }
    assertWriteEnabled();
    m_points.removeAt(index);
    return Kyro::eOk;
}

Kyro::ErrorStatus KyDbPolyline::setClosed(bool closed) {
    return setMember(m_closed, closed);
}

Kyro::ErrorStatus KyDbPolyline::setConstantWidth(double width) {
    return width >= 0.0 ? setMember(m_width, width) : Kyro::eInvalidInput;
}

double KyDbPolyline::length() const {
    double total = 0.0;
    for (int i = 1; i < m_points.length(); ++i) {
        total += m_points[i - 1].distanceTo(m_points[i]);
    }
    if (m_closed && m_points.length() > 2) {
        total += m_points.last().distanceTo(m_points.first());
    }
    return total;
}

void KyDbPolyline::subSaveState(KyDbStateFiler& filer) const {
    KyDbEntity::subSaveState(filer);
    filer.writeArray(m_points);
    filer.write(m_width);
    filer.write(m_closed);
}

Kyro::ErrorStatus KyDbPolyline::subRestoreState(KyDbStateFiler& filer) {
    if (const Kyro::ErrorStatus status = KyDbEntity::subRestoreState(filer); status != Kyro::eOk) {
        return status;
    }
    filer.readArray(m_points);
    filer.read(m_width);
    filer.read(m_closed);
    return filer.status();
}
