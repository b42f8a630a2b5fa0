#include "manager/KyDiReflectedClasses.h"

#include <iterator>

#include "contexts/KyDiDrawingContext.h"
#include "contexts/KyDiSelectionContext.h"
#include "contexts/KyDiViewportContext.h"
#include "manager/host/IKyDiCustomContextHost.h"

using enum KyDiReflectedClasses::ClassIndex;

namespace {

struct ReflectedClassRow {
    const wchar_t* name;
    const wchar_t* parentName;
    // Builds the class's reflected members; null while the class lists none.
    KyRxMemberCollectionConstructorPtr memberBuilder;
};

// By ClassIndex. The contexts and the layer facet get their member builders
// with the classes that define those members.
const ReflectedClassRow kRows[kClassCount] = {
    {L"KyDiItem", L"KyDiDynamicObject", nullptr},
    {L"KyDiNamedItem", L"KyDiItem", nullptr},
    {L"KyDiLayerFilterItemBase", L"KyDiItem", nullptr},
    {L"KyDiLayerFilterItem", L"KyDiLayerFilterItemBase", nullptr},
    {L"KyDiLayerFilterTreeItem", L"KyDiLayerFilterItemBase", nullptr},
    {L"KyDiDbItem", L"KyDiItem", nullptr},
    {L"KyDiDbComplexItem", L"KyDiDbItem", nullptr},
    {L"KyDiDbNamedItem", L"KyDiDbItem", nullptr},
    {L"KyDiDbDictionaryItem", L"KyDiDbItem", nullptr},
    {L"KyDiDbLayerItem", L"KyDiDbItem", nullptr},
    {L"KyDiDynamicObject", L"KyRxBoxedValue", nullptr},
    {L"KyDiObservableDynamicObject", L"KyDiDynamicObject", nullptr},
    {L"KyDiContext", L"KyDiObservableDynamicObject", nullptr},
    {L"KyDiProperty", L"KyRxProperty", nullptr},
    {L"KyDiCollectionProperty", L"KyRxCollectionProperty", nullptr},
    {L"KyDiIndexedProperty", L"KyRxIndexedProperty", nullptr},
    {L"KyDiDictionaryProperty", L"KyRxDictionaryProperty", nullptr},
    {L"KyDiContextBase", L"KyDiContext", nullptr},
    {L"KyDiDbObjectContext", L"KyDiContextBase", nullptr},
    {L"KyDiRolloverTipsContext", L"KyDiDbObjectContext", nullptr},
    {L"KyDiDrawingContext", L"KyDiContextBase", &KyDiDrawingContext::buildMembers},
    {L"KyDiSelectionContext", L"KyDiContextBase", &KyDiSelectionContext::buildMembers},
    {L"KyDiViewportContext", L"KyDiContextBase", &KyDiViewportContext::buildMembers},
    {L"KyDiRenderContext", L"KyDiContextBase", nullptr},
    {L"KyDiLayerFacet", L"KyRxObject", nullptr},
    {L"KyDiRxObjectContext", L"KyDiContextBase", nullptr},
    {L"KyDiMeasureGeomContext", L"KyDiContext", nullptr},
};

// A class may come before its parent: the tree is linked once all are in.
const int kRegistrationOrder[] = {
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
    // The rollover tips context's own registration, under the same guard.
    kRolloverTipsContext,
    kCustomContextHostClasses,
    kDrawingContext,
    kSelectionContext,
    kViewportContext,
    kRenderContext,
    kLayerFacet,
    kRxObjectContext,
    kMeasureGeomContext,
};

const int kDeletionOrder[] = {
    kNamedItem,
    kLayerFilterTreeItem,
    kLayerFilterItem,
    kLayerFilterItemBase,
    kDbComplexItem,
    kDbNamedItem,
    kDbDictionaryItem,
    kDbLayerItem,
    kDbItem,
    kCustomContextHostClasses,
    kMeasureGeomContext,
    kDrawingContext,
    kSelectionContext,
    kViewportContext,
    kRenderContext,
    kRolloverTipsContext,
    kDbObjectContext,
    kRxObjectContext,
    kContextBase,
    kContext,
    kItem,
    kObservableDynamicObject,
    kDynamicObject,
    kIndexedProperty,
    kCollectionProperty,
    kDictionaryProperty,
    kLayerFacet,
    kProperty,
};

static_assert(std::size(kRegistrationOrder) == kClassCount + 1, "every class and the host's");
static_assert(std::size(kDeletionOrder) == kClassCount + 1, "every class and the host's");

// The descriptors, by ClassIndex; empty at load.
KyRxClass* g_descriptors[kClassCount] = {};

}  // namespace

void KyDiReflectedClasses::registerClass(KyRxClass*& descriptor, const wchar_t* name,
                                         const wchar_t* parentName,
                                         KyRxMemberCollectionConstructorPtr memberBuilder) {
    if (descriptor != nullptr) {
        KyRxClass* registered = kyrxFindKyRxClass(name);
        if (registered == descriptor) {
            return;
        }
        if (registered != nullptr) {
            kyrx_abort(L"Class mismatch: %ls", name);
        }
    }
    if (memberBuilder == nullptr) {
        descriptor = newKyRxClass(name, parentName, 0, nullptr, nullptr, nullptr);
    } else {
        descriptor = newKyRxClass(name, parentName, 0, 0, 0, nullptr, nullptr, nullptr, nullptr,
                                  memberBuilder, nullptr);
    }
}

void KyDiReflectedClasses::deleteClass(KyRxClass*& descriptor, const wchar_t* name) {
    if (descriptor == nullptr) {
        descriptor = kyrxFindKyRxClass(name);
    }
    deleteKyRxClass(descriptor);
    descriptor = nullptr;
}

void KyDiReflectedClasses::registerAll() {
    for (const int index : kRegistrationOrder) {
        if (index == kCustomContextHostClasses) {
            if (IKyDiCustomContextHost* customHost = IKyDiCustomContextHost::instance()) {
                customHost->registerClasses();
            }
            continue;
        }
        const ReflectedClassRow& row = kRows[index];
        registerClass(g_descriptors[index], row.name, row.parentName, row.memberBuilder);
    }
}

KyRxClass* KyDiReflectedClasses::descriptor(ClassIndex index) {
    return g_descriptors[index];
}

void KyDiReflectedClasses::deleteAll() {
    for (const int index : kDeletionOrder) {
        if (index == kCustomContextHostClasses) {
            if (IKyDiCustomContextHost* customHost = IKyDiCustomContextHost::instance()) {
                customHost->unregisterClasses();
            }
            continue;
        }
        deleteClass(g_descriptors[index], kRows[index].name);
    }
}
