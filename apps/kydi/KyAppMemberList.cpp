#include "KyAppMemberList.h"

#include <memory>

#include "KyAppPropertyValue.h"
#include "KyAppValue.h"
#include "kydi/KyDiDynamicObject.h"
#include "rx/KyRxMemberQueryEngine.h"
#include "rx/KyRxProperty.h"
#include "rx/KyRxStandardAttributes.h"

namespace {

std::string placementText(const KyRxMember* member) {
    const auto* placement = static_cast<const KyRxUiPlacementAttribute*>(
        member->attributes().get(KyRxUiPlacementAttribute::desc()));
    if (placement == nullptr) {
        return "[-]";
    }
    return "[" + KyString(placement->category()).utf8() + " " +
           std::to_string(placement->weight()) + "]";
}

std::string valueText(KyDiDynamicObject* item, const KyRxMember* member) {
    if (const auto* property = kyrxCast<KyRxProperty>(member)) {
        KyRxValue value;
        const Kyro::ErrorStatus status = property->getValue(item, value);
        return status == Kyro::eOk ? KyAppPropertyValue::format(value)
                                   : "(status " + std::to_string(static_cast<int>(status)) + ")";
    }
    if (const auto* collection = kyrxCast<KyRxCollectionProperty>(member)) {
        int count = 0;
        return collection->tryGetCount(item, count) == Kyro::eOk
                   ? "(" + std::to_string(count) + " values)"
                   : "(values)";
    }
    return "(not a property)";
}

}  // namespace

void KyAppMemberList::print(KyDiDynamicObject* item, std::ostream& out) {
    const std::unique_ptr<KyRxMemberIterator> members(item->newMemberIterator());
    for (; members != nullptr && !members->done(); members->next()) {
        const KyRxMember* member = members->current();
        const auto* property = kyrxCast<KyRxPropertyBase>(member);
        out << KyString(member->name()).utf8() << ' '
            << KyAppValue::quote(member->localName().utf8()) << ' ' << placementText(member)
            << " = " << valueText(item, member)
            << (property != nullptr && property->isReadOnly() ? " (read-only)" : "") << '\n';
    }
}
