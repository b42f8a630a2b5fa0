// Not part of the interface: the tracker of currency kept as a record id in
// the drawing's header (the current linetype, text style, dimension style ...).
// It reads the id through the database's getter and finds the item of that
// record among its collection's items. It makes an item current by sending
// its command, formatted with the item's name, when the host has a command
// line and the row gives a command; otherwise through the setter.
#pragma once

#include "currency/DataItemCurrencyTrackerBase.h"
#include "db/KyDbObjectId.h"

class KyDbDatabase;

class DataItemCurrencyTracker : public DataItemCurrencyTrackerBase {
public:
    using Getter = KyDbObjectId (KyDbDatabase::*)() const;
    using Setter = Kyro::ErrorStatus (KyDbDatabase::*)(KyDbObjectId);

    DataItemCurrencyTracker(const wchar_t* collectionName, const wchar_t* sysVarName,
                            const wchar_t* commandFormat, Getter getter, Setter setter);

    KyDiDynamicObject* getCurrentItem() override;
    void setCurrentItem(KyDiDynamicObject* item) override;
    KyDiDynamicObject* findItem(const KyDiEffectiveValue& value) override;

private:
    Getter m_getter;
    Setter m_setter;
};
