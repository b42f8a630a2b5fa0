// KyDbRegion: a part of the plane bounded by closed polygons, as an entity.
// It is a set of shapes, each an outer loop less the holes inside it, and it
// covers what any of its shapes covers: shapes may overlap or touch, and the
// area counts what they cover once. Loops are read in plan (z is kept but not
// looked at); a loop is closed, its last point joining its first, and a loop
// that crosses itself covers what it winds round an odd number of times.
//
// A hatch gives its region (KyDbHatch::getRegionArea); regions grow by
// union (booleanOper with kBoolUnite), so the area of several hatches that
// overlap counts each part once.
#pragma once

#include "KyPlatformExport.h"
#include "base/KyArray.h"
#include "db/KyDbEntity.h"
#include "db/KyDbEnums.h"

// A closed polygon, and loops: the first the outer one, the others holes.
using KyDbLoop = KyArray<KyGePoint3d>;
using KyDbLoopArray = KyArray<KyDbLoop>;

class KYPLATFORM_API KyDbRegion : public KyDbEntity {
public:
    KYRX_DECLARE_MEMBERS(KyDbRegion);
    KyDbRegion();
    ~KyDbRegion() override;

    // The least number of points of a loop.
    static constexpr int kMinLoopPoints = 3;

    bool isEmpty() const { return m_shapes.isEmpty(); }
    int numShapes() const { return m_shapes.length(); }
    // The loops of a shape; eInvalidIndex out of range.
    Kyro::ErrorStatus getShapeAt(int index, KyDbLoopArray& loops) const;
    // Adds the shape of `loops`: the first bounds it, the others are holes in
    // it. eInvalidInput without loops or for a loop of fewer than three
    // points, and nothing changes.
    Kyro::ErrorStatus addShape(const KyDbLoopArray& loops);

    // Combines `other` into this region; `other` stays as it is. Union
    // (kBoolUnite) takes in its shapes. Intersection and subtraction are not
    // made yet: eNotImplementedYet. eInvalidInput without `other` or for an
    // unknown operation.
    Kyro::ErrorStatus booleanOper(KyDb::BoolOperType operation, const KyDbRegion* other);

    // The area the region covers, each part counted once.
    Kyro::ErrorStatus getArea(double& area) const;
    double area() const;

protected:
    void subSaveState(KyDbStateFiler& filer) const override;
    Kyro::ErrorStatus subRestoreState(KyDbStateFiler& filer) override;

private:
    KyArray<KyDbLoopArray> m_shapes;
};
