// KyRefSysVarStore: the reference host's system variables, typed by the rows
// of KyRefSysVarTable. Drawing variables are read from and written to the
// current document's database (its header, or the typed accessors of the
// database for the current layer, colour ...); session variables live here,
// but for those whose accessor keeps them elsewhere (LWEIGHTUNITS, a setting
// of the platform).
// Names compare without regard to case.
//
// The rows are those of KyRefSysVarTable. Writes are checked against the row: the type (integers
// take the short and long codes, reals the real, angle and orientation codes, and integers too),
// the range or the values allowed, the read-only flag, and what the accessor
// of the row asks (a layer that exists ...). A refused write changes nothing.
#pragma once

#include <map>
#include <utility>
#include <vector>

#include "KyRefResbuf.h"
#include "KyRefSysVarRow.h"
#include "base/KyString.h"

class KyDbDatabase;
class KyRefHost;

class KyRefSysVarStore {
public:
    enum WriteFlag : unsigned {
        kIgnoreReadOnly = 0x1,    // the host's own writes to read-only variables
        kWithoutUndoRecord = 0x2  // the write of a drawing variable is not recorded for undo
    };

    // The values of every reported variable at one moment, to tell later
    // what changed. A variable that could not be read holds null.
    using Snapshot = std::vector<std::pair<const KyRefSysVarRow*, KyRefResbufPtr>>;
    // The session values written so far, and those kept elsewhere as they
    // are, to put them back.
    using SessionValues = std::map<const KyRefSysVarRow*, KyRefResbufPtr>;

    // `host` answers the current document and the computed variables; a store
    // without a host has no current drawing.
    explicit KyRefSysVarStore(KyRefHost* host);
    KyRefSysVarStore(const KyRefSysVarStore&) = delete;
    KyRefSysVarStore& operator=(const KyRefSysVarStore&) = delete;

    KyRefHost* host() const { return m_host; }

    // The value of `name` (of the current drawing for a drawing variable).
    KyRefSysVarStatus get(const wchar_t* name, KyRefResbufPtr& out) const;
    // Writes `name`; `error` gets the text a user is shown for a refusal.
    KyRefSysVarStatus set(const wchar_t* name, const resbuf& value, unsigned flags = 0,
                          KyString* error = nullptr);

    // The drawing variables of a database of its own (one being read from a
    // file, before it has a document). Session variables answer kUnknownName.
    static KyRefSysVarStatus getDrawing(KyDbDatabase* database, const wchar_t* name,
                                        KyRefResbufPtr& out);
    static KyRefSysVarStatus setDrawing(KyDbDatabase* database, const wchar_t* name,
                                        const resbuf& value, unsigned flags = 0,
                                        KyString* error = nullptr);

    // The host function result of a status: 5100, -5001 (no drawing, write
    // refused by the drawing) or -5003 (unknown, read-only, out of range,
    // wrong type).
    static int hostResult(KyRefSysVarStatus status);

    // A value of the row's type from text typed by a user: integers,
    // numbers, points as "x,y" or "x,y,z", texts (without the double quotes
    // around them). False when the text is no value of the type.
    static bool parse(const KyRefSysVarRow& row, const wchar_t* text, KyRefResbufPtr& out);
    // The text of a value as a prompt shows it ("4", "2.5", "\"Walls\"").
    static KyString format(const resbuf& value);
    // What a user is told when a value is out of the row's range.
    static KyString rangeText(const KyRefSysVarRow& row);

    Snapshot snapshot() const;
    // The names of the variables whose value differs from `before`, in table order.
    std::vector<KyString> changedSince(const Snapshot& before) const;
    SessionValues sessionValues() const;
    void restoreSessionValues(const SessionValues& values);

private:
    KyDbDatabase* currentDatabase() const;
    KyRefSysVarStatus read(const KyRefSysVarRow& row, KyDbDatabase* database,
                           KyRefResbufPtr& out) const;
    KyRefSysVarStatus write(const KyRefSysVarRow& row, KyDbDatabase* database, const resbuf& value,
                            unsigned flags, KyString* error);

    KyRefHost* m_host;
    SessionValues m_session;
};
