// Not part of the interface: the reactor of an effective property on the
// tracker of one key. When the tracker says that its current item may have
// changed, the key is marked: its item is read anew at the next read, and the
// change is reported at the next flush.
#pragma once

#include "kydi/KyDiCurrencyReactor.h"

class KyDiImpEffectiveProperty;

class EffectivePropertyCurrencyReactor final : public KyDiCurrencyReactor {
public:
    EffectivePropertyCurrencyReactor(KyDiImpEffectiveProperty* owner, const wchar_t* key)
        : m_owner(owner), m_key(key) {}
    ~EffectivePropertyCurrencyReactor() = default;
    EffectivePropertyCurrencyReactor(const EffectivePropertyCurrencyReactor&) = delete;
    EffectivePropertyCurrencyReactor& operator=(const EffectivePropertyCurrencyReactor&) = delete;

    void currencyChanged() override;

private:
    KyDiImpEffectiveProperty* m_owner;
    const wchar_t* m_key;
};
