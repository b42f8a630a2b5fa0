#include "kydi/KyDiValueTypes.h"

#include <cstdarg>
#include <cwchar>

#include "kydi/KyDiDbItem.h"

namespace {

// Writes `text` with printf rules into `buffer` (at most `size` characters
// with the end), or only measures it without a buffer; answers its length.
int putFormatted(wchar_t* buffer, size_t size, const wchar_t* format, ...) {
    wchar_t local[64];
    va_list args;
    va_start(args, format);
    const int length = std::vswprintf(local, 64, format, args);
    va_end(args);
    if (length < 0) {
        return 0;
    }
    if (buffer != nullptr && size > 0) {
        std::wcsncpy(buffer, local, size);
        buffer[size - 1] = L'\0';
    }
    return length;
}

class DynamicObjectValueType : public KyRxValueTypePOD<KyDiDynamicObject*> {
public:
    DynamicObjectValueType() : KyRxValueTypePOD(L"KyDiDynamicObject*", nullptr) {}

    // The text of the object's value; for a database item, which keeps no
    // value of its own, the handle of its object.
    int subToString(const void* instance, wchar_t* buffer, size_t size,
                    StringFormat format) const override {
        KyDiDynamicObject* object = *static_cast<KyDiDynamicObject* const*>(instance);
        if (object == nullptr) {
            return 0;
        }
        if (const KyRxValue* value = object->value()) {
            return value->toString(buffer, size, format);
        }
        if (auto* item = kyrxCast<KyDiDbItem>(static_cast<KyRxObject*>(object))) {
            if ((buffer == nullptr) != (size == 0)) {
                return -1;
            }
            const KyDbObjectId id = item->objectId();
            return KyRxValueType::Desc<KyDbObjectId>::value().toString(&id, buffer, size, format);
        }
        return 0;
    }
};

class CollectionValueType : public KyRxValueTypePOD<KyDiObservableCollection*> {
public:
    CollectionValueType() : KyRxValueTypePOD(L"KyDiObservableCollection*", nullptr) {}

    int subToString(const void* instance, wchar_t* buffer, size_t size,
                    StringFormat /*format*/) const override {
        const void* address = *static_cast<const void* const*>(instance);
        return putFormatted(buffer, size, L"%p", address);
    }
};

class ItemArrayValueType : public KyRxValueTypePOD<KyDiItemArray*> {
public:
    ItemArrayValueType() : KyRxValueTypePOD(L"KyDiDynamicObjectArray*", nullptr) {}

    int subToString(const void* instance, wchar_t* buffer, size_t size,
                    StringFormat /*format*/) const override {
        const KyDiItemArray* items = *static_cast<const KyDiItemArray* const*>(instance);
        return putFormatted(buffer, size, L"%d", items != nullptr ? items->length() : 0);
    }
};

}  // namespace

template <>
const KyRxValueType& KyRxValueType::Desc<KyDiDynamicObject*>::value() {
    static const KyRxValueType* const s_type = new DynamicObjectValueType();
    return *s_type;
}

template <>
const KyRxValueType& KyRxValueType::Desc<KyDiObservableCollection*>::value() {
    static const KyRxValueType* const s_type = new CollectionValueType();
    return *s_type;
}

template <>
const KyRxValueType& KyRxValueType::Desc<KyDiItemArray*>::value() {
    static const KyRxValueType* const s_type = new ItemArrayValueType();
    return *s_type;
}
