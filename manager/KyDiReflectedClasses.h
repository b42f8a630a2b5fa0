// Not part of the interface: the runtime classes of the data item layer, as
// registered by initialize and deleted by uninitialize.
#pragma once

#include "rx/KyRxClass.h"

class KyDiReflectedClasses {
public:
    // The classes of the layer, in the order of the table of registration.
    enum ClassIndex : int {
        kItem,
        kNamedItem,
        kLayerFilterItemBase,
        kLayerFilterItem,
        kLayerFilterTreeItem,
        kDbItem,
        kDbComplexItem,
        kDbNamedItem,
        kDbDictionaryItem,
        kDbLayerItem,
        kDynamicObject,
        kObservableDynamicObject,
        kContext,
        kProperty,
        kCollectionProperty,
        kIndexedProperty,
        kDictionaryProperty,
        kContextBase,
        kDbObjectContext,
        kRolloverTipsContext,
        kDrawingContext,
        kSelectionContext,
        kViewportContext,
        kRenderContext,
        kLayerFacet,
        kRxObjectContext,
        kMeasureGeomContext,
        kClassCount,
        // Not a row: the place of the custom context host's own classes.
        kCustomContextHostClasses = -1,
    };

    // The descriptor of a class of the layer; null before initialize and
    // after uninitialize.
    static KyRxClass* descriptor(ClassIndex index);

    // Registers class `name` under `parentName`, which may come later, and
    // keeps the descriptor in `descriptor`. When `descriptor` is set already
    // and the registry holds it under the name, nothing is done; when the
    // registry holds another class under the name, the process stops with
    // "Class mismatch".
    static void registerClass(KyRxClass*& descriptor, const wchar_t* name,
                              const wchar_t* parentName,
                              KyRxMemberCollectionConstructorPtr memberBuilder);
    // Deletes the class kept in `descriptor`, or else the class registered
    // under `name`, and clears `descriptor`.
    static void deleteClass(KyRxClass*& descriptor, const wchar_t* name);

    // Every class of the data item layer, in registration order; the class
    // tree is linked afterwards by the caller.
    static void registerAll();
    // Every class of the data item layer, children before their parents.
    static void deleteAll();
};

// The class accessors of a class of the layer: desc() answers the descriptor
// registered for it, and isA() that of the object's own class.
#define KYDI_DEFINE_CLASS_MEMBERS(CLASS, INDEX)                               \
    KyRxClass* CLASS::desc() {                                                \
        return KyDiReflectedClasses::descriptor(KyDiReflectedClasses::INDEX); \
    }                                                                         \
    KyRxClass* CLASS::isA() const {                                           \
        return CLASS::desc();                                                 \
    }
