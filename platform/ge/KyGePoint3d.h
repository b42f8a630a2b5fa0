// KyGePoint3d: a point in space. Points compare equal within a tolerance on
// their distance, as geometry computed two ways rarely agrees to the last bit.
#pragma once

#include "KyPlatformExport.h"
#include "rx/KyRxValueType.h"

class KYPLATFORM_API KyGePoint3d {
public:
    // The tolerance of == : two points closer than this are the same point.
    static constexpr double kDefaultTolerance = 1e-10;

    constexpr KyGePoint3d() = default;
    constexpr KyGePoint3d(double xx, double yy, double zz) : x(xx), y(yy), z(zz) {}

    static const KyGePoint3d kOrigin;

    double distanceTo(const KyGePoint3d& other) const;
    bool isEqualTo(const KyGePoint3d& other, double tolerance = kDefaultTolerance) const {
        return distanceTo(other) <= tolerance;
    }
    bool operator==(const KyGePoint3d& other) const { return isEqualTo(other); }
    bool operator!=(const KyGePoint3d& other) const { return !isEqualTo(other); }

    KyGePoint3d& set(double xx, double yy, double zz) {
        x = xx;
        y = yy;
        z = zz;
        return *this;
    }

    double x = 0.0;
    double y = 0.0;
    double z = 0.0;
};

static_assert(sizeof(KyGePoint3d) == 24, "a point fills a value's buffer exactly");

// Named "KyGePoint3d"; blittable, held in a value's own buffer. Members "X",
// "Y", "Z": double properties that read and write one coordinate of the point
// boxed in the object they are given. Text "x,y,z", each coordinate as a
// double prints.
template <>
KYPLATFORM_API const KyRxValueType& KyRxValueType::Desc<KyGePoint3d>::value();
