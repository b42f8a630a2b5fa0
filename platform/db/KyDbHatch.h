// KyDbHatch: an area of the plane filled with a pattern, bounded by closed
// polygons: the first loop is the outer boundary, the others are holes in
// it. A loop's last point joins its first. Points are kept as they are given;
// the area is measured in plan, as the region of the hatch measures it.
#pragma once

#include "KyPlatformExport.h"
#include "base/KyString.h"
#include "db/KyDbEntity.h"
#include "db/KyDbRegion.h"

class KYPLATFORM_API KyDbHatch : public KyDbEntity {
public:
    KYRX_DECLARE_MEMBERS(KyDbHatch);
    // The pattern of a new hatch: filled whole.
    static constexpr const wchar_t* kSolid = L"SOLID";

    KyDbHatch();
    ~KyDbHatch() override;

    // Not empty (eInvalidInput).
    const KyString& patternName() const { return m_patternName; }
    Kyro::ErrorStatus setPatternName(const wchar_t* name);

    const KyDbLoopArray& loops() const { return m_loops; }
    int numLoops() const { return m_loops.length(); }
    // Each loop has at least three points (eInvalidInput, and nothing
    // changes).
    Kyro::ErrorStatus setLoops(const KyDbLoopArray& loops);
    Kyro::ErrorStatus appendLoop(const KyDbLoop& loop);
    // eInvalidIndex out of range.
    Kyro::ErrorStatus removeLoopAt(int index);

    // The area of the outer loop less its holes; 0 without loops.
    double area() const;
    // A new region of the outer loop less its holes, not in any database:
    // the caller deletes it. Null for a hatch without loops.
    KyDbRegion* getRegionArea() const;

protected:
    void subSaveState(KyDbStateFiler& filer) const override;
    Kyro::ErrorStatus subRestoreState(KyDbStateFiler& filer) override;

private:
    KyString m_patternName;
    KyDbLoopArray m_loops;
};
