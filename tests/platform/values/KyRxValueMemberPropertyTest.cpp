// Values with members: the coordinates of a point and the settings of tone
// parameters, read and written through a boxed value.
#include "rx/KyRxValueMemberProperty.h"

#include <gtest/gtest.h>

#include <memory>

#include "ge/KyGePoint3d.h"
#include "gi/KyGiPhotographicExposureParameters.h"
#include "gi/KyGiToneOperatorParameters.h"
#include "rx/KyRxBoxedValue.h"
#include "rx/KyRxMember.h"

namespace {

template <typename T>
const KyRxProperty* memberOf(const wchar_t* name) {
    const KyRxMemberCollection* members = KyRxValueType::Desc<T>::value().members();
    return members != nullptr ? kyrxCast<KyRxProperty>(members->find(name)) : nullptr;
}

double readDouble(const KyRxProperty* property, const KyRxObject* object) {
    KyRxValue value;
    EXPECT_EQ(Kyro::eOk, property->getValue(object, value));
    const double* number = valueCast<double>(&value);
    return number != nullptr ? *number : -1.0;
}

TEST(PointMembers, TheCoordinatesOfABoxedPointAreReadAndWritten) {
    const KyRxProperty* x = memberOf<KyGePoint3d>(L"X");
    const KyRxProperty* y = memberOf<KyGePoint3d>(L"Y");
    const KyRxProperty* z = memberOf<KyGePoint3d>(L"Z");
    ASSERT_NE(nullptr, x);
    ASSERT_NE(nullptr, y);
    ASSERT_NE(nullptr, z);
    EXPECT_EQ(3, KyRxValueType::Desc<KyGePoint3d>::value().members()->count());
    EXPECT_EQ(&KyRxValueType::Desc<double>::value(), &x->type());

    KyRxValue point(KyGePoint3d(1.0, 2.5, -3.0));
    KyRxBoxedValueOnStack box(point);
    EXPECT_EQ(1.0, readDouble(x, &box));
    EXPECT_EQ(2.5, readDouble(y, &box));
    EXPECT_EQ(-3.0, readDouble(z, &box));

    EXPECT_EQ(Kyro::eOk, y->setValue(&box, KyRxValue(7.0)));
    EXPECT_EQ(KyGePoint3d(1.0, 7.0, -3.0), *valueCast<KyGePoint3d>(&point));
}

TEST(PointMembers, OnlyABoxedPointAndADoubleWillDo) {
    const KyRxProperty* x = memberOf<KyGePoint3d>(L"X");
    ASSERT_NE(nullptr, x);
    KyRxValue point(KyGePoint3d::kOrigin);
    KyRxBoxedValueOnStack pointBox(point);
    KyRxValue number(4.0);
    KyRxBoxedValueOnStack numberBox(number);
    KyRxValue result;

    EXPECT_EQ(Kyro::eInvalidInput, x->setValue(&pointBox, KyRxValue(4)));
    EXPECT_EQ(KyGePoint3d::kOrigin, *valueCast<KyGePoint3d>(&point));
    EXPECT_EQ(Kyro::eNotThatKindOfClass, x->getValue(&numberBox, result));
    EXPECT_EQ(Kyro::eNotThatKindOfClass, x->setValue(&numberBox, KyRxValue(1.0)));
    EXPECT_EQ(Kyro::eNotThatKindOfClass,
              x->getValue(&KyRxValueType::Desc<KyGePoint3d>::value(), result));
    EXPECT_TRUE(result.isEmpty());
}

TEST(PointMembers, AMemberWithoutASetterIsReadOnlyAndRefusesWrites) {
    EXPECT_FALSE(memberOf<KyGePoint3d>(L"X")->isReadOnly());
    using Coordinate = KyRxValueMemberProperty<KyGePoint3d, double>;
    const std::unique_ptr<Coordinate, void (*)(const KyRxMember*)> fixedX(
        new Coordinate(L"FixedX", nullptr, [](const KyGePoint3d& p) { return p.x; }),
        &KyRxMember::deleteMember);
    EXPECT_TRUE(fixedX->isReadOnly());
    KyRxValue point(KyGePoint3d(1.0, 2.0, 3.0));
    KyRxBoxedValueOnStack box(point);
    EXPECT_EQ(Kyro::eNotApplicable, fixedX->setValue(&box, KyRxValue(5.0)));
    EXPECT_EQ(1.0, readDouble(fixedX.get(), &box));
}

TEST(PointMembers, APointReadsAsItsCoordinates) {
    EXPECT_EQ(KyString(L"1,2.5,-3"), KyRxValue(KyGePoint3d(1.0, 2.5, -3.0)).text());
    EXPECT_EQ(KyString(L"0,0,0"), KyRxValue(KyGePoint3d::kOrigin).text());
    EXPECT_EQ(KyString(L"0.1,1e-07,100000"), KyRxValue(KyGePoint3d(0.1, 1e-7, 1e5)).text());
}

TEST(ToneMembers, NewParametersHaveTheirDefaults) {
    const KyGiToneOperatorParameters tone;
    EXPECT_TRUE(tone.isActive());
    EXPECT_EQ(50.0, tone.brightness());
    EXPECT_EQ(50.0, tone.contrast());
    EXPECT_EQ(1.0, tone.midTones());
    EXPECT_FALSE(tone.chromaticAdaptation());
    EXPECT_FALSE(tone.colorDifferentiation());
    EXPECT_FALSE(tone.processBackground());
    EXPECT_EQ(KyCmColor::kACIWhite, tone.whiteColor().colorIndex());
    EXPECT_TRUE(tone.whiteColor().isByACI());

    const KyGiPhotographicExposureParameters exposure;
    EXPECT_EQ(8.8, exposure.exposure());
    EXPECT_EQ(6500.0, exposure.whitePoint());
    EXPECT_EQ(50.0, exposure.brightness());
}

TEST(ToneMembers, SettingsOfBoxedParametersAreWrittenWithinTheirRanges) {
    std::unique_ptr<KyRxBoxedValue> box(
        KyRxBoxedValue::newBoxedValueOnHeap(KyRxValue(KyGiToneOperatorParameters{})));
    const KyRxProperty* brightness = memberOf<KyGiToneOperatorParameters>(L"Brightness");
    const KyRxProperty* daylight = memberOf<KyGiToneOperatorParameters>(L"ExteriorDaylight");
    ASSERT_NE(nullptr, brightness);
    ASSERT_NE(nullptr, daylight);
    ASSERT_NE(nullptr, memberOf<KyGiToneOperatorParameters>(L"Contrast"));
    ASSERT_NE(nullptr, memberOf<KyGiToneOperatorParameters>(L"MidTones"));

    EXPECT_EQ(Kyro::eOk, brightness->setValue(box.get(), KyRxValue(120.0)));
    EXPECT_EQ(120.0, readDouble(brightness, box.get()));
    EXPECT_EQ(Kyro::eInvalidInput, brightness->setValue(box.get(), KyRxValue(500.0)));
    EXPECT_EQ(120.0, readDouble(brightness, box.get()));

    EXPECT_EQ(Kyro::eOk, daylight->setValue(box.get(), KyRxValue(1)));
    EXPECT_EQ(Kyro::eInvalidInput, daylight->setValue(box.get(), KyRxValue(3)));
    KyRxValue mode;
    EXPECT_EQ(Kyro::eOk, daylight->getValue(box.get(), mode));
    EXPECT_EQ(KyRxValue(1), mode);
    EXPECT_EQ(KyGiToneOperatorParameters::kDaylightOn,
              valueCast<KyGiToneOperatorParameters>(box->value())->exteriorDaylight());
}

TEST(ToneMembers, ExposureParametersHaveTheSharedAndTheirOwnMembers) {
    KyGiPhotographicExposureParameters parameters;
    parameters.setContrast(30.0);
    KyRxValue value(parameters);
    KyRxBoxedValueOnStack box(value);

    const KyRxProperty* contrast = memberOf<KyGiPhotographicExposureParameters>(L"Contrast");
    const KyRxProperty* exposure = memberOf<KyGiPhotographicExposureParameters>(L"Exposure");
    const KyRxProperty* whitePoint = memberOf<KyGiPhotographicExposureParameters>(L"WhitePoint");
    ASSERT_NE(nullptr, contrast);
    ASSERT_NE(nullptr, exposure);
    ASSERT_NE(nullptr, whitePoint);
    EXPECT_EQ(6,
              KyRxValueType::Desc<KyGiPhotographicExposureParameters>::value().members()->count());

    EXPECT_EQ(30.0, readDouble(contrast, &box));
    EXPECT_EQ(8.8, readDouble(exposure, &box));
    EXPECT_EQ(Kyro::eOk, whitePoint->setValue(&box, KyRxValue(5000.0)));
    EXPECT_EQ(5000.0, valueCast<KyGiPhotographicExposureParameters>(&value)->whitePoint());
    EXPECT_EQ(Kyro::eInvalidInput, exposure->setValue(&box, KyRxValue(40.0)));

    // Each type's members serve values of that type only.
    KyRxValue result;
    EXPECT_EQ(Kyro::eNotThatKindOfClass,
              memberOf<KyGiToneOperatorParameters>(L"Contrast")->getValue(&box, result));
}

TEST(ToneMembers, ParameterValuesAreEqualWhenEverySettingIs) {
    KyGiPhotographicExposureParameters parameters;
    const KyRxValue original(parameters);
    KyRxValue copy(original);
    EXPECT_EQ(original, copy);

    valueCast<KyGiPhotographicExposureParameters>(&copy)->setExposure(10.0);
    EXPECT_NE(original, copy);
    EXPECT_EQ(8.8, valueCast<KyGiPhotographicExposureParameters>(&original)->exposure());

    KyCmColor warm;
    warm.setRGB(255, 240, 220);
    parameters.setWhiteColor(warm);
    EXPECT_NE(original, KyRxValue(parameters));
    // A tone value and an exposure value are never equal: their types differ.
    EXPECT_NE(KyRxValue(KyGiToneOperatorParameters{}),
              KyRxValue(KyGiPhotographicExposureParameters{}));
}

}  // namespace
