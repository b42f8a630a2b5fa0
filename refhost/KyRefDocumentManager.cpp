#include "KyRefDocumentManager.h"

#include <algorithm>

#include "KyRefDrawingIo.h"
#include "KyRefHost.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbHostApplicationServices.h"
#include "db/KyDbUndoController.h"

KyRefDocumentManager::KyRefDocumentManager(KyRefHost& host) : m_host(host) {}

KyRefDocumentManager::~KyRefDocumentManager() {
    // The host closes its documents with their events before it goes; what
    // is left here goes without any.
    if (m_current != nullptr) {
        kydbHostApplicationServices()->setWorkingDatabase(nullptr);
    }
}

// ---- KyDiDocumentManager

int KyRefDocumentManager::documentCount() {
    return count();
}

KyDiDocument KyRefDocumentManager::document(int index) {
    const KyRefDocument* found = at(index);
    return found != nullptr ? found->handle() : kKyDiNoDocument;
}

KyDiDocument KyRefDocumentManager::currentDocument() {
    return m_current != nullptr ? m_current->handle() : kKyDiNoDocument;
}

KyDiDocument KyRefDocumentManager::documentOf(KyDbDatabase* database) {
    if (database == nullptr) {
        return kKyDiNoDocument;
    }
    for (const auto& document : m_documents) {
        if (document->database() == database) {
            return document->handle();
        }
    }
    return kKyDiNoDocument;
}

KyDbDatabase* KyRefDocumentManager::databaseOf(KyDiDocument document) {
    const KyRefDocument* found = find(document);
    return found != nullptr ? found->database() : nullptr;
}

KyDbDatabase* KyRefDocumentManager::workingDatabase() {
    return kydbHostApplicationServices()->workingDatabase();
}

KyString KyRefDocumentManager::documentName(KyDiDocument document) {
    const KyRefDocument* found = find(document);
    return found != nullptr ? found->name() : KyString();
}

bool KyRefDocumentManager::isDocumentQuiescent(KyDiDocument document) {
    return !(m_promptsAllowed && m_current != nullptr && m_current->handle() == document &&
             m_closing != m_current);
}

void KyRefDocumentManager::longTransactionId(KyDbObjectId& out, KyDiDocument document) {
    const KyRefDocument* found = find(document);
    out = found != nullptr ? found->longTransactionId() : KyDbObjectId();
}

// ---- The host's side

KyRefDocument* KyRefDocumentManager::newDocument() {
    auto database = std::make_unique<KyDbDatabase>(true);
    const KyString name = KyString::formatted(L"Drawing%d.kyd", ++m_untitled);
    return adopt(std::move(database), name, L"");
}

KyRefDocument* KyRefDocumentManager::openDocument(const wchar_t* path, KyString& error,
                                                  OpenMode mode) {
    KyRefDrawingIo* io = drawingIo();
    if (io == nullptr) {
        error = L"Drawings can't be opened: no drawing file reader is installed.";
        return nullptr;
    }
    KyString readError;
    std::unique_ptr<KyDbDatabase> database = io->read(path, readError);
    if (database == nullptr) {
        error =
            readError.isEmpty() ? KyString::formatted(L"Cannot read \"%ls\".", path) : readError;
        return nullptr;
    }
    return adopt(std::move(database), L"", path, mode);
}

KyRefDocument* KyRefDocumentManager::addDocument(std::unique_ptr<KyDbDatabase> database,
                                                 const wchar_t* name, const wchar_t* path,
                                                 OpenMode mode) {
    if (database == nullptr) {
        return nullptr;
    }
    return adopt(std::move(database), name, path, mode);
}

KyRefDocument* KyRefDocumentManager::adopt(std::unique_ptr<KyDbDatabase> database,
                                           const wchar_t* name, const wchar_t* path,
                                           OpenMode mode) {
    // What built the drawing is no change a user could take back, and from
    // now on every write needs the document lock or a command.
    database->undoController()->clear();
    database->setLockRequired(true);
    const KyDiDocument handle = m_nextHandle;
    m_nextHandle += 0x10;
    m_documents.push_back(
        std::make_unique<KyRefDocument>(m_host, handle, std::move(database), name, path));
    KyRefDocument* document = m_documents.back().get();
    document->setReadOnly(mode == OpenMode::kReadOnly);
    // A drawing without a name of its own is shown under its file's name
    // before it becomes current: what hears of the switch reads it.
    if (document->name().isEmpty() && path != nullptr && path[0] != L'\0') {
        document->setPath(path);
    }
    document->noteCommandEnd();
    setCurrent(document);
    m_host.events().raiseRefreshNeeded(true);
    return document;
}

bool KyRefDocumentManager::saveDocument(KyRefDocument* document, const wchar_t* path,
                                        KyString& error) {
    if (document == nullptr || find(document->handle()) != document ||
        document->database() == nullptr) {
        error = L"No drawing to save.";
        return false;
    }
    const KyString target = path != nullptr && path[0] != L'\0' ? KyString(path) : document->path();
    if (target.isEmpty()) {
        error = L"The drawing has no file yet: name one to save it.";
        return false;
    }
    KyRefDrawingIo* io = drawingIo();
    if (io == nullptr) {
        error = L"Drawings can't be saved: no drawing file writer is installed.";
        return false;
    }
    KyString writeError;
    if (!io->write(document->database(), target, writeError)) {
        error = writeError.isEmpty()
                    ? KyString::formatted(L"Cannot write \"%ls\".", target.kwszPtr())
                    : writeError;
        return false;
    }
    // A new name changes DRAWINGNAME, and the save clears DBMOD: the host tells
    // those changes as it tells any other.
    m_host.beginChangeReport();
    document->setPath(target);
    document->setModified(false);
    m_host.raiseVariableChanges(m_host.endChangeReport());
    return true;
}

bool KyRefDocumentManager::makeCurrent(KyRefDocument* document) {
    if (document == nullptr || find(document->handle()) != document || m_closing != nullptr) {
        return false;
    }
    if (document != m_current) {
        setCurrent(document);
        m_host.events().raiseRefreshNeeded(true);
    }
    return true;
}

bool KyRefDocumentManager::closeDocument(KyRefDocument* document) {
    if (document == nullptr || find(document->handle()) != document || m_closing != nullptr) {
        return false;
    }
    m_closing = document;
    const bool wasCurrent = document == m_current;
    m_host.documentClosing(*document);
    m_host.events().raiseDocumentToBeDestroyed(document->handle());
    document->destroyDatabase();
    m_host.events().raiseDocumentDestroyed();

    const auto found =
        std::find_if(m_documents.begin(), m_documents.end(),
                     [document](const auto& open) { return open.get() == document; });
    m_closed.push_back(std::move(*found));
    m_documents.erase(found);
    if (wasCurrent) {
        setCurrent(m_documents.empty() ? nullptr : m_documents.back().get());
    }
    m_closing = nullptr;
    m_host.events().raiseDocumentDestructionDone();
    if (wasCurrent && m_current != nullptr) {
        m_host.events().raiseRefreshNeeded(true);
    }
    return true;
}

void KyRefDocumentManager::closeAll() {
    while (!m_documents.empty()) {
        closeDocument(m_documents.back().get());
    }
}

KyDbDatabase* KyRefDocumentManager::currentDatabase() const {
    return m_current != nullptr ? m_current->database() : nullptr;
}

KyRefDocument* KyRefDocumentManager::find(KyDiDocument handle) const {
    for (const auto& document : m_documents) {
        if (document->handle() == handle) {
            return document.get();
        }
    }
    return nullptr;
}

KyRefDocument* KyRefDocumentManager::at(int index) const {
    if (index < 0 || index >= count()) {
        return nullptr;
    }
    return m_documents[static_cast<std::size_t>(index)].get();
}

KyRefDrawingIo* KyRefDocumentManager::drawingIo() const {
    return m_io != nullptr ? m_io : KyRefDrawingIo::registered();
}

void KyRefDocumentManager::setCurrent(KyRefDocument* document) {
    m_current = document;
    kydbHostApplicationServices()->setWorkingDatabase(document != nullptr ? document->database()
                                                                          : nullptr);
    m_host.currentDocumentChanged();
}
