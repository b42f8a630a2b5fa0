// Internal to the drawing database; not part of the platform's interface.
//
// KyDbHeader: the drawing variables a database keeps, by name (any case), as
// values. Some variables are typed and checked by the database (the current
// layer, colour, lineweight ...): their rows say the value type and, for ids,
// the table or dictionary the id must come from. Any other name holds any
// value: a host keeps its drawing variables here.
#pragma once

#include <map>
#include <span>

#include "base/KyString.h"
#include "db/KyDbNames.h"
#include "db/KyDbObjectId.h"
#include "rx/KyRxValue.h"

class KyDbDatabase;

class KyDbHeader {
public:
    enum class Kind { kObjectId, kColor, kTransparency, kLineWeight, kShadowFlags, kBool };

    struct Row {
        const wchar_t* name;
        Kind kind;
        // For ids: the table or dictionary the id must belong to.
        KyDbObjectId (KyDbDatabase::*container)() const;
        // For ids: whether the null id may be set.
        bool nullAllowed;
    };

    // The rows of the typed variables.
    static std::span<const Row> rows();
    // The row of a typed variable; null for any other name.
    static const Row* findRow(const wchar_t* name);
    // The value type a row's values have.
    static const KyRxValueType& typeOf(const Row& row);

    // The value of `name`, null when it was never set.
    const KyRxValue* find(const wchar_t* name) const;
    void set(const wchar_t* name, const KyRxValue& value);
    void remove(const wchar_t* name);
    // Names in alphabetical order, without regard to case.
    KyStringArray names() const;

private:
    std::map<KyString, KyRxValue, KyDbNames::LessNoCase> m_values;
};
