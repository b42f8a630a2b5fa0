#include "manager/host/KyDiCustomContextHost.h"

#include "manager/KyDiReflectedClasses.h"

IKyDiCustomContextHost* IKyDiCustomContextHost::s_instance = nullptr;

IKyDiCustomContextHost::~IKyDiCustomContextHost() = default;

namespace {

KyDiCustomContextHost g_customContextHost;

}  // namespace

KyDiCustomContextHost::KyDiCustomContextHost() {
    setInstance(this);
}

KyDiCustomContextHost::~KyDiCustomContextHost() {
    if (instance() == this) {
        setInstance(nullptr);
    }
}

void KyDiCustomContextHost::registerClasses() {
    KyDiReflectedClasses::registerClass(m_sunContextClass, L"KyDiSunContext",
                                        L"KyDiDbObjectContext", nullptr);
}

void KyDiCustomContextHost::unregisterClasses() {
    KyDiReflectedClasses::deleteClass(m_sunContextClass, L"KyDiSunContext");
}

void KyDiCustomContextHost::registerContextFactories() {
    // The sun context's factory row comes here with the context factory table.
}
