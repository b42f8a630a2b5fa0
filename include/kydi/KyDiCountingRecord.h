// KyDiCountingRecord: one entry of the host's object counts: a name and the
// text of its value.
#pragma once

#include "base/KyString.h"

struct KyDiCountingRecord {
    KyString name;
    KyString value;
};
