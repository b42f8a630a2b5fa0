// Not part of the interface: which class serves which system variable, and
// the bounds it shows.
#pragma once

class KyUiImpSysVar;

class SysVarTable {
public:
    // A new implementation for `name`: the class of the first row that names
    // it exactly (case-sensitive), or the plain class without a range.
    static KyUiImpSysVar* newSysVar(const wchar_t* name);
};
