// How items come into being and go. Every item of the data item layer is made
// by createDataItem, which decides whether an item is new or comes from the
// manager's item cache:
// - an object id: the item of that record; the same record in the same
//   document always gives the same item object, which the cache owns. A
//   layer record gives a KyDiDbLayerItem, an entry of a dictionary (with
//   `dictionaryId`) a KyDiDbDictionaryItem. The null id gives a new
//   KyDiDbNamedItem that carries only `name`. With `subent`, a new item of
//   that sub-entity, not cached.
// - a colour or a transparency: the one value item of that value, from the
//   cache.
// - any other value: a new KyDiNamedItem of `name` and `value`.
#pragma once

#include "base/KyString.h"
#include "kydi/KyDiExport.h"

class KyDbFullSubentPath;
class KyDbObjectId;
class KyDiDynamicObject;
class KyRxValue;

KYDI_API KyDiDynamicObject* createDataItem(const KyString& name, const KyRxValue& value,
                                           const KyDbFullSubentPath* subent = nullptr,
                                           const KyDbObjectId* dictionaryId = nullptr,
                                           bool layerItem = false);
// Gives up an item made by createDataItem: an item the cache keeps (of a
// record, of a colour or a transparency) stays alive, any other is deleted.
// Null does nothing.
KYDI_API void deleteItem(KyDiDynamicObject* item);
