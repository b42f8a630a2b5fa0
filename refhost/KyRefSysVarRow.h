// One row of the reference host's table of system variables: its name, its
// type (a resbuf code), where it lives, its value in a new drawing or session,
// the values it takes, and, for a variable that stands for something of the
// drawing (the current layer, the current colour ...), the accessor that reads
// and writes that thing.
#pragma once

#include "KyRefResbuf.h"
#include "base/KyString.h"

class KyDbDatabase;
class KyRefSysVarStore;
struct KyRefSysVarAccessor;
struct KyRefSysVarRow;

// Drawing variables live in the drawing's database (its header) and travel
// with its file; session variables live in the host.
enum class KyRefSysVarHome : unsigned char { kSession, kDrawing };

enum KyRefSysVarFlag : unsigned {
    kSysVarReadOnly = 0x1,      // refused by the ordinary write path
    kSysVarComputed = 0x2,      // computed by the host: no write at all
    kSysVarAboveMinimum = 0x4,  // numbers above `minimum`, no maximum
    kSysVarFromMinimum = 0x8,   // numbers of `minimum` or more, no maximum
    kSysVarNotReported = 0x10,  // changes of it are not reported (CMDNAMES)
};

// What became of a read or a write.
enum class KyRefSysVarStatus {
    kOk,
    kUnknownName,
    kReadOnly,
    kWrongType,
    kOutOfRange,
    kInvalidValue,  // a value of the right type that names nothing (a layer that isn't there)
    kNoDocument,    // a drawing variable with no drawing
    kRefused,       // the database refused the write (no document lock)
};

// What an accessor works on.
struct KyRefSysVarAccess {
    const KyRefSysVarRow& row;
    KyDbDatabase* database;         // null for a session variable
    const KyRefSysVarStore* store;  // null when a database is read without a host
};

struct KyRefSysVarAccessor {
    using Get = KyRefSysVarStatus (*)(const KyRefSysVarAccess& access, KyRefResbufPtr& out);
    using Check = KyRefSysVarStatus (*)(const KyRefSysVarAccess& access, const resbuf& value,
                                        KyString& error);
    using Set = KyRefSysVarStatus (*)(const KyRefSysVarAccess& access, const resbuf& value,
                                      KyString& error);
    Get get = nullptr;      // null: the value is kept as it was written
    Check check = nullptr;  // null: any value of the type and range
    Set set = nullptr;      // null: the value is kept as it is
    const void* data = nullptr;
};

struct KyRefSysVarRow {
    const wchar_t* name;
    short type;
    KyRefSysVarHome home;
    // The value before any write, as it would be typed.
    const wchar_t* initial;
    // Numbers: the range; a maximum below the minimum means no range, unless
    // a flag asks for a lower bound alone.
    double minimum = 0.0;
    double maximum = -1.0;
    unsigned flags = 0;
    // Blank-separated list of the values allowed, null for any.
    const wchar_t* allowed = nullptr;
    const KyRefSysVarAccessor* accessor = nullptr;

    bool isDrawing() const { return home == KyRefSysVarHome::kDrawing; }
    bool has(KyRefSysVarFlag flag) const { return (flags & flag) != 0; }
};
