// Internal to the drawing database; not part of the platform's interface.
//
// KyDbEntityParts: the faces, edges and vertices that each class of entity
// has, counted from 0 within each kind, and their geometry:
// - a line: one edge (0); two vertices, its start (0) and end (1);
// - a polyline: one edge per segment, the closing segment of a closed one
//   last; one vertex per point; a closed one of three points or more one
//   face (0), the area it bounds;
// - a circle, an arc: one edge (0);
// - a hatch: one face per loop, the outer one (0) and then the holes, each
//   with the area its loop bounds.
// A class has one function in the table of KyDbEntityParts.cpp, found for an
// entity of that class or of a class derived from it.
#pragma once

#include "db/KyDbEntityPart.h"
#include "db/KyDbSubentId.h"

class KyDbEntity;

class KyDbEntityParts {
public:
    // True when `entity` has the face, edge or vertex `subentId`, with its
    // geometry in `geometry`; false for every other id.
    static bool find(const KyDbEntity& entity, const KyDbSubentId& subentId,
                     KyDbEntityPart::Geometry& geometry);
};
