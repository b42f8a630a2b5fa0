#include "reflection/KyDiMemberQueryContext.h"

KyRxMemberIterator* KyDiMemberQueryContext::subNewMemberIterator(
    const KyRxClassArray& classes) const {
    m_classes.reserve(m_classes.size() + static_cast<size_t>(classes.length()));
    for (int i = 0; i < classes.length(); ++i) {
        if (classes[i] != m_excludedClass) {
            m_classes.push_back(classes[i]);
        }
    }
    return nullptr;
}
