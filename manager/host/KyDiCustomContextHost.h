// Not part of the interface: the context module's one object, built at load.
#pragma once

#include "manager/host/IKyDiCustomContextHost.h"

class KyRxClass;

class KyDiCustomContextHost final : public IKyDiCustomContextHost {
public:
    KyDiCustomContextHost();
    ~KyDiCustomContextHost() override;
    KyDiCustomContextHost(const KyDiCustomContextHost&) = delete;
    KyDiCustomContextHost& operator=(const KyDiCustomContextHost&) = delete;

    // The class of the sun context, "KyDiSunContext" under
    // "KyDiDbObjectContext".
    void registerClasses() override;
    void unregisterClasses() override;
    void registerContextFactories() override;

private:
    KyRxClass* m_sunContextClass = nullptr;
};
