// KyRefValueForms: the value forms of drawing files, read from a node and
// written back: colours (0 ByBlock, 256 ByLayer, 1 to 255 an index, or
// {"rgb": [r, g, b]} with an optional colour name and book), transparencies
// ("ByLayer", "ByBlock" or an alpha), lineweights (hundredths of a millimetre
// from the standard list, -1 ByLayer, -2 ByBlock, -3 Default), points
// ([x, y] or [x, y, z]) and handles (hexadecimal text, never "0").
#pragma once

#include "KyRefJson.h"
#include "KyRefJsonNode.h"
#include "base/KyArray.h"
#include "db/KyCmColor.h"
#include "db/KyCmTransparency.h"
#include "db/KyDbEnums.h"
#include "db/KyDbHandle.h"
#include "ge/KyGePoint3d.h"

class KyRefValueForms {
public:
    // Which colours a member takes: any, or those of a layer (an index 1 to
    // 255 or a true colour).
    enum class ColorUse { kAny, kLayer };
    // Which lineweights a member takes: any, or those of a layer (a weight or
    // Default).
    enum class WeightUse { kAny, kLayer };

    static KyCmColor color(const KyRefJsonNode& node, ColorUse use = ColorUse::kAny);
    static KyRefJson color(const KyCmColor& color);

    static KyCmTransparency transparency(const KyRefJsonNode& node);
    static KyRefJson transparency(const KyCmTransparency& transparency);

    static KyDb::LineWeight lineWeight(const KyRefJsonNode& node, WeightUse use = WeightUse::kAny);

    // A point; the third coordinate is 0 when the file gives two.
    static KyGePoint3d point(const KyRefJsonNode& node);
    // [x, y, z]; members that the file gave as [x, y] are shortened again
    // when they are written (KyRefMemberList).
    static KyRefJson point(const KyGePoint3d& point);
    // [x, y] when z is 0, [x, y, z] otherwise: the points of lists.
    static KyRefJson shortPoint(const KyGePoint3d& point);
    // A list of points, and its JSON.
    static KyArray<KyGePoint3d> points(const KyRefJsonNode& node);
    static KyRefJson points(const KyArray<KyGePoint3d>& points);

    static KyDbHandle handle(const KyRefJsonNode& node);
    static KyRefJson handle(KyDbHandle handle);
};
