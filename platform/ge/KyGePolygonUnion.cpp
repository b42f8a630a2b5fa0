#include "ge/KyGePolygonUnion.h"

#include <algorithm>
#include <utility>

namespace {

using Interval = std::pair<double, double>;

// Sorts `intervals` and joins those that overlap or touch.
void merge(std::vector<Interval>& intervals) {
    if (intervals.empty()) {
        return;
    }
    std::sort(intervals.begin(), intervals.end());
    std::size_t last = 0;
    for (std::size_t i = 1; i < intervals.size(); ++i) {
        if (intervals[i].first <= intervals[last].second) {
            intervals[last].second = std::max(intervals[last].second, intervals[i].second);
        } else {
            intervals[++last] = intervals[i];
        }
    }
    intervals.resize(last + 1);
}

// Appends to `out` what of `from` none of `holes` covers; both are sorted and
// without overlaps.
void subtract(const std::vector<Interval>& from, const std::vector<Interval>& holes,
              std::vector<Interval>& out) {
    std::size_t first = 0;
    for (const auto& [low, high] : from) {
        while (first < holes.size() && holes[first].second <= low) {
            ++first;
        }
        double start = low;
        for (std::size_t h = first; h < holes.size() && holes[h].first < high; ++h) {
            if (holes[h].first > start) {
                out.emplace_back(start, holes[h].first);
            }
            start = std::max(start, holes[h].second);
        }
        if (start < high) {
            out.emplace_back(start, high);
        }
    }
}

}  // namespace

void KyGePolygonUnion::addShape(const KyArray<Polygon>& loops) {
    const int shape = m_shapes++;
    for (int loop = 0; loop < loops.length(); ++loop) {
        const Polygon& points = loops[loop];
        const int count = points.length();
        if (count < 3) {
            continue;
        }
        for (int i = 0; i < count; ++i) {
            const KyGePoint3d& from = points[i];
            const KyGePoint3d& to = points[(i + 1) % count];
            m_vertexXs.push_back(from.x);
            // A vertical edge spans no slab: its x is a vertex's already.
            if (from.x < to.x) {
                m_edges.push_back({from.x, from.y, to.x, to.y, shape, loop});
            } else if (to.x < from.x) {
                m_edges.push_back({to.x, to.y, from.x, from.y, shape, loop});
            }
        }
    }
}

std::vector<double> KyGePolygonUnion::cuts() const {
    std::vector<double> xs = m_vertexXs;
    std::vector<const Edge*> byLeft;
    byLeft.reserve(m_edges.size());
    for (const Edge& edge : m_edges) {
        byLeft.push_back(&edge);
    }
    std::sort(byLeft.begin(), byLeft.end(),
              [](const Edge* a, const Edge* b) { return a->x0 < b->x0; });
    // Only edges whose x ranges overlap can cross.
    for (std::size_t i = 0; i < byLeft.size(); ++i) {
        const Edge& p = *byLeft[i];
        for (std::size_t j = i + 1; j < byLeft.size() && byLeft[j]->x0 < p.x1; ++j) {
            const Edge& q = *byLeft[j];
            if (std::max(p.y0, p.y1) < std::min(q.y0, q.y1) ||
                std::max(q.y0, q.y1) < std::min(p.y0, p.y1)) {
                continue;
            }
            const double rx = p.x1 - p.x0;
            const double ry = p.y1 - p.y0;
            const double sx = q.x1 - q.x0;
            const double sy = q.y1 - q.y0;
            const double denominator = rx * sy - ry * sx;
            if (denominator == 0.0) {
                continue;  // parallel: collinear edges that overlap never swap
            }
            const double qx = q.x0 - p.x0;
            const double qy = q.y0 - p.y0;
            const double t = (qx * sy - qy * sx) / denominator;
            const double u = (qx * ry - qy * rx) / denominator;
            // Edges that meet at an end of either meet at a vertex, cut already.
            if (t > 0.0 && t < 1.0 && u > 0.0 && u < 1.0) {
                xs.push_back(std::clamp(p.x0 + t * rx, q.x0, std::min(p.x1, q.x1)));
            }
        }
    }
    std::sort(xs.begin(), xs.end());
    xs.erase(std::unique(xs.begin(), xs.end()), xs.end());
    return xs;
}

double KyGePolygonUnion::coveredLength(const std::vector<const Edge*>& spanning, double x) {
    struct Hit {
        int shape;
        int loop;
        double y;
        bool operator<(const Hit& other) const {
            if (shape != other.shape) {
                return shape < other.shape;
            }
            return loop != other.loop ? loop < other.loop : y < other.y;
        }
    };
    std::vector<Hit> hits;
    hits.reserve(spanning.size());
    for (const Edge* edge : spanning) {
        hits.push_back({edge->shape, edge->loop, edge->yAt(x)});
    }
    std::sort(hits.begin(), hits.end());

    std::vector<Interval> covered;
    std::vector<Interval> outer;
    std::vector<Interval> holes;
    std::size_t i = 0;
    while (i < hits.size()) {
        const int shape = hits[i].shape;
        outer.clear();
        holes.clear();
        while (i < hits.size() && hits[i].shape == shape) {
            // The crossings of one polygon, bottom to top, bound what it
            // covers in pairs (even-odd).
            const int loop = hits[i].loop;
            std::size_t end = i;
            while (end < hits.size() && hits[end].shape == shape && hits[end].loop == loop) {
                ++end;
            }
            for (std::size_t k = i; k + 1 < end; k += 2) {
                (loop == 0 ? outer : holes).emplace_back(hits[k].y, hits[k + 1].y);
            }
            i = end;
        }
        merge(holes);
        subtract(outer, holes, covered);
    }
    merge(covered);
    double length = 0.0;
    for (const auto& [low, high] : covered) {
        length += high - low;
    }
    return length;
}

double KyGePolygonUnion::area() const {
    if (m_edges.empty()) {
        return 0.0;
    }
    const std::vector<double> xs = cuts();
    std::vector<const Edge*> byLeft;
    byLeft.reserve(m_edges.size());
    for (const Edge& edge : m_edges) {
        byLeft.push_back(&edge);
    }
    std::sort(byLeft.begin(), byLeft.end(),
              [](const Edge* a, const Edge* b) { return a->x0 < b->x0; });

    std::vector<const Edge*> spanning;
    std::size_t next = 0;
    double total = 0.0;
    for (std::size_t k = 0; k + 1 < xs.size(); ++k) {
        const double left = xs[k];
        const double right = xs[k + 1];
        const double middle = left + (right - left) / 2.0;
        // Two neighbouring doubles have no middle: the slab is too thin to
        // hold any area.
        if (!(left < middle && middle < right)) {
            continue;
        }
        while (next < byLeft.size() && byLeft[next]->x0 < middle) {
            spanning.push_back(byLeft[next++]);
        }
        std::erase_if(spanning, [middle](const Edge* edge) { return edge->x1 <= middle; });
        total += (right - left) * coveredLength(spanning, middle);
    }
    return total;
}
