// KyRefDocument: one open drawing of the reference host: its database, the
// name it is shown under, the file it came from, and what the host keeps of
// it between commands (undo marks, its long transaction, whether it changed
// since it was read or saved, the block open in its block editor, what was
// told of its layouts' plot settings). A document opened read-only refuses
// its lock (KyRefHostApplicationServices): nothing writes to its drawing.
#pragma once

#include <memory>
#include <vector>

#include "KyRefPlotSettingsWatch.h"
#include "base/KyString.h"
#include "db/KyDbObjectId.h"
#include "kydi/KyDiTypes.h"

class KyDbDatabase;
class KyDbUndoController;
class KyRefDocumentDatabaseReactor;
class KyRefHost;

class KyRefDocument {
public:
    // Takes `database` over. `path` is empty for a drawing never saved.
    KyRefDocument(KyRefHost& host, KyDiDocument handle, std::unique_ptr<KyDbDatabase> database,
                  const wchar_t* name, const wchar_t* path);
    ~KyRefDocument();
    KyRefDocument(const KyRefDocument&) = delete;
    KyRefDocument& operator=(const KyRefDocument&) = delete;

    // The handle the document manager gives out: never 0 or -1, never used
    // again for another document.
    KyDiDocument handle() const { return m_handle; }
    // Null once the database was destroyed (the document is closing).
    KyDbDatabase* database() const { return m_database.get(); }
    // The file name shown, as "Drawing1.kyd" or "plan.kyd".
    const KyString& name() const { return m_name; }
    const KyString& path() const { return m_path; }
    // Gives the document a file: its name becomes the file's name.
    void setPath(const wchar_t* path);

    // True when the drawing changed since it was made, read or saved.
    bool isModified() const { return m_modified; }
    void setModified(bool modified) { m_modified = modified; }

    bool isReadOnly() const { return m_readOnly; }
    void setReadOnly(bool readOnly);

    // The block open in the block editor; null while none is.
    KyDbObjectId editedBlockId() const { return m_editedBlock; }
    void setEditedBlockId(KyDbObjectId id) { m_editedBlock = id; }

    KyRefPlotSettingsWatch& plotSettings() { return m_plotSettings; }

    KyDbObjectId longTransactionId() const { return m_longTransaction; }
    void setLongTransactionId(KyDbObjectId id) { m_longTransaction = id; }

    // Marks of UNDO: the number of undo groups when each mark was set.
    std::vector<int>& undoMarks() { return m_undoMarks; }

    // Redo bookkeeping. When the host takes back a command that was cancelled
    // or failed, the group it took back stands first on the redo list, where
    // no REDO may reach it. Outside commands the redo list only ever empties
    // (a change throws it away), so comparing its length at the start of the
    // next command tells whether that group is still there.
    void noteCommandStart();
    void noteCommandEnd();
    void noteRolledBack();
    // How many groups REDO may make again.
    int redoableCount() const;

    // Deletes the database: the reactors of its objects hear goodbye.
    void destroyDatabase();

private:
    KyDbUndoController* undo() const;

    KyDiDocument m_handle;
    std::unique_ptr<KyDbDatabase> m_database;
    std::unique_ptr<KyRefDocumentDatabaseReactor> m_reactor;
    KyString m_name;
    KyString m_path;
    KyDbObjectId m_longTransaction;
    KyDbObjectId m_editedBlock;
    KyRefPlotSettingsWatch m_plotSettings;
    std::vector<int> m_undoMarks;
    int m_redoSeen = 0;
    bool m_rolledBackFirst = false;
    bool m_modified = false;
    bool m_readOnly = false;
};
