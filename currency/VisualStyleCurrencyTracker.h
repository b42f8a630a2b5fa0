// Not part of the interface: the tracker of the visual styles
// ("KYRO_VISUALSTYLE"). The current style belongs to the current viewport,
// which the host's visual style service knows; no system variable tells of a
// change, so every update of the collection asks the service again and tells
// the collection when the answer changed. A style is made current by
// VSCURRENT: a standard style by its global name written as one word, any
// other through the command's Other option. Without a command line the
// service sets it directly.
#pragma once

#include <set>

#include "currency/DataItemCurrencyTracker.h"

class VisualStyleCurrencyTracker : public DataItemCurrencyTracker {
public:
    VisualStyleCurrencyTracker(const wchar_t* collectionName, const wchar_t* sysVarName,
                               const wchar_t* commandFormat, Getter getter, Setter setter);

    KyDiDynamicObject* getCurrentItem() override;
    void setCurrentItem(KyDiDynamicObject* item) override;
    void update() override;

private:
    // The global names of the standard visual styles, filled by the first
    // tracker and kept for the process.
    static const std::set<KyString, KyStringLess>& standardNames();

    // What the last update found current; not owned.
    KyDiDynamicObject* m_lastCurrentItem = nullptr;
};
