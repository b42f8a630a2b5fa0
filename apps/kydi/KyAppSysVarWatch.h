// KyAppSysVarWatch: `watch sysvar NAME`. A reactor on one system variable
// object that prints what it is told, one line each, in the order received:
// "valueChanged CLAYER Walls", "activeChanged VSEDGECOLOR false".
#pragma once

#include <ostream>
#include <string>

#include "kydi/KyDiDataValueReactor.h"

class KyDiSysVar;

class KyAppSysVarWatch : public KyDiDataValueReactor {
public:
    // Joins `sysVar`'s reactors.
    KyAppSysVarWatch(KyDiSysVar* sysVar, std::ostream& out);
    // Leaves them.
    ~KyAppSysVarWatch() override;
    KyAppSysVarWatch(const KyAppSysVarWatch&) = delete;
    KyAppSysVarWatch& operator=(const KyAppSysVarWatch&) = delete;

    void valueChanged(const resbuf* value) override;
    void activeChanged(bool active) override;

    const std::string& name() const { return m_name; }

private:
    KyDiSysVar* m_sysVar;
    std::ostream& m_out;
    std::string m_name;
};
