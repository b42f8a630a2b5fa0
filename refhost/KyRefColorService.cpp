#include "KyRefColorService.h"

#include "KyRefReservedWords.h"

Kyro::ErrorStatus KyRefColorService::name(int position, KyString& out) {
    switch (position) {
        case 0:
            out = KyRefReservedWords::local(KyRefReservedWords::kNone);
            return Kyro::eOk;
        case 1:
            out = KyRefReservedWords::local(KyRefReservedWords::kByLayer);
            return Kyro::eOk;
        case 2:
            out = KyRefReservedWords::local(KyRefReservedWords::kByBlock);
            return Kyro::eOk;
        default:
            if (position < 0 || position >= kEntryCount) {
                return Kyro::eInvalidInput;
            }
            out = KyRefReservedWords::localColorName(position - 2);
            return Kyro::eOk;
    }
}
