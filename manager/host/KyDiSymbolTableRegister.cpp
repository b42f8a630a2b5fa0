#include "manager/host/KyDiSymbolTableRegister.h"

#include "db/KyDbPointCloudFeature.h"

IKyDiSymbolTableRegisterHost* IKyDiSymbolTableRegisterHost::s_instance = nullptr;

IKyDiSymbolTableRegisterHost::~IKyDiSymbolTableRegisterHost() = default;

namespace {

KyDiSymbolTableRegister g_symbolTableRegister;

}  // namespace

KyDiSymbolTableRegister::KyDiSymbolTableRegister() {
    setInstance(this);
}

KyDiSymbolTableRegister::~KyDiSymbolTableRegister() {
    if (instance() == this) {
        setInstance(nullptr);
    }
}

void KyDiSymbolTableRegister::registerDataItemFactories() {
    // The point cloud collections exist only with the point cloud module.
    if (pointCloudFeaturePresent()) {
        // Here come the rows of the three point cloud collections.
    }
}
