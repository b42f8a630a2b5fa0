#include "KyRefScaleListService.h"

#include "KyRefReadAccess.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbDictionary.h"
#include "db/KyDbDictionaryIterator.h"
#include "db/KyDbScale.h"

Kyro::ErrorStatus KyRefScaleListService::getScaleNames(KyDbDatabase* database,
                                                       KyArray<KyString>& names) {
    if (database == nullptr) {
        return Kyro::eInvalidInput;
    }
    KyRefReadAccess<KyDbDictionary> scales(database->scaleListDictionaryId());
    if (!scales) {
        return scales.status();
    }
    for (KyDbDictionaryIterator it(scales.object()); !it.done(); it.next()) {
        KyRefReadAccess<KyDbScale> scale(it.objectId());
        if (scale) {
            names.append(scale->scaleName());
        }
    }
    return Kyro::eOk;
}
