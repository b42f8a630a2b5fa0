// KyAppEffectiveWatch: `watch effective`. A reactor on the effective property
// that prints what it tells, one line each, in the order received:
//   propertyChanged EFFECTIVE LAYER
//   allPropertiesChanged EFFECTIVE
#pragma once

#include <ostream>

#include "kydi/KyDiEffectivePropertyReactor.h"

class KyDiEffectiveProperty;

class KyAppEffectiveWatch : public KyDiEffectivePropertyReactor {
public:
    // Joins the reactors of `effective`.
    KyAppEffectiveWatch(KyDiEffectiveProperty* effective, std::ostream& out);
    // Leaves them.
    ~KyAppEffectiveWatch() override;
    KyAppEffectiveWatch(const KyAppEffectiveWatch&) = delete;
    KyAppEffectiveWatch& operator=(const KyAppEffectiveWatch&) = delete;

    void propertyChanged(const wchar_t* key) override;
    void allPropertiesChanged() override;

private:
    KyDiEffectiveProperty* m_effective;
    std::ostream& m_out;
};
