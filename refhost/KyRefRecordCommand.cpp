#include "KyRefRecordCommand.h"

#include "KyRefCommandContext.h"
#include "KyRefLanguage.h"
#include "KyRefNamedItem.h"
#include "KyRefReadAccess.h"
#include "KyRefRecordKind.h"
#include "KyRefRecordReferences.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbDictionary.h"
#include "db/KyDbLayerTableRecord.h"
#include "db/KyDbObjectPointer.h"
#include "db/KyDbSymbolTable.h"
#include "db/KyDbSymbolTableRecord.h"

namespace {

const KyRefKeyword kOptions[] = {
    {L"New", L"Neu"},
    {L"Rename", L"Umbenennen"},
    {L"Erase", L"Loeschen"},
};
constexpr int kNew = 0;
constexpr int kRename = 1;

// What one run works on: the kind and the table or dictionary that holds it.
struct RecordRun {
    KyRefCommandContext& context;
    const KyRefRecordKind& kind;
    KyDbObjectId container;
};

// A name a user may give: one that a record takes, without the "|" of the
// records of external references and the "*" of the drawing's own ones.
bool isValidName(const KyString& name) {
    if (name.find(L'|') >= 0 || name.find(L'*') >= 0) {
        return false;
    }
    KyDbLayerTableRecord probe;
    return probe.setName(name) == Kyro::eOk;
}

void checkNewName(RecordRun& run, const KyString& name, KyDbObjectId renamed = KyDbObjectId()) {
    if (!isValidName(name)) {
        run.context.fail(L"Invalid %ls name \"%ls\".", run.kind.what, name.kwszPtr());
    }
    const KyDbObjectId holder = KyRefNamedItem::find(run.container, name);
    if (!holder.isNull() && holder != renamed) {
        run.context.fail(L"A %ls named \"%ls\" already exists.", run.kind.what, name.kwszPtr());
    }
}

// Asks for the record to act on and returns it, with its name as the drawing
// holds it; an empty answer returns null. A name that names nothing, a
// record of an external reference, and one of the drawing's own (its name
// begins with "*", which no name a user gives does) end the command.
KyDbObjectId askForRecord(RecordRun& run, const wchar_t* verb, KyString& name) {
    const KyString typed = run.context.readName(
        KyString::formatted(L"Enter name of %ls to %ls: ", run.kind.what, verb).kwszPtr());
    if (typed.isEmpty()) {
        return KyDbObjectId();
    }
    const KyDbObjectId id = KyRefNamedItem::find(run.container, typed);
    if (id.isNull()) {
        run.context.fail(L"Cannot find %ls \"%ls\".", run.kind.what, typed.kwszPtr());
    }
    name = KyRefNamedItem::nameOf(run.container, id);
    if (name.find(L'*') == 0) {
        run.context.fail(L"Cannot %ls %ls \"%ls\": it is the drawing's own.", verb, run.kind.what,
                         name.kwszPtr());
    }
    KyRefReadAccess<KyDbSymbolTableRecord> record(id);
    if (record && record->isDependent()) {
        run.context.fail(L"The %ls \"%ls\" belongs to an external reference.", run.kind.what,
                         name.kwszPtr());
    }
    return id;
}

bool isDictionary(KyDbObjectId container) {
    return container.objectClass() != nullptr &&
           container.objectClass()->isDerivedFrom(KyDbDictionary::desc());
}

// Puts `object` (new) into the table or dictionary, under `name` for a
// dictionary; it is closed then. The status of the add.
Kyro::ErrorStatus add(KyDbObjectId containerId, const KyString& name, KyDbObject* object,
                      KyDbObjectId& id) {
    KyDbObjectPointer<KyDbObject> container(containerId, KyDb::kForWrite);
    Kyro::ErrorStatus status = container.openStatus();
    if (auto* table = kyrxCast<KyDbSymbolTable>(container.object())) {
        status = table->add(id, static_cast<KyDbSymbolTableRecord*>(object));
    } else if (auto* dictionary = kyrxCast<KyDbDictionary>(container.object())) {
        status = dictionary->setAt(name, object, id);
    } else if (status == Kyro::eOk) {
        status = Kyro::eNotThatKindOfClass;
    }
    if (status == Kyro::eOk) {
        object->close();
    }
    return status;
}

void create(RecordRun& run) {
    const KyString name = run.context.readName(
        KyString::formatted(L"Enter name of new %ls: ", run.kind.what).kwszPtr());
    if (name.isEmpty()) {
        return;
    }
    checkNewName(run, name);
    KyDbObject* object = run.kind.make(run.context.database(), name);
    KyDbObjectId id;
    if (add(run.container, name, object, id) != Kyro::eOk) {
        delete object;
        run.context.fail(L"Cannot create %ls \"%ls\".", run.kind.what, name.kwszPtr());
    }
    if (run.kind.added != nullptr) {
        run.kind.added(run.context, id);
    }
}

void rename(RecordRun& run) {
    KyString oldName;
    const KyDbObjectId id = askForRecord(run, L"rename", oldName);
    if (id.isNull()) {
        return;
    }
    const KyString newName = run.context.readName(
        KyString::formatted(L"Enter new name for %ls \"%ls\": ", run.kind.what, oldName.kwszPtr())
            .kwszPtr());
    if (newName.isEmpty()) {
        return;
    }
    checkNewName(run, newName, id);
    if (run.kind.checkRename != nullptr) {
        run.kind.checkRename(run.context, oldName);
    }
    Kyro::ErrorStatus status = Kyro::eOk;
    {
        KyDbObjectPointer<KyDbDictionary> dictionary;
        if (isDictionary(run.container)) {
            status = dictionary.open(run.container, KyDb::kForWrite);
        }
        KyDbObjectPointer<KyDbObject> object(id, KyDb::kForWrite);
        status = status != Kyro::eOk ? status : object.openStatus();
        if (status == Kyro::eOk) {
            status = run.kind.rename(*object.object(), newName);
        }
        if (status == Kyro::eOk && dictionary) {
            status = dictionary->setName(oldName, newName);
        }
    }
    if (status != Kyro::eOk) {
        run.context.fail(L"Cannot rename %ls \"%ls\".", run.kind.what, oldName.kwszPtr());
    }
    if (run.kind.renamed != nullptr) {
        run.kind.renamed(run.context, oldName, newName);
    }
}

void erase(RecordRun& run) {
    KyString name;
    const KyDbObjectId id = askForRecord(run, L"erase", name);
    if (id.isNull()) {
        return;
    }
    if (run.context.database()->isCurrentItem(id)) {
        run.context.fail(L"Cannot erase the current %ls \"%ls\".", run.kind.what, name.kwszPtr());
    }
    if (run.kind.checkErase != nullptr) {
        run.kind.checkErase(run.context, id, name);
    }
    if (run.kind.keptWhileReferenced &&
        KyRefRecordReferences::isReferenced(run.context.database(), id)) {
        run.context.fail(L"Cannot erase %ls \"%ls\": it is in use.", run.kind.what, name.kwszPtr());
    }
    Kyro::ErrorStatus status = Kyro::eOk;
    {
        KyDbObjectPointer<KyDbObject> object(id, KyDb::kForWrite);
        status = object ? object->erase(true) : object.openStatus();
    }
    if (status != Kyro::eOk) {
        run.context.fail(L"Cannot erase %ls \"%ls\".", run.kind.what, name.kwszPtr());
    }
    if (run.kind.erased != nullptr) {
        run.kind.erased(run.context, id);
    }
}

}  // namespace

void KyRefRecordCommand::run(KyRefCommandContext& context) {
    const KyString answer = context.readWord(
        KyString::formatted(L"Enter an option %ls: ", KyRefKeywords::options(kOptions).kwszPtr())
            .kwszPtr());
    if (answer.isEmpty()) {
        return;
    }
    const int option = KyRefKeywords::match(kOptions, answer);
    if (option < 0) {
        context.fail(L"Invalid option keyword \"%ls\".", answer.kwszPtr());
    }
    const KyString word = context.readWord(
        KyString::formatted(L"Enter the kind of record %ls: ", KyRefRecordKind::options().kwszPtr())
            .kwszPtr());
    if (word.isEmpty()) {
        return;
    }
    const KyRefRecordKind* kind = KyRefRecordKind::find(word);
    if (kind == nullptr) {
        context.fail(L"Unknown kind of record \"%ls\".", word.kwszPtr());
    }
    RecordRun run{context, *kind, (context.database()->*kind->container)()};
    if (option == kNew) {
        create(run);
    } else if (option == kRename) {
        rename(run);
    } else {
        erase(run);
    }
}
