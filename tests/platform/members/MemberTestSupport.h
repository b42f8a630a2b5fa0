// Test classes for the member tests: shapes with properties and a method, a
// facet class, a composite value type, and a property whose getter and setter
// are plain functions.
#pragma once

#include <string>
#include <vector>

#include "base/KyString.h"
#include "rx/KyRxClass.h"
#include "rx/KyRxMemberQueryEngine.h"
#include "rx/KyRxMethod.h"
#include "rx/KyRxProperty.h"

// A composite value with two coordinates, "U" and "V".
struct TestPoint {
    double u = 0.0;
    double v = 0.0;
    bool operator==(const TestPoint& other) const = default;
};

template <>
const KyRxValueType& KyRxValueType::Desc<TestPoint>::value();

// A property over two plain functions; without a setter it is read-only.
class TestProperty : public KyRxProperty {
public:
    using Getter = Kyro::ErrorStatus (*)(const KyRxObject* object, KyRxValue& value);
    using Setter = Kyro::ErrorStatus (*)(KyRxObject* object, const KyRxValue& value);

    TestProperty(const wchar_t* name, const KyRxValueType& type, Getter getter,
                 Setter setter = nullptr, const KyRxObject* owner = nullptr)
        : KyRxProperty(name, type, owner), m_getter(getter), m_setter(setter) {}

protected:
    Kyro::ErrorStatus subGetValue(const KyRxObject* object, KyRxValue& value) const override;
    Kyro::ErrorStatus subSetValue(KyRxObject* object, const KyRxValue& value) const override;
    bool subIsReadOnly() const override { return m_setter == nullptr; }

private:
    Getter m_getter;
    Setter m_setter;
};

class TestMethod : public KyRxMethod {
public:
    explicit TestMethod(const wchar_t* name)
        : KyRxMethod(name, KyRxValueType::Desc<void>::value()) {}
};

// "TestShape": Name (text), Width (read-only number), Corner (TestPoint), Reset (method).
class TestShape : public KyRxObject {
public:
    static KyRxClass* desc();
    KyRxClass* isA() const override { return desc(); }

    KyString name;
    double width = 0.0;
    TestPoint corner;
};

// "TestCircle" under "TestShape": Radius, and a Name of its own.
class TestCircle : public TestShape {
public:
    static KyRxClass* desc();
    KyRxClass* isA() const override { return desc(); }

    double radius = 0.0;
};

// "TestShapeFacet", a class without instances: Label, and a Width that the
// shapes' own Width hides under the promoting context.
KyRxClass* testShapeFacetClass();
// "TestExtraFacet": Extra.
KyRxClass* testExtraFacetClass();

// The names an iterator shows, in order; the iterator is deleted.
std::vector<std::wstring> memberNames(KyRxMemberIterator* iterator);
// The names of the members the context shows on `object`.
std::vector<std::wstring> memberNames(const KyRxObject* object,
                                      const KyRxMemberQueryContext* context);
