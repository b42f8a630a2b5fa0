#include "contexts/KyDiDrawingContextProperties.h"

#include <cwchar>
#include <iterator>

#include "contexts/KyDiDrawingContext.h"
#include "currency/DataItemCurrencyTrackerBase.h"
#include "db/KyCmColor.h"
#include "db/KyCmTransparency.h"
#include "db/KyDbEnums.h"
#include "db/KyDbObjectId.h"
#include "effective/EffectiveKeys.h"
#include "effective/KyDiImpEffectiveProperty.h"
#include "kydi/KyDiCollection.h"
#include "kydi/KyDiDataItemFactory.h"
#include "kydi/KyDiDbItem.h"
#include "kydi/KyDiEffectiveValue.h"
#include "kydi/KyDiManager.h"
#include "kydi/KyDiValueTypes.h"
#include "manager/KnownCollectionRegistry.h"
#include "manager/RefreshPass.h"
#include "rx/KyRxClass.h"
#include "rx/KyRxStandardAttributes.h"

namespace {

// How a value and the effective item stand for each other.
enum class Family {
    kRecord,         // the id of the item's record
    kItem,           // the item itself
    kColor,          // the colour the item holds
    kLineweight,     // the lineweight the item holds
    kShadowDisplay,  // the shadow flags the item holds
    kTransparency,   // the transparency the item holds
    kReal,           // the real number the item holds
    kShort,          // the 16-bit number the item holds, as an int
    kFlag,           // the 16-bit number the item holds, as a flag
    kText,           // the text the item holds
};

// Where a property can be read.
enum class Space {
    kAny,
    kModel,                    // TileMode true
    kModelOutsideBlockEditor,  // TileMode true, no block open in the editor
    kLayout,                   // TileMode false
};

// What must hold for a write.
enum class WriteGuard {
    kNone,
    kFacesShown,  // VSFaceStyle is not 0
    kEdgesShown,  // VSEdges is not 0
};

enum WriteKind : unsigned char {
    kReadOnly,
    kWritable,
    // A write that answers what the effective property did with it.
    kWritableWithStatus,
};

}  // namespace

struct DrawingContextPropertyRow {
    const wchar_t* name;
    const wchar_t* key;
    Family family;
    Space space = Space::kAny;
    WriteKind write = kWritable;
    WriteGuard writeGuard = WriteGuard::kNone;
    // The attributes; a null path, unit type below 0, id 0 or null category
    // adds none.
    const wchar_t* refersTo = nullptr;
    bool displaysName = false;
    int unitType = -1;
    unsigned nameId = 0;
    unsigned nameTable = 0;
    unsigned descriptionId = 0;
    unsigned descriptionTable = 0;
    const wchar_t* category = nullptr;
    unsigned order = 0;
    // The placement comes ahead of the name and the description.
    bool placementFirst = false;
};

namespace {

using namespace EffectiveKeys;
using Row = DrawingContextPropertyRow;

constexpr const wchar_t* kGeneral = L"General";
constexpr const wchar_t* kAnnotation = L"Annotation";
constexpr const wchar_t* kVisualization = L"3D Visualization";
constexpr const wchar_t* kPlotStyle = L"PlotStyle";
constexpr const wchar_t* kFaceEffects = L"Face Effects";
constexpr const wchar_t* kEdgeEffects = L"Edge Effects";

// A property placed in `category`, named from the first table and described
// from the table of descriptions; everything else as a row starts.
Row placed(const wchar_t* name, const wchar_t* key, Family family, unsigned nameId,
           unsigned descriptionId, const wchar_t* category, unsigned order) {
    Row row{name, key, family};
    row.nameId = nameId;
    row.descriptionId = descriptionId;
    row.descriptionTable = descriptionId != 0 ? 1 : 0;
    row.category = category;
    row.order = order;
    return row;
}

// A record of a list, shown by its name.
Row record(const wchar_t* name, const wchar_t* key, const wchar_t* path, unsigned nameId,
           unsigned descriptionId, const wchar_t* category, unsigned order) {
    Row row = placed(name, key, Family::kRecord, nameId, descriptionId, category, order);
    row.refersTo = path;
    row.displaysName = true;
    return row;
}

// An item of a list, shown as it is.
Row item(const wchar_t* name, const wchar_t* key, const wchar_t* path, unsigned nameId,
         unsigned descriptionId, unsigned order, const wchar_t* category) {
    Row row = placed(name, key, Family::kItem, nameId, descriptionId, category, order);
    row.refersTo = path;
    return row;
}

// A value with no list of its own.
Row value(const wchar_t* name, const wchar_t* key, Family family, unsigned nameId,
          unsigned descriptionId, const wchar_t* category, unsigned order, int unitType = -1) {
    Row row = placed(name, key, family, nameId, descriptionId, category, order);
    row.unitType = unitType;
    return row;
}

// A visual style setting of the view, in model space outside the block
// editor.
Row visualStyle(const wchar_t* name, const wchar_t* key, unsigned nameId, const wchar_t* category,
                unsigned order, WriteGuard guard = WriteGuard::kNone) {
    Row row = placed(name, key, Family::kShort, nameId, 0, category, order);
    row.space = Space::kModelOutsideBlockEditor;
    row.writeGuard = guard;
    return row;
}

// A setting of the layout or of the viewport's coordinate system, named and
// described from the third table, its placement first.
Row spaceSetting(const wchar_t* name, const wchar_t* key, Family family, Space space,
                 WriteKind write, unsigned nameId, unsigned descriptionId, const wchar_t* category,
                 unsigned order) {
    Row row = placed(name, key, family, nameId, descriptionId, category, order);
    row.space = space;
    row.write = write;
    row.nameTable = 3;
    row.descriptionTable = descriptionId != 0 ? 3 : 0;
    row.placementFirst = true;
    return row;
}

Row readOnly(Row row) {
    row.write = kReadOnly;
    return row;
}

Row inSpace(Row row, Space space) {
    row.space = space;
    return row;
}

// In the order of registration.
const Row kRows[] = {
    value(L"Color", kColor, Family::kColor, 112, 2308, kGeneral, 1),
    record(L"Layer", kLayer, L"/LayerTableId/Items", 164, 2174, kGeneral, 2),
    record(L"LineType", kLinetype, L"/LinetypeTableId/Items", 196, 2178, kGeneral, 3),
    value(L"Lineweight", kLineweight, Family::kLineweight, 203, 2222, kGeneral, 10),
    value(L"Transparency", kTransparency, Family::kTransparency, 807, 7203, kGeneral, 15),
    value(L"LineTypeScale", kLinetypeScale, Family::kReal, 81, 2182, kGeneral, 5, 0),
    value(L"TextSize", kTextSize, Family::kReal, 1165, 0, kAnnotation, 20, 1),
    record(L"TextStyle", kTextStyle, L"/TextStyleTableId/Items", 1166, 6266, kAnnotation, 9),
    record(L"DimensionStyle", kDimStyle, L"/DimStyleTableId/Items", 1167, 2720, kAnnotation, 10),
    record(L"MultileaderStyle", kMLeaderStyle, L"/MLeaderStyleDictionaryId/Items", 741, 6312,
           kAnnotation, 11),
    record(L"SectionViewStyle", kSectionViewStyle, L"/SectionViewStyleDictionaryId/Items", 1273,
           7370, kAnnotation, 11),
    record(L"DetailViewStyle", kDetailViewStyle, L"/DetailViewStyleDictionaryId/Items", 1274, 7371,
           kAnnotation, 11),
    record(L"TableStyle", kTableStyle, L"/TableStyleDictionaryId/Items", 332, 0, kAnnotation, 12),
    record(L"Material", kMaterial, L"/MaterialDictionaryId/Items", 663, 7001, kVisualization, 13),
    inSpace(record(L"VisualStyle", kVisualStyle, L"/VisualStyleDictionaryId/Items", 557, 0,
                   L"Visual Style", 0),
            Space::kModel),
    item(L"ScaleList", kScaleList, L"/ScaleListDictionaryId/Items", 939, 0, 15, kAnnotation),
    value(L"ShadowDisplay", kShadowDisplay, Family::kShadowDisplay, 621, 6057, kVisualization, 16),
    item(L"PlotStyle", kPlotStyleName, L"/PlotStyleNameDictionaryId/Items", 51, 2218, 17,
         kPlotStyle),
    item(L"PlotStyleTable", kPlotStyleTable, L"/PlotStyleTable/Items", 134, 0, 18, kPlotStyle),
    readOnly(
        value(L"PlotAttachedTo", kPlotAttachmentSpace, Family::kText, 1103, 0, kPlotStyle, 19)),
    readOnly(
        value(L"PlotStyleTableType", kPlotStyleTableType, Family::kText, 1104, 0, kPlotStyle, 20)),
    visualStyle(L"VSMaterialMode", kVsMaterialMode, 1105, kFaceEffects, 25),
    visualStyle(L"VSFaceColorMode", kVsFaceColorMode, 1106, kFaceEffects, 15),
    visualStyle(L"VSLightingQuality", kVsLightingQuality, 1108, kFaceEffects, 20),
    visualStyle(L"VSFaceStyle", kVsFaceStyle, 1107, kFaceEffects, 5),
    visualStyle(L"VSEdges", kVsEdges, 1109, kEdgeEffects, 30),
    visualStyle(L"VSEdgeLex", kVsEdgeLex, 1110, kEdgeEffects, 45, WriteGuard::kEdgesShown),
    visualStyle(L"VSEdgeJitter", kVsEdgeJitter, 1111, kEdgeEffects, 35, WriteGuard::kEdgesShown),
    visualStyle(L"VSSilhWidth", kVsSilhWidth, 1113, kEdgeEffects, 40),
    visualStyle(L"VSFaceOpacity", kVsFaceOpacity, 1112, kFaceEffects, 10, WriteGuard::kFacesShown),
    // Not placed: read and written by name only.
    {L"TileMode", kTileMode, Family::kFlag, Space::kAny, kWritableWithStatus},
    spaceSetting(L"Layout", kLayout, Family::kText, Space::kLayout, kWritable, 242, 0, L"Layout",
                 50),
    spaceSetting(L"PageSetup", kPageSetup, Family::kText, Space::kLayout, kReadOnly, 244, 0,
                 L"Layout", 55),
    spaceSetting(L"RasterDPI", kRasterDpi, Family::kShort, Space::kLayout, kWritable, 246, 0,
                 L"Layout", 60),
    spaceSetting(L"UCSPerViewport", kUcsPerViewport, Family::kFlag, Space::kModel, kWritable, 149,
                 165, L"UCS", 22),
    spaceSetting(L"UCSName", kUcsName, Family::kText, Space::kModel, kReadOnly, 150, 166, L"UCS",
                 22),
};

const Row& rowNamed(const wchar_t* name) {
    for (const Row& row : kRows) {
        if (std::wcscmp(row.name, name) == 0) {
            return row;
        }
    }
    // Every class below names a row.
    kyrx_abort(L"No drawing context property %ls", name);
}

const KyRxValueType& typeOf(Family family) {
    switch (family) {
        case Family::kRecord:
            return KyRxValueType::Desc<KyDbObjectId>::value();
        case Family::kItem:
            return KyRxValueType::Desc<KyDiDynamicObject*>::value();
        case Family::kColor:
            return KyRxValueType::Desc<KyCmColor>::value();
        case Family::kLineweight:
            return KyRxValueType::Desc<KyDb::LineWeight>::value();
        case Family::kShadowDisplay:
            return KyRxValueType::Desc<KyDb::ShadowFlags>::value();
        case Family::kTransparency:
            return KyRxValueType::Desc<KyCmTransparency>::value();
        case Family::kReal:
            return KyRxValueType::Desc<double>::value();
        case Family::kShort:
            return KyRxValueType::Desc<int>::value();
        case Family::kFlag:
            return KyRxValueType::Desc<bool>::value();
        case Family::kText:
            break;
    }
    return KyRxValueType::Desc<KyString>::value();
}

// The 32-bit number of an enumerated value or an int; false for another.
bool numberOf(const KyRxValue* value, int& out) {
    if (value == nullptr || value->isEmpty() ||
        (value->type().enumeration() == nullptr &&
         value->type() != KyRxValueType::Desc<int>::value()) ||
        value->type().size() != sizeof(int)) {
        return false;
    }
    out = *static_cast<const int*>(value->valuePtr());
    return true;
}

// The value that stands for `item` (null: none) in a property of `family`.
KyRxValue valueOf(Family family, KyDiDynamicObject* item) {
    const KyRxValue* held = item != nullptr ? item->value() : nullptr;
    switch (family) {
        case Family::kRecord: {
            const auto* record = kyrxCast<KyDiDbItem>(static_cast<KyRxObject*>(item));
            return KyRxValue(record != nullptr ? record->objectId() : KyDbObjectId::kNull);
        }
        case Family::kItem:
            return KyRxValue(item);
        case Family::kColor: {
            const KyCmColor* color = valueCast<KyCmColor>(held);
            return KyRxValue(color != nullptr ? *color : KyCmColor());
        }
        case Family::kLineweight: {
            int weight = KyDb::kLnWtByLwDefault;
            numberOf(held, weight);
            return KyRxValue(static_cast<KyDb::LineWeight>(weight));
        }
        case Family::kShadowDisplay: {
            int flags = KyDb::kShadowsIgnore;
            numberOf(held, flags);
            return KyRxValue(static_cast<KyDb::ShadowFlags>(flags));
        }
        case Family::kTransparency: {
            const KyCmTransparency* transparency = valueCast<KyCmTransparency>(held);
            return KyRxValue(transparency != nullptr ? *transparency : KyCmTransparency());
        }
        case Family::kReal: {
            const double* number = valueCast<double>(held);
            return KyRxValue(number != nullptr ? *number : 0.0);
        }
        case Family::kShort: {
            const short* number = valueCast<short>(held);
            return KyRxValue(number != nullptr ? int{*number} : 0);
        }
        case Family::kFlag: {
            const short* number = valueCast<short>(held);
            return KyRxValue(number == nullptr || *number != 0);
        }
        case Family::kText:
            break;
    }
    const KyString* text = valueCast<KyString>(held);
    return KyRxValue(text != nullptr ? *text : KyString());
}

// The read of a property, the space guard first: a guarded property read on
// an object of another class fails its guard.
Kyro::ErrorStatus read(const Row& row, const KyRxObject* object, KyRxValue& out);

// Whether property `name` of `object` reads as `expected`.
template <typename T>
bool readsAs(const KyRxObject* object, const wchar_t* name, T expected) {
    KyRxValue value = KyRxValue::varies();
    read(rowNamed(name), object, value);
    const T* held = valueCast<T>(&value);
    return held != nullptr && *held == expected;
}

Kyro::ErrorStatus read(const Row& row, const KyRxObject* object, KyRxValue& out) {
    if (object == nullptr) {
        return Kyro::eNotThatKindOfClass;
    }
    switch (row.space) {
        case Space::kAny:
            break;
        case Space::kModel:
            if (!readsAs(object, L"TileMode", true)) {
                return Kyro::eNotApplicable;
            }
            break;
        case Space::kModelOutsideBlockEditor:
            if (!readsAs(object, L"TileMode", true) || RefreshPass::inBlockEditor()) {
                return Kyro::eNotApplicable;
            }
            break;
        case Space::kLayout:
            if (!readsAs(object, L"TileMode", false)) {
                return Kyro::eNotApplicable;
            }
            break;
    }
    const auto* context = kyrxCast<KyDiDrawingContext>(object);
    if (context == nullptr) {
        return Kyro::eNotThatKindOfClass;
    }
    out = valueOf(row.family, context->effectiveProperty()->getItem(row.key));
    return Kyro::eOk;
}

// The first item of the tracker of `key` that shows `value`; null without a
// tracker or such an item.
KyDiDynamicObject* trackerItem(const wchar_t* key, const KyDiEffectiveValue& value) {
    auto* tracker = dynamic_cast<DataItemCurrencyTrackerBase*>(
        KnownCollectionRegistry::getCurrencyTracker(key, false));
    return tracker != nullptr ? tracker->findItem(value) : nullptr;
}

// The item of the enumeration's values whose number is `number`; null when
// the key has no tracker yet or no value has that number.
KyDiDynamicObject* enumItem(const wchar_t* key, const KyRxValueType& type, int number) {
    if (KnownCollectionRegistry::getCurrencyTracker(key, false) == nullptr) {
        return nullptr;
    }
    KyDiCollection* values = KyDiManager::getCollection(type.enumeration());
    if (values == nullptr) {
        return nullptr;
    }
    const KyDiItemArray& items = values->getItems();
    for (int i = 0; i < items.length(); ++i) {
        int held = 0;
        if (numberOf(items[i]->value(), held) && held == number) {
            return items[i];
        }
    }
    return nullptr;
}

// Makes current an item that only holds `value`, made for the write.
Kyro::ErrorStatus applyValue(KyDiImpEffectiveProperty& effective, const wchar_t* key,
                             const KyRxValue& value) {
    KyDiDynamicObject* held = createDataItem(KyString(), value);
    const Kyro::ErrorStatus status = effective.setItem(key, held);
    deleteItem(held);
    return status;
}

// The write of a value of the row's type; the status of what the effective
// property did, eOk when no item was found.
Kyro::ErrorStatus write(const Row& row, KyDiImpEffectiveProperty& effective,
                        const KyRxValue& value) {
    KyDiEffectiveValue wanted;
    KyDiDynamicObject* found = nullptr;
    switch (row.family) {
        case Family::kRecord:
            wanted.kind = KyDiEffectiveValue::kObjectId;
            wanted.objectId = *valueCast<KyDbObjectId>(&value);
            found = trackerItem(row.key, wanted);
            break;
        case Family::kColor:
            wanted.kind = KyDiEffectiveValue::kColor;
            wanted.color = *valueCast<KyCmColor>(&value);
            found = trackerItem(row.key, wanted);
            break;
        case Family::kTransparency:
            wanted.kind = KyDiEffectiveValue::kTransparency;
            wanted.transparency = *valueCast<KyCmTransparency>(&value);
            found = trackerItem(row.key, wanted);
            break;
        case Family::kLineweight:
        case Family::kShadowDisplay: {
            int number = 0;
            numberOf(&value, number);
            found = enumItem(row.key, value.type(), number);
            break;
        }
        case Family::kItem:
            found = *valueCast<KyDiDynamicObject*>(&value);
            break;
        case Family::kShort:
            return applyValue(effective, row.key,
                              KyRxValue(static_cast<short>(*valueCast<int>(&value))));
        case Family::kFlag:
            return applyValue(effective, row.key,
                              KyRxValue(static_cast<short>(*valueCast<bool>(&value) ? 1 : 0)));
        case Family::kReal:
        case Family::kText:
            return applyValue(effective, row.key, value);
    }
    return found != nullptr ? effective.setItem(row.key, found) : Kyro::eOk;
}

}  // namespace

KyDiDrawingContextProperty::KyDiDrawingContextProperty(const wchar_t* name, const KyRxObject* owner)
    : KyRxProperty(name, typeOf(rowNamed(name).family), owner), m_row(rowNamed(name)) {
    KyRxAttributeCollection& attributes = this->attributes();
    const auto addPlacement = [&] {
        if (m_row.category != nullptr) {
            attributes.add(new KyRxUiPlacementAttribute(m_row.category, m_row.order));
        }
    };
    if (m_row.refersTo != nullptr) {
        attributes.add(new KyRxRefersToAttribute(m_row.refersTo));
    }
    if (m_row.displaysName) {
        attributes.add(new KyRxDisplayAsAttribute(L"Name"));
    }
    if (m_row.unitType >= 0) {
        attributes.add(new KyRxUnitTypeAttribute(m_row.unitType));
    }
    if (m_row.placementFirst) {
        addPlacement();
    }
    if (m_row.nameId != 0) {
        attributes.add(new KyRxLocalizedNameAttribute(m_row.nameId, m_row.nameTable));
    }
    if (m_row.descriptionId != 0) {
        attributes.add(new KyRxDescriptionAttribute(m_row.descriptionId, m_row.descriptionTable));
    }
    if (!m_row.placementFirst) {
        addPlacement();
    }
}

Kyro::ErrorStatus KyDiDrawingContextProperty::subGetValue(const KyRxObject* object,
                                                          KyRxValue& value) const {
    return read(m_row, object, value);
}

Kyro::ErrorStatus KyDiDrawingContextProperty::subSetValue(KyRxObject* object,
                                                          const KyRxValue& value) const {
    if (m_row.write == kReadOnly) {
        return KyRxProperty::subSetValue(object, value);
    }
    auto* context = kyrxCast<KyDiDrawingContext>(object);
    if (context == nullptr) {
        return Kyro::eNotThatKindOfClass;
    }
    if ((m_row.writeGuard == WriteGuard::kFacesShown && readsAs(object, L"VSFaceStyle", 0)) ||
        (m_row.writeGuard == WriteGuard::kEdgesShown && readsAs(object, L"VSEdges", 0))) {
        return Kyro::eNotApplicable;
    }
    if (value.isEmpty() || value.type() != type()) {
        return Kyro::eInvalidInput;
    }
    if (const KyCmColor* color = valueCast<KyCmColor>(&value);
        color != nullptr && color->isNone()) {
        return Kyro::eInvalidInput;
    }
    const Kyro::ErrorStatus status = write(m_row, *context->effectiveProperty(), value);
    return m_row.write == kWritableWithStatus ? status : Kyro::eOk;
}

bool KyDiDrawingContextProperty::subIsReadOnly() const {
    return m_row.write == kReadOnly;
}

// Each property of the context, named after it.
#define KYDI_DRAWING_CONTEXT_PROPERTY(NAME)                                              \
    class KyDiDrawingContext##NAME##Property final : public KyDiDrawingContextProperty { \
    public:                                                                              \
        explicit KyDiDrawingContext##NAME##Property(const KyRxObject* owner)             \
            : KyDiDrawingContextProperty(L## #NAME, owner) {}                            \
    };

KYDI_DRAWING_CONTEXT_PROPERTY(Color)
KYDI_DRAWING_CONTEXT_PROPERTY(Layer)
KYDI_DRAWING_CONTEXT_PROPERTY(LineType)
KYDI_DRAWING_CONTEXT_PROPERTY(Lineweight)
KYDI_DRAWING_CONTEXT_PROPERTY(Transparency)
KYDI_DRAWING_CONTEXT_PROPERTY(LineTypeScale)
KYDI_DRAWING_CONTEXT_PROPERTY(TextSize)
KYDI_DRAWING_CONTEXT_PROPERTY(TextStyle)
KYDI_DRAWING_CONTEXT_PROPERTY(DimensionStyle)
KYDI_DRAWING_CONTEXT_PROPERTY(MultileaderStyle)
KYDI_DRAWING_CONTEXT_PROPERTY(SectionViewStyle)
KYDI_DRAWING_CONTEXT_PROPERTY(DetailViewStyle)
KYDI_DRAWING_CONTEXT_PROPERTY(TableStyle)
KYDI_DRAWING_CONTEXT_PROPERTY(Material)
KYDI_DRAWING_CONTEXT_PROPERTY(VisualStyle)
KYDI_DRAWING_CONTEXT_PROPERTY(ScaleList)
KYDI_DRAWING_CONTEXT_PROPERTY(ShadowDisplay)
KYDI_DRAWING_CONTEXT_PROPERTY(PlotStyle)
KYDI_DRAWING_CONTEXT_PROPERTY(PlotStyleTable)
KYDI_DRAWING_CONTEXT_PROPERTY(PlotAttachedTo)
KYDI_DRAWING_CONTEXT_PROPERTY(PlotStyleTableType)
KYDI_DRAWING_CONTEXT_PROPERTY(VSMaterialMode)
KYDI_DRAWING_CONTEXT_PROPERTY(VSFaceColorMode)
KYDI_DRAWING_CONTEXT_PROPERTY(VSLightingQuality)
KYDI_DRAWING_CONTEXT_PROPERTY(VSFaceStyle)
KYDI_DRAWING_CONTEXT_PROPERTY(VSEdges)
KYDI_DRAWING_CONTEXT_PROPERTY(VSEdgeLex)
KYDI_DRAWING_CONTEXT_PROPERTY(VSEdgeJitter)
KYDI_DRAWING_CONTEXT_PROPERTY(VSSilhWidth)
KYDI_DRAWING_CONTEXT_PROPERTY(VSFaceOpacity)
KYDI_DRAWING_CONTEXT_PROPERTY(TileMode)
KYDI_DRAWING_CONTEXT_PROPERTY(Layout)
KYDI_DRAWING_CONTEXT_PROPERTY(PageSetup)
KYDI_DRAWING_CONTEXT_PROPERTY(RasterDPI)
KYDI_DRAWING_CONTEXT_PROPERTY(UCSPerViewport)
KYDI_DRAWING_CONTEXT_PROPERTY(UCSName)

#undef KYDI_DRAWING_CONTEXT_PROPERTY

void KyDiDrawingContext::buildMembers(KyRxMemberCollectionBuilder& builder, void* /*userData*/) {
    const KyRxObject* owner = builder.owner();
    builder.add(new KyDiDrawingContextColorProperty(owner));
    builder.add(new KyDiDrawingContextLayerProperty(owner));
    builder.add(new KyDiDrawingContextLineTypeProperty(owner));
    builder.add(new KyDiDrawingContextLineweightProperty(owner));
    builder.add(new KyDiDrawingContextTransparencyProperty(owner));
    builder.add(new KyDiDrawingContextLineTypeScaleProperty(owner));
    builder.add(new KyDiDrawingContextTextSizeProperty(owner));
    builder.add(new KyDiDrawingContextTextStyleProperty(owner));
    builder.add(new KyDiDrawingContextDimensionStyleProperty(owner));
    builder.add(new KyDiDrawingContextMultileaderStyleProperty(owner));
    builder.add(new KyDiDrawingContextSectionViewStyleProperty(owner));
    builder.add(new KyDiDrawingContextDetailViewStyleProperty(owner));
    builder.add(new KyDiDrawingContextTableStyleProperty(owner));
    builder.add(new KyDiDrawingContextMaterialProperty(owner));
    builder.add(new KyDiDrawingContextVisualStyleProperty(owner));
    builder.add(new KyDiDrawingContextScaleListProperty(owner));
    builder.add(new KyDiDrawingContextShadowDisplayProperty(owner));
    builder.add(new KyDiDrawingContextPlotStyleProperty(owner));
    builder.add(new KyDiDrawingContextPlotStyleTableProperty(owner));
    builder.add(new KyDiDrawingContextPlotAttachedToProperty(owner));
    builder.add(new KyDiDrawingContextPlotStyleTableTypeProperty(owner));
    builder.add(new KyDiDrawingContextVSMaterialModeProperty(owner));
    builder.add(new KyDiDrawingContextVSFaceColorModeProperty(owner));
    builder.add(new KyDiDrawingContextVSLightingQualityProperty(owner));
    builder.add(new KyDiDrawingContextVSFaceStyleProperty(owner));
    builder.add(new KyDiDrawingContextVSEdgesProperty(owner));
    builder.add(new KyDiDrawingContextVSEdgeLexProperty(owner));
    builder.add(new KyDiDrawingContextVSEdgeJitterProperty(owner));
    builder.add(new KyDiDrawingContextVSSilhWidthProperty(owner));
    builder.add(new KyDiDrawingContextVSFaceOpacityProperty(owner));
    builder.add(new KyDiDrawingContextTileModeProperty(owner));
    builder.add(new KyDiDrawingContextLayoutProperty(owner));
    builder.add(new KyDiDrawingContextPageSetupProperty(owner));
    builder.add(new KyDiDrawingContextRasterDPIProperty(owner));
    builder.add(new KyDiDrawingContextUCSPerViewportProperty(owner));
    builder.add(new KyDiDrawingContextUCSNameProperty(owner));
}
