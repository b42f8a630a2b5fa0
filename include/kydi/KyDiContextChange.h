// KyDiContextChange: what one context reported since the manager last told
// its clients: the names of the properties reported, each once in the order
// first reported (empty when the context reported without a name: anything
// may have changed), and the change data of its first report, which belongs
// to the context.
#pragma once

#include "base/KyArray.h"
#include "base/KyString.h"

class KyDiContext;

struct KyDiContextChange {
    KyDiContext* context = nullptr;
    KyArray<KyString, KyArrayObjectCopyReallocator<KyString>> propertyNames{0, 8};
    void* changeData = nullptr;
};
