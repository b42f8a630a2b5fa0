// Internal to the drawing database; not part of the platform's interface.
//
// KyDbObjectAccess: the steps on an object's private state that the database,
// the containers, the open functions and undo share: opening and closing,
// appending, erasing, telling reactors, and saying goodbye.
#pragma once

#include <cstdint>
#include <memory>
#include <type_traits>

#include "db/KyDbDatabase.h"
#include "db/KyDbDatabaseReactor.h"
#include "db/KyDbEnums.h"
#include "db/KyDbObject.h"
#include "db/KyDbObjectReactor.h"

// A copy of a reactor list, taken before a notification walks it. Short
// lists are copied without allocating.
template <typename T>
class KyDbListCopy {
public:
    template <typename List>
    explicit KyDbListCopy(const List& list) : m_count(list.length()) {
        m_data = m_inline;
        if (m_count > kInline) {
            m_heap = std::make_unique<T[]>(static_cast<std::size_t>(m_count));
            m_data = m_heap.get();
        }
        for (int i = 0; i < m_count; ++i) {
            m_data[i] = list[i];
        }
    }
    const T* begin() const { return m_data; }
    const T* end() const { return m_data + m_count; }

private:
    static constexpr int kInline = 16;
    int m_count;
    T m_inline[kInline];
    std::unique_ptr<T[]> m_heap;
    T* m_data;
};

class KyDbObjectAccess {
public:
    // The count behind kydbOpenObjectCount.
    static long long& openCount();

    // The open itself, once kydbOpenObject has checked the id, the class and
    // the lock.
    static Kyro::ErrorStatus open(KyDbObject* object, KyDb::OpenMode mode);
    // Ends the most recent open of an object that is open.
    static void close(KyDbObject* object);
    // Turns the one read-open into a write-open (the lock is checked here).
    static Kyro::ErrorStatus upgrade(KyDbObject* object);
    // Ends the write-open of `object`: the close notifications when it
    // changed; with `toRead` the open becomes a read-open.
    static void endWrite(KyDbObject* object, bool toRead);
    // The first change of a write-open: the before-image for undo and
    // openedForModify (neither while undo restores the object).
    static void startChange(KyDbObject* object, bool takeImage = true);

    // Puts `object` into `database` under `owner`, with `handle` (the next
    // free handle when null), open for write by the caller. The container
    // puts the id in its own list and then calls announceAppend.
    static Kyro::ErrorStatus append(KyDbDatabase* database, KyDbObject* object, KyDbObjectId owner,
                                    KyDbHandle handle, KyDbObjectId& id);
    static void announceAppend(KyDbObject* object);
    // Marks the handle of an appended object as provisional: a handle that a
    // reader gives another object later takes it over (an object whose
    // handle a drawing file does not keep, an attribute).
    static void makeHandleProvisional(KyDbObject* object);
    // eHandleInUse when an append with `handle` would fail on it (a
    // provisional holder gives way); eOk for the null handle.
    static Kyro::ErrorStatus checkHandle(const KyDbDatabase* database, KyDbHandle handle);

    // Erase or unerase without the class's consent (undo and redo), or with it.
    // Marks the change, records the undo step unless `record` is false, and
    // tells the reactors.
    static Kyro::ErrorStatus setErased(KyDbObject* object, bool erasing, bool askClass,
                                       bool record);
    // An object erased or unerased that is an entry of a dictionary changes
    // what the dictionary holds. A dictionary open for write counts as
    // changed, and its close tells it; otherwise its reactors hear modified
    // (and the database reactors objectModified), then objectClosed, at once.
    static void tellDictionaryOfEntry(KyDbObject* entry);
    // A changed attribute changes what its block reference shows: at the
    // attribute's close (after its objectClosed) the reference is told as a
    // dictionary is of its entries, so that a watcher of the reference sees
    // its attributes' edits.
    static void tellReferenceOfAttribute(KyDbObject* object);
    // Tells `owner` that what it holds has changed: an owner open for write
    // counts as changed, and its close tells it; otherwise its reactors hear
    // modified (and the database reactors objectModified), then objectClosed,
    // at once.
    static void tellOwnerOfChange(KyDbObject* owner);
    // While undo restores an object, its changes take no before-image and
    // tell no openedForModify.
    static void setRestoring(KyDbObject* object, bool restoring);

    // The first steps of the database's deletion, object by object.
    static void sayGoodbye(KyDbObject* object);
    static void forget(KyDbObject* object);

    static bool isDestroying(const KyDbDatabase* database) {
        return database != nullptr && database->m_destroying;
    }
    static bool isOpenForReadOrWrite(const KyDbObject* object) {
        return object->m_writer || object->m_readers > 0;
    }
    static bool isOpenForWrite(const KyDbObject* object) { return object->m_writer; }
    static bool isGoingAway(const KyDbObject* object) {
        return (object->m_flags & KyDbObject::kGoingAway) != 0;
    }

    static bool isPersistentEntry(const void* entry) {
        return (reinterpret_cast<std::uintptr_t>(entry) & 1u) != 0;
    }
    static void* persistentEntry(KyDbObjectId id) {
        return reinterpret_cast<void*>(reinterpret_cast<std::uintptr_t>(id.stub()) | 1u);
    }
    static KyDbObjectId persistentId(const void* entry) {
        return KyDbObjectId(reinterpret_cast<KyDbStub*>(reinterpret_cast<std::uintptr_t>(entry) &
                                                        ~std::uintptr_t{1}));
    }

    // Calls `tell` with each reactor of `object` (a KyDbObjectReactor*, or the
    // KyDbObject* of a persistent reactor, opened for notify for the call), on
    // a copy of the list. The object counts as open for notify meanwhile.
    template <typename Tell>
    static void tellObjectReactors(KyDbObject* object, Tell&& tell, bool persistentToo = true);
    // Calls `tell` with each reactor of `database`, on a copy of the list.
    template <typename Tell>
    static void tellDatabaseReactors(KyDbDatabase* database, Tell&& tell);

private:
    static void push(KyDbObject* object, KyDb::OpenMode mode);
    static KyDb::OpenMode pop(KyDbObject* object);
    static void callPersistent(KyDbObjectId reactorId, void (*call)(KyDbObject*, void*),
                               void* context);
};

template <typename Tell>
void KyDbObjectAccess::tellObjectReactors(KyDbObject* object, Tell&& tell, bool persistentToo) {
    if (object->m_reactors == nullptr || object->m_reactors->isEmpty()) {
        return;
    }
    const KyDbListCopy<void*> entries(*object->m_reactors);
    ++object->m_notifying;
    for (void* entry : entries) {
        // A reactor taken off by an earlier one in this walk is not called.
        if (object->m_reactors == nullptr || !object->m_reactors->contains(entry)) {
            continue;
        }
        if (!isPersistentEntry(entry)) {
            tell(static_cast<KyDbObjectReactor*>(entry));
        } else if (persistentToo) {
            callPersistent(
                persistentId(entry),
                [](KyDbObject* reactor, void* context) {
                    (*static_cast<std::remove_reference_t<Tell>*>(context))(reactor);
                },
                &tell);
        }
    }
    --object->m_notifying;
}

template <typename Tell>
void KyDbObjectAccess::tellDatabaseReactors(KyDbDatabase* database, Tell&& tell) {
    if (database == nullptr || database->m_reactors.isEmpty()) {
        return;
    }
    const KyDbListCopy<KyDbDatabaseReactor*> reactors(database->m_reactors);
    for (KyDbDatabaseReactor* reactor : reactors) {
        if (database->m_reactors.contains(reactor)) {
            tell(reactor);
        }
    }
}
