// Not part of the interface: how host members become the wrappers a client
// sees. Each host property gets one wrapper, made at its first use and kept
// by the manager until the host deletes the property (or the layer stops),
// so a repeated wrap is one lookup. The wrappers of a property's children
// belong to the wrapper of the property, as the host's children belong to
// the host's property.
#pragma once

class KyRxMember;
class KyRxMemberIterator;
class KyRxObject;

class PropertyWrapping {
public:
    // The wrapper of `member`; a member that is no property is its own
    // answer, and null stays null.
    static const KyRxMember* wrapMember(const KyRxMember* member);
    // The host member behind a wrapper; null for anything else.
    static const KyRxMember* sourceMember(const KyRxObject* wrapper);
    // An iterator over the wrappers of the members of `source` (a member that
    // gets no wrapper stands as it is). The caller keeps `source`.
    static KyRxMemberIterator* wrapMembers(KyRxMemberIterator* source);
};
