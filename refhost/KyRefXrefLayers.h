// KyRefXrefLayers: brings the layers of an external reference into the
// drawing that attaches it, as records that depend on the reference: layer
// "Walls" of the reference "Site" becomes "Site|Walls", with the properties
// it has in the reference's drawing. Its linetype comes along as
// "Site|DASHED", unless it is Continuous, which every drawing has. Layer 0 of
// the reference is the drawing's own layer 0, and the layers of the
// reference's own references stay out.
//
// The records come in unannounced (KyDbSymbolTable::addWithoutNotice), as an
// attach brings them: who lists layers learns of them when the command that
// attached the reference ends. Undo takes them back as any other records.
#pragma once

#include "base/KyString.h"

class KyDbDatabase;

class KyRefXrefLayers {
public:
    // Adds the dependent layers of the reference `blockName`, whose drawing
    // is `reference`, to `database`, open tables and all closed again. The
    // number of layers added, or -1 with `error` telling why nothing more
    // could be added.
    static int bring(const KyDbDatabase* reference, KyDbDatabase* database,
                     const KyString& blockName, KyString& error);
};
