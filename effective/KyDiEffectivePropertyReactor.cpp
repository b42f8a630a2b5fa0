#include "kydi/KyDiEffectivePropertyReactor.h"

KyDiEffectivePropertyReactor::KyDiEffectivePropertyReactor() = default;

KyDiEffectivePropertyReactor::~KyDiEffectivePropertyReactor() = default;

void KyDiEffectivePropertyReactor::propertyChanged(const wchar_t* /*key*/) {}

void KyDiEffectivePropertyReactor::allPropertiesChanged() {}
