// Not part of the interface: a reactor on one system variable that tells its
// owner the variable's name when the value changes, through
// owner.sysVarChanged(name). The owner and the variable are not owned.
#pragma once

#include "kydi/KyDiDataValueReactor.h"
#include "kydi/KyDiSysVar.h"

template <typename T>
class DataValueReactor final : public KyDiDataValueReactor {
public:
    DataValueReactor(T* owner, KyDiSysVar* sysVar) : m_owner(owner), m_sysVar(sysVar) {}

    KyDiSysVar* sysVar() const { return m_sysVar; }

    void valueChanged(const resbuf* /*value*/) override {
        m_owner->sysVarChanged(m_sysVar->name());
    }

private:
    T* m_owner;
    KyDiSysVar* m_sysVar;
};
