// KyRefTableRows: one row for each table of a drawing file: its member at the
// top level, the kind of its records in messages, the table of the database,
// the standard records a new drawing has in it, the members of its records,
// and how a record is made, read and written. Handles and names are read and
// written by the reader and writer for every table alike; a block's layout
// and entities, and a layer's viewport overrides, which refer to objects read
// later, too.
#pragma once

#include <span>
#include <string_view>

#include "KyRefJson.h"
#include "KyRefJsonNode.h"
#include "db/KyDbObjectId.h"

class KyDbDatabase;
class KyDbSymbolTableRecord;
class KyRefMemberList;
class KyRefReadContext;
class KyRefWriteContext;
class KyRxClass;

struct KyRefTableRow {
    const char* member;
    const char* what;
    KyDbObjectId (KyDbDatabase::*table)() const;
    // The part of KyDbStandardContent that holds the table's standard records.
    unsigned standardPart;
    const KyRefMemberList* members;
    KyRxClass* (*recordClass)();
    KyDbSymbolTableRecord* (*make)();
    // Reads the members of the new record at `node` (not in the database yet).
    void (*read)(KyRefReadContext& context, const KyRefJsonNode& node,
                 KyDbSymbolTableRecord& record);
    // Writes the members of `record`, open for read, into `out`.
    void (*write)(KyRefWriteContext& context, const KyDbSymbolTableRecord& record, KyRefJson& out);
};

class KyRefTableRows {
public:
    // Every table, in the order a file lists them.
    static std::span<const KyRefTableRow> rows();
    // The row of the table with the member `member` ("layers").
    static const KyRefTableRow& named(std::string_view member);
    // The row of the table whose records are of `recordClass`; null if none.
    static const KyRefTableRow* ofRecordClass(const KyRxClass* recordClass);

    // A layer's overrides in viewports, read once the viewports are there.
    static void readViewportOverrides(KyRefReadContext& context, const KyRefJsonNode& node,
                                      KyDbObjectId layerId);
    // The properties the drawing overrides on a layer of an external
    // reference, read once the reference blocks are there.
    static void readXrefOverrides(const KyRefJsonNode& node, KyDbObjectId layerId);
};
