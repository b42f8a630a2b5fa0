// Not part of the interface: a probe of the query engine. Used on the stack
// with KyRxMemberQueryEngine::newMemberIterator, it records the class chain
// the engine would walk for an object (less one excluded class) and builds no
// iterator.
#pragma once

#include <vector>

#include "rx/KyRxMemberQueryEngine.h"

class KyDiMemberQueryContext : public KyRxMemberQueryContext {
public:
    explicit KyDiMemberQueryContext(const KyRxClass* excludedClass = nullptr)
        : m_excludedClass(excludedClass) {}

    const std::vector<const KyRxClass*>& classes() const { return m_classes; }

protected:
    KyRxMemberIterator* subNewMemberIterator(const KyRxClassArray& classes) const override;

private:
    mutable std::vector<const KyRxClass*> m_classes;
    const KyRxClass* m_excludedClass;
};
