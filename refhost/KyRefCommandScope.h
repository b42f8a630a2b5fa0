// KyRefCommandScope: what stands around one command of a document: the
// document lock, an undo group labelled with the command's local name, and a
// report of the system variables that change (the host's reactors hear of them
// when the scope closes, not one write at a time).
#pragma once

#include <memory>
#include <vector>

#include "KyRefSysVarStore.h"
#include "base/KyString.h"

class KyAxDocLock;
class KyRefDocument;
class KyRefHost;

class KyRefCommandScope {
public:
    // Opens the scope on `document`; without one there is no lock and no
    // undo group, only the report.
    KyRefCommandScope(KyRefHost& host, KyRefDocument* document, const wchar_t* label);
    // Closes what is still open, keeping the changes.
    ~KyRefCommandScope();
    KyRefCommandScope(const KyRefCommandScope&) = delete;
    KyRefCommandScope& operator=(const KyRefCommandScope&) = delete;

    KyRefDocument* document() const { return m_document; }

    // Ends the undo group; what the command did stays.
    void commit();
    // Ends the undo group and takes back what it recorded; the session
    // variables get their values back.
    void rollback();
    // True when rollback took a change of the drawing back.
    bool tookBack() const { return m_tookBack; }
    // Ends the lock and the report: the names of the variables whose values
    // changed in the scope, empty when an enclosing scope reports them.
    std::vector<KyString> close();

private:
    void endGroup();

    KyRefHost& m_host;
    KyRefDocument* m_document;
    std::unique_ptr<KyAxDocLock> m_lock;
    KyRefSysVarStore::SessionValues m_session;
    int m_undoCount = 0;
    bool m_groupOpen = false;
    bool m_closed = false;
    bool m_tookBack = false;
};
