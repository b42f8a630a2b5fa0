// View callouts: the styles a callout of each kind takes, what a change of
// kind does to its style, the notifications of a change and its undo, and
// the members a palette finds on it.
#include <gtest/gtest.h>

#include "DbTestSupport.h"
#include "db/KyDbDetailViewStyle.h"
#include "db/KyDbSectionViewStyle.h"
#include "db/KyDbViewCallout.h"
#include "rx/KyRxMemberQueryEngine.h"
#include "rx/KyRxProperty.h"

namespace dbtest {
namespace {

class ViewCalloutTest : public DbTest {
protected:
    ViewCalloutTest()
        : metricSection(addStyle(db->sectionViewStyleDictionaryId(), new KyDbSectionViewStyle())),
          metricDetail(addStyle(db->detailViewStyleDictionaryId(), new KyDbDetailViewStyle())) {}

    // A style under "Metric" in the dictionary `dictionaryId`.
    KyDbObjectId addStyle(KyDbObjectId dictionaryId, KyDbModelDocViewStyle* style) {
        style->setName(L"Metric");
        KyDbObjectPointer<KyDbDictionary> dictionary(dictionaryId, KyDb::kForWrite);
        KyDbObjectId id;
        EXPECT_EQ(dictionary->setAt(L"Metric", style, id), Kyro::eOk);
        style->close();
        return id;
    }

    KyDbObjectPointer<KyDbViewCallout> open(KyDbObjectId id, KyDb::OpenMode mode) {
        return KyDbObjectPointer<KyDbViewCallout>(id, mode);
    }

    KyDbObjectId metricSection;
    KyDbObjectId metricDetail;
};

TEST_F(ViewCalloutTest, ACalloutTakesOnlyTheStylesOfItsKind) {
    const KyDbObjectId id = addEntity(new KyDbViewCallout());
    auto callout = open(id, KyDb::kForWrite);
    EXPECT_EQ(callout->kind(), KyDbViewCallout::kSection) << "a new callout marks a section";
    EXPECT_EQ(callout->viewStyle(), db->sectionViewStyle()) << "the current one when appended";

    EXPECT_EQ(callout->setViewStyle(metricDetail), Kyro::eNotThatKindOfClass);
    EXPECT_EQ(callout->setViewStyle(L"metric"), Kyro::eOk) << "by name, in its kind's dictionary";
    EXPECT_EQ(callout->viewStyle(), metricSection);
    EXPECT_EQ(callout->setViewStyle(KyDbObjectId()), Kyro::eNullObjectId);
    EXPECT_EQ(callout->setViewStyle(L"Isometric"), Kyro::eKeyNotFound);
    EXPECT_EQ(callout->viewStyle(), metricSection) << "a refused style changes nothing";

    // A section style kept outside the section view style dictionary.
    auto* stray = new KyDbSectionViewStyle();
    KyDbObjectId strayId;
    {
        KyDbObjectPointer<KyDbDictionary> named(db->namedObjectsDictionaryId(), KyDb::kForWrite);
        ASSERT_EQ(named->setAt(L"STRAY", stray, strayId), Kyro::eOk);
        stray->close();
    }
    EXPECT_EQ(callout->setViewStyle(strayId), Kyro::eNotThatKindOfClass);
    EXPECT_FALSE(KyDbViewCallout::isStyleOfKind(strayId, KyDbViewCallout::kSection));
    EXPECT_TRUE(KyDbViewCallout::isStyleOfKind(metricDetail, KyDbViewCallout::kDetail));
    EXPECT_FALSE(KyDbViewCallout::isStyleOfKind(metricDetail, 3));

    // Another kind: a style that does not fit gives way to the current one.
    EXPECT_EQ(callout->setKind(3), Kyro::eInvalidInput);
    EXPECT_EQ(callout->setKind(KyDbViewCallout::kDetail), Kyro::eOk);
    EXPECT_EQ(callout->viewStyle(), db->detailViewStyle());
    EXPECT_EQ(callout->setViewStyle(metricDetail), Kyro::eOk);
    callout.close();
    EXPECT_EQ(open(id, KyDb::kForRead)->setViewStyle(metricDetail), Kyro::eWasNotOpenForWrite);

    // A new callout of its own takes no style until it is appended.
    auto* loose = new KyDbViewCallout();
    EXPECT_EQ(loose->setKind(KyDbViewCallout::kDetail), Kyro::eOk);
    EXPECT_TRUE(loose->viewStyle().isNull());
    const KyDbObjectId looseId = addEntity(loose);
    EXPECT_EQ(open(looseId, KyDb::kForRead)->viewStyle(), db->detailViewStyle());
}

TEST_F(ViewCalloutTest, AChangeOfStyleIsToldAndUndoneWithTheWholeCallout) {
    auto* callout = new KyDbViewCallout();
    KyArray<KyGePoint3d> points;
    points.append(KyGePoint3d(0, 0, 0));
    points.append(KyGePoint3d(10, 0, 0));
    callout->setPoints(points);
    callout->setLabel(L"A");
    const KyDbObjectId id = addEntity(callout);
    ObjectSpy spy(log);
    watch(id, &spy);
    DatabaseSpy dbSpy(log);
    db->addReactor(&dbSpy);

    ASSERT_EQ(undo()->beginUndoGroup(), Kyro::eOk);
    {
        auto changing = open(id, KyDb::kForWrite);
        ASSERT_EQ(changing->setViewStyle(metricSection), Kyro::eOk);
        changing->setLabel(L"B");
        changing->setPointAt(1, KyGePoint3d(20, 0, 0));
        EXPECT_EQ(changing->setPointAt(2, KyGePoint3d()), Kyro::eInvalidIndex);
    }
    ASSERT_EQ(undo()->endUndoGroup(), Kyro::eOk);
    EXPECT_EQ(log.lines(),
              (Lines{"openedForModify KyDbViewCallout", "db.objectOpenedForModify KyDbViewCallout",
                     "modified KyDbViewCallout", "db.objectModified KyDbViewCallout",
                     "objectClosed KyDbViewCallout"}));
    log.clear();
    open(id, KyDb::kForWrite)->setViewStyle(metricSection);
    EXPECT_TRUE(log.lines().empty()) << "the style it has is no change";

    ASSERT_EQ(undo()->undo(), Kyro::eOk);
    EXPECT_EQ(log.lines(),
              (Lines{"modifyUndone KyDbViewCallout", "modified KyDbViewCallout",
                     "db.objectModified KyDbViewCallout", "objectClosed KyDbViewCallout"}));
    {
        auto undone = open(id, KyDb::kForRead);
        EXPECT_EQ(undone->viewStyle(), db->sectionViewStyle());
        EXPECT_EQ(undone->label(), KyString(L"A"));
        EXPECT_EQ(undone->points()[1], KyGePoint3d(10, 0, 0));
    }
    ASSERT_EQ(undo()->redo(), Kyro::eOk);
    EXPECT_EQ(open(id, KyDb::kForRead)->viewStyle(), metricSection);
    db->removeReactor(&dbSpy);
}

TEST_F(ViewCalloutTest, APaletteFindsItsKindStyleLabelAndPoints) {
    const KyDbObjectId id = addEntity(new KyDbViewCallout());
    auto callout = open(id, KyDb::kForWrite);
    KyRxMemberQueryEngine* engine = KyRxMemberQueryEngine::theEngine();
    const auto property = [&](const wchar_t* name) {
        return kyrxCast<KyRxProperty>(
            engine->find(callout.object(), name, engine->promotingContext()));
    };
    ASSERT_NE(property(L"ViewStyleId"), nullptr);
    ASSERT_NE(property(L"CalloutKind"), nullptr);
    ASSERT_NE(property(L"Label"), nullptr);
    EXPECT_NE(engine->find(callout.object(), L"Points", engine->promotingContext()), nullptr);

    EXPECT_EQ(property(L"ViewStyleId")->setValue(callout.object(), KyRxValue(metricDetail)),
              Kyro::eNotThatKindOfClass);
    EXPECT_EQ(property(L"CalloutKind")->setValue(callout.object(), KyRxValue(2)), Kyro::eOk);
    EXPECT_EQ(property(L"ViewStyleId")->setValue(callout.object(), KyRxValue(metricDetail)),
              Kyro::eOk);
    KyRxValue value;
    ASSERT_EQ(property(L"ViewStyleId")->getValue(callout.object(), value), Kyro::eOk);
    ASSERT_NE(valueCast<KyDbObjectId>(&value), nullptr);
    EXPECT_EQ(*valueCast<KyDbObjectId>(&value), metricDetail);
    EXPECT_EQ(property(L"Label")->setValue(callout.object(), KyRxValue(L"C")), Kyro::eOk);
    EXPECT_EQ(callout->label(), KyString(L"C"));
}

}  // namespace
}  // namespace dbtest
