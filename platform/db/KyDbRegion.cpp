#include "db/KyDbRegion.h"

#include "db/KyDbClassSupport.h"
#include "db/KyDbLoopSupport.h"
#include "db/KyDbStateFiler.h"
#include "ge/KyGePolygonUnion.h"

namespace {

const KyDbPropertyRow kRegionRows[] = {
    {L"Area", kydbiAccess<&KyDbRegion::area>(), KyDbCategory::kGeometry, 0},
};

}  // namespace

KYDB_DEFINE_CLASS(KyDbRegion, KyDbEntity, kRegionRows)

KyDbRegion::KyDbRegion() = default;

KyDbRegion::~KyDbRegion() = default;

Kyro::ErrorStatus KyDbRegion::getShapeAt(int index, KyDbLoopArray& loops) const {
    if (!m_shapes.isValid(index)) {
        return Kyro::eInvalidIndex;
    }
    loops = m_shapes[index];
    return Kyro::eOk;
}

Kyro::ErrorStatus KyDbRegion::addShape(const KyDbLoopArray& loops) {
    if (const Kyro::ErrorStatus status = checkWritable(); status != Kyro::eOk) {
        return status;
    }
    if (loops.isEmpty()) {
        return Kyro::eInvalidInput;
    }
    if (const Kyro::ErrorStatus status = kydbiCheckLoops(loops); status != Kyro::eOk) {
        return status;
    }
    assertWriteEnabled();
    m_shapes.append(loops);
    return Kyro::eOk;
}

Kyro::ErrorStatus KyDbRegion::booleanOper(KyDb::BoolOperType operation, const KyDbRegion* other) {
    if (const Kyro::ErrorStatus status = checkWritable(); status != Kyro::eOk) {
        return status;
    }
    if (other == nullptr) {
        return Kyro::eInvalidInput;
    }
    switch (operation) {
        case KyDb::kBoolUnite:
            // A region united with itself, or with nothing, stays as it is.
            if (other != this && !other->isEmpty()) {
                assertWriteEnabled();
                for (const KyDbLoopArray& shape : other->m_shapes) {
                    m_shapes.append(shape);
                }
            }
            return Kyro::eOk;
        case KyDb::kBoolIntersect:
        case KyDb::kBoolSubtract:
            return Kyro::eNotImplementedYet;
    }
    return Kyro::eInvalidInput;
}

Kyro::ErrorStatus KyDbRegion::getArea(double& area) const {
    area = this->area();
    return Kyro::eOk;
}

double KyDbRegion::area() const {
    KyGePolygonUnion geometry;
    for (const KyDbLoopArray& shape : m_shapes) {
        geometry.addShape(shape);
    }
    return geometry.area();
}

void KyDbRegion::subSaveState(KyDbStateFiler& filer) const {
    KyDbEntity::subSaveState(filer);
    filer.write(m_shapes.length());
    for (const KyDbLoopArray& shape : m_shapes) {
        kydbiSaveLoops(filer, shape);
    }
}

Kyro::ErrorStatus KyDbRegion::subRestoreState(KyDbStateFiler& filer) {
    if (const Kyro::ErrorStatus status = KyDbEntity::subRestoreState(filer); status != Kyro::eOk) {
        return status;
    }
    int count = 0;
    if (!filer.read(count)) {
        return filer.status();
    }
    KyArray<KyDbLoopArray> shapes;
    for (int i = 0; i < count; ++i) {
        KyDbLoopArray loops;
        if (!kydbiRestoreLoops(filer, loops)) {
            return filer.status();
        }
        shapes.append(loops);
    }
    m_shapes = std::move(shapes);
    return filer.status();
}
