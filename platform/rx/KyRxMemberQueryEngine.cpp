// The member query engine: the class list of an object (its class chain, then
// the facets that providers add), the two standard query contexts, and the
// member reactors.
#include "rx/KyRxMemberQueryEngine.h"

#include <algorithm>
#include <cwchar>
#include <set>
#include <string_view>

#include "rx/KyRxBoxedValue.h"
#include "rx/KyRxClass.h"

KYRX_DEFINE_MEMBERS(KyRxMemberQueryContext, KyRxObject)
KYRX_DEFINE_MEMBERS(KyRxFacetProvider, KyRxObject)

KyRxMemberIterator::~KyRxMemberIterator() = default;

KyRxMember* KyRxMemberIterator::find(const wchar_t* name) {
    if (name == nullptr) {
        return nullptr;
    }
    for (; !done(); next()) {
        KyRxMember* member = current();
        if (member != nullptr && std::wcscmp(member->name(), name) == 0) {
            return member;
        }
    }
    return nullptr;
}

KyRxMemberQueryContext::~KyRxMemberQueryContext() = default;

KyRxMemberIterator* KyRxMemberQueryContext::newMemberIterator(const KyRxClassArray& classes) const {
    return subNewMemberIterator(classes);
}

KyRxFacetProvider::~KyRxFacetProvider() = default;

KyRxMemberReactor::~KyRxMemberReactor() = default;

void KyRxMemberReactor::memberAdded(const KyRxMember* /*member*/) {}

void KyRxMemberReactor::memberDeleted(const KyRxMember* /*member*/) {}

namespace {

// An iterator over a list of members made up front.
class KyRxMemberListIterator : public KyRxMemberIterator {
public:
    void add(KyRxMember* member) { m_members.append(member); }

    bool done() const override { return m_index >= m_members.length(); }
    bool next() override {
        if (!done()) {
            ++m_index;
        }
        return done();
    }
    KyRxMember* current() const override { return done() ? nullptr : m_members[m_index]; }

private:
    KyArray<KyRxMember*> m_members;
    int m_index = 0;
};

// Every member of every class, in the order of the list and, within a class,
// in the order its builder added them. With `promoting`, a member whose name
// was met before is left out, so the first class in the list wins.
class KyRxStandardQueryContext : public KyRxMemberQueryContext {
public:
    explicit KyRxStandardQueryContext(bool promoting) : m_promoting(promoting) {}

protected:
    KyRxMemberIterator* subNewMemberIterator(const KyRxClassArray& classes) const override {
        auto* iterator = new KyRxMemberListIterator();
        std::set<std::wstring_view> seen;
        for (const KyRxClass* cls : classes) {
            const KyRxMemberCollection* members = cls != nullptr ? cls->members() : nullptr;
            if (members == nullptr) {
                continue;
            }
            for (int i = 0; i < members->count(); ++i) {
                KyRxMember* member = members->getAt(i);
                if (m_promoting && !seen.insert(std::wstring_view(member->name())).second) {
                    continue;
                }
                iterator->add(member);
            }
        }
        return iterator;
    }

private:
    bool m_promoting;
};

// A boxed value made by the platform itself (on the stack or on the heap; the
// heap box may report the plain boxed class) stands for its value: its members
// are those of the value's type. Classes derived from the boxes keep their own.
const KyRxValue* plainBoxedValue(const KyRxObject* object) {
    const KyRxBoxedValue* boxed = kyrxCast<KyRxBoxedValue>(object);
    if (boxed == nullptr) {
        return nullptr;
    }
    const KyRxClass* cls = object->isA();
    if (cls != KyRxBoxedValueOnStack::desc() && cls != KyRxBoxedValue::desc() &&
        std::wcscmp(cls->name(), L"KyRxBoxedValueOnHeap") != 0) {
        return nullptr;
    }
    return boxed->value();
}

template <typename T>
bool contains(const std::vector<T*>& list, T* item) {
    return std::find(list.begin(), list.end(), item) != list.end();
}

template <typename T>
void addOnce(std::vector<T*>& list, T* item) {
    if (item != nullptr && !contains(list, item)) {
        list.push_back(item);
    }
}

template <typename T>
void removeIfPresent(std::vector<T*>& list, T* item) {
    auto it = std::find(list.begin(), list.end(), item);
    if (it != list.end()) {
        list.erase(it);
    }
}

}  // namespace

KyRxMemberQueryEngine::KyRxMemberQueryEngine() = default;

KyRxMemberQueryEngine* KyRxMemberQueryEngine::theEngine() {
    // Lives to the end of the process: members may be deleted by static
    // destructors, and they tell the engine.
    static KyRxMemberQueryEngine* s_engine = new KyRxMemberQueryEngine();
    return s_engine;
}

KyRxMember* KyRxMemberQueryEngine::find(const KyRxObject* object, const wchar_t* name,
                                        const KyRxMemberQueryContext* context) const {
    if (name == nullptr) {
        return nullptr;
    }
    KyRxMemberIterator* iterator = newMemberIterator(object, context);
    if (iterator == nullptr) {
        return nullptr;
    }
    KyRxMember* member = iterator->find(name);
    delete iterator;
    return member;
}

KyRxMemberIterator* KyRxMemberQueryEngine::newMemberIterator(
    const KyRxObject* object, const KyRxMemberQueryContext* context) const {
    if (object == nullptr) {
        return nullptr;
    }
    if (context == nullptr) {
        context = defaultContext();
    }
    KyRxClassArray classes;
    getClasses(object, context, classes);
    return context->newMemberIterator(classes);
}

void KyRxMemberQueryEngine::getClasses(const KyRxObject* object,
                                       const KyRxMemberQueryContext* context,
                                       KyRxClassArray& classes) const {
    if (object == nullptr) {
        return;
    }
    const KyRxClass* start = object->isA();
    if (const KyRxValue* value = plainBoxedValue(object)) {
        start = &value->type();
    }
    for (const KyRxClass* cls = start; cls != nullptr; cls = cls->myParent()) {
        classes.append(cls);
    }
    // A provider may add or remove providers while it is asked.
    const std::vector<KyRxFacetProvider*> providers = m_providers;
    for (KyRxFacetProvider* provider : providers) {
        if (!contains(m_providers, provider)) {
            continue;
        }
        KyRxClassArray facets;
        provider->getFacets(object, context, facets);
        for (const KyRxClass* facet : facets) {
            if (facet != nullptr && !classes.contains(facet)) {
                classes.append(facet);
            }
        }
    }
}

const KyRxMemberQueryContext* KyRxMemberQueryEngine::defaultContext() const {
    static const KyRxMemberQueryContext* s_context = new KyRxStandardQueryContext(false);
    return s_context;
}

const KyRxMemberQueryContext* KyRxMemberQueryEngine::promotingContext() const {
    static const KyRxMemberQueryContext* s_context = new KyRxStandardQueryContext(true);
    return s_context;
}

void KyRxMemberQueryEngine::addReactor(KyRxMemberReactor* reactor) {
    addOnce(m_reactors, reactor);
}

void KyRxMemberQueryEngine::removeReactor(KyRxMemberReactor* reactor) {
    removeIfPresent(m_reactors, reactor);
}

void KyRxMemberQueryEngine::addFacetProvider(KyRxFacetProvider* provider) {
    addOnce(m_providers, provider);
}

void KyRxMemberQueryEngine::removeFacetProvider(KyRxFacetProvider* provider) {
    removeIfPresent(m_providers, provider);
}

// Both walks go over a copy, since a reactor may add or remove reactors while
// it is called. A reactor removed during the walk is not called any more: it
// may be gone already. One added during the walk hears from the next call on.
void KyRxMemberQueryEngine::notifyMemberAdded(const KyRxMember* member) const {
    const std::vector<KyRxMemberReactor*> reactors = m_reactors;
    for (KyRxMemberReactor* reactor : reactors) {
        if (contains(m_reactors, reactor)) {
            reactor->memberAdded(member);
        }
    }
}

void KyRxMemberQueryEngine::notifyMemberDeleted(const KyRxMember* member) const {
    const std::vector<KyRxMemberReactor*> reactors = m_reactors;
    for (KyRxMemberReactor* reactor : reactors) {
        if (contains(m_reactors, reactor)) {
            reactor->memberDeleted(member);
        }
    }
}
