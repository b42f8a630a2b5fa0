#include "KyRefBlockEditor.h"

#include "KyRefDocument.h"
#include "KyRefHost.h"

KyRefBlockEditor::KyRefBlockEditor(KyRefHost& host) : m_host(host) {}

KyDbObjectId KyRefBlockEditor::editedBlockId() const {
    const KyRefDocument* current = m_host.documents().current();
    return current != nullptr && current->database() != nullptr ? current->editedBlockId()
                                                                : KyDbObjectId();
}

void KyRefBlockEditor::open(KyRefDocument& document, KyDbObjectId blockId) {
    document.setEditedBlockId(blockId);
    if (&document == m_host.documents().current()) {
        m_shownFor = document.handle();
        show(true, true);
    }
}

void KyRefBlockEditor::close(KyRefDocument& document) {
    document.setEditedBlockId(KyDbObjectId());
    if (&document == m_host.documents().current()) {
        m_shownFor = kKyDiNoDocument;
        show(false, true);
    }
}

void KyRefBlockEditor::currentDocumentChanged() {
    if (!editedBlockId().isNull()) {
        m_shownFor = m_host.documents().current()->handle();
        show(true, false);
    } else if (m_shownFor != kKyDiNoDocument) {
        m_shownFor = kKyDiNoDocument;
        show(false, false);
    }
}

void KyRefBlockEditor::show(bool open, bool report) {
    const KyRefResbufPtr value = KyRefResbuf::makeShort(open ? 1 : 0);
    if (report) {
        m_host.setVariable(L"BLOCKEDITOR", *value, KyRefSysVarStore::kIgnoreReadOnly);
    } else {
        m_host.sysVars().set(L"BLOCKEDITOR", *value, KyRefSysVarStore::kIgnoreReadOnly);
    }
}
