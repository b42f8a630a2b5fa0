// KyRefDrawingExtras: what a drawing file held beyond what the database
// models, kept beside the database that was read from it, so that saving
// gives the file back as it was:
// - for each object (by handle): which of its listed members the file gave
//   (a member left out stays out while it holds its default), which points
//   it gave with three coordinates, the members the reader does not know,
//   as JSON, and which of an entity kept whole name records;
// - the kind of entities that the platform has no class for;
// - the top-level members beside the tables (source, members nobody knows,
//   the layer filters, kept whole until they are modelled);
// - the header variables as the file wrote them, and those it left out;
// - the objects that the reader added because the file left them out, with
//   their JSON when the reading ended: they stay out of a save as long as
//   none of them changed.
// It lives as a reactor of its database and goes with it.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "KyRefJson.h"
#include "db/KyDbDatabaseReactor.h"
#include "db/KyDbHandle.h"
#include "db/KyDbObjectId.h"

class KyDbDatabase;

class KyRefDrawingExtras : public KyDbDatabaseReactor {
public:
    // A member of an object kept whole that names a record (or, with
    // `entry`, the entry of a dictionary) by name. The object holds no id,
    // so this is how the host knows that the record is in use, and a save
    // writes the name that the record has then.
    struct Reference {
        std::string member;
        KyDbObjectId id;
        bool entry = false;
    };
    struct Form {
        // Bit i: the member i of the object's member list was in the file.
        std::uint64_t present = 0;
        // Bit i: the point member i was written with three coordinates.
        std::uint64_t threeD = 0;
        // Members the reader does not model, as the file had them; null if none.
        std::unique_ptr<KyRefJson> unknown;
        // Of the objects inside a member's value, the members with a default
        // they left out, with that default, in the value's shape; null if none.
        std::unique_ptr<KyRefJson> leftOut;
        // Members that name a record or an entry in another case than the
        // name has ("layer": "WALLS" for the layer "Walls"), as the file had
        // them; null if none. The writer gives them back while they name the
        // same.
        std::unique_ptr<KyRefJson> spelled;
        // Of an entity kept whole: its members that name a record or a
        // dictionary entry, with what each named when it was read.
        std::vector<Reference> references;

        bool holdsAnything() const {
            return present != 0 || threeD != 0 || unknown || leftOut || spelled ||
                   !references.empty();
        }
    };

    // The extras of `database`, null when it was not read from a file.
    static KyRefDrawingExtras* find(const KyDbDatabase* database);
    // The extras of `database`, made when it has none.
    static KyRefDrawingExtras& attach(KyDbDatabase* database);

    ~KyRefDrawingExtras() override;
    KyRefDrawingExtras(const KyRefDrawingExtras&) = delete;
    KyRefDrawingExtras& operator=(const KyRefDrawingExtras&) = delete;

    // ---- Objects
    const Form* form(KyDbHandle handle) const;
    void setForm(KyDbHandle handle, Form&& form);
    // The form of `handle`, made empty when it has none.
    Form& formOf(KyDbHandle handle) { return m_forms[handle.value()]; }
    // The type name of an entity whose kind the platform does not model.
    const std::string* entityType(KyDbHandle handle) const;
    void setEntityType(KyDbHandle handle, std::string type);
    // The objects whose kept members name `id` (Reference), by handle.
    std::vector<KyDbHandle> holdersOf(KyDbObjectId id) const;

    // ---- The document
    // Top-level members the file had, by name.
    bool hadMember(const std::string& name) const;
    void noteMember(const std::string& name) { m_members.push_back(name); }
    // Top-level members other than the tables, the header, the objects and
    // the layer states, in file order: "source", the layer filters, unknown
    // ones.
    KyRefJson& topLevel() { return m_topLevel; }
    const KyRefJson& topLevel() const { return m_topLevel; }

    // The layer filter tree as the file had it (null when it had none).
    const KyRefJson& layerFilters() const;
    void setLayerFilters(KyRefJson filters);

    // ---- The header
    // Each variable as the file wrote it, by its name in the file.
    KyRefJson& headerAsRead() { return m_headerAsRead; }
    const KyRefJson& headerAsRead() const { return m_headerAsRead; }
    // Variables the database can't hold (values other than numbers, text,
    // true or false and points), kept as they were.
    KyRefJson& headerKept() { return m_headerKept; }
    const KyRefJson& headerKept() const { return m_headerKept; }
    // Variables the file left out and the reader filled, with their JSON when
    // reading ended.
    KyRefJson& headerFilled() { return m_headerFilled; }
    const KyRefJson& headerFilled() const { return m_headerFilled; }

    // ---- Objects the reader added
    using Snapshot = std::pair<std::uint64_t, KyRefJson>;
    std::vector<Snapshot>& addedObjects() { return m_added; }
    const std::vector<Snapshot>& addedObjects() const { return m_added; }
    bool isAdded(KyDbHandle handle) const;
    void noteAdded(KyDbHandle handle, KyRefJson json);

    void goodbye(const KyDbDatabase* database) override;

private:
    KyRefDrawingExtras() = default;

    std::unordered_map<std::uint64_t, Form> m_forms;
    std::unordered_map<std::uint64_t, std::string> m_entityTypes;
    std::vector<std::string> m_members;
    KyRefJson m_topLevel = KyRefJson::object();
    KyRefJson m_headerAsRead = KyRefJson::object();
    KyRefJson m_headerKept = KyRefJson::object();
    KyRefJson m_headerFilled = KyRefJson::object();
    std::vector<Snapshot> m_added;
    std::unordered_map<std::uint64_t, std::size_t> m_addedIndex;
};
