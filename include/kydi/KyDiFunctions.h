// Free functions for clients that hold a dynamic object and want a name, a
// description or a member without walking the reflection themselves.
#pragma once

#include "base/KyArray.h"
#include "base/KyString.h"
#include "db/KyDbObjectId.h"
#include "kydi/KyDiDynamicObject.h"
#include "kydi/KyDiExport.h"

class KyDiContext;
class KyDiCurrencyTracker;
class KyDiDynamicObject;
class KyRxMember;
class KyRxMemberIterator;
class KyRxObject;
class KyRxPropertyBase;
class KyRxValue;

// The text of the object's "Name" member; empty for a null object or one
// without a readable name.
KYDI_API KyString KyDiGetItemName(KyDiDynamicObject* object);
// The class of what a database item stands for: of its sub-entity for an item
// of a sub-entity, else of its object. Empty for anything else, and when the
// object can't be opened.
KYDI_API KyString KyDiGetSubEntityClassName(KyDiDynamicObject* object);
// The description of a member, of the host member behind it for a wrapper.
KYDI_API KyString KyDiGetDescription(const KyRxMember* member);
// The member `name` (exactly) of an object: for a dynamic object among the
// members it shows, for any other object as the query engine finds it.
KYDI_API KyRxMember* KyDiFindMember(const KyRxObject* object, const wchar_t* name);
// A new iterator over the members of `iterator` that a palette shows on
// `object`: scalar properties placed in a category (on themselves or on the
// property they belong to) that can be read now. The caller keeps and deletes
// `iterator`, and deletes the answer.
KYDI_API KyRxMemberIterator* KyDiFilterProperties(const KyRxObject* object,
                                                  KyRxMemberIterator* iterator);
// The value the objects `list` stands for agree on, as the selection reads
// it: "varies" where they differ, empty for an empty list; statuses as a
// read of the property.
KYDI_API Kyro::ErrorStatus KyDiGetCommonValue(const KyDiItemArray& list,
                                              const KyRxPropertyBase* property, KyRxValue& value);
// Whether the selection is one table with some of its cells selected.
KYDI_API bool hasTableSubSelection();

// A data item read from a property into the host's value for `property`: an
// item of a record into its id, a colour or transparency item into its
// value, an item of an enumerated value into the property's type. Other
// values are left alone. Always true.
KYDI_API bool KyDiConvertFromDataItem(const KyRxPropertyBase* property, KyRxValue& value);
// A host value into a data item: an id into the item of its record, a colour
// or a transparency into its value item. Other values are left alone. False
// only for the null id, which stays an id.
KYDI_API bool KyDiConvertToDataItem(KyRxValue& value);
// The ids of the layers of a layer filter item of the flat filter list. The
// caller is required to give such an item.
KYDI_API const KyArray<KyDbObjectId>& GetFilterLayers(KyDiDynamicObject* item);

// A new context standing for the live `object`, which it takes over, under
// `name`. It is not added to the context manager: the caller adds it
// (addContext), takes it out (removeContext) and deletes it with
// deleteKyDiRxObjectContext.
KYDI_API KyDiContext* createKyDiRxObjectContext(KyRxObject* object, const wchar_t* name);
// Deletes a context made by createKyDiRxObjectContext; null and every other
// context are left alone.
KYDI_API void deleteKyDiRxObjectContext(KyDiContext* context);

// Tells the known collection `name` to build its list anew at the next
// refresh (a reset), or to look again (a refill). False for a name the
// system does not know; the collection is made if it wasn't yet.
KYDI_API bool KyDiNotifyCollectionReset(const wchar_t* name);
KYDI_API bool KyDiNotifyCollectionModified(const wchar_t* name);
// The same reset for the list of recent blocks, when it can be made.
KYDI_API void KyDiNotifyRecentBlockCollectionReset();

// A name the registry of known collections knows, in the order of its rows:
// whether its collection is made already, and whether it can be made (a name
// whose class this build lacks can't).
struct KyDiKnownCollectionName {
    KyString name;
    bool built = false;
    bool available = false;
};
using KyDiKnownCollectionNames =
    KyArray<KyDiKnownCollectionName, KyArrayObjectCopyReallocator<KyDiKnownCollectionName>>;
KYDI_API KyDiKnownCollectionNames KyDiGetKnownCollectionNames();

// The tracker that follows the current item of `name`: of a known collection
// ("LAYER", "COLOR"), of an enumeration ("LINEWEIGHT", "SHADOWDISPLAY") or of a
// value of the drawing without a list ("TRANSPARENCY", "LAYOUT", "RASTERDPI"
// ...). Made at its first demand and kept until uninitialize; the manager
// owns it. Null for a name that no table knows, and after uninitialize. Its
// getCurrentItem answers as of now; a caller of its setCurrentItem takes the
// document lock that a collection's setCurrentItem takes.
KYDI_API KyDiCurrencyTracker* KyDiGetCurrencyTracker(const wchar_t* name);
