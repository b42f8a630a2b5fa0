#include "reflection/PropertyFilter.h"

#include "kydi/KyDiFunctions.h"
#include "reflection/KyDiMemberIterator.h"
#include "reflection/PropertyWrapping.h"
#include "rx/KyRxProperty.h"
#include "rx/KyRxStandardAttributes.h"

namespace {

bool isPlaced(const KyRxMember* member) {
    if (member->attributes().get(KyRxUiPlacementAttribute::desc()) != nullptr) {
        return true;
    }
    const auto* owner = kyrxCast<KyRxPropertyBase>(member->owner());
    return owner != nullptr && owner->attributes().get(KyRxUiPlacementAttribute::desc()) != nullptr;
}

bool passes(const KyRxObject* object, const KyRxMember* member) {
    const auto* property = kyrxCast<KyRxProperty>(PropertyWrapping::wrapMember(member));
    if (property == nullptr || !isPlaced(property)) {
        return false;
    }
    KyRxValue scratch;
    return property->getValue(object, scratch) == Kyro::eOk;
}

}  // namespace

KyRxMemberIterator* PropertyFilter::filter(const KyRxObject* object, KyRxMemberIterator* members) {
    auto* shown = new KyDiMemberIterator();
    for (; members != nullptr && !members->done(); members->next()) {
        KyRxMember* member = members->current();
        if (passes(object, member)) {
            shown->append(member);
        }
    }
    return shown;
}

KyRxMemberIterator* KyDiFilterProperties(const KyRxObject* object, KyRxMemberIterator* iterator) {
    return PropertyFilter::filter(object, iterator);
}
