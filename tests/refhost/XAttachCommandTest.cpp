// XATTACH: another drawing comes in as an external reference, its layers as
// layers that depend on it, without the notifications of an append; a file
// that can't be read is an error; undo takes the attach back.
#include "KyRefDocument.h"
#include "LayerTestSupport.h"
#include "db/KyDbBlockTableRecord.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbDatabaseReactor.h"
#include "db/KyDbLayerTableRecord.h"
#include "db/KyDbObjectPointer.h"
#include "db/KyDbObjectReactor.h"
#include "db/KyDbSymbolTable.h"

namespace refhost {
namespace {

const char* const kSite = R"({
 "format": "kydrawing",
 "version": 1,
 "linetypes": [
  {"handle": "14", "name": "ByBlock"},
  {"handle": "15", "name": "ByLayer"},
  {"handle": "16", "name": "Continuous"},
  {"handle": "17", "name": "DASHED", "description": "Dashed", "pattern": [0.5, -0.25]}
 ],
 "layers": [
  {"handle": "10", "name": "0", "color": 2},
  {"handle": "20", "name": "Walls", "color": 1, "linetype": "DASHED", "lineweight": 35},
  {"handle": "21", "name": "Trees", "color": 3, "off": true, "description": "Planting"}
 ]
})";

// Tells which objects came into the drawing with an append, by class.
class AppendSpy : public KyDbDatabaseReactor {
public:
    void objectAppended(const KyDbDatabase*, const KyDbObject* object) override {
        appended.push_back(utf8(object->isA()->name()));
    }
    Lines appended;
};

// Tells what a table told its reactors.
class TableSpy : public KyDbObjectReactor {
public:
    void openedForModify(const KyDbObject*) override { told.push_back("openedForModify"); }
    void modified(const KyDbObject*) override { told.push_back("modified"); }
    void objectClosed(KyDbObjectId) override { told.push_back("objectClosed"); }
    Lines told;
};

class XAttachCommandTest : public LayerFixture {
protected:
    XAttachCommandTest() {
        openDrawing(kLayerDrawing);
        site = writeFile("site.kyd", kSite).string();
    }

    // Runs the command with the file `path`.
    void attach(const std::string& path, const char* command = "-XATTACH") {
        run(KyString::fromUtf8(std::string(command) + "\n" + path + "\n"));
    }

    std::string site;
};

TEST_F(XAttachCommandTest, TheReferenceComesInAsABlockWithItsLayersDependingOnIt) {
    attach(site);
    const KyDbObjectId blockId = block(L"site");
    ASSERT_FALSE(blockId.isNull());
    {
        KyDbObjectPointer<KyDbBlockTableRecord> reference(blockId, KyDb::kForRead);
        EXPECT_EQ(reference->pathName().utf8(), site);
        EXPECT_TRUE(reference->isFromExternalReference());
    }
    EXPECT_EQ(state(L"site|Walls"),
              "color=1 linetype=site|DASHED lineweight=35 transparency=0 "
              "plotStyle=Normal off=0 frozen=0 locked=0 plot=1 "
              "description=");
    EXPECT_EQ(state(L"site|Trees"),
              "color=3 linetype=Continuous lineweight=-3 transparency=0 "
              "plotStyle=Normal off=1 frozen=0 locked=0 plot=1 "
              "description=Planting");
    EXPECT_EQ(state(L"site|0"), "missing") << "layer 0 of the reference is the drawing's own";
    EXPECT_EQ(state(L"Walls").substr(0, 7), "color=7");
    {
        KyDbObjectPointer<KyDbLayerTableRecord> dependent(layer(L"site|Walls"), KyDb::kForRead);
        EXPECT_TRUE(dependent->isDependent());
    }
    EXPECT_EQ(takeLog(), (Lines{"Command: -XATTACH", "Enter name of file to attach: " + site,
                                "Attach Xref \"site\": " + site, "\"site\" loaded: 2 layers."}));
    EXPECT_EQ(spy.take(),
              (Lines{"commandWillStart -XATTACH", "commandEnded -XATTACH", "refreshNeeded false"}));
    EXPECT_TRUE(host->commandNames().isEmpty());
}

TEST_F(XAttachCommandTest, XattachEndsUnderItsOwnName) {
    attach(writeFile("park.kyd", kSite).string(), "XATTACH");
    EXPECT_NE(state(L"park|Trees"), "missing");
    EXPECT_EQ(spy.take(),
              (Lines{"commandWillStart XATTACH", "commandEnded XATTACH", "refreshNeeded false"}));
}

TEST_F(XAttachCommandTest, TheLayersComeInWithoutTheNotificationsOfAnAppend) {
    AppendSpy appends;
    db()->addReactor(&appends);
    TableSpy table;
    {
        KyDbObjectPointer<KyDbSymbolTable> layers(db()->layerTableId(), KyDb::kForRead);
        layers->addReactor(&table);
    }
    attach(site);
    EXPECT_NE(state(L"site|Walls"), "missing");
    EXPECT_EQ(appends.appended, (Lines{"KyDbBlockTableRecord"}));
    EXPECT_TRUE(table.told.empty());

    db()->removeReactor(&appends);
    KyDbObjectPointer<KyDbSymbolTable> layers(db()->layerTableId(), KyDb::kForRead);
    layers->removeReactor(&table);
}

TEST_F(XAttachCommandTest, UndoTakesTheReferenceAndItsLayersBack) {
    attach(site);
    run(L"U\n");
    EXPECT_EQ(takeLog().back(), "Undone: -XATTACH");
    EXPECT_TRUE(block(L"site").isNull());
    EXPECT_EQ(state(L"site|Walls"), "missing");
    EXPECT_TRUE(linetype(L"site|DASHED").isNull());
    // The name is free again.
    attach(site);
    EXPECT_NE(state(L"site|Walls"), "missing");
}

TEST_F(XAttachCommandTest, AFileNamedBeyondAsciiIsAttachedInAnyLocale) {
    attach(writeFile("Grundst\u00fcck.kyd", kSite).string());
    EXPECT_NE(state(L"Grundst\u00fcck|Walls"), "missing");
    EXPECT_EQ(takeLog().back(), "\"Grundst\u00fcck\" loaded: 2 layers.");
}

TEST_F(XAttachCommandTest, AFileThatCantBeReadIsAnErrorAndChangesNothing) {
    const std::string missing = (folder / "missing.kyd").string();
    attach(missing);
    Lines log = takeLog();
    ASSERT_EQ(log.size(), 3u);
    EXPECT_EQ(log[2].rfind("Cannot open \"" + missing + "\": ", 0), 0u) << log[2];
    EXPECT_EQ(spy.take(), (Lines{"commandWillStart -XATTACH", "refreshNeeded false"}));

    attach(writeFile("broken.kyd", "{\"format\": \"kydrawing\", \"version\": 1, \"layers\": 5}")
               .string());
    log = takeLog();
    EXPECT_EQ(log.back().rfind("Cannot open", 0), 0u) << log.back();
    EXPECT_TRUE(block(L"broken").isNull());
    EXPECT_TRUE(host->commandNames().isEmpty());
}

TEST_F(XAttachCommandTest, ANameTakenOrTheDrawingItselfIsRefused) {
    attach(site);
    takeLog();
    attach(site);
    EXPECT_EQ(takeLog().back(), "A block named \"site\" exists already.");

    attach(host->documents().current()->path().utf8());
    EXPECT_EQ(takeLog().back(), "A drawing can't be attached to itself.");
    EXPECT_TRUE(block(L"plan").isNull());
}

}  // namespace
}  // namespace refhost
