// A host program built against the installed libraries: it loads the system's
// entry point, asks the platform for a runtime class by name and reads a text
// of the platform's installed resource module.
#include <cstdio>

#include "base/KyRxResourceInstance.h"
#include "base/KyString.h"
#include "kydi/KyDiModule.h"
#include "rx/KyRxClass.h"

int main() {
    if (kydiEntryPoint(0, nullptr) != 0) {
        std::puts("entry point failed");
        return 1;
    }
    KyRxClass* cls = kyrxFindKyRxClass(L"KyRxProperty");
    if (cls == nullptr || cls->myParent() == nullptr) {
        std::puts("class registry not available");
        return 1;
    }
    KyRxResourceInstance resources(L"kyplatform");
    if (!resources.isLoaded()) {
        std::puts("resource module not found");
        return 1;
    }
    KyString parent(cls->myParent()->name());
    std::printf("ok: %s derives from %s\n", KyString(cls->name()).utf8().c_str(),
                parent.utf8().c_str());
    return 0;
}
