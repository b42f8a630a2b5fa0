#include "db/KyDbRecordReference.h"

#include <algorithm>
#include <iterator>

#include "db/KyDbDatabase.h"
#include "db/KyDbDictionary.h"
#include "db/KyDbHostApplicationServices.h"
#include "db/KyDbObject.h"
#include "db/KyDbSymbolTable.h"
#include "rx/KyRxClass.h"

Kyro::ErrorStatus KyDbRecordReference::check(const KyDbObject* holder, KyDbObjectId id,
                                             const KyRxClass* recordClass) {
    if (id.isNull()) {
        return Kyro::eNullObjectId;
    }
    if (!id.isValid()) {
        return Kyro::eInvalidObjectId;
    }
    if (!KyRxClass::isDerivedFrom(id.objectClass(), recordClass)) {
        return Kyro::eNotThatKindOfClass;
    }
    if (holder->isDatabaseResident() && id.database() != holder->database()) {
        return Kyro::eWrongDatabase;
    }
    if (id.isErased()) {
        return Kyro::eWasErased;
    }
    return Kyro::eOk;
}

KyDbObjectId KyDbRecordReference::recordNamed(const KyDbDatabase* database, KyDbObjectId tableId,
                                              const wchar_t* name) {
    KyDbObjectId id;
    if (database != nullptr && tableId.isValid()) {
        if (const auto* table = kyrxCast<KyDbSymbolTable>(tableId.stub()->object)) {
            table->getAt(name, id);
        }
    }
    return id;
}

const KyDbDatabase* KyDbRecordReference::databaseOf(const KyDbObject* object) {
    if (object != nullptr && object->database() != nullptr) {
        return object->database();
    }
    return kydbHostApplicationServices()->workingDatabase();
}

Kyro::ErrorStatus KyDbRecordReference::findNamed(const KyDbObject* holder,
                                                 KyDbObjectId (KyDbDatabase::*container)() const,
                                                 const wchar_t* name, KyDbObjectId& id) {
    if (name == nullptr || name[0] == L'\0') {
        return Kyro::eInvalidInput;
    }
    const KyDbDatabase* database = databaseOf(holder);
    if (database == nullptr) {
        return Kyro::eNotInDatabase;
    }
    const KyDbObjectId containerId = (database->*container)();
    if (!containerId.isValid()) {
        return Kyro::eKeyNotFound;
    }
    KyDbObjectId found;
    if (const auto* table = kyrxCast<KyDbSymbolTable>(containerId.stub()->object)) {
        table->getAt(name, found);
    } else if (const auto* dictionary = kyrxCast<KyDbDictionary>(containerId.stub()->object)) {
        dictionary->getAt(name, found);
    }
    if (found.isNull()) {
        return Kyro::eKeyNotFound;
    }
    id = found;
    return Kyro::eOk;
}

bool KyDbRecordReference::isStandardWeight(int weight) {
    static const int kWeights[] = {0,  5,  9,  13,  15,  18,  20,  25,  30,  35,  40, 50, 53, 60,
                                   70, 80, 90, 100, 106, 120, 140, 158, 200, 211, -1, -2, -3};
    return std::find(std::begin(kWeights), std::end(kWeights), weight) != std::end(kWeights);
}
