// How a reference path (KyRxRefersToAttribute, "/LayerTableId/Items") walks
// the drawing: the root of a database object is its database, of any other
// object the working database; a step goes on from the object whose id the
// property read, opened for read for the step and closed after it.
//
// The hooks are installed when the platform library is loaded, before any
// class registers: a path asked for from the first query on must find them,
// and a client that installs hooks of its own (a test) keeps them.
#include <iterator>
#include <vector>

#include "db/KyDbDatabase.h"
#include "db/KyDbHostApplicationServices.h"
#include "db/KyDbObject.h"
#include "db/KyDbOpenObject.h"
#include "rx/KyRxStandardAttributes.h"

namespace {

// Objects that a step found open already: they are used as they are and not
// closed by the step's close.
std::vector<KyRxObject*>& borrowedObjects() {
    static auto* s_borrowed = new std::vector<KyRxObject*>();
    return *s_borrowed;
}

const KyRxObject* rootOf(const KyRxObject* object) {
    if (const KyDbDatabase* database = kyrxCast<KyDbDatabase>(object)) {
        return database;
    }
    if (const KyDbObject* dbObject = kyrxCast<KyDbObject>(object)) {
        if (KyDbDatabase* database = dbObject->database()) {
            return database;
        }
    }
    return kydbHostApplicationServices()->workingDatabase();
}

KyRxObject* openValue(const KyRxValue& value) {
    const KyDbObjectId* id = valueCast<KyDbObjectId>(&value);
    if (id == nullptr || id->isNull()) {
        return nullptr;
    }
    KyDbObject* object = nullptr;
    bool openedHere = false;
    if (accessKyDbObjectForRead(object, *id, nullptr, openedHere) != Kyro::eOk) {
        return nullptr;
    }
    if (!openedHere) {
        borrowedObjects().push_back(object);
    }
    return object;
}

void closeObject(KyRxObject* object) {
    std::vector<KyRxObject*>& borrowed = borrowedObjects();
    for (auto it = borrowed.rbegin(); it != borrowed.rend(); ++it) {
        if (*it == object) {
            borrowed.erase(std::next(it).base());
            return;
        }
    }
    if (KyDbObject* dbObject = kyrxCast<KyDbObject>(object)) {
        dbObject->close();
    }
}

struct ReferenceHooksInstaller {
    ReferenceHooksInstaller() {
        KyRxRefersToAttribute::Hooks hooks;
        hooks.root = &rootOf;
        hooks.open = &openValue;
        hooks.close = &closeObject;
        KyRxRefersToAttribute::setHooks(hooks);
    }
};

const ReferenceHooksInstaller g_installer;

}  // namespace
