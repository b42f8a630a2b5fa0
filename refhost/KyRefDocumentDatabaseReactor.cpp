#include "KyRefDocumentDatabaseReactor.h"

#include "KyRefDocument.h"
#include "KyRefHost.h"
#include "db/KyDbLayout.h"

KyRefDocumentDatabaseReactor::KyRefDocumentDatabaseReactor(KyRefHost& host, KyRefDocument& document)
    : m_host(host), m_document(document) {}

void KyRefDocumentDatabaseReactor::objectAppended(const KyDbDatabase*, const KyDbObject*) {
    m_document.setModified(true);
}

void KyRefDocumentDatabaseReactor::objectOpenedForModify(const KyDbDatabase*,
                                                         const KyDbObject* object) {
    if (const auto* layout = kyrxCast<KyDbLayout>(object)) {
        m_document.plotSettings().opening(*layout);
    }
}

void KyRefDocumentDatabaseReactor::objectModified(const KyDbDatabase*, const KyDbObject* object) {
    m_document.setModified(true);
    if (const auto* layout = kyrxCast<KyDbLayout>(object)) {
        m_document.plotSettings().modified(*layout);
        m_host.plotSettingsModified();
    }
}

void KyRefDocumentDatabaseReactor::objectErased(const KyDbDatabase*, const KyDbObject*, bool) {
    m_document.setModified(true);
}

void KyRefDocumentDatabaseReactor::headerSysVarWillChange(const KyDbDatabase*,
                                                          const wchar_t* name) {
    m_host.drawingVariableWillChange(m_document, name);
}

void KyRefDocumentDatabaseReactor::headerSysVarChanged(const KyDbDatabase*, const wchar_t* name,
                                                       bool) {
    m_document.setModified(true);
    m_host.drawingVariableChanged(m_document, name);
}
