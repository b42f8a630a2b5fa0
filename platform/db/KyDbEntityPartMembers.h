// Internal to the drawing database; not part of the platform's interface.
//
// The reflected members of the parts of entities (KyDbEntityPart): each reads
// through a getter of the part that answers a status, and none writes.
#pragma once

#include "db/KyDbPropertyTable.h"

template <auto Getter>
struct KyDbPartGetterOf;

template <typename Part, typename T, Kyro::ErrorStatus (Part::*Getter)(T&) const>
struct KyDbPartGetterOf<Getter> {
    using Value = T;

    static Kyro::ErrorStatus get(const KyRxObject* object, KyRxValue& value) {
        const Part* part = kyrxCast<Part>(object);
        if (part == nullptr) {
            return Kyro::eNotThatKindOfClass;
        }
        T read{};
        const Kyro::ErrorStatus status = (part->*Getter)(read);
        if (status == Kyro::eOk) {
            value = KyRxValue(read);
        }
        return status;
    }
};

template <auto Getter>
constexpr KyDbPropertyAccess kydbiPartAccess() {
    using G = KyDbPartGetterOf<Getter>;
    return kydbiReadOnly<typename G::Value>(&G::get);
}
