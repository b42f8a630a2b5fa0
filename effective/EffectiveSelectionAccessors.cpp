#include "effective/EffectiveSelectionAccessors.h"

#include "collections/KyDiImpDbObjectCollection.h"
#include "db/KyCmColor.h"
#include "db/KyCmTransparency.h"
#include "db/KyDbDimension.h"
#include "db/KyDbEntity.h"
#include "db/KyDbFullSubentPath.h"
#include "db/KyDbHostApplicationServices.h"
#include "db/KyDbLeader.h"
#include "db/KyDbMLeader.h"
#include "db/KyDbMText.h"
#include "db/KyDbObjectPointer.h"
#include "db/KyDbTable.h"
#include "db/KyDbText.h"
#include "effective/ViewStyleModuleEntries.h"
#include "kydi/KyDiDynamicObject.h"
#include "kydi/KyDiEditorService.h"
#include "kydi/KyDiEffectiveValue.h"
#include "kydi/KyDiFunctions.h"
#include "kydi/KyDiSelectionService.h"
#include "manager/host/EditorCommandScope.h"
#include "manager/host/KyDiHostAccess.h"
#include "rx/KyRxValue.h"

namespace {

using Watched = EffectiveSelectionAccessors::Watched;

Kyro::ErrorStatus objectIdValue(KyDbObjectId id, KyDiEffectiveValue& value) {
    value.kind = KyDiEffectiveValue::kObjectId;
    value.objectId = id;
    return Kyro::eOk;
}

// Queues `text` as the user's own input. Without an editor nothing is sent,
// and the write still counts as done.
Kyro::ErrorStatus send(const KyString& text) {
    if (KyDiEditorService* editor = KyDiHostAccess::editor()) {
        editor->sendCommand(text.kwszPtr(), true, false, true);
    }
    return Kyro::eOk;
}

// Sends `format` with the name of `item` in it.
Kyro::ErrorStatus sendNamed(const wchar_t* format, KyDiDynamicObject* item) {
    const KyString name = KyDiGetItemName(item);
    return send(KyString::formatted(format, name.kwszPtr()));
}

Kyro::ErrorStatus setViewStyle(KyDiDynamicObject* item, int kind) {
    KyDiSelectionService* selection = KyDiHostAccess::selectionService();
    if (selection == nullptr || item == nullptr) {
        return Kyro::eNotApplicable;
    }
    KyArray<KyDbObjectId> ids;
    KyDiSelectionService::SubentPathArray paths;
    if (selection->getSelection(ids, paths) != Kyro::eOk || ids.isEmpty()) {
        return Kyro::eNotApplicable;
    }
    return ViewStyleModuleEntries::setViewStyle(ids, KyDiImpDbObjectCollection::idOf(item), kind);
}

Kyro::ErrorStatus getViewStyle(KyDbEntity* entity, int kind, KyDiEffectiveValue& value) {
    KyDbObjectId style;
    const Kyro::ErrorStatus status = ViewStyleModuleEntries::getViewStyle(entity, kind, style);
    return status == Kyro::eOk ? objectIdValue(style, value) : status;
}

}  // namespace

Kyro::ErrorStatus EffectiveSelectionAccessors::getLayer(KyDbEntity* entity,
                                                        KyDiEffectiveValue& value) {
    return objectIdValue(entity->layerId(), value);
}

Kyro::ErrorStatus EffectiveSelectionAccessors::getLinetype(KyDbEntity* entity,
                                                           KyDiEffectiveValue& value) {
    return objectIdValue(entity->linetypeId(), value);
}

Kyro::ErrorStatus EffectiveSelectionAccessors::getMaterial(KyDbEntity* entity,
                                                           KyDiEffectiveValue& value) {
    return objectIdValue(entity->materialId(), value);
}

Kyro::ErrorStatus EffectiveSelectionAccessors::getLineweight(KyDbEntity* entity,
                                                             KyDiEffectiveValue& value) {
    value.kind = KyDiEffectiveValue::kLineWeight;
    value.lineWeight = static_cast<std::int32_t>(entity->lineWeight());
    return Kyro::eOk;
}

Kyro::ErrorStatus EffectiveSelectionAccessors::getColor(KyDbEntity* entity,
                                                        KyDiEffectiveValue& value) {
    value.kind = KyDiEffectiveValue::kColor;
    value.color = entity->color();
    return Kyro::eOk;
}

Kyro::ErrorStatus EffectiveSelectionAccessors::getDimensionStyle(KyDbEntity* entity,
                                                                 KyDiEffectiveValue& value) {
    if (const auto* dimension = kyrxCast<KyDbDimension>(entity)) {
        return objectIdValue(dimension->dimensionStyle(), value);
    }
    if (const auto* leader = kyrxCast<KyDbLeader>(entity)) {
        return objectIdValue(leader->dimensionStyle(), value);
    }
    return Kyro::eNotApplicable;
}

Kyro::ErrorStatus EffectiveSelectionAccessors::getTextStyle(KyDbEntity* entity,
                                                            KyDiEffectiveValue& value) {
    if (const auto* mtext = kyrxCast<KyDbMText>(entity)) {
        return objectIdValue(mtext->textStyle(), value);
    }
    if (const auto* text = kyrxCast<KyDbText>(entity)) {
        return objectIdValue(text->textStyle(), value);
    }
    if (const auto* dimension = kyrxCast<KyDbDimension>(entity)) {
        return objectIdValue(dimension->textStyle(), value);
    }
    if (const auto* mleader = kyrxCast<KyDbMLeader>(entity)) {
        return objectIdValue(mleader->textStyleId(), value);
    }
    return Kyro::eNotApplicable;
}

Kyro::ErrorStatus EffectiveSelectionAccessors::getTableStyle(KyDbEntity* entity,
                                                             KyDiEffectiveValue& value) {
    const auto* table = kyrxCast<KyDbTable>(entity);
    return table != nullptr ? objectIdValue(table->tableStyle(), value) : Kyro::eNotApplicable;
}

Kyro::ErrorStatus EffectiveSelectionAccessors::getMLeaderStyle(KyDbEntity* entity,
                                                               KyDiEffectiveValue& value) {
    const auto* mleader = kyrxCast<KyDbMLeader>(entity);
    return mleader != nullptr ? objectIdValue(mleader->MLeaderStyle(), value)
                              : Kyro::eNotApplicable;
}

Kyro::ErrorStatus EffectiveSelectionAccessors::getSectionViewStyle(KyDbEntity* entity,
                                                                   KyDiEffectiveValue& value) {
    return getViewStyle(entity, ViewStyleModuleEntries::kSection, value);
}

Kyro::ErrorStatus EffectiveSelectionAccessors::getDetailViewStyle(KyDbEntity* entity,
                                                                  KyDiEffectiveValue& value) {
    return getViewStyle(entity, ViewStyleModuleEntries::kDetail, value);
}

Kyro::ErrorStatus EffectiveSelectionAccessors::getTransparency(KyDbEntity* entity,
                                                               KyDiEffectiveValue& value) {
    value.kind = KyDiEffectiveValue::kTransparency;
    value.transparency = entity->transparency();
    return Kyro::eOk;
}

Kyro::ErrorStatus EffectiveSelectionAccessors::setLayer(KyDiDynamicObject* item,
                                                        const Watched& /*watched*/) {
    // A layer of an external reference can't be given to the drawing's own
    // objects.
    const KyString name = KyDiGetItemName(item);
    if (name.findOneOf(L"|", 0) >= 0) {
        return Kyro::eOk;
    }
    return send(KyString::formatted(L"_chprop\n_layer\n%ls\n\n", name.kwszPtr()));
}

Kyro::ErrorStatus EffectiveSelectionAccessors::setLinetype(KyDiDynamicObject* item,
                                                           const Watched& /*watched*/) {
    return sendNamed(L"_chprop\n_ltype\n%ls\n\n", item);
}

Kyro::ErrorStatus EffectiveSelectionAccessors::setMaterial(KyDiDynamicObject* /*item*/,
                                                           const Watched& /*watched*/) {
    return Kyro::eOk;
}

KyString EffectiveSelectionAccessors::lineweightText(int weight) {
    switch (weight) {
        case -3:
            return KyString(L"_default");
        case -2:
            return KyString(L"_byblock");
        case -1:
            return KyString(L"_bylayer");
        default:
            break;
    }
    // Millimetres with two places, or inches with three.
    return gLineWeightUnits != 0 ? KyString::formatted(L"%3.2f", weight / 100.0)
                                 : KyString::formatted(L"%.3f", weight / 2540.0);
}

Kyro::ErrorStatus EffectiveSelectionAccessors::setLineweight(KyDiDynamicObject* item,
                                                             const Watched& /*watched*/) {
    const KyRxValue* value = item != nullptr ? item->value() : nullptr;
    int weight = 0;
    if (const int* plain = valueCast<int>(value)) {
        weight = *plain;
    } else if (const auto* tagged = valueCast<KyDb::LineWeight>(value)) {
        weight = static_cast<int>(*tagged);
    } else {
        return Kyro::eInvalidInput;
    }
    const KyString text = lineweightText(weight);
    return send(KyString::formatted(L"_chprop\n_lweight\n%ls\n\n", text.kwszPtr()));
}

Kyro::ErrorStatus EffectiveSelectionAccessors::setColor(KyDiDynamicObject* item,
                                                        const Watched& /*watched*/) {
    const KyCmColor* color = item != nullptr ? valueCast<KyCmColor>(item->value()) : nullptr;
    if (color == nullptr) {
        return Kyro::eInvalidInput;
    }
    if (color->hasBookName()) {
        return send(KyString::formatted(L"_chprop\n_color\n_COlorbook\n%ls\n%ls\n\n",
                                        color->bookName(), color->colorName()));
    }
    if (color->colorMethod() == KyCmColor::kByColor) {
        return send(KyString::formatted(
            L"_chprop\n_color\n_Truecolor\n%d,%d,%d\n\n", static_cast<int>(color->red()),
            static_cast<int>(color->green()), static_cast<int>(color->blue())));
    }
    const KyString name = color->colorNameForDisplay();
    return send(KyString::formatted(L"_chprop\n_color\n%ls\n\n", name.kwszPtr()));
}

Kyro::ErrorStatus EffectiveSelectionAccessors::setDimensionStyle(KyDiDynamicObject* item,
                                                                 const Watched& /*watched*/) {
    return sendNamed(L"_optchprop\n_dimstyle\n%ls\n\n", item);
}

Kyro::ErrorStatus EffectiveSelectionAccessors::setTextStyle(KyDiDynamicObject* item,
                                                            const Watched& /*watched*/) {
    return sendNamed(L"_optchprop\n_textstyle\n%ls\n\n", item);
}

Kyro::ErrorStatus EffectiveSelectionAccessors::setTableStyle(KyDiDynamicObject* item,
                                                             const Watched& /*watched*/) {
    return sendNamed(L"_optchprop\n_tablestyle\n%ls\n\n", item);
}

Kyro::ErrorStatus EffectiveSelectionAccessors::setMLeaderStyle(KyDiDynamicObject* item,
                                                               const Watched& /*watched*/) {
    return sendNamed(L"_optchprop\n_mlstyle\n%ls\n\n", item);
}

Kyro::ErrorStatus EffectiveSelectionAccessors::setSectionViewStyle(KyDiDynamicObject* item,
                                                                   const Watched& /*watched*/) {
    return setViewStyle(item, ViewStyleModuleEntries::kSection);
}

Kyro::ErrorStatus EffectiveSelectionAccessors::setDetailViewStyle(KyDiDynamicObject* item,
                                                                  const Watched& /*watched*/) {
    return setViewStyle(item, ViewStyleModuleEntries::kDetail);
}

Kyro::ErrorStatus EffectiveSelectionAccessors::setTransparency(KyDiDynamicObject* item,
                                                               const Watched& watched) {
    if (item == nullptr) {
        return Kyro::eOk;
    }
    const auto* transparency = valueCast<KyCmTransparency>(item->value());
    if (transparency == nullptr || transparency->method() == KyCmTransparency::kErrorValue) {
        return Kyro::eInvalidInput;
    }
    // No command sets a transparency: it is written to each object as the
    // property panel would, in one step of undo.
    const EditorCommandScope scope(L"OPM_CHGPROP");
    for (const KyDbObjectId& id : watched) {
        KyDbObjectPointer<KyDbEntity> entity(id, KyDb::kForWrite);
        if (entity) {
            entity->setTransparency(*transparency);
        }
    }
    return Kyro::eOk;
}
