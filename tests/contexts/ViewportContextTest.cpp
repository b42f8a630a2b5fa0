// The "VIEWPORT" context: its properties as the host's view services give
// them, what it reports (the unit variables by name, the viewport object and
// the invalidation by mask, as after another visual style or resolution, a
// document switch without either) and when.
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "KyRefDocument.h"
#include "contexts/ManagerSpy.h"
#include "db/KyAxDocLock.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbObjectPointer.h"
#include "db/KyDbSymbolTable.h"
#include "db/KyDbViewportTableRecord.h"
#include "gi/KyGiPhotographicExposureParameters.h"
#include "kydi/KyDiContext.h"
#include "kydi/KyDiContextManager.h"
#include "kydi/KyDiDynamicObjectReactor.h"
#include "kydi/KyDiFunctions.h"
#include "manager/RefHostFixture.h"
#include "rx/KyRxMemberQueryEngine.h"
#include "rx/KyRxProperty.h"

namespace {

using kytest::ManagerSpy;
using Lines = std::vector<std::string>;

// What the context itself reports, before the manager sums it up: the member
// name or "-", and the mask it carries or "none".
class ContextSpy : public KyDiDynamicObjectReactor {
public:
    explicit ContextSpy(KyDiContext* context) : m_context(context) { m_context->addReactor(this); }
    ~ContextSpy() override { m_context->removeReactor(this); }
    ContextSpy(const ContextSpy&) = delete;
    ContextSpy& operator=(const ContextSpy&) = delete;

    void changed(KyDiDynamicObject*, const wchar_t* member, void* data) override {
        lines.push_back((member != nullptr ? KyString(member).utf8() : std::string("-")) + " " +
                        (data != nullptr ? std::to_string(*static_cast<unsigned*>(data))
                                         : std::string("none")));
    }
    Lines take() { return std::exchange(lines, {}); }
    Lines lines;

private:
    KyDiContext* m_context;
};

class ViewportContext : public kytest::RefHostFixture {
protected:
    using RefHostFixture::RefHostFixture;

    void SetUp() override {
        RefHostFixture::SetUp();
        context = KyDiManager::getContextManager()->getContext(L"VIEWPORT", true);
        ASSERT_NE(context, nullptr);
    }
    static void pass() { KyDiManager::refresh(); }

    const KyRxProperty* property(const wchar_t* name) {
        return kyrxCast<KyRxProperty>(KyDiFindMember(context, name));
    }
    // The value's text and the status of a read.
    std::string read(const wchar_t* name) {
        const KyRxProperty* found = property(name);
        if (found == nullptr) {
            return "missing";
        }
        KyRxValue value;
        const Kyro::ErrorStatus status = found->getValue(context, value);
        return value.text().utf8() + " (" + std::to_string(status) + ")";
    }
    KyDbObjectId activeViewport() {
        KyDbDatabase* db = host.documents().currentDatabase();
        KyDbObjectPointer<KyDbSymbolTable> table(db->viewportTableId(), KyDb::kForRead);
        KyDbObjectId id;
        table->getAt(L"*Active", id);
        return id;
    }

    KyDiContext* context = nullptr;
};

TEST_F(ViewportContext, ListsItsNinePropertiesInOrderAndReadsThemFromTheHost) {
    std::vector<std::string> listed;
    std::unique_ptr<KyRxMemberIterator> members(context->newMemberIterator());
    ASSERT_NE(members, nullptr);
    for (; !members->done(); members->next()) {
        const auto* listedProperty = kyrxCast<KyRxPropertyBase>(members->current());
        listed.push_back(KyString(members->current()->name()).utf8() +
                         (listedProperty != nullptr && listedProperty->isReadOnly() ? " ro" : ""));
    }
    EXPECT_EQ(listed, (Lines{"CameraLocation", "ViewCenter", "IsNavBoxVisible ro",
                             "IsViewPortUnLocked ro", "IsVS2dType ro", "ViewResolution",
                             "LensLength", "ToneOperatorParameters", "ToneOperatorType"}));
    EXPECT_EQ(context->priority(), 3);

    pass();
    EXPECT_TRUE(context->isActive());
    EXPECT_EQ(read(L"LensLength"), "50 (0)");
    EXPECT_EQ(read(L"IsNavBoxVisible"), "true (0)");
    EXPECT_EQ(read(L"IsViewPortUnLocked"), "true (0)");

    // The camera is written and read back through the host.
    const KyRxProperty* camera = property(L"CameraLocation");
    ASSERT_NE(camera, nullptr);
    EXPECT_EQ(camera->setValue(context, KyRxValue(KyGePoint3d(1.0, 2.0, 10.0))), Kyro::eOk);
    KyRxValue value;
    EXPECT_EQ(camera->getValue(context, value), Kyro::eOk);
    EXPECT_EQ(*valueCast<KyGePoint3d>(&value), KyGePoint3d(1.0, 2.0, 10.0));
    EXPECT_EQ(camera->setValue(context, KyRxValue(3.0)), Kyro::eInvalidInput);

    // Tone parameters: the photographic exposure, and its members through it.
    const KyRxProperty* tone = property(L"ToneOperatorParameters");
    ASSERT_NE(tone, nullptr);
    ASSERT_NE(tone->children(), nullptr);
    ASSERT_EQ(tone->children()->length(), 3);
    const auto* brightness = kyrxCast<KyRxProperty>((*tone->children())[0]);
    EXPECT_STREQ(brightness->name(), L"Brightness");
    EXPECT_EQ(brightness->setValue(context, KyRxValue(65.0)), Kyro::eOk);
    KyGiPhotographicExposureParameters exposure;
    host.viewportService()->getExposureParameters(exposure);
    EXPECT_EQ(exposure.brightness(), 65.0) << "written back whole through the host";
    EXPECT_EQ(tone->setValue(context, KyRxValue(7)), Kyro::eInvalidInput);

    // Another tone operator: the value is left empty, and that is no failure.
    ASSERT_EQ(property(L"ToneOperatorType")->setValue(context, KyRxValue(2)), Kyro::eOk);
    KyRxValue untouched;
    EXPECT_EQ(tone->getValue(context, untouched), Kyro::eOk);
    EXPECT_TRUE(untouched.isEmpty());
}

TEST_F(ViewportContext, ReportsUnitVariablesByNameTheViewportObjectByMaskAndNothingElse) {
    KyString error;
    ASSERT_NE(host.documents().openDocument(KyString::fromUtf8(KYDI_TEST_SAMPLE), error), nullptr);
    ASSERT_FALSE(activeViewport().isNull()) << "the sample has its model space viewport";
    ManagerSpy manager(KyDiManager::getContextManager());
    pass();
    ContextSpy spy(context);
    manager.take();
    pass();
    EXPECT_EQ(spy.take(), Lines{}) << "no change, no report";

    type(L"_.SETVAR\nLUPREC\n6\n");
    pass();
    EXPECT_EQ(spy.take(), Lines{}) << "the variable is read in this pass, after the contexts";
    pass();
    EXPECT_EQ(spy.take(), (Lines{"CameraLocation 3", "ViewCenter 3"}));
    EXPECT_EQ(manager.take(), (Lines{"contextChanged VIEWPORT [CameraLocation, ViewCenter]"}));

    // The object that holds the view changed: one report, mask 2.
    {
        KyAxDocLock lock(host.documents().currentDatabase());
        KyDbObjectPointer<KyDbViewportTableRecord> active(activeViewport(), KyDb::kForWrite);
        ASSERT_EQ(active.openStatus(), Kyro::eOk);
        active->setViewCenter(KyGePoint3d(4.0, 5.0, 0.0));
    }
    pass();
    EXPECT_EQ(spy.take(), (Lines{"- 2"}));
    EXPECT_EQ(manager.take(), (Lines{"contextChanged VIEWPORT []"}));

    // The host regenerated: mask 1; with a change of the object as well, 3.
    host.events().raiseInvalidateAll();
    pass();
    EXPECT_EQ(spy.take(), (Lines{"- 1"}));

    // A resolution written through the context reports itself.
    ASSERT_EQ(property(L"ViewResolution")->setValue(context, KyRxValue(500)), Kyro::eOk);
    pass();
    EXPECT_EQ(spy.take(), (Lines{"ViewResolution 3"}));
    EXPECT_EQ(read(L"ViewResolution"), "500 (0)");

    // A name and a change of the viewport object in one pass: the name does
    // not cover what the object changed, so the report names nothing.
    ASSERT_EQ(property(L"ViewResolution")->setValue(context, KyRxValue(600)), Kyro::eOk);
    {
        KyAxDocLock lock(host.documents().currentDatabase());
        KyDbObjectPointer<KyDbViewportTableRecord> active(activeViewport(), KyDb::kForWrite);
        active->setViewCenter(KyGePoint3d(6.0, 5.0, 0.0));
    }
    pass();
    EXPECT_EQ(spy.take(), (Lines{"- 3"}));
}

TEST_F(ViewportContext, AnotherVisualStyleOrResolutionRegeneratesWhichItReportsWithoutNames) {
    pass();
    ContextSpy spy(context);
    EXPECT_EQ(read(L"IsVS2dType"), "true (0)");
    type(L"VSCURRENT\nRealistic\n");
    pass();
    EXPECT_EQ(spy.take(), (Lines{"- 3"}))
        << "the viewport object took the style, and whatever it shows may have changed";
    EXPECT_EQ(read(L"IsVS2dType"), "false (0)");
    type(L"U\n");
    pass();
    EXPECT_EQ(spy.take(), (Lines{"- 3"})) << "undone in the viewport object";
    EXPECT_EQ(read(L"IsVS2dType"), "true (0)");
    type(L"VIEWRES\n2000\n");
    pass();
    EXPECT_EQ(spy.take(), (Lines{"- 1"}));
    EXPECT_EQ(read(L"ViewResolution"), "2000 (0)");
}

TEST_F(ViewportContext, ViewAndLensReachItThroughTheViewportObjectAndItFollowsTheViewportShown) {
    KyString error;
    ASSERT_NE(host.documents().openDocument(KyString::fromUtf8(KYDI_TEST_SAMPLE), error), nullptr);
    pass();
    ContextSpy spy(context);

    // Written through the context, read back from the drawing's own record.
    ASSERT_EQ(property(L"CameraLocation")->setValue(context, KyRxValue(KyGePoint3d(5, 5, 40))),
              Kyro::eOk);
    pass();
    EXPECT_EQ(spy.take(), (Lines{"- 2"})) << "through the closing of the model space record";
    ASSERT_EQ(property(L"LensLength")->setValue(context, KyRxValue(35.0)), Kyro::eOk);
    pass();
    EXPECT_EQ(spy.take(), (Lines{"- 2"}));
    EXPECT_EQ(read(L"LensLength"), "35 (0)");

    // Another layout, and a viewport of it entered: the context moves to the
    // object that holds the view shown.
    ASSERT_TRUE(host.plotService()->setLayoutByName(L"Plan"));
    pass();
    EXPECT_EQ(spy.take(), (Lines{"- 3"}));
    KyDbObjectId entered;
    ASSERT_EQ(host.documents().currentDatabase()->getKyDbObjectId(entered, KyDbHandle(0x2E)),
              Kyro::eOk);
    ASSERT_EQ(host.enterViewport(entered), Kyro::eOk);
    pass();
    EXPECT_EQ(spy.take(), (Lines{"- 3"}));
    EXPECT_EQ(read(L"LensLength"), "50 (0)") << "the entered viewport's own lens";
    ASSERT_EQ(property(L"LensLength")->setValue(context, KyRxValue(80.0)), Kyro::eOk);
    pass();
    EXPECT_EQ(spy.take(), (Lines{"- 2"}));
    ASSERT_EQ(host.leaveViewport(), Kyro::eOk);
    pass();
    EXPECT_EQ(spy.take(), (Lines{"- 3"}));
    pass();
    EXPECT_EQ(spy.take(), Lines{});
}

TEST_F(ViewportContext, ADocumentSwitchIsOneReportWithoutNamesOrMask) {
    ManagerSpy manager(KyDiManager::getContextManager());
    pass();
    ContextSpy spy(context);
    manager.take();
    host.documents().newDocument();
    pass();
    EXPECT_EQ(spy.take(), (Lines{"- none"}));
    EXPECT_EQ(manager.take(), (Lines{"activeContextsChanged"}));
    EXPECT_TRUE(context->isActive());

    host.documents().closeAll();
    pass();
    EXPECT_FALSE(context->isActive()) << "the database went away";
    spy.take();
    host.events().raiseInvalidateAll();
    pass();
    EXPECT_EQ(spy.take(), Lines{}) << "without a current document it reports nothing";
}

class ViewportContextWithoutServices : public ViewportContext {
protected:
    ViewportContextWithoutServices()
        : ViewportContext(onManualClock(KyRefHostOptions::withoutServices())) {}
};

TEST_F(ViewportContextWithoutServices, ReadsNeutralValuesAndTheToneReadSaysWhatIsMissing) {
    pass();
    EXPECT_EQ(read(L"CameraLocation"), read(L"ViewCenter"));
    KyRxValue origin;
    ASSERT_EQ(property(L"CameraLocation")->getValue(context, origin), Kyro::eOk);
    EXPECT_EQ(*valueCast<KyGePoint3d>(&origin), KyGePoint3d::kOrigin);
    EXPECT_EQ(read(L"LensLength"), "0 (0)");
    EXPECT_EQ(read(L"IsNavBoxVisible"), "false (0)");
    EXPECT_EQ(read(L"IsVS2dType"), "false (0)");
    EXPECT_EQ(read(L"ViewResolution"), "0 (0)");
    KyRxValue tone;
    EXPECT_EQ(property(L"ToneOperatorParameters")->getValue(context, tone), Kyro::eNotApplicable);
    EXPECT_NE(valueCast<KyGiPhotographicExposureParameters>(&tone), nullptr)
        << "the default parameters all the same";
}

}  // namespace
