// Runtime classes of the tests' own: a plain host object with a few reflected
// properties (placed or not, readable now or not, a point with sub-properties,
// values by position), a host object that answers as a KyDiProxy, and
// contexts of another module and of the layer's own. Registered by register()
// once the layer has started, deleted by unregister().
#pragma once

#include <vector>

#include "db/KyDbObjectId.h"
#include "ge/KyGePoint3d.h"
#include "kydi/KyDiContext.h"
#include "kydi/KyDiProxy.h"
#include "rx/KyRxClass.h"
#include "rx/KyRxValue.h"

namespace kytest {

// A host object: "Width" (placed), "Count" (not placed), "Busy" (placed,
// refused now with eNotApplicable), "Corner" (a placed point), "Marks" (by
// position), "Layer" (an id).
class Thing : public KyRxObject {
public:
    KyRxClass* isA() const override { return s_class; }
    static KyRxClass* s_class;

    double width = 1.5;
    int count = 2;
    KyGePoint3d corner{1, 2, 3};
    std::vector<double> marks{10, 20};
    KyDbObjectId layer;
};

// An object that answers every property as a proxy: reads give the name's
// length, writes are noted.
class ProxyThing : public KyRxObject, public KyDiProxy {
public:
    KyRxClass* isA() const override { return Thing::s_class; }

    Kyro::ErrorStatus getValue(const KyRxPropertyBase* property, KyRxValue& value, int index,
                               const wchar_t* key) override;
    Kyro::ErrorStatus setValue(const KyRxPropertyBase* property, const KyRxValue& value, int index,
                               const wchar_t* key) override;
    KyRxValueIterator* newValueIterator(const KyRxPropertyBase* property) override;

    std::vector<std::wstring> calls;
};

// A context of another module, with the members of Thing.
class OutsideContext : public KyDiContext {
public:
    KyRxClass* isA() const override { return s_class; }
    static KyRxClass* s_class;
    Thing thing;

protected:
    KyRxMemberIterator* subNewMemberIterator() override;
};

class TestClasses {
public:
    static void registerAll();
    static void unregisterAll();
    // The members Thing's class made.
    static const KyRxMember* thingMember(const wchar_t* name);
};

}  // namespace kytest
