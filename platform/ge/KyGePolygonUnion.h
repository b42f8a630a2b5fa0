// Internal to the platform; not part of its interface.
//
// KyGePolygonUnion: the part of the XY plane that any of a set of shapes
// covers, and its area. A shape is an outer polygon less the holes in it;
// polygons are closed (the last point joins the first), read in plan (z is
// not looked at) and may run either way round. Within one polygon a point is
// inside by the even-odd rule, so a loop that crosses itself covers what it
// winds round an odd number of times. A shape covers what its outer polygon
// covers and none of its holes does; the union covers what any shape covers.
// So an overlap counts once, shapes that only touch count whole, and a hole
// of one shape that another shape covers is covered.
//
// The area is exact but for the rounding of doubles. The plane is cut into
// vertical slabs at the x of every vertex and of every crossing of two edges.
// Inside a slab no edge begins, ends or crosses another, so the edges keep
// their order from the slab's left side to its right, and the length that a
// vertical line has inside the union is a linear function of x: the slab's
// area is its width times that length at its middle.
#pragma once

#include <vector>

#include "base/KyArray.h"
#include "ge/KyGePoint3d.h"

class KyGePolygonUnion {
public:
    using Polygon = KyArray<KyGePoint3d>;

    // Adds the shape bounded by `loops`: the first is the outer polygon, the
    // others are its holes. A polygon of fewer than three points covers
    // nothing, and cuts nothing out.
    void addShape(const KyArray<Polygon>& loops);
    double area() const;

private:
    // An edge that is not vertical, from left to right.
    struct Edge {
        double x0;
        double y0;
        double x1;
        double y1;
        int shape;
        int loop;  // 0 the outer polygon, above 0 a hole
        double yAt(double x) const { return y0 + (x - x0) * (y1 - y0) / (x1 - x0); }
    };
    // Where the slabs are cut: every vertex and every crossing, in order.
    std::vector<double> cuts() const;
    // The length of the vertical line at `x` that the union covers, given the
    // edges that span `x`.
    static double coveredLength(const std::vector<const Edge*>& spanning, double x);

    std::vector<Edge> m_edges;
    std::vector<double> m_vertexXs;
    int m_shapes = 0;
};
