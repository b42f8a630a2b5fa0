// Not part of the interface: the members a palette shows. A member passes
// when, once wrapped, it is a scalar property (not one read by position or by
// name), it or the property it belongs to is placed in a category, and it can
// be read on the object now (a property refused at the moment drops out, and
// comes back when the state allows it).
#pragma once

class KyRxMemberIterator;
class KyRxObject;

class PropertyFilter {
public:
    // A new iterator over the members of `members` that pass on `object`, as
    // they stand (wrapping them is the caller's step). The caller keeps
    // `members`.
    static KyRxMemberIterator* filter(const KyRxObject* object, KyRxMemberIterator* members);
};
