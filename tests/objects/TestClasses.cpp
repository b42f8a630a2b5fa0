#include "objects/TestClasses.h"

#include <cwchar>

#include "reflection/KyDiValueIterator.h"
#include "rx/KyRxMember.h"
#include "rx/KyRxMemberQueryEngine.h"
#include "rx/KyRxProperty.h"
#include "rx/KyRxStandardAttributes.h"

namespace kytest {

KyRxClass* Thing::s_class = nullptr;
KyRxClass* OutsideContext::s_class = nullptr;

namespace {

// The Thing an object is, or the one an outside context holds.
Thing* thingOf(const KyRxObject* object) {
    if (auto* context = dynamic_cast<const OutsideContext*>(object)) {
        return const_cast<Thing*>(&context->thing);
    }
    return dynamic_cast<Thing*>(const_cast<KyRxObject*>(object));
}

template <typename T>
class FieldProperty : public KyRxProperty {
public:
    using Field = T Thing::*;
    FieldProperty(const wchar_t* name, Field field, const KyRxObject* owner, bool placed)
        : KyRxProperty(name, KyRxValueType::Desc<T>::value(), owner), m_field(field) {
        if (placed) {
            attributes().add(new KyRxUiPlacementAttribute(L"General", 1));
        }
    }

protected:
    Kyro::ErrorStatus subGetValue(const KyRxObject* object, KyRxValue& value) const override {
        Thing* thing = thingOf(object);
        if (thing == nullptr) {
            return Kyro::eNotThatKindOfClass;
        }
        value = KyRxValue(thing->*m_field);
        return Kyro::eOk;
    }
    Kyro::ErrorStatus subSetValue(KyRxObject* object, const KyRxValue& value) const override {
        Thing* thing = thingOf(object);
        const T* payload = valueCast<T>(&value);
        if (thing == nullptr || payload == nullptr) {
            return Kyro::eInvalidInput;
        }
        thing->*m_field = *payload;
        return Kyro::eOk;
    }

private:
    Field m_field;
};

class BusyProperty : public KyRxProperty {
public:
    explicit BusyProperty(const KyRxObject* owner)
        : KyRxProperty(L"Busy", KyRxValueType::Desc<int>::value(), owner) {
        attributes().add(new KyRxUiPlacementAttribute(L"General", 2));
    }

protected:
    Kyro::ErrorStatus subGetValue(const KyRxObject*, KyRxValue&) const override {
        return Kyro::eNotApplicable;
    }
};

class MarksProperty : public KyRxIndexedProperty {
public:
    explicit MarksProperty(const KyRxObject* owner)
        : KyRxIndexedProperty(L"Marks", KyRxValueType::Desc<double>::value(), owner) {}

protected:
    Kyro::ErrorStatus subGetValue(const KyRxObject* object, int index,
                                  KyRxValue& value) const override {
        Thing* thing = thingOf(object);
        if (thing == nullptr || index < 0 || index >= static_cast<int>(thing->marks.size())) {
            return Kyro::eInvalidIndex;
        }
        value = KyRxValue(thing->marks[static_cast<size_t>(index)]);
        return Kyro::eOk;
    }
    KyRxValueIterator* subNewValueIterator(const KyRxObject* object) const override {
        auto* values = new KyDiValueIterator();
        for (double mark : thingOf(object)->marks) {
            values->append(KyRxValue(mark));
        }
        return values;
    }
    Kyro::ErrorStatus subTryGetCount(const KyRxObject* object, int& count) const override {
        count = static_cast<int>(thingOf(object)->marks.size());
        return Kyro::eOk;
    }
};

void buildThing(KyRxMemberCollectionBuilder& builder, void*) {
    builder.add(new FieldProperty<double>(L"Width", &Thing::width, builder.owner(), true));
    builder.add(new FieldProperty<int>(L"Count", &Thing::count, builder.owner(), false));
    builder.add(new BusyProperty(builder.owner()));
    builder.add(new FieldProperty<KyGePoint3d>(L"Corner", &Thing::corner, builder.owner(), true));
    builder.add(new MarksProperty(builder.owner()));
    builder.add(new FieldProperty<KyDbObjectId>(L"Layer", &Thing::layer, builder.owner(), true));
}

}  // namespace

Kyro::ErrorStatus ProxyThing::getValue(const KyRxPropertyBase* property, KyRxValue& value,
                                       int index, const wchar_t* /*key*/) {
    calls.push_back(std::wstring(L"get ") + property->name() + L" " + std::to_wstring(index));
    value = KyRxValue(static_cast<int>(std::wcslen(property->name())));
    return Kyro::eOk;
}

Kyro::ErrorStatus ProxyThing::setValue(const KyRxPropertyBase* property, const KyRxValue& value,
                                       int index, const wchar_t* /*key*/) {
    calls.push_back(std::wstring(L"set ") + property->name() + L" " + std::to_wstring(index) +
                    L" " + value.text().kwszPtr());
    return Kyro::eOk;
}

KyRxValueIterator* ProxyThing::newValueIterator(const KyRxPropertyBase* property) {
    calls.push_back(std::wstring(L"values ") + property->name());
    auto* values = new KyDiValueIterator();
    values->append(KyRxValue(7));
    values->append(KyRxValue(8));
    values->append(KyRxValue(9));
    return values;
}

KyRxMemberIterator* OutsideContext::subNewMemberIterator() {
    return KyRxMemberQueryEngine::theEngine()->newMemberIterator(
        this, KyRxMemberQueryEngine::theEngine()->promotingContext());
}

void TestClasses::registerAll() {
    Thing::s_class = newKyRxClass(L"KyTestThing", L"KyRxObject", 0, 0, 0, nullptr, nullptr, nullptr,
                                  nullptr, &buildThing, nullptr);
    OutsideContext::s_class =
        newKyRxClass(L"KyTestOutsideContext", L"KyDiContext", 0, 0, 0, nullptr, nullptr, nullptr,
                     nullptr, &buildThing, nullptr);
    kyrxBuildClassHierarchy();
}

void TestClasses::unregisterAll() {
    deleteKyRxClass(OutsideContext::s_class);
    deleteKyRxClass(Thing::s_class);
    OutsideContext::s_class = nullptr;
    Thing::s_class = nullptr;
}

const KyRxMember* TestClasses::thingMember(const wchar_t* name) {
    return Thing::s_class->members()->find(name);
}

}  // namespace kytest
