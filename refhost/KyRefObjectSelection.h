// KyRefObjectSelection: the objects a command that edits objects works on.
// With PICKFIRST on, what is selected before the command is taken without a
// question; otherwise the objects are asked for by handle ("Select objects:").
// Entities on locked layers can be left out, with the count told as a real
// host tells it; a change is made to each object that is of the class it
// concerns, and the others are left alone.
#pragma once

#include <span>
#include <vector>

#include "KyRefKeywords.h"
#include "db/KyDbObjectId.h"
#include "db/KyDbObjectPointer.h"

class KyRefCommandContext;

class KyRefObjectSelection {
public:
    // A property a command offers to change: its keyword, and what reads the
    // new value and changes the objects.
    struct Property {
        KyRefKeyword keyword;
        void (*change)(KyRefCommandContext& context, const std::vector<KyDbObjectId>& ids);
    };

    // The entities selected before the command, or those given by handle.
    static std::vector<KyDbObjectId> pick(KyRefCommandContext& context);
    // `ids` without the entities on locked layers; "1 was on a locked layer."
    // when there were any.
    static std::vector<KyDbObjectId> leaveOutLocked(KyRefCommandContext& context,
                                                    const std::vector<KyDbObjectId>& ids);
    // The objects picked, without those on locked layers; then, until an
    // empty answer, "Enter property to change [...]:" and the change of the
    // property chosen.
    static void changeProperties(KyRefCommandContext& context,
                                 std::span<const Property> properties);
    // Opens each of `ids` that is a T for write and calls `change` with it.
    template <typename T, typename Change>
    static void change(const std::vector<KyDbObjectId>& ids, Change change) {
        for (const KyDbObjectId& id : ids) {
            KyDbObjectPointer<T> object(id, KyDb::kForWrite);
            if (object) {
                change(*object.object());
            }
        }
    }
};
