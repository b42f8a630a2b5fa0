// Reserved strings: the names the system gives a meaning of its own (ByLayer,
// Continuous, the standard visual styles, the cell styles of tables ...).
// Each has a global form, the same in every language, which the drawing
// stores, and a local form, in the current language of the platform
// (KyRxResourceInstance::setLanguage), which a user reads and types.
#pragma once

#include "KyPlatformExport.h"

namespace KyDb {

// The kinds of reserved strings, by the numbers their users pass. Global form
// first, then what it names.
enum ReservedStringEnumType : int {
    kByLayer = 0,             // "ByLayer": the value comes from the layer
    kByBlock = 1,             // "ByBlock": the value comes from the block
    kNone = 2,                // "None": no value at all
    kContinuous = 3,          // "Continuous": the solid linetype
    kStandard = 4,            // "Standard": the standard text, dimension, table, leader style
    kNormal = 5,              // "Normal": the default named plot style
    kLayout = 6,              // "Layout": the word new layout names begin with ("Layout1")
    kDefault = 7,             // "Default": the default entry of a list
    kUnnamed = 8,             // "Unnamed": an unnamed view or coordinate system
    kByColor = 9,             // "ByColor": the plot style of color-dependent plotting
    kModel = 10,              // "Model": the model layout
    kGlobal = 11,             // "Global": the global material
    kVS2DWireframe = 12,      // "2dWireframe": visual style
    kVSWireframe = 13,        // "Wireframe": visual style
    kVSHidden = 14,           // "Hidden": visual style
    kVSRealistic = 15,        // "Realistic": visual style
    kVSConceptual = 16,       // "Conceptual": visual style
    kTitle = 17,              // "Title": cell style of a table's title
    kHeader = 18,             // "Header": cell style of a table's headers
    kData = 19,               // "Data": cell style of a table's data
    kVSShadesOfGray = 20,     // "Shades of Gray": visual style
    kVSSketchy = 21,          // "Sketchy": visual style
    kVSXRay = 22,             // "X-Ray": visual style
    kVSShadedWithEdges = 23,  // "Shaded with edges": visual style
    kVSShaded = 24,           // "Shaded": visual style
    // Not a kind: the number of kinds, which also ends lists of kinds.
    kReservedStringCount = 25,
};

}  // namespace KyDb

// The global form of `kind`, or (localized) its form in the current language,
// taken from the platform's resource texts 9300 + kind; the global form when
// the language has none. Null for a kind out of range. The text stays valid
// to the end of the process.
KYPLATFORM_API const wchar_t* kydbGetReservedString(KyDb::ReservedStringEnumType kind,
                                                    bool localized);
// True when `text` is either form of `kind`, without regard to case.
KYPLATFORM_API bool kydbIsReservedString(const wchar_t* text, KyDb::ReservedStringEnumType kind);
// When `text` is either form of a reserved string (without regard to case),
// its local form (toLocal) or its global form; null for any other text.
KYPLATFORM_API const wchar_t* kydbXlateReservedString(const wchar_t* text, bool toLocal);
