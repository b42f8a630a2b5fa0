// Not part of the interface: an iterator over a prepared list of members. It
// does not own them.
#pragma once

#include <initializer_list>

#include "kydi/KyDiDynamicObject.h"
#include "rx/KyRxMemberQueryEngine.h"

class KyDiMemberIterator : public KyRxMemberIterator {
public:
    KyDiMemberIterator() : m_members(0, 8) {}
    explicit KyDiMemberIterator(const KyDiMemberArray& members) : m_members(members) {}

    // A new iterator over these members, in this order.
    static KyDiMemberIterator* over(std::initializer_list<KyRxMember*> members);

    void append(KyRxMember* member) { m_members.append(member); }
    int count() const { return m_members.length(); }

    bool done() const override { return m_index >= m_members.length(); }
    bool next() override {
        ++m_index;
        return done();
    }
    // The member at the position; undefined once done, as for every iterator.
    KyRxMember* current() const override { return m_members[m_index]; }

private:
    KyDiMemberArray m_members;
    int m_index = 0;
};
