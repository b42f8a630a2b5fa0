#include "KyRefDocument.h"

#include <algorithm>

#include "KyRefDocumentDatabaseReactor.h"
#include "KyRefHostApplicationServices.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbUndoController.h"

namespace {

// The file name of a path: what follows the last separator.
KyString fileNameOf(const wchar_t* path) {
    const KyString text(path);
    int start = 0;
    for (int at = 0; at < text.length(); ++at) {
        const wchar_t c = text.kwszPtr()[at];
        if (c == L'/' || c == L'\\') {
            start = at + 1;
        }
    }
    return text.mid(start);
}

}  // namespace

KyRefDocument::KyRefDocument(KyRefHost& host, KyDiDocument handle,
                             std::unique_ptr<KyDbDatabase> database, const wchar_t* name,
                             const wchar_t* path)
    : m_handle(handle),
      m_database(std::move(database)),
      m_reactor(std::make_unique<KyRefDocumentDatabaseReactor>(host, *this)),
      m_name(name),
      m_path(path) {
    if (m_database != nullptr) {
        m_database->addReactor(m_reactor.get());
    }
}

KyRefDocument::~KyRefDocument() {
    destroyDatabase();
}

void KyRefDocument::setReadOnly(bool readOnly) {
    m_readOnly = readOnly;
    KyRefHostApplicationServices::instance().setReadOnly(m_database.get(), readOnly);
}

void KyRefDocument::setPath(const wchar_t* path) {
    m_path = path;
    m_name = fileNameOf(path);
}

KyDbUndoController* KyRefDocument::undo() const {
    return m_database != nullptr ? m_database->undoController() : nullptr;
}

void KyRefDocument::noteCommandStart() {
    const KyDbUndoController* controller = undo();
    if (controller == nullptr || controller->redoCount() < m_redoSeen ||
        controller->redoCount() == 0) {
        m_rolledBackFirst = false;
    }
}

void KyRefDocument::noteCommandEnd() {
    const KyDbUndoController* controller = undo();
    m_redoSeen = controller != nullptr ? controller->redoCount() : 0;
    if (m_redoSeen == 0) {
        m_rolledBackFirst = false;
    }
}

void KyRefDocument::noteRolledBack() {
    m_rolledBackFirst = true;
}

int KyRefDocument::redoableCount() const {
    const KyDbUndoController* controller = undo();
    if (controller == nullptr) {
        return 0;
    }
    return std::max(0, controller->redoCount() - (m_rolledBackFirst ? 1 : 0));
}

void KyRefDocument::destroyDatabase() {
    if (m_database == nullptr) {
        return;
    }
    // The document's own reactor goes first: it has nothing to hear of a
    // drawing that leaves memory. The reactors of others hear goodbye, while
    // the document still answers its database, as a host's document does
    // until the database is gone.
    m_database->removeReactor(m_reactor.get());
    KyRefHostApplicationServices::instance().setReadOnly(m_database.get(), false);
    delete m_database.get();
    static_cast<void>(m_database.release());
}
