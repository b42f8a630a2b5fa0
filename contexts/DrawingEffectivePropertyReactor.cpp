#include "contexts/DrawingEffectivePropertyReactor.h"

#include "contexts/KyDiDrawingContext.h"

void DrawingEffectivePropertyReactor::propertyChanged(const wchar_t* /*key*/) {
    m_context->reportChange();
}

void DrawingEffectivePropertyReactor::allPropertiesChanged() {
    m_context->reportChange();
}
