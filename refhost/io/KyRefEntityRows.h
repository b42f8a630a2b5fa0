// KyRefEntityRows: one row for each entity type of a drawing file: its
// "type" (for a modelled type, the type word its class answers as dxfName),
// the class of the database, its members (the members every entity
// has, then its own), and how it is read and written. A type whose row has
// no class, and any type without a row, is kept whole as a
// KyDbUnknownEntity: the members every entity has are read into it, the rest
// is its data, written back as it was; the references of a listed type are
// still checked.
#pragma once

#include <span>
#include <string>

#include "KyRefJson.h"
#include "KyRefJsonNode.h"
#include "db/KyDbObjectId.h"

class KyDbBlockTableRecord;
class KyDbEntity;
class KyRefMemberList;
class KyRefReadContext;
class KyRefWriteContext;
class KyRxClass;

struct KyRefEntityRow {
    // The word of a type kept whole; null for a modelled type, whose word its
    // class carries.
    const char* keptType;
    // Null for a type kept whole.
    KyRxClass* (*entityClass)();
    const KyRefMemberList* members;
    // A new entity with the members of its type (not in the database yet);
    // for a type kept whole, checks its members and answers null.
    KyDbEntity* (*read)(KyRefReadContext& context, const KyRefJsonNode& node);
    // What is read once the entity is in the database (the attributes of a
    // block reference); null when nothing is.
    void (*fill)(KyRefReadContext& context, const KyRefJsonNode& node, KyDbEntity& entity);
    // Writes the members of the type's own into `out`.
    void (*write)(KyRefWriteContext& context, const KyDbEntity& entity, KyRefJson& out);

    // The "type" of the row's entities in a drawing file.
    std::string type() const;
};

class KyRefEntityRows {
public:
    static std::span<const KyRefEntityRow> rows();
    static const KyRefEntityRow* ofType(const std::string& type);
    // The members every entity has.
    static const KyRefMemberList& common();

    // Reads the entity at `node` and appends it to `block`, open for write.
    static void read(KyRefReadContext& context, const KyRefJsonNode& node,
                     KyDbBlockTableRecord& block);
    // The JSON of the entity `id`; null when it can't be opened.
    static KyRefJson write(KyRefWriteContext& context, KyDbObjectId id);
};
