// KyDbObject: root of everything a drawing database holds.
//
// Ownership. An object comes into a database by an append (a symbol table's
// add, a dictionary's setAt, a block's appendKyDbEntity, or
// KyDbDatabase::addKyDbObject); from then on the database owns it and deletes
// it only when the database itself is deleted. Erasing does not free it: an
// erased object stays in memory, readable with openErased, and can come back.
// An object that is not in a database (a new one) belongs to whoever made it
// and is write-enabled without an open.
//
// Opening. kydbOpenObject (KyDbOpenObject.h) opens an object by id for read,
// write or notify: any number of readers, one writer (never alongside a
// reader), and notify opens alongside anything. Every open is ended by one
// close(), in the reverse order of the opens (the most recent open of the
// object ends first).
//
// Notifications, and when they come. Object reactors are told first (in the
// order of reactors(): transient reactors, and persistent reactors, which are
// objects of the database opened for notify for the call); database reactors
// after them. Every list is walked on a copy: a reactor may add or remove
// reactors while called; one removed during the walk is not called after its
// removal, and one added is called from the next notification on.
//
// - The first change of a write-open (assertWriteEnabled), before the change:
//   openedForModify, then objectOpenedForModify.
// - erase(true) and erase(false), at once: erased(object, erasing), then
//   objectErased(database, object, erasing).
// - The close (or downgradeOpen) of a write-open that changed the object (an
//   erase counts as a change): modified, then objectModified, while the
//   object is still open; then, once it is closed, objectClosed(id).
// - An erase or unerase of an entry of a dictionary, by erase(), undo or
//   redo, changes the dictionary: right after the entry's erased and
//   objectErased, the dictionary's reactors hear modified (database reactors
//   objectModified), then objectClosed(dictionary id). A dictionary open for
//   write then counts as changed and tells them at its close.
// - The close (or downgradeOpen) of an attribute that changed changes its
//   block reference: right after the attribute's objectClosed, the
//   reference's reactors hear modified (database reactors objectModified),
//   then objectClosed(reference id); a reference open for write counts as
//   changed and tells them at its close.
// - An append: objectAppended, with the new object open for write.
// - Undo or redo of a change: modifyUndone, then the close notifications as
//   above. An undone erase is an unerase and a redone one an erase, told as
//   such. Undo of an append: erased(object, true) and objectErased, then
//   unappended and objectUnAppended; its redo: erased(object, false) and
//   objectErased, then reappended and objectReAppended. Then the close
//   notifications.
// - Deletion of the database: goodbye(database) to database reactors, then
//   goodbye(object) to the transient reactors of every object, while all
//   objects are still in memory.
//
// A new object's first close tells nothing: its arrival was told by
// objectAppended. An equal write (a setter given the value the object holds)
// is no change and tells nothing.
#pragma once

#include <cstdint>

#include "KyPlatformExport.h"
#include "base/KyArray.h"
#include "base/KyString.h"
#include "base/KyroErrorStatus.h"
#include "db/KyDbEnums.h"
#include "db/KyDbGuid.h"
#include "db/KyDbHandle.h"
#include "db/KyDbObjectId.h"
#include "ge/KyGePoint3d.h"
#include "rx/KyRxObject.h"

class KyDbDatabase;
class KyDbObjectReactor;
class KyDbStateFiler;

// The list of reactors() holds transient reactors as KyDbObjectReactor
// pointers, and persistent reactors as the stub of their id with the lowest
// bit set; kydbPersistentReactorObjectId tells them apart.
using KyDbReactorList = KyArray<void*, KyArrayMemCopyReallocator<void*>>;

class KYPLATFORM_API KyDbObject : public KyRxObject {
public:
    KYRX_DECLARE_MEMBERS(KyDbObject);
    ~KyDbObject() override;

    // Identity. A new object has the null id, no owner and no database.
    KyDbObjectId objectId() const;
    KyDbObjectId ownerId() const { return m_ownerId; }
    // Sets the owner: requires a write-open (eWasNotOpenForWrite).
    Kyro::ErrorStatus setOwnerId(KyDbObjectId ownerId);
    KyDbDatabase* database() const;
    KyDbHandle handle() const;
    bool isDatabaseResident() const { return m_stub != nullptr; }

    // Ends the most recent open: eInvalidOpenState when the object is not
    // open. A new object (not in a database) answers eOk and stays as it is.
    Kyro::ErrorStatus close();
    // Read to write: the object must be open for read by exactly one opener
    // (eWasOpenedForRead with more; eInvalidOpenState when not open for
    // read), and writes need the document lock (eLockViolation). An object
    // open for write answers eOk.
    Kyro::ErrorStatus upgradeOpen();
    // Write to read: ends the write-open as close() does, with its
    // notifications, and leaves the object open for read.
    Kyro::ErrorStatus downgradeOpen();

    bool isReadEnabled() const;
    bool isWriteEnabled() const;
    bool isNotifyEnabled() const;
    // True when the current write-open has changed the object.
    bool isModified() const { return (m_flags & kChanged) != 0; }
    // Announces a change: from the first one in a write-open the object counts
    // as modified, undo keeps its before-image, and reactors are told
    // openedForModify. eWasNotOpenForWrite when not open for write.
    Kyro::ErrorStatus assertWriteEnabled();

    // Erases (true) or unerases (false). Needs a write-open; answers
    // eWasErased / eWasNotErased when there is nothing to do,
    // eCannotBeErasedByCaller for what a header variable holds as current
    // (the current layer, text style, table style, material ...), and the
    // status of the class's own refusal (a standard record, a taken name).
    Kyro::ErrorStatus erase(bool erasing = true);
    bool isErased() const;

    // The class id. A host hides objects from lists by answering a status
    // other than eOk, through kydbSetClassIdHook or an override of
    // subGetClassID. By default a stable id made from the class name.
    Kyro::ErrorStatus getClassID(KyGuid* classId) const;

    // The name of the object's kind when its runtime class does not tell it
    // (an object of a kind the platform does not model keeps the name its
    // file gave it); empty for every other object. Reflected as "ClassName".
    KyString reflectedClassName() const { return subReflectedClassName(); }
    // The kind of the object as a user reads it: the local name of its class,
    // or its reflected class name when it has one. Reflected as
    // "LocalizedName".
    KyString localizedClassName() const;

    // Transient reactors. The object must be open (in any mode, or inside a
    // notification): eInvalidOpenState otherwise. A reactor stands at most
    // once on an object; removing an absent one answers eInvalidInput.
    Kyro::ErrorStatus addReactor(KyDbObjectReactor* reactor);
    Kyro::ErrorStatus removeReactor(KyDbObjectReactor* reactor);
    // Persistent reactors: objects of the same database, by id. They are part
    // of the object's state, so changing them needs a write-open.
    Kyro::ErrorStatus addPersistentReactor(KyDbObjectId reactorId);
    Kyro::ErrorStatus removePersistentReactor(KyDbObjectId reactorId);
    bool hasPersistentReactor(KyDbObjectId reactorId) const;
    // Both kinds, in the order they were added. Never null.
    const KyDbReactorList* reactors() const;

    // The object's state, as its class and its parents keep it (not its
    // identity, owner or open state).
    void saveState(KyDbStateFiler& filer) const;
    // Takes a state saved from an object of the same class. Needs a
    // write-open; counts as a change.
    Kyro::ErrorStatus restoreState(KyDbStateFiler& filer);
    // Copies the state of an object of the same class (eNotThatKindOfClass).
    Kyro::ErrorStatus copyFrom(const KyRxObject* other) override;

    // The notifications an object hears as a persistent reactor of another
    // object. They do nothing unless overridden.
    virtual void cancelled(const KyDbObject* object);
    virtual void copied(const KyDbObject* object, const KyDbObject* newObject);
    virtual void erased(const KyDbObject* object, bool erasing = true);
    virtual void goodbye(const KyDbObject* object);
    virtual void openedForModify(const KyDbObject* object);
    virtual void modified(const KyDbObject* object);
    virtual void modifyUndone(const KyDbObject* object);
    virtual void modifiedXData(const KyDbObject* object);
    virtual void unappended(const KyDbObject* object);
    virtual void reappended(const KyDbObject* object);
    virtual void objectClosed(KyDbObjectId objectId);

protected:
    KyDbObject();

    // Each class writes its members after calling its parent's.
    virtual void subSaveState(KyDbStateFiler& filer) const;
    virtual Kyro::ErrorStatus subRestoreState(KyDbStateFiler& filer);
    // Asked before an erase or unerase: a status other than eOk refuses it.
    // Undo and redo do not ask.
    virtual Kyro::ErrorStatus subErase(bool erasing);
    // Told after the erase state changed, by erase() and by undo alike.
    virtual void subErasedChanged(bool erasing);
    // Told when the object has come into `database`, before objectAppended:
    // the moment to take the database's defaults.
    virtual void subAppended(KyDbDatabase* database);
    virtual Kyro::ErrorStatus subGetClassID(KyGuid* classId) const;
    virtual KyString subReflectedClassName() const;

    // For a setter: eOk when the object is write-enabled (without marking a
    // change), eWasNotOpenForWrite otherwise. A setter checks this first,
    // answers eOk on an equal value, and calls assertWriteEnabled before
    // changing anything.
    Kyro::ErrorStatus checkWritable() const;
    // The checks an owner makes before it takes `child` in: the owner lives in
    // a database and is open for write; `child` exists and is in no database.
    Kyro::ErrorStatus checkCanOwn(const KyDbObject* child) const;
    // Puts `child` into the owner's database, owned by it, under `handle`
    // (null: a new one) once the handle is checked. The caller keeps the new
    // id and then announces the append.
    Kyro::ErrorStatus appendOwned(KyDbObject* child, KyDbHandle handle, KyDbObjectId& newId);
    // The common setter: needs a write-open, changes nothing for an equal
    // value, announces the change before making it.
    template <typename T>
    Kyro::ErrorStatus setMember(T& member, const T& value) {
        if (const Kyro::ErrorStatus status = checkWritable(); status != Kyro::eOk) {
            return status;
        }
        if (!isSameValue(member, value)) {
            assertWriteEnabled();
            member = value;
        }
        return Kyro::eOk;
    }
    // Whether a setter is handed the value its member holds: exactly, also
    // for points, which compare equal within a tolerance. A member keeps
    // what it is given, so that a drawing is saved as it was read.
    template <typename T>
    static bool isSameValue(const T& member, const T& value) {
        return member == value;
    }
    static bool isSameValue(const KyGePoint3d& member, const KyGePoint3d& value) {
        return member.x == value.x && member.y == value.y && member.z == value.z;
    }
    template <typename T>
    static bool isSameValue(const KyArray<T>& member, const KyArray<T>& value) {
        if (member.length() != value.length()) {
            return false;
        }
        for (int i = 0; i < member.length(); ++i) {
            if (!isSameValue(member[i], value[i])) {
                return false;
            }
        }
        return true;
    }
    // True while undo or redo puts the object's state back.
    bool isRestoring() const { return (m_flags & kRestoring) != 0; }

private:
    friend class KyDbObjectAccess;

    enum Flag : std::uint16_t {
        kChanged = 0x1,    // the current write-open changed the object
        kNew = 0x2,        // appended during the current write-open
        kGoingAway = 0x4,  // told goodbye: its database is being deleted
        kRestoring = 0x8,  // undo or redo is restoring it: no before-image
    };

    KyDbStub* m_stub = nullptr;
    KyDbObjectId m_ownerId;
    KyDbReactorList* m_reactors = nullptr;
    // The modes of the opens, 2 bits each, the most recent in the low bits.
    // Read and notify opens beyond the 32 the stack holds are only counted;
    // they end first.
    std::uint64_t m_openStack = 0;
    std::uint16_t m_openDepth = 0;
    std::uint16_t m_deepReaders = 0;
    std::uint16_t m_deepNotifiers = 0;
    std::uint16_t m_readers = 0;
    std::uint16_t m_notifiers = 0;
    std::uint16_t m_notifying = 0;  // notifications about this object in progress
    std::uint16_t m_flags = 0;
    bool m_writer = false;
};

// The id of the persistent reactor in an entry of reactors(); the null id for
// a transient reactor.
KYPLATFORM_API KyDbObjectId kydbPersistentReactorObjectId(const void* entry);

// A host's say on class ids: answers the status of getClassID for `object`,
// or eNotApplicable to leave it to the object's class. Null removes the hook.
using KyDbClassIdHook = Kyro::ErrorStatus (*)(const KyDbObject* object, KyGuid* classId);
KYPLATFORM_API void kydbSetClassIdHook(KyDbClassIdHook hook);
