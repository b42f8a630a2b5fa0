#include "manager/KyDiManagerModule.h"

#include <memory>

#include "effective/KyDiImpEffectiveProperty.h"
#include "kydi/KyDiDataItemReactor.h"
#include "kydi/KyDiDynamicObject.h"
#include "manager/KyDiManagerState.h"
#include "rx/KyRxMemberQueryEngine.h"
#include "rx/KyRxProperty.h"

void KyDiManagerModule::notifyItemDeleted(KyDiItem* item) {
    const KyArray<KyDiDataItemReactor*> reactors = kydiManagerState().dataItemReactors;
    for (int i = 0; i < reactors.length(); ++i) {
        reactors[i]->itemDeleted(item);
    }
}

void KyDiManagerModule::registerWrappedMember(const KyRxMember* hostMember, KyRxMember* wrapper) {
    if (hostMember == nullptr || wrapper == nullptr) {
        return;
    }
    kydiManagerState().wrappedMembers[hostMember] = wrapper;
}

const KyRxPropertyBase* KyDiManagerModule::resolveReferenceProperty(const KyRxObject* object,
                                                                    const wchar_t* name) {
    // A dynamic object lists its members itself; any other object, and a
    // null one, is asked of the query engine.
    auto* dynamicObject = kyrxCast<KyDiDynamicObject>(const_cast<KyRxObject*>(object));
    if (dynamicObject == nullptr) {
        const KyRxMember* member = KyRxMemberQueryEngine::theEngine()->find(object, name, nullptr);
        return kyrxCast<KyRxPropertyBase>(member);
    }
    const std::unique_ptr<KyRxMemberIterator> members(dynamicObject->newMemberIterator());
    for (; members != nullptr && !members->done(); members->next()) {
        if (KyString(members->current()->name()).compare(name) == 0) {
            return kyrxCast<KyRxPropertyBase>(members->current());
        }
    }
    return nullptr;
}

KyDiImpEffectiveProperty* KyDiManagerModule::getDrawingEffectiveProperty() {
    KyDiManagerState& state = kydiManagerState();
    if (state.drawingEffectiveProperty == nullptr) {
        state.drawingEffectiveProperty = new KyDiImpEffectiveProperty();
        // Binds it to the document in front; it has no keys yet to report.
        state.drawingEffectiveProperty->flushStep();
    }
    return state.drawingEffectiveProperty;
}
