// KyDbUndoController: the undo record of one database (undoController()).
//
// What a change does is recorded in undo groups: the state of each object
// before its first change in the group (one before-image per object and
// group), each erase and unerase, each append, and the old value of each
// header variable written. Groups are opened and closed by beginUndoGroup and
// endUndoGroup; nested pairs count as one group, the outermost. A change made
// outside any group opens a group of its own, which ends when the last
// write-open of the database is closed (so "open the table, add a record,
// close both" is one group), or at once for a header write made with nothing
// open. Groups in which nothing was recorded are dropped. A new group throws
// the redo list away.
//
// undo() takes the last finished group back, redo() makes the last undone
// group again. Both need the document lock when the database requires it,
// refuse while an object of the group is open for read or write (its status),
// and give the notifications of a real change (KyDbObject.h): an undone change
// tells modifyUndone and then, at the close, modified, objectModified and
// objectClosed; an undone erase is an unerase; an undone append erases the
// object; header values tell headerSysVarWillChange/Changed.
#pragma once

#include <memory>
#include <vector>

#include "KyPlatformExport.h"
#include "base/KyString.h"
#include "base/KyroErrorStatus.h"

class KyDbDatabase;
class KyDbObject;
class KyRxValue;

class KYPLATFORM_API KyDbUndoController {
public:
    // The codes that the begin and end of a group are called with.
    static constexpr int kBeginGroupCode = 8;
    static constexpr int kEndGroupCode = 16;

    explicit KyDbUndoController(KyDbDatabase* database);
    ~KyDbUndoController();
    KyDbUndoController(const KyDbUndoController&) = delete;
    KyDbUndoController& operator=(const KyDbUndoController&) = delete;

    // Opens a group (or one more level of the open one). The label of the
    // outermost begin names the group.
    Kyro::ErrorStatus beginUndoGroup(int code = kBeginGroupCode, const wchar_t* label = nullptr);
    // Closes one level; the outermost end finishes the group. eNotApplicable
    // when no group is open.
    Kyro::ErrorStatus endUndoGroup(int code = kEndGroupCode);
    // Open levels of groups; 0 outside any.
    int groupDepth() const { return m_depth; }

    // eNotApplicable when there is nothing to take back or make again.
    Kyro::ErrorStatus undo();
    Kyro::ErrorStatus redo();
    bool hasUndo() const { return !m_undoGroups.empty(); }
    bool hasRedo() const { return !m_redoGroups.empty(); }
    int undoCount() const { return static_cast<int>(m_undoGroups.size()); }
    int redoCount() const { return static_cast<int>(m_redoGroups.size()); }
    // The label of the group undo() or redo() would take; empty if none.
    const wchar_t* undoLabel() const;
    const wchar_t* redoLabel() const;

    // A host may switch recording off (a new drawing being read, a change the
    // user must not take back). Changes made meanwhile are not recorded.
    void setRecording(bool recording) { m_recording = recording; }
    bool isRecording() const { return m_recording; }
    // Throws every group away.
    void clear();

private:
    friend class KyDbObjectAccess;
    friend class KyDbDatabase;
    struct Record;
    struct Group;

    bool records() const;
    Group* currentGroup();
    void recordState(KyDbObject* object);
    void recordErase(KyDbObject* object, bool erasing);
    void recordAppend(KyDbObject* object);
    void recordHeader(const wchar_t* name, const KyRxValue* oldValue);
    // Finishes a group that opened by itself, once nothing is open for write.
    void endImplicitGroup();
    // Puts the group being recorded on the undo list, unless it is empty.
    void commitGroup();
    Kyro::ErrorStatus apply(std::vector<std::unique_ptr<Group>>& from,
                            std::vector<std::unique_ptr<Group>>& to, bool undoing);

    KyDbDatabase* m_database;
    std::vector<std::unique_ptr<Group>> m_undoGroups;
    std::vector<std::unique_ptr<Group>> m_redoGroups;
    std::unique_ptr<Group> m_group;  // the group being recorded
    int m_depth = 0;
    bool m_recording = true;
    bool m_applying = false;
};
