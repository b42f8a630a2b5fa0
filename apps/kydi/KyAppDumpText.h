// KyAppDumpText: a dump (KyAppDump) as text, one thing a line: the document,
// the system variables, each table with one line a record ("Walls #2F
// color=aci:1 linetype=Continuous ..."), the named objects dictionary as an
// indented tree of keys, and the header's variables. Values are written in
// the program's value forms (aci:1, alpha:128, #2F, texts quoted when they
// hold blanks).
#pragma once

#include <ostream>

#include "io/KyRefJson.h"

class KyAppDumpText {
public:
    static void write(const KyRefJson& dump, std::ostream& out);
};
