// KyRefLayerService: the layer manager's settings and the questions the host
// puts to the user about the current layer. The user's answer is set by the
// test or script beforehand; the host counts the questions, and tells on the
// command line that the current layer can't be frozen.
#pragma once

#include "kydi/KyDiLayerService.h"

class KyRefHost;

class KyRefLayerService : public KyDiLayerService {
public:
    explicit KyRefLayerService(KyRefHost& host);

    int askTurnOnCurrentLayer() override;
    void reportCurrentLayerCantFreeze() override;
    int restoreFlags() override { return m_restoreFlags; }
    bool isLayerFilterInverted() override { return m_filterInverted; }
    bool isLayerFilterApplied() override { return m_filterApplied; }

    // ---- State that tests and scripts set and read
    void setTurnOnAnswer(int answer) { m_turnOnAnswer = answer; }
    int questionCount() const { return m_questions; }
    int cantFreezeReportCount() const { return m_cantFreezeReports; }
    void setRestoreFlags(int flags) { m_restoreFlags = flags; }
    void setLayerFilterInverted(bool inverted) { m_filterInverted = inverted; }
    void setLayerFilterApplied(bool applied) { m_filterApplied = applied; }

private:
    KyRefHost& m_host;
    int m_turnOnAnswer = kTurnLayerOn;
    int m_questions = 0;
    int m_cantFreezeReports = 0;
    int m_restoreFlags = 0;
    bool m_filterInverted = false;
    bool m_filterApplied = true;
};
