// Not part of the interface: the context manager's body. Contexts report to
// it through its one reactor; it records each report (a record per context,
// its property names once each) and tells its own reactors at flush(), near
// the end of the refresh pass:
// - when the document in front changed, the list of contexts changed, a
//   context reported without leaving a record, or the set of active contexts
//   is not what it was: activeContextsChanged() to every reactor;
// - otherwise, when contexts reported: contextChanged() for each record, to
//   every reactor (reactors the outer walk, records the inner).
// Either way the records go.
#pragma once

#include <map>

#include "base/KyArray.h"
#include "base/KyString.h"
#include "kydi/KyDiDynamicObjectReactor.h"
#include "kydi/KyDiTypes.h"

class KyDiContext;
class KyDiContextReactor;
struct KyDiContextChange;

// A reactor on observable objects that hands what they report to its owner's
// recordContextChange. The context manager puts one on each context it
// holds.
template <typename T>
class DynamicObjectReactor final : public KyDiDynamicObjectReactor {
public:
    explicit DynamicObjectReactor(T* owner) : m_owner(owner) {}
    void changed(KyDiDynamicObject* source, const wchar_t* memberName, void* changeData) override {
        m_owner->recordContextChange(source, memberName, changeData);
    }

private:
    T* m_owner;
};

class KyDiContextManagerImp {
public:
    enum Pending : unsigned {
        kContextsChanged = 0x2,
        kContextReported = 0x4,
    };

    KyDiContextManagerImp();
    ~KyDiContextManagerImp();
    KyDiContextManagerImp(const KyDiContextManagerImp&) = delete;
    KyDiContextManagerImp& operator=(const KyDiContextManagerImp&) = delete;

    // 0 when done, eInvalidInput for a null, duplicate or unknown argument.
    int addContext(const wchar_t* name, KyDiContext* context);
    int removeContext(const wchar_t* name);
    KyDiContext* getContext(const wchar_t* name, bool create);
    const wchar_t* getName(KyDiContext* context) const;

    void addReactor(KyDiContextReactor* reactor);
    void removeReactor(KyDiContextReactor* reactor);

    void recordContextChange(KyDiDynamicObject* source, const wchar_t* memberName,
                             void* changeData);
    // Tells the reactors what the contexts reported since the last flush.
    void flush();
    // Forgets the document seen last: the next flush tells the active
    // contexts again.
    void forgetLastDocument() { m_lastDatabase = kKyDiUnboundDocument; }

    const std::map<KyString, KyDiContext*, KyStringLess>& contexts() const { return m_contexts; }

private:
    // 0 (nothing to tell), 2 (the active contexts) or 4 (the records).
    unsigned decide();
    void storeDocument(KyDiDocument document);
    KyArray<KyDiContext*> activeNow() const;
    void clearChanges();
    bool isRegistered(const KyDiContextReactor* reactor) const;

    unsigned m_pending = 0;
    KyDiDocument m_lastDatabase = kKyDiUnboundDocument;
    std::map<KyString, KyDiContext*, KyStringLess> m_contexts;
    KyArray<KyDiContext*> m_activeContexts;
    DynamicObjectReactor<KyDiContextManagerImp>* m_contextReactor = nullptr;
    KyArray<KyDiContextReactor*> m_reactors;
    std::map<KyDiContext*, KyDiContextChange*> m_changes;
};
