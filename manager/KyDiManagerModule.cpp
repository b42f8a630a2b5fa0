#include "manager/KyDiManagerModule.h"

#include "kydi/KyDiDataItemReactor.h"
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
    // Dynamic objects, which list their members themselves, take their own
    // iterator ahead of this once they exist; any other object, and a null
    // one, is asked of the query engine.
    const KyRxMember* member = KyRxMemberQueryEngine::theEngine()->find(object, name, nullptr);
    return kyrxCast<KyRxPropertyBase>(member);
}
