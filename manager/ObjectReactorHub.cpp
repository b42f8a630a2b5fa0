#include "manager/ObjectReactorHub.h"

#include <algorithm>

#include "db/KyDbObject.h"
#include "db/KyDbOpenObject.h"
#include "kydi/KyDiManager.h"
#include "kydi/KyDiObjectReactor.h"
#include "manager/KyDiManagerState.h"
#include "manager/LooseItem.h"
#include "manager/host/KyDiHostAccess.h"

namespace {

KyArray<LooseItem*>& watches() {
    return kydiManagerState().looseItems;
}

// The answer of remove for a pair that is not watched.
constexpr auto kNotWatched = static_cast<Kyro::ErrorStatus>(22);

// The document the last pass saw: when it changes, every watch is checked.
KyDiDocument g_lastDocument = kKyDiUnboundDocument;

// Ends a watch the hub was calling out for: out of the list (a client that
// did not take it back loses it all the same), off its object, deleted.
void endWatch(LooseItem* watch) {
    watches().remove(watch);
    watch->detach();
    delete watch;
}

// After a call out: false when the client took the watch back during it, in
// which case the watch is gone.
bool survivedCall(LooseItem* watch) {
    if ((watch->flags & LooseItem::kRemovePending) != 0) {
        delete watch;
        return false;
    }
    return true;
}

// Tells the client where the object stands, when that differs from what it
// takes; false when the watch went during the call.
bool tellDocument(LooseItem* watch) {
    const bool inside = watch->inCurrentDocument();
    if (inside == watch->active) {
        return true;
    }
    watch->active = inside;
    watch->reactor->activeChanged(inside);
    return survivedCall(watch);
}

// Tells the client what the marks of its watch say. The marks are taken at
// the start: those the client's own calls leave (it changes or erases the
// object while it is told) wait for the next pass.
void passOver(LooseItem* watch, bool documentChanged) {
    const std::uint32_t marks = watch->flags;
    watch->flags = LooseItem::kInNotification;
    if ((marks & LooseItem::kGone) != 0) {
        // The client is required to take the watch back here.
        watch->reactor->erased();
        endWatch(watch);
        return;
    }
    const bool checkDocument =
        documentChanged ||
        (marks & (LooseItem::kInsideDocument | LooseItem::kOutsideDocument)) != 0;
    if (checkDocument && !tellDocument(watch)) {
        return;
    }
    if ((marks & LooseItem::kClosedAfterChange) != 0) {
        watch->reactor->modified(nullptr);
        if (!survivedCall(watch)) {
            return;
        }
    }
    watch->flags &= ~LooseItem::kInNotification;
}

}  // namespace

Kyro::ErrorStatus ObjectReactorHub::add(const KyDbObjectId& id, KyDiObjectReactor* reactor) {
    if (reactor == nullptr) {
        return Kyro::eInvalidInput;
    }
    KyDbObject* object = nullptr;
    const Kyro::ErrorStatus status = kydbOpenObject(object, id, KyDb::kForRead);
    if (status != Kyro::eOk) {
        return status;
    }
    auto* watch = new LooseItem(id, reactor);
    watches().append(watch);
    object->addReactor(watch);
    object->close();
    return Kyro::eOk;
}

Kyro::ErrorStatus ObjectReactorHub::remove(const KyDbObjectId& id, KyDiObjectReactor* reactor) {
    KyArray<LooseItem*>& all = watches();
    for (int i = all.length() - 1; i >= 0; --i) {
        LooseItem* watch = all[i];
        if (watch->reactor != reactor || (watch->currentId != id && watch->erasedId != id)) {
            continue;
        }
        // Also an erased object carries the record, for the undo of its erase.
        watch->detach();
        all.removeAt(i);
        if ((watch->flags & LooseItem::kInNotification) != 0) {
            watch->flags |= LooseItem::kRemovePending;
        } else {
            delete watch;
        }
        return Kyro::eOk;
    }
    return kNotWatched;
}

void ObjectReactorHub::pass() {
    const KyDiDocument document = KyDiHostAccess::currentDocument();
    const bool documentChanged = document != g_lastDocument;
    g_lastDocument = document;
    // The live list is walked from its end. A client may take back its own
    // watch or another one while it is told: the walk then goes on below the
    // place it reached, within the list as it stands. A watch that slides
    // down into that range is looked at again, which tells nothing twice: its
    // marks are cleared and its document is told only when it differs.
    KyArray<LooseItem*>& all = watches();
    for (int i = all.length() - 1; i >= 0; i = std::min(i - 1, all.length() - 1)) {
        LooseItem* watch = all[i];
        // A pass that a client forces while it is told leaves that watch to
        // the pass that is telling it.
        if ((watch->flags & LooseItem::kInNotification) == 0 &&
            (watch->flags != 0 || documentChanged)) {
            passOver(watch, documentChanged);
        }
    }
}

void ObjectReactorHub::documentToBeDestroyed(KyDiDocument document) {
    if (document == kKyDiNoDocument) {
        return;
    }
    KyArray<LooseItem*>& all = watches();
    for (int i = all.length() - 1; i >= 0; --i) {
        LooseItem* watch = all[i];
        if (!watch->currentId.isNull() &&
            KyDiHostAccess::documentOf(watch->currentId.database()) == document) {
            watch->erased(nullptr, true);
        }
    }
}

void ObjectReactorHub::releaseAll() {
    const KyArray<LooseItem*> all = std::move(watches());
    watches().removeAll();
    for (int i = 0; i < all.length(); ++i) {
        all[i]->detach();
        delete all[i];
    }
}
