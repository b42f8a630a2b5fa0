#include "objects/ItemFixture.h"

#include <memory>

#include "db/KyDbObjectPointer.h"
#include "db/KyDbSymbolTable.h"

namespace kytest {

KyDbObjectId ItemFixture::layerId(const wchar_t* name) {
    KyDbObjectPointer<KyDbSymbolTable> table(db()->layerTableId(), KyDb::kForRead);
    KyDbObjectId id;
    table->getAt(name, id);
    return id;
}

std::vector<std::wstring> ItemFixture::memberNames(KyDiDynamicObject* object) {
    std::vector<std::wstring> names;
    const std::unique_ptr<KyRxMemberIterator> members(object->newMemberIterator());
    for (; members != nullptr && !members->done(); members->next()) {
        names.emplace_back(members->current()->name());
    }
    return names;
}

const KyRxProperty* ItemFixture::property(KyDiDynamicObject* object, const wchar_t* name) {
    const std::unique_ptr<KyRxMemberIterator> members(object->newMemberIterator());
    for (; members != nullptr && !members->done(); members->next()) {
        if (std::wstring(members->current()->name()) == name) {
            return kyrxCast<KyRxProperty>(members->current());
        }
    }
    return nullptr;
}

Kyro::ErrorStatus ItemFixture::read(KyDiDynamicObject* object, const wchar_t* name,
                                    KyRxValue& value) {
    const KyRxProperty* member = property(object, name);
    return member != nullptr ? member->getValue(object, value) : Kyro::eKeyNotFound;
}

Kyro::ErrorStatus ItemFixture::write(KyDiDynamicObject* object, const wchar_t* name,
                                     const KyRxValue& value) {
    const KyRxProperty* member = property(object, name);
    return member != nullptr ? member->setValue(object, value) : Kyro::eKeyNotFound;
}

std::wstring ItemFixture::text(const KyRxValue& value) {
    return std::wstring(value.text().kwszPtr());
}

}  // namespace kytest
