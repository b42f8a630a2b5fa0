// Not part of the interface: the base of the trackers whose currency is a
// value and not a record (a system variable, a plot setting of the layout).
// The current item is one item that shows the value as read now: its value
// changes, the pointer doesn't, for the whole life of the tracker. Making an
// item current writes the item's value.
#pragma once

#include "currency/DataItemCurrencyTrackerBase.h"

class KyDiNamedItem;
class KyDiPlotService;
class KyRxValue;

class ValueCurrencyTrackerBase : public DataItemCurrencyTrackerBase {
public:
    using DataItemCurrencyTrackerBase::DataItemCurrencyTrackerBase;
    // Gives up the tracker's item.
    ~ValueCurrencyTrackerBase() override;
    ValueCurrencyTrackerBase(const ValueCurrencyTrackerBase&) = delete;
    ValueCurrencyTrackerBase& operator=(const ValueCurrencyTrackerBase&) = delete;

    // The tracker's item, showing what getValue reads.
    KyDiDynamicObject* getCurrentItem() override;
    // setValue with the item's value; a null item does nothing.
    void setCurrentItem(KyDiDynamicObject* item) override;

    // The current value into `out`; nothing by default.
    virtual void getValue(KyRxValue& out);
    // Makes `value` current; nothing by default.
    virtual void setValue(const KyRxValue& value);

protected:
    using PlotTextReader = bool (KyDiPlotService::*)(KyString& text);

    // The text that `read` of the host's plot service gives into `out`; `out`
    // is left alone without a plot service or when the service can't answer.
    static void readPlotText(PlotTextReader read, KyRxValue& out);
    // The tracker's item, made at the first call, with `value` as its value:
    // an equal value is left alone, another one replaces it.
    KyDiDynamicObject* showValue(const KyRxValue& value);

private:
    KyDiNamedItem* m_valueItem = nullptr;
};
