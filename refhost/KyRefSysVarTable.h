// KyRefSysVarTable: every system variable the reference host knows, one row
// each: the variables that the data item layer reads and writes, and the
// usual drawing variables of units, scales and modes.
#pragma once

#include <span>

#include "KyRefSysVarRow.h"

class KyRefSysVarTable {
public:
    static std::span<const KyRefSysVarRow> rows();
    // The row of `name`, in any case; null for a name the host doesn't know.
    static const KyRefSysVarRow* find(const wchar_t* name);
};
