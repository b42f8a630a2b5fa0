// The kydi program. `kydi classes` lists the runtime classes that the
// platform knows by name, with their parents and value sizes.
#include <cstdio>
#include <cstring>
#include <memory>
#include <string>

#include "base/KyString.h"
#include "rx/KyRxClass.h"
#include "rx/KyRxDictionary.h"
#include "rx/KyRxValueType.h"

namespace {

int listClasses() {
    kyrxBuildClassHierarchy();
    std::unique_ptr<KyRxDictionaryIterator> it(kyrxClassDictionary()->newIterator());
    int count = 0;
    for (; !it->done(); it->next()) {
        const KyRxClass* cls = kyrxCast<KyRxClass>(it->object());
        if (cls == nullptr) {
            continue;
        }
        std::string line = KyString(cls->name()).utf8();
        if (const KyRxValueType* type = kyrxCast<KyRxValueType>(cls)) {
            line += " (value, " + std::to_string(type->size()) + " bytes)";
        } else if (cls->myParent() != nullptr) {
            line += " : " + KyString(cls->myParent()->name()).utf8();
        }
        std::printf("%s\n", line.c_str());
        ++count;
    }
    std::printf("%d classes\n", count);
    return 0;
}

int usage() {
    std::fprintf(stderr, "usage: kydi classes\n");
    return 2;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 2) {
        return usage();
    }
    if (std::strcmp(argv[1], "classes") == 0) {
        return listClasses();
    }
    return usage();
}
