#include "KyRefDrawingWriter.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <memory>
#include <system_error>

#include "KyRefDrawingExtras.h"
#include "KyRefDrawingReader.h"
#include "KyRefEntityRows.h"
#include "KyRefHeaderRows.h"
#include "KyRefLayerStateRows.h"
#include "KyRefMemberList.h"
#include "KyRefObjectRows.h"
#include "KyRefTableRows.h"
#include "KyRefValueForms.h"
#include "KyRefWriteContext.h"
#include "db/KyDbBlockTableRecord.h"
#include "db/KyDbBlockTableRecordIterator.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbEntity.h"
#include "db/KyDbObjectPointer.h"
#include "db/KyDbSymbolTable.h"
#include "db/KyDbSymbolTableIterator.h"
#include "db/KyDbSymbolTableRecord.h"
#include "rx/KyRxClass.h"

namespace {

// The order of the tables in a written file.
constexpr const char* kTableOrder[] = {"linetypes", "textStyles", "layers",    "dimStyles",
                                       "views",     "ucs",        "viewports", "blocks"};

KyRefJson recordJson(KyRefWriteContext& context, const KyRefTableRow& row, KyDbObjectId id) {
    KyDbObjectPointer<KyDbSymbolTableRecord> record(id, KyDb::kForRead);
    if (record.openStatus() != Kyro::eOk) {
        return KyRefJson();
    }
    KyRefJson out = KyRefJson::object();
    out["handle"] = KyRefValueForms::handle(KyDbHandle(id.handle()));
    out["name"] = kyrefUtf8(record->name());
    row.write(context, *record.object(), out);
    if (const auto* block = kyrxCast<KyDbBlockTableRecord>(record.object())) {
        KyRefJson entities = KyRefJson::array();
        KyDbBlockTableRecordIterator it(block);
        for (it.start(); !it.done(); it.step()) {
            KyDbObjectId entityId;
            it.getEntityId(entityId);
            KyRefJson entity = KyRefEntityRows::write(context, entityId);
            if (!entity.is_null()) {
                entities.push_back(std::move(entity));
            }
        }
        out["entities"] = std::move(entities);
    }
    context.shape(out, id, *row.members);
    return out;
}

KyRefJson tableJson(KyRefWriteContext& context, const KyRefTableRow& row) {
    KyRefJson records = KyRefJson::array();
    KyDbObjectPointer<KyDbSymbolTable> table((context.database()->*row.table)(), KyDb::kForRead);
    if (table.openStatus() != Kyro::eOk) {
        return records;
    }
    KyDbSymbolTableIterator* raw = nullptr;
    table->newIterator(raw);
    const std::unique_ptr<KyDbSymbolTableIterator> it(raw);
    for (; it != nullptr && !it->done(); it->step()) {
        KyDbObjectId id;
        it->getRecordId(id);
        if (context.isLeftOut(id)) {
            continue;
        }
        KyRefJson record = recordJson(context, row, id);
        if (!record.is_null()) {
            records.push_back(std::move(record));
        }
    }
    return records;
}

// True when every object the reader added is still as it left it.
bool addedUnchanged(KyDbDatabase* database, const KyRefDrawingExtras& extras) {
    KyRefWriteContext context(database, &extras);
    for (const auto& [handle, json] : extras.addedObjects()) {
        KyDbObjectId id;
        if (database->getKyDbObjectId(id, KyDbHandle(handle)) != Kyro::eOk || id.isErased() ||
            KyRefDrawingWriter::objectJson(context, id) != json) {
            return false;
        }
    }
    return true;
}

}  // namespace

KyRefJson KyRefDrawingWriter::objectJson(KyRefWriteContext& context, KyDbObjectId id) {
    const KyRxClass* objectClass = id.objectClass();
    if (objectClass == nullptr) {
        return KyRefJson();
    }
    if (objectClass->isDerivedFrom(KyDbSymbolTableRecord::desc())) {
        const KyRefTableRow* row = KyRefTableRows::ofRecordClass(objectClass);
        return row != nullptr ? recordJson(context, *row, id) : KyRefJson();
    }
    if (objectClass->isDerivedFrom(KyDbEntity::desc())) {
        return KyRefEntityRows::write(context, id);
    }
    if (objectClass->isDerivedFrom(KyDbSymbolTable::desc())) {
        return KyRefJson();
    }
    return KyRefObjectRows::write(context, id);
}

KyRefJson KyRefDrawingWriter::toJson(KyDbDatabase* database) {
    const KyRefDrawingExtras* extras = KyRefDrawingExtras::find(database);
    KyRefWriteContext context(database, extras);
    context.setOmitsAdded(extras != nullptr && addedUnchanged(database, *extras));
    // A member the file had is written back, also when empty; one it did not
    // have only when there is something in it.
    const auto wanted = [extras](const char* member, bool empty) {
        return extras == nullptr || extras->hadMember(member) || !empty;
    };

    KyRefJson document = KyRefJson::object();
    document["format"] = "kydrawing";
    document["version"] = KyRefDrawingReader::kVersion;
    if (extras != nullptr) {
        for (auto it = extras->topLevel().begin(); it != extras->topLevel().end(); ++it) {
            document[it.key()] = *it;
        }
    }
    KyRefJson states = KyRefLayerStateRows::write(context);
    if (wanted("layerStates", states.empty())) {
        document["layerStates"] = std::move(states);
    }
    KyRefJson header = KyRefHeaderRows::write(context);
    if (wanted("header", header.empty())) {
        document["header"] = std::move(header);
    }
    for (const char* member : kTableOrder) {
        KyRefJson records = tableJson(context, KyRefTableRows::named(member));
        if (wanted(member, records.empty())) {
            document[member] = std::move(records);
        }
    }
    KyRefJson objects = KyRefObjectRows::writeRoot(context);
    const bool noEntries =
        !objects.is_object() || !objects.contains("entries") || objects["entries"].empty();
    if (!objects.is_null() && wanted("objects", noEntries)) {
        document["objects"] = std::move(objects);
    }
    return document;
}

std::string KyRefDrawingWriter::toText(KyDbDatabase* database) {
    return toJson(database).dump(1, ' ', false, KyRefJson::error_handler_t::replace) + "\n";
}

bool KyRefDrawingWriter::writeFile(KyDbDatabase* database, const wchar_t* path, KyString& error) {
    if (database == nullptr || path == nullptr || path[0] == L'\0') {
        error = L"No drawing or no file to write.";
        return false;
    }
    const std::string text = toText(database);
    // The path goes to the file system as UTF-8 bytes, whatever the locale.
    const std::filesystem::path target(kyrefUtf8(path));
    std::filesystem::path temporary = target;
    temporary += ".saving";
    {
        std::ofstream out(temporary, std::ios::binary | std::ios::trunc);
        out.write(text.data(), static_cast<std::streamsize>(text.size()));
        out.close();
        if (!out) {
            std::error_code ignored;
            std::filesystem::remove(temporary, ignored);
            error = KyString::formatted(L"The file \"%ls\" can't be written.", path);
            return false;
        }
    }
    std::error_code failure;
    std::filesystem::rename(temporary, target, failure);
    if (failure) {
        std::filesystem::remove(temporary, failure);
        error = KyString::formatted(L"The file \"%ls\" can't be written.", path);
        return false;
    }
    return true;
}
