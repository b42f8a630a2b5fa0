// Not part of the interface: the reactor of the "DRAWING" context on the
// drawing's effective property. Whatever the effective property reports, one
// key or all of them, becomes one change of the context without names: a
// client reads the context's properties again.
#pragma once

#include "kydi/KyDiEffectivePropertyReactor.h"

class KyDiDrawingContext;

class DrawingEffectivePropertyReactor final : public KyDiEffectivePropertyReactor {
public:
    explicit DrawingEffectivePropertyReactor(KyDiDrawingContext* context) : m_context(context) {}

    void propertyChanged(const wchar_t* key) override;
    void allPropertiesChanged() override;

private:
    KyDiDrawingContext* m_context;
};
