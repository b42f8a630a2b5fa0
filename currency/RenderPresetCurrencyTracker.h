// Not part of the interface: the tracker of the render presets
// ("RENDER_PRESETS"). The host's render service names the current preset; the
// tracker finds the drawing's preset of that name among its collection's
// items, and makes a preset current through the service by its name. Each
// update asks again, tells the collection when the answer changed, and
// watches the one current preset, so that a change of its settings is passed
// on to the host.
#pragma once

#include "currency/DataItemCurrencyTracker.h"
#include "currency/RenderPresetObjectReactor.h"

class RenderPresetCurrencyTracker : public DataItemCurrencyTracker {
public:
    RenderPresetCurrencyTracker(const wchar_t* collectionName, const wchar_t* sysVarName,
                                const wchar_t* commandFormat, Getter getter, Setter setter);
    // Takes back the watch on the current preset.
    ~RenderPresetCurrencyTracker() override;
    RenderPresetCurrencyTracker(const RenderPresetCurrencyTracker&) = delete;
    RenderPresetCurrencyTracker& operator=(const RenderPresetCurrencyTracker&) = delete;

    KyDiDynamicObject* getCurrentItem() override;
    void setCurrentItem(KyDiDynamicObject* item) override;
    void update() override;

    // The watched preset was erased: the watch comes off and the preset is
    // forgotten.
    void forgetWatchedPreset();

private:
    // Watches the preset of `item`, or nothing.
    void watch(KyDiDynamicObject* item);

    // What the last update found current; not owned.
    KyDiDynamicObject* m_lastCurrentItem = nullptr;
    // The record of the preset watched; ids stay safe to use after the item
    // or the record went.
    KyDbObjectId m_watchedId;
    RenderPresetObjectReactor m_objectReactor;
};
