// KyRefRecordKind: the kinds of named things of a drawing that RECORD makes,
// renames and erases, one row each: the records of the symbol tables (layers,
// linetypes, text styles, dimension styles, views, UCSs, viewport
// configurations) and the entries of the named dictionaries (table styles,
// multileader styles, section and detail view styles, materials, layouts,
// page setups, visual styles).
//
// A row says how a user names the kind (its kind word, and how messages call
// one), where the drawing keeps it (the table or dictionary), how a new one
// is made and how one takes a new name. A dictionary entry's own name follows
// its key. What a kind needs of the host beyond that (a layout's block, the
// current UCS's name) is in the row's hooks, which end the command with an
// error line when they refuse.
#pragma once

#include <span>

#include "KyRefKeywords.h"
#include "base/KyString.h"
#include "db/KyDbObjectId.h"

class KyDbDatabase;
class KyDbObject;
class KyRefCommandContext;

struct KyRefRecordKind {
    KyRefKeyword keyword;  // the kind word: LINETYPE, and its local form
    const wchar_t* what;   // one of the kind in a message: "linetype"
    KyDbObjectId (KyDbDatabase::*container)() const;
    // A new one named `name`, not in the drawing yet.
    KyDbObject* (*make)(KyDbDatabase* database, const wchar_t* name);
    // Gives one, open for write, the name `name`: a record's name, an
    // entry's own name. The status of the setter.
    Kyro::ErrorStatus (*rename)(KyDbObject& object, const wchar_t* name);
    // True when one that something of the drawing refers to can't be erased
    // (KyRefRecordReferences); false for a layout, whose block refers to it
    // and goes with it.
    bool keptWhileReferenced;

    // The host's part; null when the kind has none.
    // After a new one came into its table or dictionary.
    void (*added)(KyRefCommandContext& context, KyDbObjectId id) = nullptr;
    // Before one named `name` is renamed, or erased: they refuse what the
    // host holds on to.
    void (*checkRename)(KyRefCommandContext& context, const KyString& name) = nullptr;
    void (*checkErase)(KyRefCommandContext& context, KyDbObjectId id,
                       const KyString& name) = nullptr;
    // After one was renamed from `oldName` to `newName`.
    void (*renamed)(KyRefCommandContext& context, const KyString& oldName,
                    const KyString& newName) = nullptr;
    // After one was erased.
    void (*erased)(KyRefCommandContext& context, KyDbObjectId id) = nullptr;

    static std::span<const KyRefRecordKind> rows();
    // The row of a kind word (the local form, the global one after "_", in
    // any case); null for none.
    static const KyRefRecordKind* find(const wchar_t* word);
    // The kind words as a prompt shows them: "[LAYER/LINETYPE/...]".
    static KyString options();
};
