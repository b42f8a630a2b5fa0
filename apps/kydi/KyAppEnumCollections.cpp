#include "KyAppEnumCollections.h"

#include "db/KyDbEnums.h"
#include "rx/KyRxValueType.h"

namespace {

struct Row {
    const char* name;
    const KyRxValueType& (*type)();
};

const Row kRows[] = {
    {"LINEWEIGHT", &KyRxValueType::Desc<KyDb::LineWeight>::value},
    {"SHADOWDISPLAY", &KyRxValueType::Desc<KyDb::ShadowFlags>::value},
};

}  // namespace

const IKyRxEnumeration* KyAppEnumCollections::find(const std::string& name) {
    for (const Row& row : kRows) {
        if (name == row.name) {
            return row.type().enumeration();
        }
    }
    return nullptr;
}
