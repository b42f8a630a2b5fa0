// View callouts of a drawing file: read into callouts with their kind, style,
// points and label, written back as the file had them, changes written, and
// faults refused at their path.
#include <gtest/gtest.h>

#include <string>

#include "DrawingTestSupport.h"
#include "db/KyDbModelDocViewStyle.h"
#include "db/KyDbObjectPointer.h"
#include "db/KyDbViewCallout.h"

using namespace drawingio;

namespace {

// The small drawing with the view styles "Standard" and "Metric" of each
// kind, the detail style "Enlarged", and two callouts in model space
// (entities 2 and 3): a section callout that names its style in small
// letters, and a detail callout with points in three coordinates and no
// label.
KyRefJson withCallouts() {
    KyRefJson document = smallDrawing();
    KyRefJson& objects = document["objects"]["entries"];
    objects["KYRO_SECTIONVIEWSTYLE"] = KyRefJson::parse(R"({
        "type": "DICTIONARY", "handle": "60", "entries": {
         "Standard": {"type": "SECTIONVIEWSTYLE", "handle": "61", "name": "Standard"},
         "Metric": {"type": "SECTIONVIEWSTYLE", "handle": "62", "name": "Metric"}}})");
    objects["KYRO_DETAILVIEWSTYLE"] = KyRefJson::parse(R"({
        "type": "DICTIONARY", "handle": "63", "entries": {
         "Standard": {"type": "DETAILVIEWSTYLE", "handle": "64", "name": "Standard"},
         "Metric": {"type": "DETAILVIEWSTYLE", "handle": "65", "name": "Metric"},
         "Enlarged": {"type": "DETAILVIEWSTYLE", "handle": "66", "name": "Enlarged"}}})");
    KyRefJson& entities = document["blocks"][0]["entities"];
    entities.push_back(KyRefJson::parse(R"({
        "type": "VIEWCALLOUT", "handle": "70", "layer": "Walls", "kind": "section",
        "style": "metric", "points": [[0, 5], [20, 5]], "label": "A", "arrowSize": 2.5})"));
    entities.push_back(KyRefJson::parse(R"({
        "type": "VIEWCALLOUT", "handle": "71", "kind": "detail", "style": "Enlarged",
        "points": [[4, 4, 1], [6, 4, 1]]})"));
    return document;
}

KyDbObjectId objectOf(KyDbDatabase* db, const char* handle) {
    KyDbObjectId id;
    db->getKyDbObjectId(id, KyDbHandle(std::stoull(handle, nullptr, 16)));
    return id;
}

std::string styleName(KyDbObjectId id) {
    KyDbObjectPointer<KyDbModelDocViewStyle> style(id, KyDb::kForRead);
    return style.openStatus() == Kyro::eOk ? style->name().utf8() : std::string();
}

TEST(DrawingViewCallouts, ACalloutIsReadIntoACalloutAndWrittenBackAsTheFileHadIt) {
    const KyRefJson document = withCallouts();
    const Reading reading = read(document);
    ASSERT_NE(reading.db, nullptr) << reading.error;
    {
        KyDbObjectPointer<KyDbViewCallout> section(objectOf(reading.db.get(), "70"),
                                                   KyDb::kForRead);
        ASSERT_EQ(section.openStatus(), Kyro::eOk);
        EXPECT_EQ(section->kind(), KyDbViewCallout::kSection);
        EXPECT_EQ(styleName(section->viewStyle()), "Metric");
        EXPECT_TRUE(KyDbViewCallout::isStyleOfKind(section->viewStyle(), 1));
        ASSERT_EQ(section->points().length(), 2);
        EXPECT_EQ(section->points()[1], KyGePoint3d(20, 5, 0));
        EXPECT_EQ(section->label().utf8(), "A");
        KyDbObjectPointer<KyDbViewCallout> detail(objectOf(reading.db.get(), "71"), KyDb::kForRead);
        EXPECT_EQ(detail->kind(), KyDbViewCallout::kDetail);
        EXPECT_EQ(styleName(detail->viewStyle()), "Enlarged");
        EXPECT_TRUE(detail->label().isEmpty());
    }
    EXPECT_EQ(unordered(save(reading.db.get())), unordered(document));
}

TEST(DrawingViewCallouts, ChangesOfACalloutAreWritten) {
    const Reading reading = read(withCallouts());
    ASSERT_NE(reading.db, nullptr) << reading.error;
    {
        KyDbObjectPointer<KyDbViewCallout> section(objectOf(reading.db.get(), "70"),
                                                   KyDb::kForWrite);
        ASSERT_EQ(section->setKind(KyDbViewCallout::kDetail), Kyro::eOk);
        EXPECT_EQ(styleName(section->viewStyle()), "Standard") << "the current detail style";
        ASSERT_EQ(section->setViewStyle(L"enlarged"), Kyro::eOk);
        KyDbObjectPointer<KyDbViewCallout> detail(objectOf(reading.db.get(), "71"),
                                                  KyDb::kForWrite);
        ASSERT_EQ(detail->setLabel(L"B"), Kyro::eOk);
        ASSERT_EQ(detail->setPointAt(1, KyGePoint3d(8, 4, 0)), Kyro::eOk);
    }
    const KyRefJson written = save(reading.db.get());
    const KyRefJson& entities = written["blocks"][0]["entities"];
    EXPECT_EQ(entities[2]["kind"], "detail");
    EXPECT_EQ(entities[2]["style"], "Enlarged") << "the style's own spelling";
    EXPECT_EQ(entities[2]["arrowSize"], 2.5) << "a member nobody models stays";
    EXPECT_EQ(entities[3]["label"], "B");
    EXPECT_EQ(entities[3]["points"], KyRefJson::parse("[[4, 4, 1], [8, 4]]"));
}

TEST(DrawingViewCallouts, AMalformedCalloutIsRefusedAtItsPath) {
    const auto errorWith = [](const char* member, const KyRefJson& value) {
        KyRefJson document = withCallouts();
        KyRefJson& callout = document["blocks"][0]["entities"][2];
        if (value.is_discarded()) {
            callout.erase(member);
        } else {
            callout[member] = value;
        }
        const Reading reading = read(document);
        EXPECT_EQ(reading.db, nullptr) << "the drawing was read";
        return reading.error;
    };
    const KyRefJson absent = KyRefJson::value_t::discarded;
    EXPECT_EQ(errorWith("kind", absent),
              "blocks[0].entities[2].kind: missing; expected \"section\" or \"detail\"");
    EXPECT_EQ(errorWith("kind", "elevation"),
              "blocks[0].entities[2].kind: expected \"section\" or \"detail\", found "
              "\"elevation\"");
    EXPECT_EQ(errorWith("kind", 1),
              "blocks[0].entities[2].kind: expected a string, found an integer");
    EXPECT_EQ(errorWith("style", absent),
              "blocks[0].entities[2].style: missing; expected the name of a section view style");
    EXPECT_EQ(errorWith("style", "Enlarged"),
              "blocks[0].entities[2].style: expected the name of a section view style, found "
              "\"Enlarged\", which the drawing does not have");
    EXPECT_EQ(errorWith("points", absent),
              "blocks[0].entities[2].points: missing; expected an array of points");
    EXPECT_EQ(errorWith("points", KyRefJson::parse("[[0, 5], [20]]")),
              "blocks[0].entities[2].points[1]: expected a point [x, y] or [x, y, z], found an "
              "array of 1");
    EXPECT_EQ(errorWith("label", 7),
              "blocks[0].entities[2].label: expected a string, found an integer");
}

}  // namespace
