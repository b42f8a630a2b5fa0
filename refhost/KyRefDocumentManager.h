// KyRefDocumentManager: the reference host's open documents. Several are open
// at once and one is current; commands work on the current one, whose
// database is the working database. Documents are numbered from 0 in the
// order they were opened.
//
// Closing a document raises, in this order: documentToBeDestroyed(document)
// while the document is still answered as current (if it was) and its
// database is there; then the database is deleted, so that the reactors of its
// objects hear goodbye; documentDestroyed(); then another document becomes
// current; documentDestructionDone(). Each time another document becomes
// current the host asks for a refresh (refreshNeeded(true)): a switch of
// documents has no event of its own.
#pragma once

#include <memory>
#include <vector>

#include "KyRefDocument.h"
#include "kydi/KyDiDocumentManager.h"

class KyRefDrawingIo;
class KyRefHost;

class KyRefDocumentManager : public KyDiDocumentManager {
public:
    explicit KyRefDocumentManager(KyRefHost& host);
    ~KyRefDocumentManager() override;
    KyRefDocumentManager(const KyRefDocumentManager&) = delete;
    KyRefDocumentManager& operator=(const KyRefDocumentManager&) = delete;

    // ---- KyDiDocumentManager
    int documentCount() override;
    KyDiDocument document(int index) override;
    KyDiDocument currentDocument() override;
    KyDiDocument documentOf(KyDbDatabase* database) override;
    KyDbDatabase* databaseOf(KyDiDocument document) override;
    KyDbDatabase* workingDatabase() override;
    KyString documentName(KyDiDocument document) override;
    // False for the current document while the host may put questions to the
    // user; true for any other document and handle.
    bool isDocumentQuiescent(KyDiDocument document) override;
    void longTransactionId(KyDbObjectId& out, KyDiDocument document) override;

    // ---- The host's side

    // A new drawing from the built-in template, named "Drawing<n>.kyd"; it
    // becomes current.
    KyRefDocument* newDocument();
    // How a document is opened: for changes, or read-only (its lock is
    // refused, and so is every command that would change it).
    enum class OpenMode { kWrite, kReadOnly };

    // Reads the drawing file `path` through the drawing reader; it becomes
    // current. Null with `error` when the file can't be read or no reader is
    // there.
    KyRefDocument* openDocument(const wchar_t* path, KyString& error,
                                OpenMode mode = OpenMode::kWrite);
    // Takes `database` over as a document of its own (a drawing built by a
    // test or read elsewhere); it becomes current.
    KyRefDocument* addDocument(std::unique_ptr<KyDbDatabase> database, const wchar_t* name,
                               const wchar_t* path = L"", OpenMode mode = OpenMode::kWrite);
    // Writes the document to `path`, or to its own file when `path` is empty.
    bool saveDocument(KyRefDocument* document, const wchar_t* path, KyString& error);
    // Makes `document` current; false for a document that isn't open.
    bool makeCurrent(KyRefDocument* document);
    // Closes `document` (see above); false for a document that isn't open.
    bool closeDocument(KyRefDocument* document);
    void closeAll();
    // Deletes the documents closed since the last call. A closed document
    // stays in memory (without its database) until then, so that a command
    // running in it when it closed ends safely.
    void releaseClosedDocuments() { m_closed.clear(); }

    // The current document as the host knows it: also while it is closing.
    KyRefDocument* current() const { return m_current; }
    KyDbDatabase* currentDatabase() const;
    KyRefDocument* find(KyDiDocument handle) const;
    KyRefDocument* at(int index) const;
    int count() const { return static_cast<int>(m_documents.size()); }

    // The reader and writer of drawing files for this host; null uses the one
    // registered for the process.
    void setDrawingIo(KyRefDrawingIo* io) { m_io = io; }
    KyRefDrawingIo* drawingIo() const;

    // Whether the host may put questions to the user (a script run answers no).
    void setPromptsAllowed(bool allowed) { m_promptsAllowed = allowed; }

private:
    KyRefDocument* adopt(std::unique_ptr<KyDbDatabase> database, const wchar_t* name,
                         const wchar_t* path, OpenMode mode = OpenMode::kWrite);
    void setCurrent(KyRefDocument* document);

    KyRefHost& m_host;
    std::vector<std::unique_ptr<KyRefDocument>> m_documents;
    std::vector<std::unique_ptr<KyRefDocument>> m_closed;
    KyRefDocument* m_current = nullptr;
    KyRefDocument* m_closing = nullptr;
    KyRefDrawingIo* m_io = nullptr;
    KyDiDocument m_nextHandle = 0x1000;
    int m_untitled = 0;
    bool m_promptsAllowed = true;
};
