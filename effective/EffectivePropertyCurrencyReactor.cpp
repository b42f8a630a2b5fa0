#include "effective/EffectivePropertyCurrencyReactor.h"

#include "effective/KyDiImpEffectiveProperty.h"

void EffectivePropertyCurrencyReactor::currencyChanged() {
    m_owner->markKey(m_key);
}
