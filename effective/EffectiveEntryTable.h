// Not part of the interface: the rows of the effective values, in their
// order, which is also the order in which changes are reported. The rows are
// constant; what is bound to them lives in each instance's copy. The viewport
// and layer dependencies of a row are given out once per process: the first
// instance that binds the key takes them, so that a key stands once on the
// viewport and layer reactors.
#pragma once

#include <cstdint>
#include <span>

#include "effective/KyDiEffectiveEntry.h"

class EffectiveEntryTable {
public:
    static std::span<const KyDiEffectiveEntry> rows();
    // The index of the row of `key`, compared exactly (length, then text);
    // -1 for a key no row has.
    static int find(const wchar_t* key);
    // Whether the row at `index` still had the dependency `flag`
    // (kEntryViewportDependent or kEntryLayerDependent); it has it no more.
    static bool takeDependency(int index, std::uint32_t flag);
};
