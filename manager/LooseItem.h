// Not part of the interface: one watch of the object reactor hub, a database
// reactor on the watched object that only leaves marks; the hub's pass in the
// refresh tells the client's KyDiObjectReactor.
//
// The record stays on the object when the object is erased, so that an undo
// of the erase reaches it; it comes off when the hub deletes it and when the
// client takes the watch back.
#pragma once

#include <cstdint>

#include "db/KyDbObjectReactor.h"

class KyDiObjectReactor;

class LooseItem : public KyDbObjectReactor {
public:
    enum Flag : std::uint32_t {
        // The object was closed after a change.
        kClosedAfterChange = 0x004,
        // At registration or unerasure the object was outside, or inside, the
        // current document; the next pass tells the client when it is not
        // where the client takes it to be.
        kOutsideDocument = 0x010,
        kInsideDocument = 0x020,
        // The object was erased or left memory.
        kGone = 0x040,
        // The hub is calling out for this record.
        kInNotification = 0x100,
        // The client took the watch back during that call: the hub deletes
        // the record afterwards.
        kRemovePending = 0x200,
        // The object was just unerased: the close that ends the undo is not a
        // change of its own. (An unerase and an edit in one open count as the
        // unerase alone.)
        kUnerasing = 0x1000,
    };

    LooseItem(KyDbObjectId id, KyDiObjectReactor* reactor);

    std::uint32_t flags = 0;
    // The watched object; null once it is erased or gone.
    KyDbObjectId currentId;
    // What currentId was when the object went, so that the watch can still be
    // found by it.
    KyDbObjectId erasedId;
    // Not owned.
    KyDiObjectReactor* reactor;
    // Whether the client takes the object to be in the current document: a
    // watch starts as active, and the pass tells the client when that is not
    // so or no longer so.
    bool active = true;

    bool inCurrentDocument() const;
    // Sets the document bits for where the object stands now, so that the
    // next pass checks it; the other marks go.
    void noteDocument();
    // Takes the record off its object, when the object can still be opened.
    void detach();

    void objectClosed(KyDbObjectId id) override;
    void goodbye(const KyDbObject* object) override;
    void erased(const KyDbObject* object, bool erasing) override;

private:
    void markGone();
};
