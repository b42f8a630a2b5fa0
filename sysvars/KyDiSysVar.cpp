#include "kydi/KyDiSysVar.h"

#include "sysvars/KyUiImpSysVar.h"

KyDiSysVar::KyDiSysVar(KyUiImpSysVar* imp) : m_imp(imp) {}

KyDiSysVar::~KyDiSysVar() {
    delete m_imp;
}

const wchar_t* KyDiSysVar::name() const {
    return m_imp->name();
}

double KyDiSysVar::minimum() const {
    return m_imp->minimum();
}

double KyDiSysVar::maximum() const {
    return m_imp->maximum();
}

bool KyDiSysVar::isActive() const {
    return m_imp->isActive();
}

Kyro::ErrorStatus KyDiSysVar::getValue(resbuf& out) const {
    return m_imp->getValue(out);
}

Kyro::ErrorStatus KyDiSysVar::setValue(const resbuf& value, bool viaCommand) {
    return m_imp->setValue(value, viaCommand);
}

void KyDiSysVar::clearValue() {
    m_imp->clearValue();
}

Kyro::ErrorStatus KyDiSysVar::addReactor(KyDiDataValueReactor* reactor) {
    return m_imp->addReactor(reactor);
}

void KyDiSysVar::removeReactor(KyDiDataValueReactor* reactor) {
    m_imp->removeReactor(reactor);
}
