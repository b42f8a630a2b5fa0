#include "kydi/KyDiContextBase.h"

#include <memory>

#include "manager/KyDiReflectedClasses.h"
#include "reflection/PropertyFilter.h"
#include "reflection/PropertyWrapping.h"
#include "rx/KyRxMemberQueryEngine.h"

KYDI_DEFINE_CLASS_MEMBERS(KyDiContextBase, kContextBase)

int KyDiContextBase::subRefresh() {
    return 1;
}

void KyDiContextBase::subInvalidate() {}

void KyDiContextBase::subDatabaseToBeDestroyed(void* /*database*/) {}

void KyDiContextBase::subTerminate() {}

KyRxMemberIterator* KyDiContextBase::newFilteredMemberIterator() {
    return newFilteredMemberIterator(this);
}

KyRxMemberIterator* KyDiContextBase::newFilteredMemberIterator(const KyRxObject* object) {
    KyRxMemberQueryEngine* engine = KyRxMemberQueryEngine::theEngine();
    const std::unique_ptr<KyRxMemberIterator> members(
        engine->newMemberIterator(object, engine->promotingContext()));
    if (members == nullptr) {
        return nullptr;
    }
    const std::unique_ptr<KyRxMemberIterator> shown(PropertyFilter::filter(this, members.get()));
    return PropertyWrapping::wrapMembers(shown.get());
}
