// The effective property clients are given: what its twelve getters read,
// what a change of the drawing reports (once a pass, one report a key it
// touches, or one report of all), how a setter leaves, and what a document
// switch, a closed document and a batch do to it.
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "EffectiveFixture.h"
#include "KyRefDocument.h"
#include "db/KyDbEnums.h"
#include "kydi/KyDiCollection.h"
#include "kydi/KyDiManager.h"

namespace {

using kytest::EffectiveSpy;
using kytest::Reports;
using Effective = KyDiEffectiveProperty;
namespace fs = std::filesystem;

class EffectiveProperty : public kytest::EffectiveFixture {
protected:
    // Reads every key once, so that each is bound.
    std::vector<std::string> readAll() {
        std::vector<std::string> read;
        for (const Getter getter :
             {&Effective::getLayer, &Effective::getDimensionStyle, &Effective::getTextStyle,
              &Effective::getLinetype, &Effective::getMLeaderStyle, &Effective::getSectionViewStyle,
              &Effective::getDetailViewStyle, &Effective::getTableStyle, &Effective::getMaterial,
              &Effective::getLineWeight, &Effective::getColor, &Effective::getTransparency}) {
            read.push_back(this->read(getter));
        }
        return read;
    }
    static KyDiDynamicObject* lineweight(const char* name) {
        KyDiCollection* weights = KyDiManager::getCollection(
            KyRxValueType::Desc<KyDb::LineWeight>::value().enumeration());
        const KyDiItemArray& items = weights->getItems();
        for (int i = 0; i < items.length(); ++i) {
            if (KyDiGetItemName(items[i]).utf8() == name) {
                return items[i];
            }
        }
        ADD_FAILURE() << "no lineweight " << name;
        return nullptr;
    }
};

TEST_F(EffectiveProperty, ReadsWhatANewObjectWouldGetAndReportsOnlyOnceTheKeysAreBound) {
    EffectiveSpy spy(effective);
    type(L"CLAYER\nDoors\n");
    pass();
    EXPECT_EQ(spy.take(), Reports{}) << "no key is bound yet";

    EXPECT_EQ(read(&Effective::getLayer), "Doors");
    type(L"CLAYER\nWalls\n");
    pass();
    EXPECT_EQ(spy.take(), Reports{"allPropertiesChanged"}) << "the one bound key is all of them";
    pass();
    EXPECT_EQ(spy.take(), Reports{}) << "nothing changed";

    EXPECT_EQ(readAll(), (std::vector<std::string>{"Walls", "ISO-25", "Notes", "ByLayer", "Callout",
                                                   "Standard", "Standard", "Schedule", "ByLayer",
                                                   "ByLayer", "ByLayer", "ByLayer"}));
}

TEST_F(EffectiveProperty, TheCurrentLayerAndALayersColourReportTheKeysTheyTouchOncePerPass) {
    readAll();
    EffectiveSpy spy(effective);
    type(L"CLAYER\nDoors\n");
    type(L"-LAYER\n_Color\n1\nWindows\n\n");
    pass();
    EXPECT_EQ(spy.take(), (Reports{"propertyChanged LAYER", "propertyChanged TRANSPARENCY"}));
    EXPECT_EQ(read(&Effective::getLayer), "Doors");

    type(L"-LAYER\n_Color\n3\nDoors\n\n");
    type(L"-LAYER\n_Color\n4\nDoors\n\n");
    pass();
    EXPECT_EQ(spy.take(), (Reports{"propertyChanged LAYER", "propertyChanged TRANSPARENCY"}))
        << "two changes of one pass, one report a key";
    pass();
    EXPECT_EQ(spy.take(), Reports{});
}

TEST_F(EffectiveProperty, AnotherViewportObjectMarksTheKeysThatDependOnTheViewport) {
    readAll();
    pass();  // the viewport context, made for the layer, binds to the drawing
    EffectiveSpy spy(effective);
    type(L"VSCURRENT\nRealistic\n");
    pass();
    EXPECT_EQ(spy.take(), Reports{"propertyChanged LAYER"});
    pass();
    EXPECT_EQ(spy.take(), Reports{});
}

TEST_F(EffectiveProperty, ALineweightLeavesAsTheHostsCommandAndReadsTheOldValueUntilIdle) {
    EXPECT_EQ(read(&Effective::getLineWeight), "ByLayer");
    EXPECT_EQ(read(&Effective::getColor), "ByLayer");
    EffectiveSpy spy(effective);
    sentTexts();
    EXPECT_EQ(effective->setLineWeight(lineweight("0.25 mm")), Kyro::eOk);
    EXPECT_EQ(sentTexts(), std::vector<std::wstring>{L"'_celweight\n25\n"});
    pass();
    EXPECT_EQ(spy.take(), Reports{"propertyChanged LINEWEIGHT"});
    EXPECT_EQ(read(&Effective::getLineWeight), "ByLayer") << "the command is only queued";

    host.idle();
    pass();
    EXPECT_EQ(spy.take(), Reports{"propertyChanged LINEWEIGHT"});
    EXPECT_EQ(read(&Effective::getLineWeight), "0.25 mm");
    EXPECT_EQ(hostValue(L"CELWEIGHT"), L"25");

    EXPECT_EQ(effective->setLayer(nullptr), Kyro::eInvalidInput);
    pass();
    EXPECT_EQ(spy.take(), Reports{});
}

TEST_F(EffectiveProperty, ADrawingOpenedReadOnlyRefusesTheLockAndNothingIsMarked) {
    KyString error;
    KyRefDocument* readOnly = host.documents().openDocument(
        KyString::fromUtf8(KYDI_TEST_SAMPLE), error, KyRefDocumentManager::OpenMode::kReadOnly);
    ASSERT_NE(readOnly, nullptr);
    pass();
    KyDiDynamicObject* layer = nullptr;
    ASSERT_EQ(effective->getLayer(layer), Kyro::eOk);
    EffectiveSpy spy(effective);
    EXPECT_EQ(effective->setLayer(layer), Kyro::eDocumentReadOnly);
    pass();
    EXPECT_EQ(spy.take(), Reports{});
    EXPECT_EQ(sentTexts(), std::vector<std::wstring>{});
}

TEST_F(EffectiveProperty, ASwitchReportsAllAndTheKeysReadTheDrawingInFront) {
    readAll();
    EffectiveSpy spy(effective);
    host.documents().newDocument();
    pass();
    EXPECT_EQ(spy.take(), Reports{"allPropertiesChanged"});
    EXPECT_EQ(read(&Effective::getLayer), "0");
    EXPECT_EQ(read(&Effective::getTextStyle), "Standard");

    host.documents().makeCurrent(sample);
    pass();
    EXPECT_EQ(spy.take(), Reports{"allPropertiesChanged"});
    EXPECT_EQ(read(&Effective::getLayer), "Walls");
}

TEST_F(EffectiveProperty, WithTheLastDocumentClosedEveryReadIsNotApplicable) {
    readAll();
    host.documents().closeDocument(sample);
    host.documents().releaseClosedDocuments();
    pass();
    EXPECT_EQ(readAll(), std::vector<std::string>(12, "status 2"));
    EXPECT_EQ(effective->setLayer(nullptr), Kyro::eInvalidInput);
}

TEST_F(EffectiveProperty, ABatchReportsWhenTheDocumentIsQuietAndNotWhatCameBeforeIt) {
    readAll();
    EffectiveSpy spy(effective);
    // Marked, but the host's batch takes everything before it as known.
    type(L"-LAYER\n_Color\n1\nWalls\n\n");
    const fs::path batch = fs::temp_directory_path() / ("effective-" + std::to_string(getpid()));
    std::ofstream(batch) << "CELWEIGHT\n25\n";
    host.KyRefHost::editor()->interpreter().queue(
        KyString::fromUtf8("_BATCH\n" + batch.string() + "\n"));
    host.idle();
    fs::remove(batch);
    EXPECT_EQ(spy.take(), (Reports{"propertyChanged LINEWEIGHT"}))
        << "the quiet document is reported without a pass of the test";
}

}  // namespace
