#include "effective/EffectiveEntryTable.h"

#include <cwchar>
#include <iterator>

#include "effective/EffectiveKeys.h"
#include "effective/EffectiveSelectionAccessors.h"

namespace {

using namespace EffectiveKeys;

constexpr std::uint32_t kDirty = KyDiEffectiveEntry::kEntryDirty;
constexpr std::uint32_t kViewport = KyDiEffectiveEntry::kEntryViewportDependent;
constexpr std::uint32_t kLayers = KyDiEffectiveEntry::kEntryLayerDependent;

using Access = EffectiveSelectionAccessors;

KyDiEffectiveEntry row(const wchar_t* key, const wchar_t* propertyName, std::uint32_t flags,
                       std::uint64_t collectionBacked,
                       EffectiveSelectionGetter selectionGetter = nullptr,
                       EffectiveSelectionSetter selectionSetter = nullptr) {
    KyDiEffectiveEntry entry;
    entry.key = key;
    entry.propertyName = propertyName;
    entry.flags = flags;
    entry.selectionGetter = selectionGetter;
    entry.selectionSetter = selectionSetter;
    entry.collectionBacked = collectionBacked;
    return entry;
}

const KyDiEffectiveEntry kRows[] = {
    row(kLayer, L"Layer", kDirty | kViewport | kLayers, 1, &Access::getLayer, &Access::setLayer),
    row(kLinetype, L"LineType", kDirty, 1, &Access::getLinetype, &Access::setLinetype),
    row(kMaterial, L"Material", kDirty, 1, &Access::getMaterial, &Access::setMaterial),
    row(kLineweight, L"Lineweight", kDirty, 0, &Access::getLineweight, &Access::setLineweight),
    row(kColor, L"Color", kDirty, 1, &Access::getColor, &Access::setColor),
    row(kDimStyle, L"DimensionStyle", kDirty, 1, &Access::getDimensionStyle,
        &Access::setDimensionStyle),
    row(kTextStyle, L"TextStyle", kDirty, 1, &Access::getTextStyle, &Access::setTextStyle),
    row(kTableStyle, L"TableStyle", kDirty, 1, &Access::getTableStyle, &Access::setTableStyle),
    row(kMLeaderStyle, L"MultileaderStyle", kDirty, 1, &Access::getMLeaderStyle,
        &Access::setMLeaderStyle),
    row(kSectionViewStyle, L"SectionViewStyle", kDirty, 1, &Access::getSectionViewStyle,
        &Access::setSectionViewStyle),
    row(kDetailViewStyle, L"DetailViewStyle", kDirty, 1, &Access::getDetailViewStyle,
        &Access::setDetailViewStyle),
    row(kTransparency, L"Transparency", kDirty | kLayers, 0, &Access::getTransparency,
        &Access::setTransparency),
    row(kVisualStyle, L"VisualStyle", kDirty, 1),
    row(kScaleList, L"ScaleList", kDirty | kViewport, 1),
    row(kShadowDisplay, L"ShadowDisplay", kDirty, 1),
    row(kLinetypeScale, L"LineTypeScale", kDirty, 0),
    row(kTextSize, L"TextSize", kDirty, 0),
    row(kPlotStyleName, L"PlotStyle", kDirty, 1),
    row(kPlotStyleTable, L"PlotStyleTable", kDirty, 1),
    row(kPlotAttachmentSpace, L"PlotAttachedTo", kDirty, 0),
    row(kPlotStyleTableType, L"PlotStyleTableType", kDirty, 0),
    row(kVsMaterialMode, L"VSMaterialMode", kDirty | kViewport, 0),
    row(kVsFaceColorMode, L"VSFaceColorMode", kDirty | kViewport, 0),
    row(kVsLightingQuality, L"VSLightingQuality", kDirty | kViewport, 0),
    row(kVsFaceStyle, L"VSFaceStyle", kDirty | kViewport, 0),
    row(kVsEdges, L"VSEdges", kDirty | kViewport, 0),
    row(kVsEdgeLex, L"VSEdgeLex", kDirty | kViewport, 0),
    row(kVsSilhWidth, L"VSSilhWidth", kDirty | kViewport, 0),
    row(kVsEdgeJitter, L"VSEdgeJitter", kDirty | kViewport, 0),
    row(kVsFaceOpacity, L"VSFaceOpacity", kDirty | kViewport, 0),
    row(kSunStatus, L"SunStatus", kDirty, 0),
    row(kRasterDpi, L"RasterDPI", kDirty, 0),
    row(kLayout, L"Layout", kDirty, 0),
    row(kPageSetup, L"PageSetup", kDirty, 0),
    row(kTileMode, L"Tilemode", kDirty, 0),
    row(kUcsPerViewport, L"UCSPerViewport", kDirty | kViewport, 0),
    row(kUcsName, L"UCSName", kDirty | kViewport, 0),
};

constexpr int kRowCount = static_cast<int>(std::size(kRows));

// The dependencies not given out yet, by row; taken once per process.
std::uint32_t g_dependencies[kRowCount] = {};
bool g_dependenciesRead = false;

}  // namespace

std::span<const KyDiEffectiveEntry> EffectiveEntryTable::rows() {
    return kRows;
}

int EffectiveEntryTable::find(const wchar_t* key) {
    if (key == nullptr) {
        return -1;
    }
    const std::size_t length = std::wcslen(key);
    for (int i = 0; i < kRowCount; ++i) {
        if (std::wcslen(kRows[i].key) == length && std::wcsncmp(kRows[i].key, key, length) == 0) {
            return i;
        }
    }
    return -1;
}

bool EffectiveEntryTable::takeDependency(int index, std::uint32_t flag) {
    if (!g_dependenciesRead) {
        for (int i = 0; i < kRowCount; ++i) {
            g_dependencies[i] = kRows[i].flags & (kViewport | kLayers);
        }
        g_dependenciesRead = true;
    }
    if (index < 0 || index >= kRowCount || (g_dependencies[index] & flag) == 0) {
        return false;
    }
    g_dependencies[index] &= ~flag;
    return true;
}
