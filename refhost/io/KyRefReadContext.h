// KyRefReadContext: the state of one reading of a drawing file: the database
// being filled, its extras, and the lookups that turn the names and handles
// of the file into ids. Every lookup that finds nothing, and every refusal of
// the database, fails at the node that asked (KyRefDrawingError).
#pragma once

#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "KyRefDrawingExtras.h"
#include "KyRefJsonNode.h"
#include "KyRefMemberList.h"
#include "base/KyroErrorStatus.h"
#include "db/KyDbObjectId.h"

class KyDbDatabase;
class KyDbDictionary;
class KyDbObject;
class KyDbSymbolTable;
class KyDbSymbolTableRecord;
class KyRxClass;

class KyRefReadContext {
public:
    KyRefReadContext(KyDbDatabase* database, KyRefDrawingExtras& extras);

    KyDbDatabase* database() const { return m_database; }
    KyRefDrawingExtras& extras() const { return m_extras; }

    // The record named by the text at `node` in the table `tableId`; `what`
    // names the kind of record in the message ("linetype").
    KyDbObjectId record(KyDbObjectId tableId, const KyRefJsonNode& node, const char* what);
    // The same for a name that is not in the file: a default.
    KyDbObjectId record(KyDbObjectId tableId, const wchar_t* name, const KyRefJsonNode& node,
                        const char* member, const char* what);
    // The entry under the key at `node` in the dictionary `dictionaryId`.
    KyDbObjectId entry(KyDbObjectId dictionaryId, const KyRefJsonNode& node, const char* what);
    KyDbObjectId entry(KyDbObjectId dictionaryId, const wchar_t* key, const KyRefJsonNode& node,
                       const char* member, const char* what);
    // The object of the handle at `node`, which must be of `objectClass` (or
    // derived from it); `what` names it in the message.
    KyDbObjectId object(const KyRefJsonNode& node, const KyRxClass* objectClass,
                        const char* what) const;

    // Fails at `node` unless the database answered eOk; `expected` says what
    // the member should have been.
    static void check(Kyro::ErrorStatus status, const KyRefJsonNode& node, const char* expected);

    // Adds `record` to the open table with the handle at node.handle; the
    // record is then the database's and closed. Duplicate handles and names
    // fail at the node.
    KyDbObjectId addRecord(KyDbSymbolTable* table, std::unique_ptr<KyDbSymbolTableRecord> record,
                           const KyRefJsonNode& node, const char* what);
    // Puts `object` under `key` in the open dictionary with the handle at
    // node.handle; the object is then the database's and closed.
    KyDbObjectId addEntry(KyDbDictionary* dictionary, const std::string& key,
                          std::unique_ptr<KyDbObject> object, const KyRefJsonNode& node);

    // Keeps the form of the object at `node` for the writer.
    void keepForm(KyDbObjectId id, const KyRefJsonNode& node, const KyRefMemberList& members,
                  std::initializer_list<std::string_view> alsoKnown = {});
    // Keeps in `form` the members of the object at `node` that name a
    // record or an entry in another case than its name, as the file wrote
    // them (the lookups since the last call tell which).
    void keepSpellings(KyRefDrawingExtras::Form& form, const KyRefJsonNode& node);
    // The same for the object `id`, whose form is kept already: for
    // members read after the object (the viewport overrides of a layer).
    void keepSpellings(KyDbObjectId id, const KyRefJsonNode& node);
    // Keeps `value` beside the object being read as its unknown member `name`
    // (a part of a listed member that the database can't hold); the next
    // keepForm takes it.
    void keepUnknown(const std::string& name, KyRefJson value);
    // Notes that the member `member` of the entity being read, which is kept
    // whole, names `id` (a record, or with `entry` a dictionary entry); the
    // entity's reading takes the notes (takeReferences).
    void keepReference(const std::string& member, KyDbObjectId id, bool entry);
    std::vector<KyRefDrawingExtras::Reference> takeReferences();

    // A drawing variable that the file keeps in the variable dictionary and
    // the database in its header: resolved once every dictionary is read.
    struct DeferredVariable {
        std::string name;
        std::string value;
        std::string path;
    };
    void deferVariable(DeferredVariable variable) { m_deferred.push_back(std::move(variable)); }
    const std::vector<DeferredVariable>& deferredVariables() const { return m_deferred; }

private:
    // What a name of the file found: the id, and whether the file wrote the
    // name as the record or entry has it.
    struct Found {
        KyDbObjectId id;
        bool exact = true;
    };
    using Names = std::unordered_map<std::string, Found>;
    Found lookUp(KyDbObjectId containerId, const std::string& name, bool dictionary);
    // Notes the name at `node` for keepSpellings when the file wrote it in
    // another case.
    KyDbObjectId noted(const Found& found, const KyRefJsonNode& node);

    KyDbDatabase* m_database;
    KyRefDrawingExtras& m_extras;
    std::unordered_map<const void*, Names> m_names;
    KyRefJson m_pending;
    // The values of the names written in another case since keepSpellings.
    std::vector<const KyRefJson*> m_spelled;
    std::vector<KyRefDrawingExtras::Reference> m_references;
    std::vector<DeferredVariable> m_deferred;
};
