#include "KyAppSysVarWatch.h"

#include "KyAppSysVarValue.h"
#include "base/KyString.h"
#include "kydi/KyDiSysVar.h"

KyAppSysVarWatch::KyAppSysVarWatch(KyDiSysVar* sysVar, std::ostream& out)
    : m_sysVar(sysVar), m_out(out), m_name(KyString(sysVar->name()).utf8()) {
    m_sysVar->addReactor(this);
}

KyAppSysVarWatch::~KyAppSysVarWatch() {
    m_sysVar->removeReactor(this);
}

void KyAppSysVarWatch::valueChanged(const resbuf* value) {
    m_out << "valueChanged " << m_name << ' '
          << (value != nullptr ? KyAppSysVarValue::toValue(*value).format() : "none") << '\n';
}

void KyAppSysVarWatch::activeChanged(bool active) {
    m_out << "activeChanged " << m_name << ' ' << (active ? "true" : "false") << '\n';
}
