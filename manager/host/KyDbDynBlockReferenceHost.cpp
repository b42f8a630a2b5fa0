#include "manager/host/KyDbDynBlockReferenceHost.h"

#include "db/KyDbBlockReference.h"
#include "db/KyDbDynBlockReference.h"

IKyDbDynBlockReferenceHost* IKyDbDynBlockReferenceHost::s_instance = nullptr;

IKyDbDynBlockReferenceHost::~IKyDbDynBlockReferenceHost() = default;

namespace {

KyDbDynBlockReferenceHost g_dynBlockReferenceHost;

}  // namespace

KyDbDynBlockReferenceHost::KyDbDynBlockReferenceHost() {
    setInstance(this);
}

KyDbDynBlockReferenceHost::~KyDbDynBlockReferenceHost() {
    if (instance() == this) {
        setInstance(nullptr);
    }
}

bool KyDbDynBlockReferenceHost::isDynamicBlockReference(KyDbEntity* entity) {
    if (kyrxCast<KyDbBlockReference>(entity) == nullptr) {
        return false;
    }
    const KyDbDynBlockReference reference(entity);
    return reference.isDynamicBlock();
}
