#include "KyRefNamedItem.h"

#include "KyRefReadAccess.h"
#include "db/KyDbDictionary.h"
#include "db/KyDbReservedStrings.h"
#include "db/KyDbSymbolTable.h"
#include "db/KyDbSymbolTableRecord.h"

namespace {

KyDbObjectId lookUp(const KyDbObject* owner, const wchar_t* name) {
    KyDbObjectId id;
    if (const auto* table = kyrxCast<KyDbSymbolTable>(owner)) {
        table->getAt(name, id);
    } else if (const auto* dictionary = kyrxCast<KyDbDictionary>(owner)) {
        dictionary->getAt(name, id);
    }
    return id;
}

}  // namespace

KyDbObjectId KyRefNamedItem::find(KyDbObjectId container, const wchar_t* name) {
    KyRefReadAccess<KyDbObject> owner(container);
    if (!owner || name == nullptr || name[0] == L'\0') {
        return KyDbObjectId();
    }
    KyDbObjectId id = lookUp(owner.object(), name);
    if (id.isNull()) {
        // The drawing keeps reserved names in their global form.
        if (const wchar_t* global = kydbXlateReservedString(name, false)) {
            id = lookUp(owner.object(), global);
        }
    }
    return id;
}

KyString KyRefNamedItem::nameOf(KyDbObjectId container, KyDbObjectId id) {
    if (id.isNull()) {
        return KyString();
    }
    KyRefReadAccess<KyDbObject> owner(container);
    if (!owner) {
        return KyString();
    }
    if (kyrxCast<KyDbSymbolTable>(owner.object()) != nullptr) {
        KyRefReadAccess<KyDbSymbolTableRecord> record(id, true);
        return record ? record->name() : KyString();
    }
    KyString key;
    if (const auto* dictionary = kyrxCast<KyDbDictionary>(owner.object())) {
        dictionary->nameAt(id, key);
    }
    return key;
}
