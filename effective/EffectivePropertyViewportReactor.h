// Not part of the interface: the reactor of an effective property on the
// "VIEWPORT" context. The values of its keys (the visual style settings, the
// scale list, the coordinate system of the viewport ...) belong to the
// viewport the user works in: when the context reports that the viewport
// object changed or another viewport became current, every key is marked.
// It stands on the context from its making to its end.
#pragma once

#include "base/KyArray.h"
#include "kydi/KyDiDynamicObjectReactor.h"

class KyDiContext;
class KyDiImpEffectiveProperty;

class EffectivePropertyViewportReactor final : public KyDiDynamicObjectReactor {
public:
    // Stands on the "VIEWPORT" context, which it makes if needed.
    explicit EffectivePropertyViewportReactor(KyDiImpEffectiveProperty* owner);
    // Leaves the context.
    ~EffectivePropertyViewportReactor() override;
    EffectivePropertyViewportReactor(const EffectivePropertyViewportReactor&) = delete;
    EffectivePropertyViewportReactor& operator=(const EffectivePropertyViewportReactor&) = delete;

    void addKey(const wchar_t* key) { m_keys.append(key); }
    void changed(KyDiDynamicObject* source, const wchar_t* memberName, void* changeData) override;

private:
    KyDiImpEffectiveProperty* m_owner;
    KyArray<const wchar_t*> m_keys;
    KyDiContext* m_context = nullptr;
};
