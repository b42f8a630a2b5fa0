// Not part of the interface: the dynamic block question's one object, built
// at load.
#pragma once

#include "manager/host/IKyDbDynBlockReferenceHost.h"

class KyDbDynBlockReferenceHost final : public IKyDbDynBlockReferenceHost {
public:
    KyDbDynBlockReferenceHost();
    ~KyDbDynBlockReferenceHost() override;
    KyDbDynBlockReferenceHost(const KyDbDynBlockReferenceHost&) = delete;
    KyDbDynBlockReferenceHost& operator=(const KyDbDynBlockReferenceHost&) = delete;

    // Asks the platform's dynamic block view of the reference, made for the
    // length of the question.
    bool isDynamicBlockReference(KyDbEntity* entity) override;
};
