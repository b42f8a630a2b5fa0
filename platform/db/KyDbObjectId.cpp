#include "db/KyDbObjectId.h"

#include <cinttypes>
#include <cwchar>

const KyDbObjectId KyDbObjectId::kNull;

namespace {

class KyDbObjectIdValueType : public KyRxValueTypePOD<KyDbObjectId> {
public:
    KyDbObjectIdValueType() : KyRxValueTypePOD<KyDbObjectId>(L"KyDbObjectId", nullptr) {}

    int subToString(const void* instance, wchar_t* buffer, size_t size,
                    StringFormat) const override {
        wchar_t text[24];
        std::swprintf(text, 24, L"%" PRIX64, static_cast<const KyDbObjectId*>(instance)->handle());
        return putText(text, buffer, size);
    }
};

}  // namespace

template <>
const KyRxValueType& KyRxValueType::Desc<KyDbObjectId>::value() {
    static const KyRxValueType* const s_type = new KyDbObjectIdValueType();
    return *s_type;
}
