// Not part of the interface: the tracker of a drawing value kept in a system
// variable (LINETYPESCALE, TEXTSIZE, the VS... settings, TILEMODE ...). It
// shows the variable's value in its one item and writes an item's value
// directly to the variable. Its row's command format is kept and never sent.
#pragma once

#include "currency/ValueCurrencyTrackerBase.h"

class SysvarCurrencyTracker : public ValueCurrencyTrackerBase {
public:
    using ValueCurrencyTrackerBase::ValueCurrencyTrackerBase;

    void getValue(KyRxValue& out) override;
    void setValue(const KyRxValue& value) override;

private:
    // The code before the first read, which no write takes.
    static constexpr int kUnread = 5000;

    // The record code of the variable, as its first read gave it.
    int m_valueType = kUnread;
};
