#include "effective/EffectivePropertyViewportReactor.h"

#include "contexts/KyDiViewportContext.h"
#include "effective/KyDiImpEffectiveProperty.h"
#include "kydi/KyDiContextManager.h"
#include "kydi/KyDiManager.h"

EffectivePropertyViewportReactor::EffectivePropertyViewportReactor(KyDiImpEffectiveProperty* owner)
    : m_owner(owner) {
    if (KyDiContextManager* contexts = KyDiManager::getContextManager()) {
        m_context = contexts->getContext(L"VIEWPORT", true);
    }
    if (m_context != nullptr) {
        m_context->addReactor(this);
    }
}

EffectivePropertyViewportReactor::~EffectivePropertyViewportReactor() {
    if (m_context != nullptr) {
        m_context->removeReactor(this);
    }
}

void EffectivePropertyViewportReactor::changed(KyDiDynamicObject* /*source*/,
                                               const wchar_t* /*memberName*/, void* changeData) {
    // The context's reports carry its change mask; a move to another
    // document carries none, and the document change marks every key anyway.
    const auto* mask = static_cast<const unsigned*>(changeData);
    if (mask == nullptr || (*mask & KyDiViewportContext::kViewportChanged) == 0) {
        return;
    }
    for (int i = 0; i < m_keys.length(); ++i) {
        m_owner->markKey(m_keys[i]);
    }
}
