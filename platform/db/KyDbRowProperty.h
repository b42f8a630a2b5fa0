// Internal to the drawing database; not part of the platform's interface.
//
// KyDbRowProperty: a scalar property made from a row of a class's property
// table; it reads and writes through the row's access functions.
#pragma once

#include "db/KyDbPropertyTable.h"

class KyDbRowProperty : public KyRxProperty {
public:
    KyDbRowProperty(const wchar_t* name, const KyDbPropertyAccess& access, const KyRxObject* owner)
        : KyRxProperty(name, access.type(), owner), m_access(access) {}

protected:
    Kyro::ErrorStatus subGetValue(const KyRxObject* object, KyRxValue& value) const override {
        return m_access.get(object, value);
    }
    Kyro::ErrorStatus subSetValue(KyRxObject* object, const KyRxValue& value) const override {
        return m_access.set != nullptr ? m_access.set(object, value)
                                       : KyRxProperty::subSetValue(object, value);
    }
    bool subIsReadOnly() const override { return m_access.set == nullptr; }

private:
    KyDbPropertyAccess m_access;
};
