// Not part of the interface: what the four wrapper classes share, the host
// member they stand for. A wrapper shows the host member's name, type and
// attributes (the attributes by pointer: they stay the host member's), its
// local name, and wrappers of its children.
#pragma once

#include "base/KyString.h"
#include "rx/KyRxMember.h"

class KyDiProxy;
class KyRxPropertyBase;
class KyRxValue;
class KyRxValueIterator;

class WrapperSource {
public:
    explicit WrapperSource(const KyRxMember* source) : m_source(source), m_children(0, 8) {}
    WrapperSource(const WrapperSource&) = delete;
    WrapperSource& operator=(const WrapperSource&) = delete;

    const KyRxMember* source() const { return m_source; }

    // Puts the source's attributes on `wrapper`, which does not own them.
    void shareAttributes(KyRxMember& wrapper) const;
    // Takes them off again; a wrapper calls this before it goes.
    static void releaseAttributes(KyRxMember& wrapper);
    // Whether a palette may not edit the wrapper: its source's word; a
    // property of the layer's own is not edited through the palette.
    bool isReadOnly() const;
    // The source's local name; empty without a source.
    KyString localName() const;
    // The wrappers of the source's children, made at the first call;
    // eNotApplicable when the source has none.
    Kyro::ErrorStatus children(const KyRxMemberArray*& out) const;

    // The object as a KyDiProxy, or null.
    static KyDiProxy* proxyOf(const KyRxObject* object);

    // The read of every wrapper: a proxy answers for `wrapper`; any other
    // object has the source read (by `index` or `key` when given) and the
    // value turned into a data item.
    Kyro::ErrorStatus get(const KyRxPropertyBase* wrapper, const KyRxObject* object,
                          KyRxValue& value, int index, const wchar_t* key) const;
    // The write of every wrapper: a proxy takes it for `wrapper`; on any other
    // object the data item becomes the host's value and the source is written.
    Kyro::ErrorStatus set(const KyRxPropertyBase* wrapper, KyRxObject* object,
                          const KyRxValue& value, int index, const wchar_t* key) const;
    // The values of a collection: a proxy's, or the source's as they are.
    KyRxValueIterator* newValueIterator(const KyRxPropertyBase* wrapper,
                                        const KyRxObject* object) const;
    // Their count: the proxy's values counted (eNoIterator without values), or
    // the source's count (eNotApplicable for a source that is no collection).
    Kyro::ErrorStatus tryGetCount(const KyRxPropertyBase* wrapper, const KyRxObject* object,
                                  int& count) const;

private:
    const KyRxMember* m_source;
    mutable KyRxMemberArray m_children;
};
