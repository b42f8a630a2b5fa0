#include "db/KyDbEntityParts.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "db/KyDbArc.h"
#include "db/KyDbCircle.h"
#include "db/KyDbHatch.h"
#include "db/KyDbLine.h"
#include "db/KyDbPolyline.h"
#include "rx/KyRxClass.h"

namespace {

using Geometry = KyDbEntityPart::Geometry;

// The parts of one class: true when the entity (of that class) has `id`.
using FindPart = bool (*)(const KyDbEntity& entity, const KyDbSubentId& id, Geometry& geometry);

void setEdge(Geometry& geometry, const KyGePoint3d& start, const KyGePoint3d& end, double length) {
    geometry.start = start;
    geometry.end = end;
    geometry.length = length;
}

KyGePoint3d pointAtAngle(const KyGePoint3d& center, double radius, double degrees) {
    const double radians = degrees * std::numbers::pi / 180.0;
    return KyGePoint3d(center.x + radius * std::cos(radians), center.y + radius * std::sin(radians),
                       center.z);
}

bool lineParts(const KyDbEntity& entity, const KyDbSubentId& id, Geometry& geometry) {
    const auto& line = static_cast<const KyDbLine&>(entity);
    switch (id.type()) {
        case KyDb::kEdgeSubentType:
            if (id.index() != 0) {
                return false;
            }
            setEdge(geometry, line.startPoint(), line.endPoint(), line.length());
            return true;
        case KyDb::kVertexSubentType:
            if (id.index() != 0 && id.index() != 1) {
                return false;
            }
            geometry.start = id.index() == 0 ? line.startPoint() : line.endPoint();
            return true;
        default:
            return false;
    }
}

// The area a closed list of points bounds, in the plane of X and Y (a
// polyline lies in a plane parallel to it).
double boundedArea(const KyArray<KyGePoint3d>& points) {
    double twice = 0.0;
    for (int i = 0; i < points.length(); ++i) {
        const KyGePoint3d& a = points[i];
        const KyGePoint3d& b = points[(i + 1) % points.length()];
        twice += a.x * b.y - b.x * a.y;
    }
    return std::abs(twice) / 2.0;
}

bool polylineParts(const KyDbEntity& entity, const KyDbSubentId& id, Geometry& geometry) {
    const auto& polyline = static_cast<const KyDbPolyline&>(entity);
    const KyArray<KyGePoint3d>& points = polyline.points();
    const int count = points.length();
    // A closing segment, and so an area, needs three points, as the length
    // counts it.
    const bool bounds = polyline.isClosed() && count > 2;
    const int index = id.index();
    switch (id.type()) {
        case KyDb::kFaceSubentType:
            if (!bounds || index != 0) {
                return false;
            }
            geometry.area = boundedArea(points);
            return true;
        case KyDb::kEdgeSubentType: {
            const int edges = bounds ? count : std::max(count - 1, 0);
            if (index < 0 || index >= edges) {
                return false;
            }
            const KyGePoint3d& start = points[index];
            const KyGePoint3d& end = points[(index + 1) % count];
            setEdge(geometry, start, end, start.distanceTo(end));
            return true;
        }
        case KyDb::kVertexSubentType:
            if (!points.isValid(index)) {
                return false;
            }
            geometry.start = points[index];
            return true;
        default:
            return false;
    }
}

bool circleParts(const KyDbEntity& entity, const KyDbSubentId& id, Geometry& geometry) {
    const auto& circle = static_cast<const KyDbCircle&>(entity);
    if (id.type() != KyDb::kEdgeSubentType || id.index() != 0) {
        return false;
    }
    const KyGePoint3d start = pointAtAngle(circle.center(), circle.radius(), 0.0);
    setEdge(geometry, start, start, 2.0 * std::numbers::pi * circle.radius());
    return true;
}

bool arcParts(const KyDbEntity& entity, const KyDbSubentId& id, Geometry& geometry) {
    const auto& arc = static_cast<const KyDbArc&>(entity);
    if (id.type() != KyDb::kEdgeSubentType || id.index() != 0) {
        return false;
    }
    setEdge(geometry, pointAtAngle(arc.center(), arc.radius(), arc.startAngle()),
            pointAtAngle(arc.center(), arc.radius(), arc.endAngle()), arc.length());
    return true;
}

// A hatch has one face per loop: the outer one first, then the holes, each
// with the area its loop bounds.
bool hatchParts(const KyDbEntity& entity, const KyDbSubentId& id, Geometry& geometry) {
    const auto& hatch = static_cast<const KyDbHatch&>(entity);
    if (id.type() != KyDb::kFaceSubentType || !hatch.loops().isValid(id.index())) {
        return false;
    }
    geometry.area = boundedArea(hatch.loops()[id.index()]);
    return true;
}

struct PartsRow {
    KyRxClass* (*desc)();
    FindPart find;
};

// One row per class of entity with faces, edges or vertices; the first row
// whose class the entity is of answers.
const PartsRow kPartsRows[] = {
    {&KyDbLine::desc, &lineParts},     {&KyDbPolyline::desc, &polylineParts},
    {&KyDbCircle::desc, &circleParts}, {&KyDbArc::desc, &arcParts},
    {&KyDbHatch::desc, &hatchParts},
};

}  // namespace

bool KyDbEntityParts::find(const KyDbEntity& entity, const KyDbSubentId& subentId,
                           Geometry& geometry) {
    for (const PartsRow& row : kPartsRows) {
        if (entity.isA()->isDerivedFrom(row.desc())) {
            return row.find(entity, subentId, geometry);
        }
    }
    return false;
}
