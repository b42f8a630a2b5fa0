// KyRxMember and the member collection of a class.
#include "rx/KyRxMember.h"

#include <atomic>
#include <cwchar>

#include "base/KyHeap.h"
#include "rx/KyRxClass.h"
#include "rx/KyRxMemberQueryEngine.h"
#include "rx/KyRxStandardAttributes.h"

KYRX_DEFINE_MEMBERS(KyRxMember, KyRxObject)

namespace {

// Members alive in the process; members may be made and deleted from any
// module, so the count is kept atomic even though the host runs on one thread.
std::atomic<int> g_liveMembers{0};

}  // namespace

KyRxMember::KyRxMember(const wchar_t* name, const KyRxValueType& type, const KyRxObject* owner)
    : m_name(name), m_type(&type), m_owner(owner) {}

KyRxMember::~KyRxMember() {
    if (m_children != nullptr) {
        // Children go in the reverse order of their making, each through
        // deleteMember so that the reactors hear of them too.
        for (int i = m_children->length() - 1; i >= 0; --i) {
            deleteMember((*m_children)[i]);
        }
        delete m_children;
        m_children = nullptr;
    }
}

const KyRxMemberArray* KyRxMember::children() const {
    const KyRxMemberArray* kept = nullptr;
    if (subChildrenEx(kept) == Kyro::eOk) {
        return kept;
    }
    if (!m_childrenBuilt) {
        // Marked first: a subChildren that asks for children() again gets null
        // instead of recursing.
        m_childrenBuilt = true;
        auto* made = new KyRxMemberArray();
        if (subChildren(*made) == Kyro::eOk) {
            m_children = made;
        } else {
            for (int i = made->length() - 1; i >= 0; --i) {
                deleteMember((*made)[i]);
            }
            delete made;
        }
    }
    return m_children;
}

void KyRxMember::deleteMember(const KyRxMember* member) {
    if (member == nullptr) {
        return;
    }
    // The reactors see the member whole: its name, owner and attributes.
    KyRxMemberQueryEngine::theEngine()->notifyMemberDeleted(member);
    delete member;
}

void* KyRxMember::operator new(size_t size) {
    void* block = kyHeapAlloc(size);
    g_liveMembers.fetch_add(1, std::memory_order_relaxed);
    return block;
}

void KyRxMember::operator delete(void* block) noexcept {
    if (block != nullptr) {
        g_liveMembers.fetch_sub(1, std::memory_order_relaxed);
        kyHeapFree(block);
    }
}

int KyRxMember::liveCount() {
    return g_liveMembers.load(std::memory_order_relaxed);
}

Kyro::ErrorStatus KyRxMember::subChildren(KyRxMemberArray& /*children*/) const {
    return Kyro::eNotApplicable;
}

Kyro::ErrorStatus KyRxMember::subChildrenEx(const KyRxMemberArray*& /*children*/) const {
    return Kyro::eNotImplementedYet;
}

KyString KyRxMember::subLocalName() const {
    return KyRxLocalizedNameAttribute::getLocalizedName(this);
}

KyRxMemberCollection::~KyRxMemberCollection() {
    for (int i = m_members.length() - 1; i >= 0; --i) {
        KyRxMember::deleteMember(m_members[i]);
    }
}

KyRxMember* KyRxMemberCollection::find(const wchar_t* name) const {
    if (name == nullptr) {
        return nullptr;
    }
    for (KyRxMember* member : m_members) {
        if (std::wcscmp(member->name(), name) == 0) {
            return member;
        }
    }
    return nullptr;
}

void KyRxMemberCollectionBuilder::add(KyRxMember* member) {
    if (member == nullptr) {
        return;
    }
    m_collection.m_members.append(member);
    KyRxMemberQueryEngine::theEngine()->notifyMemberAdded(member);
}
