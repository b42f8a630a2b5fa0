// The value types through which dynamic objects travel inside KyRxValues. A
// value of each holds a pointer and compares equal only to the same pointer;
// the objects pointed to are not owned by the value.
#pragma once

#include "kydi/KyDiDynamicObject.h"
#include "rx/KyRxValue.h"

class KyDiObservableCollection;

// "KyDiDynamicObject*": its text is the text of the object's value, or, for a
// database item, the handle of its object.
template <>
KYDI_API const KyRxValueType& KyRxValueType::Desc<KyDiDynamicObject*>::value();
// "KyDiObservableCollection*": its text is the address.
template <>
KYDI_API const KyRxValueType& KyRxValueType::Desc<KyDiObservableCollection*>::value();
// "KyDiDynamicObjectArray*": its text is the number of objects in the array.
template <>
KYDI_API const KyRxValueType& KyRxValueType::Desc<KyDiItemArray*>::value();
