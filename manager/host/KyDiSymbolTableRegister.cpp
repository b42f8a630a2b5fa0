#include "manager/host/KyDiSymbolTableRegister.h"

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
    // The point cloud collections' rows come here when the point cloud
    // module is present.
}
