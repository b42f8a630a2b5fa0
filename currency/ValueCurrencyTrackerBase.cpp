#include "currency/ValueCurrencyTrackerBase.h"

#include "kydi/KyDiDataItemFactory.h"
#include "kydi/KyDiNamedItem.h"
#include "kydi/KyDiPlotService.h"
#include "manager/host/KyDiHostAccess.h"
#include "rx/KyRxValue.h"

ValueCurrencyTrackerBase::~ValueCurrencyTrackerBase() {
    deleteItem(m_valueItem);
}

KyDiDynamicObject* ValueCurrencyTrackerBase::getCurrentItem() {
    KyRxValue value;
    getValue(value);
    return showValue(value);
}

void ValueCurrencyTrackerBase::setCurrentItem(KyDiDynamicObject* item) {
    if (const KyRxValue* value = item != nullptr ? item->value() : nullptr) {
        setValue(*value);
    }
}

void ValueCurrencyTrackerBase::getValue(KyRxValue& /*out*/) {}

void ValueCurrencyTrackerBase::setValue(const KyRxValue& /*value*/) {}

KyDiDynamicObject* ValueCurrencyTrackerBase::showValue(const KyRxValue& value) {
    if (m_valueItem == nullptr) {
        // The values read here are texts and numbers, never records, colours
        // or transparencies: the factory makes a plain item of our own.
        KyDiDynamicObject* made = createDataItem(KyString(), value);
        m_valueItem = kyrxCast<KyDiNamedItem>(static_cast<KyRxObject*>(made));
        if (m_valueItem == nullptr) {
            deleteItem(made);
        }
        return m_valueItem;
    }
    KyRxValue* held = m_valueItem->value();
    if (*held != value) {
        *held = value;
    }
    return m_valueItem;
}

void ValueCurrencyTrackerBase::readPlotText(PlotTextReader read, KyRxValue& out) {
    KyDiPlotService* plot = KyDiHostAccess::plotService();
    KyString text;
    if (plot != nullptr && (plot->*read)(text)) {
        out = text;
    }
}
