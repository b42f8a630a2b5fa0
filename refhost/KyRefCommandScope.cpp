#include "KyRefCommandScope.h"

#include "KyRefDocument.h"
#include "KyRefHost.h"
#include "db/KyAxDocLock.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbUndoController.h"

KyRefCommandScope::KyRefCommandScope(KyRefHost& host, KyRefDocument* document, const wchar_t* label)
    : m_host(host),
      m_document(document != nullptr && document->database() != nullptr ? document : nullptr),
      m_session(host.sysVars().sessionValues()) {
    m_host.beginChangeReport();
    if (m_document == nullptr) {
        return;
    }
    m_document->noteCommandStart();
    KyDbDatabase* database = m_document->database();
    m_lock = std::make_unique<KyAxDocLock>(database);
    KyDbUndoController* undo = database->undoController();
    m_undoCount = undo->undoCount();
    undo->beginUndoGroup(KyDbUndoController::kBeginGroupCode, label);
    m_groupOpen = true;
}

KyRefCommandScope::~KyRefCommandScope() {
    if (!m_closed) {
        commit();
        close();
    }
}

void KyRefCommandScope::endGroup() {
    if (m_groupOpen) {
        m_groupOpen = false;
        if (KyDbDatabase* database = m_document->database()) {
            database->undoController()->endUndoGroup(KyDbUndoController::kEndGroupCode);
        }
    }
}

void KyRefCommandScope::commit() {
    endGroup();
}

void KyRefCommandScope::rollback() {
    if (m_groupOpen && m_document->database() != nullptr) {
        endGroup();
        KyDbUndoController* undo = m_document->database()->undoController();
        // A group that recorded nothing was dropped: then the last group is
        // another command's and stays.
        if (undo->undoCount() > m_undoCount && undo->undo() == Kyro::eOk) {
            m_tookBack = true;
            m_document->noteRolledBack();
        }
    }
    m_host.sysVars().restoreSessionValues(m_session);
}

std::vector<KyString> KyRefCommandScope::close() {
    if (m_closed) {
        return {};
    }
    m_closed = true;
    endGroup();
    if (m_document != nullptr) {
        m_document->noteCommandEnd();
    }
    m_lock.reset();
    return m_host.endChangeReport();
}
