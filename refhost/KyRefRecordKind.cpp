#include "KyRefRecordKind.h"

#include <memory>
#include <vector>

#include "KyRefCommandContext.h"
#include "KyRefHost.h"
#include "KyRefLanguage.h"
#include "KyRefNamedItem.h"
#include "KyRefReadAccess.h"
#include "db/KyDbBlockTableRecord.h"
#include "db/KyDbBlockTableRecordIterator.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbDetailViewStyle.h"
#include "db/KyDbDictionary.h"
#include "db/KyDbDictionaryIterator.h"
#include "db/KyDbDimStyleTableRecord.h"
#include "db/KyDbEntity.h"
#include "db/KyDbLayerTableRecord.h"
#include "db/KyDbLayout.h"
#include "db/KyDbLinetypeTableRecord.h"
#include "db/KyDbMLeaderStyle.h"
#include "db/KyDbMaterial.h"
#include "db/KyDbObjectPointer.h"
#include "db/KyDbPlotSettings.h"
#include "db/KyDbSectionViewStyle.h"
#include "db/KyDbStandardContent.h"
#include "db/KyDbSymbolTable.h"
#include "db/KyDbTableStyle.h"
#include "db/KyDbTextStyleTableRecord.h"
#include "db/KyDbUCSTableRecord.h"
#include "db/KyDbViewTableRecord.h"
#include "db/KyDbViewportTableRecord.h"
#include "db/KyDbVisualStyle.h"

namespace {

// A new object of class Object named by its setter `setName`.
template <typename Object, auto setName>
KyDbObject* makeNamed(KyDbDatabase*, const wchar_t* name) {
    auto* object = new Object();
    (object->*setName)(name);
    return object;
}

// Renames an object of class Object (or derived from it) with `setName`.
template <typename Object, auto setName>
Kyro::ErrorStatus renameWith(KyDbObject& object, const wchar_t* name) {
    auto* typed = kyrxCast<Object>(&object);
    return typed != nullptr ? (typed->*setName)(name) : Kyro::eNotThatKindOfClass;
}

template <typename Record>
KyDbObject* makeRecord(KyDbDatabase* database, const wchar_t* name) {
    return makeNamed<Record, &KyDbSymbolTableRecord::setName>(database, name);
}

constexpr auto renameRecord = &renameWith<KyDbSymbolTableRecord, &KyDbSymbolTableRecord::setName>;

// ---- Layouts: each has a paper space block of its own, which goes with it.

// After the highest tab order of the drawing's layouts.
int nextTabOrder(KyDbDatabase* database) {
    int highest = 0;
    KyRefReadAccess<KyDbDictionary> layouts(database->layoutDictionaryId());
    if (layouts) {
        for (KyDbDictionaryIterator it(layouts.object()); !it.done(); it.next()) {
            KyRefReadAccess<KyDbLayout> layout(it.objectId());
            if (layout && layout->tabOrder() > highest) {
                highest = layout->tabOrder();
            }
        }
    }
    return highest + 1;
}

KyDbObject* makeLayout(KyDbDatabase* database, const wchar_t* name) {
    auto* layout = new KyDbLayout();
    layout->setLayoutName(name);
    layout->setPlotSettingsName(name);
    layout->setTabOrder(nextTabOrder(database));
    return layout;
}

// A paper space block for the new layout `id`: *Paper_Space0, *Paper_Space1 ...
void layoutAdded(KyRefCommandContext& context, KyDbObjectId id) {
    KyDbDatabase* database = context.database();
    KyString blockName;
    for (int number = 0;; ++number) {
        blockName.format(L"%ls%d", KyDbStandardContent::kPaperSpaceName, number);
        if (KyRefNamedItem::find(database->blockTableId(), blockName).isNull()) {
            break;
        }
    }
    KyDbObjectId blockId;
    {
        KyDbObjectPointer<KyDbSymbolTable> blocks(database->blockTableId(), KyDb::kForWrite);
        auto* block = new KyDbBlockTableRecord();
        block->setName(blockName);
        if (!blocks || blocks->add(blockId, block) != Kyro::eOk) {
            delete block;
            context.fail(L"Cannot make the block of the new layout.");
        }
        block->setLayoutId(id);
        block->close();
    }
    KyDbObjectPointer<KyDbLayout> layout(id, KyDb::kForWrite);
    if (!layout || layout->setBlockTableRecordId(blockId) != Kyro::eOk) {
        context.fail(L"Cannot make the block of the new layout.");
    }
}

KyDbObjectId blockOfLayout(KyDbObjectId layoutId) {
    KyRefReadAccess<KyDbLayout> layout(layoutId, true);
    return layout ? layout->getBlockTableRecordId() : KyDbObjectId();
}

// The layout of *Paper_Space is the paper layout the drawing shows, or shows
// again when TILEMODE goes off: that one stays.
void layoutCheckErase(KyRefCommandContext& context, KyDbObjectId id, const KyString& name) {
    KyRefReadAccess<KyDbBlockTableRecord> block(blockOfLayout(id));
    if (block && block->name().compareNoCase(KyDbStandardContent::kPaperSpaceName) == 0) {
        context.fail(L"Cannot erase layout \"%ls\": it holds the paper space.", name.kwszPtr());
    }
}

// The erased layout's block goes with it, and what the block holds.
void layoutErased(KyRefCommandContext& context, KyDbObjectId id) {
    const KyDbObjectId blockId = blockOfLayout(id);
    if (blockId.isNull()) {
        return;
    }
    KyDbObjectPointer<KyDbBlockTableRecord> block(blockId, KyDb::kForWrite);
    if (!block) {
        context.fail(L"Cannot erase the block of the layout.");
    }
    std::vector<KyDbObjectId> entities;
    {
        KyDbBlockTableRecordIterator* raw = nullptr;
        block->newIterator(raw);
        const std::unique_ptr<KyDbBlockTableRecordIterator> it(raw);
        for (; it != nullptr && !it->done(); it->step()) {
            KyDbObjectId entityId;
            it->getEntityId(entityId);
            entities.push_back(entityId);
        }
    }
    for (const KyDbObjectId& entityId : entities) {
        KyDbObjectPointer<KyDbEntity> entity(entityId, KyDb::kForWrite);
        if (!entity || entity->erase(true) != Kyro::eOk) {
            context.fail(L"Cannot erase the block of the layout.");
        }
    }
    if (block->erase(true) != Kyro::eOk) {
        context.fail(L"Cannot erase the block of the layout.");
    }
}

// ---- UCSs: UCSNAME holds the name of the current one.

KyString currentUcsName(KyRefCommandContext& context) {
    KyRefResbufPtr value;
    context.host().sysVars().get(L"UCSNAME", value);
    return value != nullptr ? KyString(value->resval.rstring) : KyString();
}

void ucsCheckErase(KyRefCommandContext& context, KyDbObjectId, const KyString& name) {
    if (currentUcsName(context).compareNoCase(name) == 0) {
        context.fail(L"Cannot erase the current UCS \"%ls\".", name.kwszPtr());
    }
}

void ucsRenamed(KyRefCommandContext& context, const KyString& oldName, const KyString& newName) {
    if (currentUcsName(context).compareNoCase(oldName) != 0) {
        return;
    }
    KyString error;
    if (context.host().sysVars().set(L"UCSNAME", *KyRefResbuf::makeString(newName),
                                     KyRefSysVarStore::kIgnoreReadOnly,
                                     &error) != KyRefSysVarStatus::kOk) {
        context.fail(L"%ls", error.kwszPtr());
    }
}

// ---- Visual styles: the host keeps the current one by name.

bool isCurrentVisualStyle(KyRefCommandContext& context, const KyString& name) {
    KyRefReadAccess<KyDbVisualStyle> style(KyRefVisualStyleService::shownStyle(context.database()));
    return style && name.compareNoCase(style->name()) == 0;
}

void visualStyleCheckRename(KyRefCommandContext& context, const KyString& name) {
    if (isCurrentVisualStyle(context, name)) {
        context.fail(L"Cannot rename the current visual style \"%ls\".", name.kwszPtr());
    }
}

void visualStyleCheckErase(KyRefCommandContext& context, KyDbObjectId, const KyString& name) {
    if (isCurrentVisualStyle(context, name)) {
        context.fail(L"Cannot erase the current visual style \"%ls\".", name.kwszPtr());
    }
}

using Db = KyDbDatabase;
using Kind = KyRefRecordKind;

// Kind word and its local form, what a message calls one, container, make,
// rename, kept while referenced, and the hooks: added, checkRename,
// checkErase, renamed, erased.
const Kind kRows[] = {
    {{L"LAYER", L"EBENE"},
     L"layer",
     &Db::layerTableId,
     &makeRecord<KyDbLayerTableRecord>,
     renameRecord,
     true},
    {{L"LINETYPE", L"LINIENTYP"},
     L"linetype",
     &Db::linetypeTableId,
     &makeRecord<KyDbLinetypeTableRecord>,
     renameRecord,
     true},
    {{L"TEXTSTYLE", L"TEXTSTIL"},
     L"text style",
     &Db::textStyleTableId,
     &makeRecord<KyDbTextStyleTableRecord>,
     renameRecord,
     true},
    {{L"DIMSTYLE", L"BEMSTIL"},
     L"dimension style",
     &Db::dimStyleTableId,
     &makeRecord<KyDbDimStyleTableRecord>,
     renameRecord,
     true},
    {{L"VIEW", L"ANSICHT"},
     L"view",
     &Db::viewTableId,
     &makeRecord<KyDbViewTableRecord>,
     renameRecord,
     true},
    {{L"UCS", L"BKS"},
     L"UCS",
     &Db::UCSTableId,
     &makeRecord<KyDbUCSTableRecord>,
     renameRecord,
     true,
     nullptr,
     nullptr,
     &ucsCheckErase,
     &ucsRenamed},
    {{L"VIEWPORT", L"AFENSTER"},
     L"viewport configuration",
     &Db::viewportTableId,
     &makeRecord<KyDbViewportTableRecord>,
     renameRecord,
     true},
    {{L"TABLESTYLE", L"TABELLENSTIL"},
     L"table style",
     &Db::tableStyleDictionaryId,
     &makeNamed<KyDbTableStyle, &KyDbTableStyle::setName>,
     &renameWith<KyDbTableStyle, &KyDbTableStyle::setName>,
     true},
    {{L"MLEADERSTYLE", L"MFUEHRUNGSSTIL"},
     L"multileader style",
     &Db::mleaderStyleDictionaryId,
     &makeNamed<KyDbMLeaderStyle, &KyDbMLeaderStyle::setName>,
     &renameWith<KyDbMLeaderStyle, &KyDbMLeaderStyle::setName>,
     true},
    {{L"SECTIONVIEWSTYLE", L"SCHNITTANSICHTSSTIL"},
     L"section view style",
     &Db::sectionViewStyleDictionaryId,
     &makeNamed<KyDbSectionViewStyle, &KyDbModelDocViewStyle::setName>,
     &renameWith<KyDbModelDocViewStyle, &KyDbModelDocViewStyle::setName>,
     true},
    {{L"DETAILVIEWSTYLE", L"DETAILANSICHTSSTIL"},
     L"detail view style",
     &Db::detailViewStyleDictionaryId,
     &makeNamed<KyDbDetailViewStyle, &KyDbModelDocViewStyle::setName>,
     &renameWith<KyDbModelDocViewStyle, &KyDbModelDocViewStyle::setName>,
     true},
    {{L"MATERIAL", L"MATERIAL"},
     L"material",
     &Db::materialDictionaryId,
     &makeNamed<KyDbMaterial, &KyDbMaterial::setName>,
     &renameWith<KyDbMaterial, &KyDbMaterial::setName>,
     true},
    {{L"LAYOUT", L"LAYOUT"},
     L"layout",
     &Db::layoutDictionaryId,
     &makeLayout,
     &renameWith<KyDbLayout, &KyDbLayout::setLayoutName>,
     false,
     &layoutAdded,
     nullptr,
     &layoutCheckErase,
     nullptr,
     &layoutErased},
    {{L"PLOTSETTINGS", L"SEITENEINRICHTUNG"},
     L"page setup",
     &Db::plotSettingsDictionaryId,
     &makeNamed<KyDbPlotSettings, &KyDbPlotSettings::setPlotSettingsName>,
     &renameWith<KyDbPlotSettings, &KyDbPlotSettings::setPlotSettingsName>,
     true},
    {{L"VISUALSTYLE", L"VISUELLERSTIL"},
     L"visual style",
     &Db::visualStyleDictionaryId,
     &makeNamed<KyDbVisualStyle, &KyDbVisualStyle::setName>,
     &renameWith<KyDbVisualStyle, &KyDbVisualStyle::setName>,
     true,
     nullptr,
     &visualStyleCheckRename,
     &visualStyleCheckErase},
};

}  // namespace

std::span<const KyRefRecordKind> KyRefRecordKind::rows() {
    return kRows;
}

const KyRefRecordKind* KyRefRecordKind::find(const wchar_t* word) {
    for (const KyRefRecordKind& row : kRows) {
        if (KyRefKeywords::match(std::span(&row.keyword, 1), word) == 0) {
            return &row;
        }
    }
    return nullptr;
}

KyString KyRefRecordKind::options() {
    KyString text(L"[");
    for (const KyRefRecordKind& row : kRows) {
        if (text.length() > 1) {
            text.append(L'/');
        }
        text.append(KyRefLanguage::pick(row.keyword.global, row.keyword.local));
    }
    text.append(L']');
    return text;
}
