// KyDbStandardContent: the content of a new drawing, and the standard names
// that the database itself relies on.
//
// A new drawing (KyDbDatabase(true)) holds: linetypes ByBlock, ByLayer,
// Continuous; layer "0"; text style and dimension style "Standard"; blocks
// *Model_Space and *Paper_Space with their layouts "Model" and "Layout1"; the
// named objects dictionary with its standard entries (layouts, plot settings,
// materials ByLayer, ByBlock and Global, the standard visual styles, the
// "Standard" multileader and table styles, section and detail view styles,
// the standard scale list, plot style names with "Normal" as default, render
// presets, and the variable dictionary); and the header's current items.
#pragma once

#include "KyPlatformExport.h"
#include "base/KyroErrorStatus.h"

class KyDbDatabase;

class KYPLATFORM_API KyDbStandardContent {
public:
    enum Part : unsigned {
        kLinetypes = 0x01,     // ByBlock, ByLayer, Continuous
        kLayers = 0x02,        // "0"
        kTextStyles = 0x04,    // "Standard"
        kDimStyles = 0x08,     // "Standard"
        kBlocks = 0x10,        // *Model_Space, *Paper_Space
        kDictionaries = 0x20,  // the standard entries of the named objects dictionary
        kLayouts = 0x40,       // "Model" and "Layout1", tied to the two blocks
        kHeader = 0x80,        // current items and values of the header not set yet
        kAll = 0xFF,
    };

    // Adds what `parts` names and the database lacks: records by name, the
    // entries of the named objects dictionary by key (an entry that is there
    // is left as it is), header variables not set. A reader calls it for what
    // a file left out. The status of the first write that fails.
    static Kyro::ErrorStatus add(KyDbDatabase* database, unsigned parts);

    // True for ByLayer, ByBlock and Global, in any case.
    static bool isStandardMaterial(const wchar_t* name);
    // True for the name of a visual style a new drawing holds, in any case.
    static bool isStandardVisualStyle(const wchar_t* name);

    // Names the database and its users rely on.
    static const wchar_t* const kLayerZero;
    static const wchar_t* const kByBlock;
    static const wchar_t* const kByLayer;
    static const wchar_t* const kContinuous;
    static const wchar_t* const kStandard;
    static const wchar_t* const kGlobal;
    static const wchar_t* const kModelSpaceName;
    static const wchar_t* const kPaperSpaceName;
    static const wchar_t* const kModelLayoutName;
    static const wchar_t* const kFirstLayoutName;
    static const wchar_t* const kNormalPlotStyle;

    // Keys of the named objects dictionary.
    static const wchar_t* const kLayoutKey;
    static const wchar_t* const kPlotSettingsKey;
    static const wchar_t* const kMaterialKey;
    static const wchar_t* const kVisualStyleKey;
    static const wchar_t* const kMLeaderStyleKey;
    static const wchar_t* const kTableStyleKey;
    static const wchar_t* const kSectionViewStyleKey;
    static const wchar_t* const kDetailViewStyleKey;
    static const wchar_t* const kScaleListKey;
    static const wchar_t* const kPlotStyleNameKey;
    static const wchar_t* const kRenderSettingsKey;
    static const wchar_t* const kVariableKey;
};
