// KyRefObjectRows: one row for each type of object of the named objects
// dictionary: its "type" in the file, the class of the database, its
// members, and how it is made, read and written. An object of a type without
// a row is kept whole (KyDbUnknownObject). Dictionaries nest: their entries
// are read after the dictionary is in the database, and keep their order.
#pragma once

#include <span>
#include <string>

#include "KyRefJson.h"
#include "KyRefJsonNode.h"
#include "db/KyDbObjectId.h"

class KyDbObject;
class KyRefMemberList;
class KyRefReadContext;
class KyRefWriteContext;
class KyRxClass;

// Where an entry stands: its key, and whether its dictionary is the named
// objects dictionary or the variable dictionary.
struct KyRefEntryPlace {
    const std::string& key;
    bool inRoot;
    bool inVariableDictionary;
};

struct KyRefObjectRow {
    const char* type;
    KyRxClass* (*objectClass)();
    const KyRefMemberList* members;
    // A new object for the entry at `node` (not in the database yet), with
    // the members it can take before it is.
    KyDbObject* (*read)(KyRefReadContext& context, const KyRefJsonNode& node,
                        const KyRefEntryPlace& place);
    // What is read once the object is in the database (a dictionary's
    // entries); null when nothing is.
    void (*fill)(KyRefReadContext& context, const KyRefJsonNode& node, KyDbObjectId id);
    // Writes the members of `object`, open for read, into `out`.
    void (*write)(KyRefWriteContext& context, const KyDbObject& object, KyRefJson& out);
};

class KyRefObjectRows {
public:
    static std::span<const KyRefObjectRow> rows();
    // The row of a type, null for a type kept whole.
    static const KyRefObjectRow* ofType(const std::string& type);

    // Reads the named objects dictionary at `node` into the database's.
    static void readRoot(KyRefReadContext& context, const KyRefJsonNode& node);
    // The JSON of the object `id` as its row writes it, shaped as its file
    // had it; null when it can't be opened.
    static KyRefJson write(KyRefWriteContext& context, KyDbObjectId id);
    // The JSON of the named objects dictionary.
    static KyRefJson writeRoot(KyRefWriteContext& context);
};
