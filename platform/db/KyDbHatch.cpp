#include "db/KyDbHatch.h"

#include <memory>

#include "db/KyDbClassSupport.h"
#include "db/KyDbLoopSupport.h"
#include "db/KyDbStateFiler.h"
#include "ge/KyGePolygonUnion.h"

namespace {

const KyDbPropertyRow kHatchRows[] = {
    {L"PatternName", kydbiAccess<&KyDbHatch::patternName, &KyDbHatch::setPatternName>(),
     KyDbCategory::kPattern, 0},
    {L"NumLoops", kydbiAccess<&KyDbHatch::numLoops>(), KyDbCategory::kGeometry, 0},
    // The areas of several hatches add up: a palette may show their sum.
    {L"Area",
     kydbiAccess<&KyDbHatch::area>(),
     KyDbCategory::kGeometry,
     1,
     nullptr,
     nullptr,
     {},
     true},
};

}  // namespace

KYDB_DEFINE_ENTITY(KyDbHatch, KyDbEntity, kHatchRows, L"HATCH")

KyDbHatch::KyDbHatch() : m_patternName(kSolid) {}

KyDbHatch::~KyDbHatch() = default;

Kyro::ErrorStatus KyDbHatch::setPatternName(const wchar_t* name) {
    if (const Kyro::ErrorStatus status = checkWritable(); status != Kyro::eOk) {
        return status;
    }
    if (name == nullptr || *name == L'\0') {
        return Kyro::eInvalidInput;
    }
    return setMember(m_patternName, KyString(name));
}

Kyro::ErrorStatus KyDbHatch::setLoops(const KyDbLoopArray& loops) {
    if (const Kyro::ErrorStatus status = checkWritable(); status != Kyro::eOk) {
        return status;
    }
    if (const Kyro::ErrorStatus status = kydbiCheckLoops(loops); status != Kyro::eOk) {
        return status;
    }
    return setMember(m_loops, loops);
}

Kyro::ErrorStatus KyDbHatch::appendLoop(const KyDbLoop& loop) {
    if (const Kyro::ErrorStatus status = checkWritable(); status != Kyro::eOk) {
        return status;
    }
    if (const Kyro::ErrorStatus status = kydbiCheckLoop(loop); status != Kyro::eOk) {
        return status;
    }
    assertWriteEnabled();
    m_loops.append(loop);
    return Kyro::eOk;
}

Kyro::ErrorStatus KyDbHatch::removeLoopAt(int index) {
    if (const Kyro::ErrorStatus status = checkWritable(); status != Kyro::eOk) {
        return status;
    }
    if (!m_loops.isValid(index)) {
        return Kyro::eInvalidIndex;
    }
    assertWriteEnabled();
    m_loops.removeAt(index);
    return Kyro::eOk;
}

double KyDbHatch::area() const {
    KyGePolygonUnion geometry;
    geometry.addShape(m_loops);
    return geometry.area();
}

KyDbRegion* KyDbHatch::getRegionArea() const {
    if (m_loops.isEmpty()) {
        return nullptr;
    }
    auto region = std::make_unique<KyDbRegion>();
    if (region->addShape(m_loops) != Kyro::eOk) {
        return nullptr;
    }
    return region.release();
}

void KyDbHatch::subSaveState(KyDbStateFiler& filer) const {
    KyDbEntity::subSaveState(filer);
    filer.writeString(m_patternName);
    kydbiSaveLoops(filer, m_loops);
}

Kyro::ErrorStatus KyDbHatch::subRestoreState(KyDbStateFiler& filer) {
    if (const Kyro::ErrorStatus status = KyDbEntity::subRestoreState(filer); status != Kyro::eOk) {
        return status;
    }
    filer.read(m_patternName);
    kydbiRestoreLoops(filer, m_loops);
    return filer.status();
}
