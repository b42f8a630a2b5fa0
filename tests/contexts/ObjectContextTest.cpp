// The object contexts: a context over one database object, bound when asked
// whether it is active, reading and writing the object and reporting its
// changes; and a context over a live runtime object it owns.
#include <gtest/gtest.h>

#include <memory>
#include <set>
#include <string>

#include "KyRefDocument.h"
#include "contexts/ManagerSpy.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbHandle.h"
#include "db/KyDbLine.h"
#include "db/KyDbObjectPointer.h"
#include "db/KyDbOpenObject.h"
#include "ge/KyGePoint3d.h"
#include "kydi/KyDiContextManager.h"
#include "kydi/KyDiDbObjectContext.h"
#include "kydi/KyDiFunctions.h"
#include "manager/RefHostFixture.h"
#include "rx/KyRxMemberQueryEngine.h"
#include "rx/KyRxProperty.h"

namespace {

using Lines = std::vector<std::string>;

// A client's context over whichever object the test points it at.
class PointedContext : public KyDiDbObjectContext {
public:
    PointedContext() : KyDiDbObjectContext(L"POINTED") {}
    KyDbObjectId wanted;

protected:
    KyDbObjectId getObjectId() const override { return wanted; }
};

class ObjectContext : public kytest::RefHostFixture {
protected:
    void SetUp() override {
        RefHostFixture::SetUp();
        KyString error;
        ASSERT_NE(host.documents().openDocument(KyString::fromUtf8(KYDI_TEST_SAMPLE), error),
                  nullptr);
        manager = KyDiManager::getContextManager();
        manager->addContext(L"POINTED", &context);
        spy = std::make_unique<kytest::ManagerSpy>(manager);
    }
    void TearDown() override {
        spy.reset();
        manager->removeContext(L"POINTED");
        RefHostFixture::TearDown();
    }
    // The members the context lists, by name.
    std::set<std::string> members() {
        std::set<std::string> names;
        const std::unique_ptr<KyRxMemberIterator> it(context.newMemberIterator());
        for (; it != nullptr && !it->done(); it->next()) {
            names.insert(KyString(it->current()->name()).utf8());
        }
        return names;
    }
    const KyRxProperty* property(const wchar_t* name) {
        return kyrxCast<KyRxProperty>(KyDiFindMember(&context, name));
    }
    std::string read(const wchar_t* name) {
        KyRxValue value;
        const KyRxProperty* found = property(name);
        if (found == nullptr || found->getValue(&context, value) != Kyro::eOk) {
            return "(none)";
        }
        KyDiDynamicObject* const* item = valueCast<KyDiDynamicObject*>(&value);
        return item != nullptr ? KyDiGetItemName(*item).utf8() : KyString(value.text()).utf8();
    }

    PointedContext context;
    KyDiContextManager* manager = nullptr;
    std::unique_ptr<kytest::ManagerSpy> spy;
};

TEST_F(ObjectContext, BindsWhenAskedAndStandsForTheObjectUntilPointedElsewhere) {
    EXPECT_FALSE(context.isActive()) << "no object wanted";
    EXPECT_EQ(context.newMemberIterator(), nullptr);
    context.wanted = object(L"4B");
    EXPECT_TRUE(context.isActive());
    EXPECT_EQ(context.boundObjectId(), object(L"4B"));
    EXPECT_EQ(context.priority(), -1);
    // The line's placed members, and nothing without a placement.
    const std::set<std::string> listed = members();
    EXPECT_TRUE(listed.contains("StartPoint"));
    EXPECT_TRUE(listed.contains("LayerId"));
    EXPECT_FALSE(listed.contains("ClassName"));
    EXPECT_EQ(read(L"LayerId"), "Walls");

    // Written directly, under the document lock: the line changes, and the
    // context reports it once, without names.
    KyDiManager::refresh();
    spy->take();
    ASSERT_EQ(property(L"LineWeight")->setValue(&context, KyRxValue(KyDb::kLnWt025)), Kyro::eOk);
    KyDiManager::refresh();
    EXPECT_EQ(spy->take(), Lines{"contextChanged POINTED []"});
    EXPECT_EQ(kydbOpenObjectCount(), 0);

    // A member kept from the line is no member of the circle, and back.
    const KyRxProperty* startPoint = property(L"StartPoint");
    ASSERT_NE(startPoint, nullptr);
    // Pointed at the circle: the line's changes are no longer heard.
    context.wanted = object(L"4E");
    EXPECT_TRUE(context.isActive());
    EXPECT_TRUE(members().contains("Radius"));
    KyRxValue kept;
    EXPECT_EQ(startPoint->getValue(&context, kept), Kyro::eInvalidInput);
    EXPECT_EQ(startPoint->setValue(&context, KyRxValue(KyGePoint3d())), Kyro::eInvalidInput);
    KyDiManager::refresh();
    spy->take();
    type(L"ERASE\n#4B\n\n");
    KyDiManager::refresh();
    EXPECT_TRUE(spy->take().empty());
    // The circle erased: told; still read, but no longer listed.
    const KyRxProperty* radius = property(L"Radius");
    ASSERT_NE(radius, nullptr);
    type(L"ERASE\n#4E\n\n");
    KyDiManager::refresh();
    EXPECT_EQ(spy->take(), Lines{"contextChanged POINTED []"});
    KyRxValue value;
    EXPECT_EQ(radius->getValue(&context, value), Kyro::eOk);
    EXPECT_EQ(context.newMemberIterator(), nullptr);
}

TEST_F(ObjectContext, VariesWritesNothingAndCollectionsOpenUnderTheLock) {
    context.wanted = object(L"4B");
    ASSERT_TRUE(context.isActive());
    KyDiManager::refresh();
    spy->take();
    // "Varies" goes to the property on the object open for read: nothing
    // changes and nothing is told.
    EXPECT_NE(property(L"LayerId")->setValue(&context, KyRxValue::varies()), Kyro::eOk);
    KyDiManager::refresh();
    EXPECT_TRUE(spy->take().empty());
    EXPECT_EQ(read(L"LayerId"), "Walls");

    // The points of the polyline, read through a write-open under the lock.
    context.wanted = object(L"4A");
    ASSERT_TRUE(context.isActive());
    const auto* points = kyrxCast<KyRxCollectionProperty>(KyDiFindMember(&context, L"Points"));
    if (points != nullptr) {
        const std::unique_ptr<KyRxValueIterator> values(context.newValueIterator(points));
        ASSERT_NE(values, nullptr);
        int count = 0;
        for (; !values->done(); values->next()) {
            ++count;
        }
        EXPECT_GE(count, 3);
    }
    EXPECT_EQ(kydbOpenObjectCount(), 0);
}

TEST_F(ObjectContext, ALiveObjectContextOwnsItsObjectAndReportsEveryWrite) {
    auto* line = new KyDbLine(KyGePoint3d(0, 0, 0), KyGePoint3d(3, 4, 0));
    KyDiContext* live = createKyDiRxObjectContext(line, L"LIVE");
    ASSERT_NE(live, nullptr);
    manager->addContext(L"LIVE", live);
    EXPECT_TRUE(live->isActive());
    const auto* length = kyrxCast<KyRxProperty>(KyDiFindMember(live, L"Length"));
    ASSERT_NE(length, nullptr);
    KyRxValue value;
    ASSERT_EQ(length->getValue(live, value), Kyro::eOk);
    EXPECT_DOUBLE_EQ(*valueCast<double>(&value), 5.0);

    // A write reports the member by name, also when it fails.
    KyDiManager::refresh();
    spy->take();
    const auto* end = kyrxCast<KyRxProperty>(KyDiFindMember(live, L"EndPoint"));
    ASSERT_NE(end, nullptr);
    EXPECT_EQ(end->setValue(live, KyRxValue(KyGePoint3d(6, 8, 0))), Kyro::eOk);
    EXPECT_DOUBLE_EQ(line->length(), 10.0);
    EXPECT_NE(length->setValue(live, KyRxValue(1.0)), Kyro::eOk);
    KyDiManager::refresh();
    EXPECT_EQ(spy->take(), Lines{"contextChanged LIVE [EndPoint, Length]"});

    // A context over another context forwards to it.
    KyDiContext* stacked = createKyDiRxObjectContext(live, L"STACKED");
    ASSERT_EQ(length->getValue(stacked, value), Kyro::eOk);
    EXPECT_DOUBLE_EQ(*valueCast<double>(&value), 10.0);

    // Only object contexts of this kind are deleted by the function.
    KyDiContext* drawing = manager->getContext(L"DRAWING", true);
    deleteKyDiRxObjectContext(drawing);
    deleteKyDiRxObjectContext(nullptr);
    EXPECT_EQ(manager->getContext(L"DRAWING", false), drawing);
    EXPECT_TRUE(drawing->isActive());
    manager->removeContext(L"LIVE");
    // The stacked context owns the live one, which owns the line.
    deleteKyDiRxObjectContext(stacked);
}

}  // namespace
