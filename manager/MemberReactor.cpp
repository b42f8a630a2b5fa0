#include "manager/MemberReactor.h"

#include "manager/KyDiManagerState.h"

void MemberReactor::memberDeleted(const KyRxMember* member) {
    if (member == nullptr) {
        return;
    }
    auto& wrappedMembers = kydiManagerState().wrappedMembers;
    auto entry = wrappedMembers.find(member);
    if (entry == wrappedMembers.end()) {
        return;
    }
    // The entry goes first: deleting the wrapper tells this reactor again,
    // about the wrapper.
    KyRxMember* wrapper = entry->second;
    wrappedMembers.erase(entry);
    KyRxMember::deleteMember(wrapper);
}
