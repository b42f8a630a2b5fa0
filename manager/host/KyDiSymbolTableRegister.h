// Not part of the interface: the symbol table module's one object, built at
// load.
#pragma once

#include "manager/host/IKyDiSymbolTableRegisterHost.h"

class KyDiSymbolTableRegister final : public IKyDiSymbolTableRegisterHost {
public:
    KyDiSymbolTableRegister();
    ~KyDiSymbolTableRegister() override;
    KyDiSymbolTableRegister(const KyDiSymbolTableRegister&) = delete;
    KyDiSymbolTableRegister& operator=(const KyDiSymbolTableRegister&) = delete;

    void registerDataItemFactories() override;
};
