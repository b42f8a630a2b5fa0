// Not part of the interface: the two effective properties of the process as
// the manager drives them: the drawing's (made at its first demand) and the
// one clients are given (from initialize to uninitialize).
#pragma once

#include "effective/KyDiImpEffectiveProperty.h"
#include "kydi/KyDiEffectiveProperty.h"
#include "manager/KyDiManagerState.h"

// Calls `step` on each of them that exists, the drawing's first.
template <typename Step>
void forEachEffectiveProperty(Step step) {
    KyDiManagerState& state = kydiManagerState();
    if (state.drawingEffectiveProperty != nullptr) {
        step(*state.drawingEffectiveProperty);
    }
    if (state.effectiveProperty != nullptr) {
        step(*state.effectiveProperty->imp());
    }
}
