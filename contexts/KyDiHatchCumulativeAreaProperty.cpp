#include "contexts/KyDiHatchCumulativeAreaProperty.h"

#include <memory>

#include "collections/CSelectedItemHelper.h"
#include "contexts/KyDiSelectionContext.h"
#include "db/KyDbHatch.h"
#include "db/KyDbRegion.h"
#include "kydi/KyDiDbItem.h"
#include "rx/KyRxStandardAttributes.h"

namespace {

// Texts of the property: its local name (table 0) and description (table 1).
constexpr unsigned kLocalName = 928;
constexpr unsigned kDescription = 7218;
// Areas are of the unit type of areas.
constexpr int kAreaUnit = 4;

}  // namespace

KyDiHatchCumulativeAreaPropertyBase::KyDiHatchCumulativeAreaPropertyBase(const wchar_t* name,
                                                                         const KyRxObject* owner)
    : KyRxProperty(name, KyRxValueType::Desc<double>::value(), owner) {}

Kyro::ErrorStatus KyDiHatchCumulativeAreaPropertyBase::areaOf(
    const KyDiItemArray& items, KyDiDataSelectedItemCollectionImp::SubEntitySelection kind,
    KyRxValue& value) {
    value = KyRxValue(0.0);
    if (items.isEmpty()) {
        return Kyro::eNotApplicable;
    }
    std::unique_ptr<KyDbRegion> sum;
    for (KyDiDynamicObject* item : items) {
        const CSelectedItemHelper opened(kyrxCast<KyDiDbItem>(static_cast<KyRxObject*>(item)),
                                         KyDb::kForRead, kind);
        const auto* hatch = kyrxCast<KyDbHatch>(opened.object());
        if (opened.getLastError() != Kyro::eOk || hatch == nullptr) {
            return Kyro::eNotApplicable;
        }
        std::unique_ptr<KyDbRegion> region(hatch->getRegionArea());
        if (region == nullptr) {
            return Kyro::eNotApplicable;
        }
        if (sum == nullptr) {
            sum = std::move(region);
        } else if (sum->booleanOper(KyDb::kBoolUnite, region.get()) != Kyro::eOk) {
            return Kyro::eNotApplicable;
        }
    }
    double area = 0.0;
    const Kyro::ErrorStatus status = sum->getArea(area);
    value = KyRxValue(area);
    return status;
}

Kyro::ErrorStatus KyDiHatchCumulativeAreaPropertyBase::subGetValue(const KyRxObject* object,
                                                                   KyRxValue& value) const {
    const KyRxValue* boxed = KyRxValue::unbox(object);
    const KyDiItemArray* const* items = valueCast<KyDiItemArray*>(boxed);
    if (items == nullptr || *items == nullptr) {
        return Kyro::eNotThatKindOfClass;
    }
    // The selection's own items open as the selection does (as cells or
    // parts when that is what is selected); any other list as objects.
    const KyDiSelectionContext* context = KyDiSelectionContext::instance();
    const bool selected = context != nullptr && *items == &context->selectedItems();
    return areaOf(**items,
                  selected ? context->kind() : KyDiDataSelectedItemCollectionImp::kPlainObjects,
                  value);
}

KyDiSelectionContextCumulativeAreaProperty::KyDiSelectionContextCumulativeAreaProperty(
    const KyRxObject* owner)
    : KyDiHatchCumulativeAreaPropertyBase(L"CumulativeArea", owner) {
    KyRxAttributeCollection& attributes = this->attributes();
    attributes.add(new KyRxUnitTypeAttribute(kAreaUnit));
    attributes.add(new KyRxLocalizedNameAttribute(kLocalName));
    attributes.add(new KyRxDescriptionAttribute(kDescription, 1));
    attributes.add(new KyRxUiPlacementAttribute(L"Geometry", 3));
    attributes.add(new KyRxAffinityAttribute(L"SelectionContext"));
}
