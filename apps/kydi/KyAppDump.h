// KyAppDump: what `kydi dump` shows, as one JSON object:
//   document     the current document: its number, name and file
//   collections  the known collections with their items
//   contexts     the contexts with their properties
//   sysvars      the system variables the data item layer has asked the
//                host for: name, value, minimum, maximum, whether active
//   tables       every symbol table of the drawing with its records and
//                their values (a block with the count of its entities by type)
//   objects      the named objects dictionary, nested
//   header       the drawing variables of the drawing's header
// Records, objects and variables are in the forms of drawing files.
#pragma once

#include "io/KyRefJson.h"

class KyRefHost;

class KyAppDump {
public:
    static KyRefJson build(KyRefHost& host);
};
