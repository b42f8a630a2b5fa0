// Not part of the interface: the base of the trackers of a value of an
// enumeration T (the lineweight, the shadow display of new objects). The
// items are those of the enumeration's collection; the current one is the
// item of the value the drawing holds. An item is made current by the row's
// command, formatted with the value, when the host has a command line, and
// otherwise by a direct write.
#pragma once

#include "base/KyString.h"
#include "currency/DataItemCurrencyTrackerBase.h"
#include "kydi/KyDiCollection.h"
#include "kydi/KyDiEditorService.h"
#include "kydi/KyDiManager.h"
#include "manager/host/KyDiHostAccess.h"
#include "rx/KyRxValue.h"

template <typename T>
class EnumCurrencyTrackerBase : public DataItemCurrencyTrackerBase {
public:
    using DataItemCurrencyTrackerBase::DataItemCurrencyTrackerBase;

    // Null without a working database.
    KyDiDynamicObject* getCurrentItem() override {
        return KyDiHostAccess::workingDatabase() != nullptr ? findEnumItem(getEnumValue())
                                                            : nullptr;
    }

    void setCurrentItem(KyDiDynamicObject* item) override {
        int value = 0;
        if (!enumValueOf(item, value)) {
            return;
        }
        KyDiEditorService* editor = KyDiHostAccess::editor();
        if (editor != nullptr && !commandFormat().isEmpty()) {
            const KyString command = KyString::formatted(commandFormat().kwszPtr(), value);
            editor->sendCommand(command.kwszPtr(), false, false, true);
            return;
        }
        setEnumValue(value);
    }

    // The value the working database holds, which there is.
    virtual int getEnumValue() = 0;
    // Writes `value` to the working database.
    virtual void setEnumValue(int value) = 0;

protected:
    // The item of the enumeration's collection whose value is `value`; null
    // when none is.
    KyDiDynamicObject* findEnumItem(int value) const {
        KyDiCollection* values =
            KyDiManager::getCollection(KyRxValueType::Desc<T>::value().enumeration());
        if (values == nullptr) {
            return nullptr;
        }
        const KyDiItemArray& items = values->getItems();
        for (int i = 0; i < items.length(); ++i) {
            int itemValue = 0;
            if (enumValueOf(items[i], itemValue) && itemValue == value) {
                return items[i];
            }
        }
        return nullptr;
    }

private:
    // The value of `item`, a T or an int, as an int; false for anything else.
    static bool enumValueOf(KyDiDynamicObject* item, int& out) {
        const KyRxValue* value = item != nullptr ? item->value() : nullptr;
        if (const T* tagged = valueCast<T>(value)) {
            out = static_cast<int>(*tagged);
            return true;
        }
        if (const int* plain = valueCast<int>(value)) {
            out = *plain;
            return true;
        }
        return false;
    }
};
