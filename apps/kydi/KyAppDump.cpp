#include "KyAppDump.h"

#include "KyAppContextList.h"
#include "KyAppPropertyValue.h"
#include "KyAppSysVarValue.h"
#include "KyRefHost.h"
#include "db/KyDbBlockTableRecord.h"
#include "db/KyDbBlockTableRecordIterator.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbObjectPointer.h"
#include "db/KyDbSymbolTable.h"
#include "db/KyDbSymbolTableRecord.h"
#include "io/KyRefEntityRows.h"
#include "io/KyRefHeaderRows.h"
#include "io/KyRefObjectRows.h"
#include "io/KyRefTableRows.h"
#include "io/KyRefValueForms.h"
#include "io/KyRefWriteContext.h"
#include "kydi/KyDiContext.h"
#include "kydi/KyDiDbItem.h"
#include "kydi/KyDiDbLayerItem.h"
#include "kydi/KyDiFunctions.h"
#include "kydi/KyDiManager.h"
#include "kydi/KyDiObservableCollection.h"
#include "kydi/KyDiSysVar.h"
#include "rx/KyRxProperty.h"

namespace {

KyRefJson documentJson(KyRefHost& host) {
    KyRefDocument* current = host.documents().current();
    if (current == nullptr) {
        return KyRefJson();
    }
    int number = 0;
    for (int i = 0; i < host.documents().count(); ++i) {
        if (host.documents().at(i) == current) {
            number = i + 1;
        }
    }
    KyRefJson out = KyRefJson::object();
    out["number"] = number;
    out["name"] = current->name().utf8();
    out["path"] = current->path().utf8();
    out["modified"] = current->isModified();
    return out;
}

KyRefJson sysVarsJson(KyRefHost& host) {
    KyRefJson out = KyRefJson::array();
    if (host.editor() == nullptr) {
        return out;
    }
    // Asking for a variable object reads the variable again: copy the names.
    const std::vector<KyString> names = host.editor()->variablesAsked();
    for (const KyString& name : names) {
        KyDiSysVar* sysVar = KyDiManager::getSysVar(name);
        if (sysVar == nullptr) {
            continue;
        }
        KyRefJson entry = KyRefJson::object();
        entry["name"] = name.utf8();
        resbuf value{};
        if (sysVar->getValue(value) == Kyro::eOk) {
            const KyAppValue shown = KyAppSysVarValue::toValue(value);
            if (shown.kind() == KyAppValue::Kind::kNumber) {
                entry["value"] = shown.asNumber();
            } else {
                entry["value"] = shown.asText();
            }
        } else {
            entry["value"] = nullptr;
        }
        entry["minimum"] = sysVar->minimum();
        entry["maximum"] = sysVar->maximum();
        entry["active"] = sysVar->isActive();
        out.push_back(std::move(entry));
    }
    return out;
}

// The count of a block's entities by their type.
void addEntities(KyRefWriteContext& context, const KyDbBlockTableRecord& block, KyRefJson& out) {
    KyRefJson types = KyRefJson::object();
    int count = 0;
    KyDbBlockTableRecordIterator it(&block);
    for (it.start(); !it.done(); it.step()) {
        KyDbObjectId id;
        it.getEntityId(id);
        const KyRefJson entity = KyRefEntityRows::write(context, id);
        if (!entity.is_object() || !entity.contains("type")) {
            continue;
        }
        const std::string type = entity["type"].get<std::string>();
        types[type] = types.value(type, 0) + 1;
        ++count;
    }
    out["entityCount"] = count;
    out["entities"] = std::move(types);
}

KyRefJson recordJson(KyRefWriteContext& context, const KyRefTableRow& row, KyDbObjectId id) {
    KyDbObjectPointer<KyDbSymbolTableRecord> record(id, KyDb::kForRead);
    if (record.openStatus() != Kyro::eOk) {
        return KyRefJson();
    }
    KyRefJson out = KyRefJson::object();
    out["name"] = kyrefUtf8(record->name());
    out["handle"] = KyRefValueForms::handle(KyDbHandle(id.handle()));
    row.write(context, *record.object(), out);
    if (const auto* block = kyrxCast<KyDbBlockTableRecord>(record.object())) {
        addEntities(context, *block, out);
    }
    return out;
}

KyRefJson tablesJson(KyRefWriteContext& context) {
    KyRefJson out = KyRefJson::object();
    for (const KyRefTableRow& row : KyRefTableRows::rows()) {
        KyRefJson records = KyRefJson::array();
        KyDbObjectPointer<KyDbSymbolTable> table((context.database()->*row.table)(),
                                                 KyDb::kForRead);
        if (table.openStatus() == Kyro::eOk) {
            KyArray<KyDbObjectId> ids;
            table->getRecordIds(ids);
            for (const KyDbObjectId& id : ids) {
                KyRefJson record = recordJson(context, row, id);
                if (!record.is_null()) {
                    records.push_back(std::move(record));
                }
            }
        }
        out[row.member] = std::move(records);
    }
    return out;
}

// What a layer shows beside its name: its values and states, by the names of
// the drawing file.
const std::pair<const char*, const wchar_t*> kLayerProperties[] = {
    {"color", L"Color"},
    {"linetype", L"LinetypeObjectId"},
    {"lineweight", L"LineWeight"},
    {"transparency", L"Transparency"},
    {"off", L"IsOff"},
    {"frozen", L"IsFrozen"},
    {"locked", L"IsLocked"},
    {"plottable", L"IsPlottable"},
};

KyRefJson layerPropertiesJson(KyDiDynamicObject* layer) {
    KyRefJson out = KyRefJson::object();
    for (const auto& [key, name] : kLayerProperties) {
        const auto* property = kyrxCast<KyRxProperty>(KyDiFindMember(layer, name));
        KyRxValue value;
        if (property != nullptr && property->getValue(layer, value) == Kyro::eOk) {
            out[key] = KyAppPropertyValue::format(value);
        }
    }
    return out;
}

KyRefJson itemJson(KyDiDynamicObject* item) {
    KyRefJson out = KyRefJson::object();
    out["name"] = KyDiGetItemName(item).utf8();
    const auto* record = kyrxCast<KyDiDbItem>(static_cast<KyRxObject*>(item));
    if (record != nullptr && !record->objectId().isNull()) {
        out["handle"] = KyRefValueForms::handle(KyDbHandle(record->objectId().handle()));
        out["value"] = nullptr;
    } else {
        out["handle"] = nullptr;
        const KyRxValue* value = item->value();
        out["value"] = value != nullptr ? KyAppPropertyValue::format(*value) : std::string();
    }
    if (kyrxCast<KyDiDbLayerItem>(static_cast<KyRxObject*>(item)) != nullptr) {
        out["properties"] = layerPropertiesJson(item);
    }
    return out;
}

// Every context that a factory makes, and any other the manager holds, in
// name order.
KyRefJson contextsJson() {
    KyAppContextList::makeAll();
    KyRefJson out = KyRefJson::array();
    for (const auto& [name, context] : KyAppContextList::inNameOrder()) {
        KyRefJson entry = KyRefJson::object();
        entry["name"] = name;
        entry["active"] = context->isActive();
        entry["priority"] = context->priority();
        KyRefJson properties = KyRefJson::object();
        for (const auto& [property, value] : KyAppContextList::properties(context)) {
            properties[property] = value;
        }
        entry["properties"] = std::move(properties);
        out.push_back(std::move(entry));
    }
    return out;
}

// Every known collection that the registry can make, in the order of its
// rows, each with its items in its own order.
KyRefJson collectionsJson() {
    KyRefJson out = KyRefJson::array();
    const KyDiKnownCollectionNames names = KyDiGetKnownCollectionNames();
    for (int i = 0; i < names.length(); ++i) {
        if (!names[i].available) {
            continue;
        }
        KyDiObservableCollection* collection = KyDiManager::getKnownCollection(names[i].name);
        if (collection == nullptr) {
            continue;
        }
        KyRefJson entry = KyRefJson::object();
        entry["name"] = names[i].name.utf8();
        entry["active"] = collection->isActive();
        KyDiDynamicObject* current = collection->getCurrentItem();
        entry["current"] =
            current != nullptr ? KyRefJson(KyDiGetItemName(current).utf8()) : KyRefJson();
        KyRefJson items = KyRefJson::array();
        const KyDiItemArray& all = collection->getItems();
        for (int j = 0; j < all.length(); ++j) {
            items.push_back(itemJson(all[j]));
        }
        entry["items"] = std::move(items);
        out.push_back(std::move(entry));
    }
    return out;
}

}  // namespace

KyRefJson KyAppDump::build(KyRefHost& host) {
    KyRefJson out = KyRefJson::object();
    out["document"] = documentJson(host);
    out["collections"] = collectionsJson();
    out["contexts"] = contextsJson();
    out["sysvars"] = sysVarsJson(host);
    KyDbDatabase* database = host.documents().currentDatabase();
    if (database == nullptr) {
        out["tables"] = KyRefJson::object();
        out["objects"] = KyRefJson();
        out["header"] = KyRefJson::object();
        return out;
    }
    KyRefWriteContext context(database, nullptr);
    out["tables"] = tablesJson(context);
    out["objects"] = KyRefObjectRows::writeRoot(context);
    out["header"] = KyRefHeaderRows::write(context);
    return out;
}
