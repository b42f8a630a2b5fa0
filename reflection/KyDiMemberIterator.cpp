#include "reflection/KyDiMemberIterator.h"

KyDiMemberIterator* KyDiMemberIterator::over(std::initializer_list<KyRxMember*> members) {
    auto* iterator = new KyDiMemberIterator();
    for (KyRxMember* member : members) {
        iterator->append(member);
    }
    return iterator;
}
