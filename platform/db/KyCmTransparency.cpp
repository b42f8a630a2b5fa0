#include "db/KyCmTransparency.h"

#include <string>

#include "base/KyString.h"
#include "rx/KyRxStandardAttributes.h"

namespace {

// The platform's resource texts of the reserved words, shared with colours.
constexpr unsigned int kTextByLayer = 9200;
constexpr unsigned int kTextByBlock = 9201;

class KyCmTransparencyValueType : public KyRxValueTypePOD<KyCmTransparency> {
public:
    KyCmTransparencyValueType()
        : KyRxValueTypePOD<KyCmTransparency>(L"KyCmTransparency", nullptr) {}

    int subToString(const void* instance, wchar_t* buffer, size_t size,
                    StringFormat format) const override {
        const auto& transparency = *static_cast<const KyCmTransparency*>(instance);
        switch (transparency.method()) {
            case KyCmTransparency::kByLayer:
                return putWord(kTextByLayer, L"ByLayer", buffer, size, format);
            case KyCmTransparency::kByBlock:
                return putWord(kTextByBlock, L"ByBlock", buffer, size, format);
            case KyCmTransparency::kByAlpha:
                return putText(std::to_wstring(transparency.alpha()).c_str(), buffer, size);
            case KyCmTransparency::kErrorValue:
                break;
        }
        return putText(L"", buffer, size);
    }

private:
    static int putWord(unsigned int textId, const wchar_t* global, wchar_t* buffer, size_t size,
                       StringFormat format) {
        if (format == kStringFormatLocalized) {
            const KyString local = KyRxResourceTables::text(0, textId);
            if (!local.isEmpty()) {
                return putText(local.kwszPtr(), buffer, size);
            }
        }
        return putText(global, buffer, size);
    }
};

}  // namespace

void KyCmTransparency::setMethod(TransparencyMethod method) {
    if (method == kByAlpha) {
        setAlpha(255);
    } else {
        m_value = std::uint32_t{method} << 24;
    }
}

template <>
const KyRxValueType& KyRxValueType::Desc<KyCmTransparency>::value() {
    static const KyRxValueType* const s_type = new KyCmTransparencyValueType();
    return *s_type;
}
