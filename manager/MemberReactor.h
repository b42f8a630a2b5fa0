// Not part of the interface: the manager's reactor on the member query
// engine. When a host member goes, the wrapper built for it goes too.
#pragma once

#include "rx/KyRxMemberQueryEngine.h"

class MemberReactor final : public KyRxMemberReactor {
public:
    void memberDeleted(const KyRxMember* member) override;
};
