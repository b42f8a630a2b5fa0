#include "kydi/KyDiModule.h"

extern "C" int kydiEntryPoint(int /*message*/, void* /*applicationId*/) {
    return 0;
}
