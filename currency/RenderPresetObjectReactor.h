// Not part of the interface: the render preset tracker's watch on the preset
// that is current. A change of the preset makes it current afresh, so that
// the host takes up its new settings; an erased preset is watched no more.
#pragma once

#include "kydi/KyDiObjectReactor.h"

class RenderPresetCurrencyTracker;

class RenderPresetObjectReactor final : public KyDiObjectReactor {
public:
    explicit RenderPresetObjectReactor(RenderPresetCurrencyTracker* tracker) : m_tracker(tracker) {}

    void modified(void* reserved) override;
    void erased() override;

private:
    RenderPresetCurrencyTracker* m_tracker;
};
