#include "KyRefLayerService.h"

#include "KyRefCommandLine.h"
#include "KyRefHost.h"

KyRefLayerService::KyRefLayerService(KyRefHost& host) : m_host(host) {}

int KyRefLayerService::askTurnOnCurrentLayer() {
    ++m_questions;
    return m_turnOnAnswer;
}

void KyRefLayerService::reportCurrentLayerCantFreeze() {
    ++m_cantFreezeReports;
    m_host.commandLine().writeLine(L"The current layer can't be frozen.");
}
