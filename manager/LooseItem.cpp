#include "manager/LooseItem.h"

#include "db/KyDbObject.h"
#include "db/KyDbOpenObject.h"
#include "manager/host/KyDiHostAccess.h"

LooseItem::LooseItem(KyDbObjectId id, KyDiObjectReactor* watcher)
    : currentId(id), reactor(watcher) {
    noteDocument();
}

bool LooseItem::inCurrentDocument() const {
    const KyDiDocument document = KyDiHostAccess::currentDocument();
    return document != kKyDiNoDocument && !currentId.isNull() &&
           KyDiHostAccess::documentOf(currentId.database()) == document;
}

void LooseItem::noteDocument() {
    // What the hub is doing with the record stays; the marks go.
    flags = (flags & (kInNotification | kRemovePending)) |
            (inCurrentDocument() ? kInsideDocument : kOutsideDocument);
}

void LooseItem::detach() {
    const KyDbObjectId id = currentId.isNull() ? erasedId : currentId;
    KyDbObject* object = nullptr;
    if (!id.isValid() || kydbOpenObject(object, id, KyDb::kForNotify, true) != Kyro::eOk) {
        return;
    }
    if (object->reactors()->contains(this)) {
        object->removeReactor(this);
    }
    object->close();
}

void LooseItem::markGone() {
    if (!currentId.isNull()) {
        erasedId = currentId;
    }
    currentId.setNull();
    flags |= kGone;
}

void LooseItem::objectClosed(KyDbObjectId /*id*/) {
    if ((flags & kUnerasing) != 0) {
        flags &= ~kUnerasing;
        return;
    }
    flags |= kClosedAfterChange;
}

void LooseItem::goodbye(const KyDbObject* object) {
    // Without an object (its document is going) the record comes off now;
    // an object leaving memory takes its reactors with it.
    if (object == nullptr) {
        detach();
    }
    markGone();
}

void LooseItem::erased(const KyDbObject* object, bool erasing) {
    if (object == nullptr) {
        goodbye(nullptr);
        return;
    }
    if (erasing) {
        markGone();
        return;
    }
    // An undone erase: the object is back, and the erase is forgotten, so an
    // erase and its undo between two passes tell nobody anything.
    currentId = object->objectId();
    erasedId.setNull();
    noteDocument();
    flags |= kUnerasing;
}
