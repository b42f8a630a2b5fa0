#include "KyAppClassList.h"

#include <memory>
#include <string>

#include "base/KyString.h"
#include "rx/KyRxClass.h"
#include "rx/KyRxDictionary.h"
#include "rx/KyRxValueType.h"

void KyAppClassList::write(std::ostream& out) {
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
        out << line << '\n';
        ++count;
    }
    out << count << " classes\n";
}
