// KyRefRecordReferences: whether anything of a drawing refers to a record or
// a dictionary entry, so that erasing it would leave a reference to nothing:
// a property of an object that holds its id (an entity's layer, linetype or
// material, a layer's linetype, a style's text style, a table's table style,
// a viewport's visual style), a list of ids that holds it (the layers frozen
// in a viewport), a layer's linetype in a viewport, or a member of an object
// that the drawing file kept whole and that names it (an entity of a kind the
// host does not model). What is erased, or stands in an erased block, refers
// to nothing; the tables and dictionaries that hold records don't count. The
// drawing's objects are walked by handle, from the first to the handseed.
#pragma once

#include "db/KyDbObjectId.h"

class KyDbDatabase;

class KyRefRecordReferences {
public:
    static bool isReferenced(const KyDbDatabase* database, KyDbObjectId id);
};
