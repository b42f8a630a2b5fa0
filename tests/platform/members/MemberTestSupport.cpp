#include "MemberTestSupport.h"

#include "rx/KyRxBoxedValue.h"

namespace {

TestPoint* pointIn(KyRxObject* object) {
    return valueCast<TestPoint>(KyRxValue::unbox(object));
}
const TestPoint* pointIn(const KyRxObject* object) {
    return valueCast<TestPoint>(KyRxValue::unbox(object));
}

void buildPointMembers(KyRxMemberCollectionBuilder& builder, void*) {
    const KyRxValueType& coordinate = KyRxValueType::Desc<double>::value();
    builder.add(new TestProperty(
        L"U", coordinate,
        [](const KyRxObject* object, KyRxValue& value) {
            const TestPoint* point = pointIn(object);
            if (point == nullptr) {
                return Kyro::eNotThatKindOfClass;
            }
            value = point->u;
            return Kyro::eOk;
        },
        [](KyRxObject* object, const KyRxValue& value) {
            TestPoint* point = pointIn(object);
            const double* number = valueCast<double>(&value);
            if (point == nullptr || number == nullptr) {
                return Kyro::eInvalidInput;
            }
            point->u = *number;
            return Kyro::eOk;
        }));
    builder.add(new TestProperty(
        L"V", coordinate,
        [](const KyRxObject* object, KyRxValue& value) {
            const TestPoint* point = pointIn(object);
            if (point == nullptr) {
                return Kyro::eNotThatKindOfClass;
            }
            value = point->v;
            return Kyro::eOk;
        },
        [](KyRxObject* object, const KyRxValue& value) {
            TestPoint* point = pointIn(object);
            const double* number = valueCast<double>(&value);
            if (point == nullptr || number == nullptr) {
                return Kyro::eInvalidInput;
            }
            point->v = *number;
            return Kyro::eOk;
        }));
}

const TestShape* shapeIn(const KyRxObject* object) {
    return kyrxCast<TestShape>(object);
}
TestShape* shapeIn(KyRxObject* object) {
    return kyrxCast<TestShape>(object);
}

void buildShapeMembers(KyRxMemberCollectionBuilder& builder, void*) {
    builder.add(new TestProperty(
        L"Name", KyRxValueType::Desc<KyString>::value(),
        [](const KyRxObject* object, KyRxValue& value) {
            const TestShape* shape = shapeIn(object);
            if (shape == nullptr) {
                return Kyro::eNotThatKindOfClass;
            }
            value = shape->name;
            return Kyro::eOk;
        },
        [](KyRxObject* object, const KyRxValue& value) {
            TestShape* shape = shapeIn(object);
            const KyString* text = valueCast<KyString>(&value);
            if (shape == nullptr || text == nullptr) {
                return Kyro::eInvalidInput;
            }
            shape->name = *text;
            return Kyro::eOk;
        },
        builder.owner()));
    builder.add(new TestProperty(
        L"Width", KyRxValueType::Desc<double>::value(),
        [](const KyRxObject* object, KyRxValue& value) {
            const TestShape* shape = shapeIn(object);
            if (shape == nullptr) {
                return Kyro::eNotThatKindOfClass;
            }
            value = shape->width;
            return Kyro::eOk;
        },
        nullptr, builder.owner()));
    builder.add(new TestProperty(
        L"Corner", KyRxValueType::Desc<TestPoint>::value(),
        [](const KyRxObject* object, KyRxValue& value) {
            const TestShape* shape = shapeIn(object);
            if (shape == nullptr) {
                return Kyro::eNotThatKindOfClass;
            }
            value = shape->corner;
            return Kyro::eOk;
        },
        [](KyRxObject* object, const KyRxValue& value) {
            TestShape* shape = shapeIn(object);
            const TestPoint* point = valueCast<TestPoint>(&value);
            if (shape == nullptr || point == nullptr) {
                return Kyro::eInvalidInput;
            }
            shape->corner = *point;
            return Kyro::eOk;
        },
        builder.owner()));
    builder.add(new TestMethod(L"Reset"));
}

void buildCircleMembers(KyRxMemberCollectionBuilder& builder, void*) {
    builder.add(new TestProperty(
        L"Radius", KyRxValueType::Desc<double>::value(),
        [](const KyRxObject* object, KyRxValue& value) {
            const TestCircle* circle = kyrxCast<TestCircle>(object);
            if (circle == nullptr) {
                return Kyro::eNotThatKindOfClass;
            }
            value = circle->radius;
            return Kyro::eOk;
        },
        nullptr, builder.owner()));
    builder.add(new TestProperty(
        L"Name", KyRxValueType::Desc<KyString>::value(),
        [](const KyRxObject*, KyRxValue& value) {
            value = KyString(L"a circle");
            return Kyro::eOk;
        },
        nullptr, builder.owner()));
}

Kyro::ErrorStatus readNothing(const KyRxObject*, KyRxValue&) {
    return Kyro::eNotApplicable;
}

void buildShapeFacetMembers(KyRxMemberCollectionBuilder& builder, void*) {
    builder.add(new TestProperty(L"Label", KyRxValueType::Desc<KyString>::value(), readNothing,
                                 nullptr, builder.owner()));
    builder.add(new TestProperty(L"Width", KyRxValueType::Desc<double>::value(), readNothing,
                                 nullptr, builder.owner()));
}

void buildExtraFacetMembers(KyRxMemberCollectionBuilder& builder, void*) {
    builder.add(new TestProperty(L"Extra", KyRxValueType::Desc<int>::value(), readNothing, nullptr,
                                 builder.owner()));
}

KyRxClass* registerTestClass(const wchar_t* name, const wchar_t* parent,
                             KyRxMemberCollectionConstructorPtr builder) {
    KyRxClass* cls =
        newKyRxClass(name, parent, 0, 0, 0, nullptr, nullptr, nullptr, nullptr, builder, nullptr);
    kyrxBuildClassHierarchy();
    return cls;
}

}  // namespace

template <>
const KyRxValueType& KyRxValueType::Desc<TestPoint>::value() {
    static const KyRxValueType* s_type =
        new KyRxValueTypePOD<TestPoint>(L"TestPoint", buildPointMembers);
    return *s_type;
}

Kyro::ErrorStatus TestProperty::subGetValue(const KyRxObject* object, KyRxValue& value) const {
    return m_getter != nullptr ? m_getter(object, value) : KyRxProperty::subGetValue(object, value);
}

Kyro::ErrorStatus TestProperty::subSetValue(KyRxObject* object, const KyRxValue& value) const {
    return m_setter != nullptr ? m_setter(object, value) : KyRxProperty::subSetValue(object, value);
}

KyRxClass* TestShape::desc() {
    static KyRxClass* s_class = registerTestClass(L"TestShape", L"KyRxObject", buildShapeMembers);
    return s_class;
}

KyRxClass* TestCircle::desc() {
    TestShape::desc();
    static KyRxClass* s_class = registerTestClass(L"TestCircle", L"TestShape", buildCircleMembers);
    return s_class;
}

KyRxClass* testShapeFacetClass() {
    static KyRxClass* s_class =
        registerTestClass(L"TestShapeFacet", L"KyRxObject", buildShapeFacetMembers);
    return s_class;
}

KyRxClass* testExtraFacetClass() {
    static KyRxClass* s_class =
        registerTestClass(L"TestExtraFacet", L"KyRxObject", buildExtraFacetMembers);
    return s_class;
}

std::vector<std::wstring> memberNames(KyRxMemberIterator* iterator) {
    std::vector<std::wstring> names;
    if (iterator == nullptr) {
        return names;
    }
    for (; !iterator->done(); iterator->next()) {
        names.emplace_back(iterator->current()->name());
    }
    delete iterator;
    return names;
}

std::vector<std::wstring> memberNames(const KyRxObject* object,
                                      const KyRxMemberQueryContext* context) {
    return memberNames(KyRxMemberQueryEngine::theEngine()->newMemberIterator(object, context));
}
