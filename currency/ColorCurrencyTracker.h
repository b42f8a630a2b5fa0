// Not part of the interface: the tracker of the colour of new objects
// ("COLOR", system variable CECOLOR), over the colour list. The current item
// is the list's item of the drawing's current colour; a colour the list
// doesn't hold yet is added to it, so the current colour always has a place.
// An item is made current by a direct write of its colour; no command. While
// the tracker lives it stands on the system variable of the displayed white
// colour, which keeps that variable alive and refreshed.
#pragma once

#include "currency/DataItemCurrencyTrackerBase.h"

class ColorSysVarReactor;
class KyCmColor;
class KyDiColorCollection;
class KyDiSysVar;

class ColorCurrencyTracker : public DataItemCurrencyTrackerBase {
public:
    ColorCurrencyTracker(const wchar_t* collectionName, const wchar_t* sysVarName,
                         const wchar_t* commandFormat);
    // Leaves the displayed white colour.
    ~ColorCurrencyTracker() override;
    ColorCurrencyTracker(const ColorCurrencyTracker&) = delete;
    ColorCurrencyTracker& operator=(const ColorCurrencyTracker&) = delete;

    // Null without a working database.
    KyDiDynamicObject* getCurrentItem() override;
    void setCurrentItem(KyDiDynamicObject* item) override;
    // The item of a colour; null for any other kind of value.
    KyDiDynamicObject* findItem(const KyDiEffectiveValue& value) override;
    // A report of the tracker's variable puts the new current colour in the
    // list before the list asks for its current item.
    void sysVarChanged(const wchar_t* name, bool succeeded) override;

private:
    KyDiColorCollection* colors() const;
    // The first listed item of `color`, or the item the list adds for it.
    KyDiDynamicObject* findColor(const KyCmColor& color) const;

    ColorSysVarReactor* m_whiteColorReactor;
    // The variable the reactor stands on; null when it could not be had.
    KyDiSysVar* m_whiteColor = nullptr;
};
