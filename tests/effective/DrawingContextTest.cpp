// The "DRAWING" context: what it lists in model space, in a layout and in the
// block editor; how its properties read (neutral values when no drawing is
// open) and write (directly, by command, refused by a guard or the lock); and
// the one unnamed change it reports for whatever the drawing's effective
// property reports.
#include <gtest/gtest.h>

#include <memory>

#include "EffectiveFixture.h"
#include "KyRefDocument.h"
#include "contexts/ManagerSpy.h"
#include "db/KyCmColor.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbObjectPointer.h"
#include "db/KyDbSymbolTable.h"
#include "kydi/KyDiContext.h"
#include "kydi/KyDiContextManager.h"
#include "kydi/KyDiObservableCollection.h"
#include "rx/KyRxMemberQueryEngine.h"
#include "rx/KyRxProperty.h"

namespace {

using kytest::ManagerSpy;
using Names = std::vector<std::string>;

// The properties every space lists.
const Names kShared = {"Color",
                       "Layer",
                       "LineType",
                       "Lineweight",
                       "Transparency",
                       "LineTypeScale",
                       "TextSize",
                       "TextStyle",
                       "DimensionStyle",
                       "MultileaderStyle",
                       "SectionViewStyle",
                       "DetailViewStyle",
                       "TableStyle",
                       "Material"};
const Names kPlot = {"ScaleList",      "ShadowDisplay",  "PlotStyle",
                     "PlotStyleTable", "PlotAttachedTo", "PlotStyleTableType"};
const Names kVisualStyleSettings = {"VSMaterialMode", "VSFaceColorMode", "VSLightingQuality",
                                    "VSFaceStyle",    "VSEdges",         "VSEdgeLex",
                                    "VSEdgeJitter",   "VSSilhWidth",     "VSFaceOpacity"};

Names joined(std::initializer_list<Names> parts) {
    Names all;
    for (const Names& part : parts) {
        all.insert(all.end(), part.begin(), part.end());
    }
    return all;
}

class DrawingContext : public kytest::EffectiveFixture {
protected:
    void SetUp() override {
        EffectiveFixture::SetUp();
        context = KyDiManager::getContextManager()->getContext(L"DRAWING", true);
        ASSERT_NE(context, nullptr);
    }

    Names listed() {
        Names names;
        std::unique_ptr<KyRxMemberIterator> members(context->newMemberIterator());
        for (; members != nullptr && !members->done(); members->next()) {
            names.push_back(KyString(members->current()->name()).utf8());
        }
        return names;
    }
    // The property by name, listed or not.
    const KyRxProperty* property(const wchar_t* name) {
        KyRxMemberQueryEngine* engine = KyRxMemberQueryEngine::theEngine();
        return kyrxCast<KyRxProperty>(engine->find(context, name, engine->promotingContext()));
    }
    // The value's text and the status of a read.
    std::string read(const wchar_t* name) {
        KyRxValue value;
        const Kyro::ErrorStatus status = property(name)->getValue(context, value);
        return value.text().utf8() + " (" + std::to_string(status) + ")";
    }
    Kyro::ErrorStatus write(const wchar_t* name, const KyRxValue& value) {
        return property(name)->setValue(context, value);
    }
    KyDbObjectId layer(const wchar_t* name) {
        KyDbDatabase* db = host.documents().currentDatabase();
        KyDbObjectPointer<KyDbSymbolTable> table(db->layerTableId(), KyDb::kForRead);
        KyDbObjectId id;
        table->getAt(name, id);
        return id;
    }

    KyDiContext* context = nullptr;
};

TEST_F(DrawingContext, ListsTheModelSpaceSetWithTileModeOnAndTheLayoutSetInALayout) {
    EXPECT_TRUE(context->isActive());
    EXPECT_EQ(context->priority(), 0);
    EXPECT_EQ(listed(), joined({kShared,
                                {"VisualStyle"},
                                kPlot,
                                kVisualStyleSettings,
                                {"UCSPerViewport", "UCSName"}}));
    EXPECT_EQ(read(L"TileMode"), "true (0)") << "never listed, read by name";
    EXPECT_EQ(read(L"Layout"), " (2)");

    type(L"TILEMODE\n0\n");
    pass();
    EXPECT_EQ(listed(), joined({kShared, kPlot, {"Layout", "PageSetup", "RasterDPI"}}));
    EXPECT_EQ(read(L"VSFaceStyle"), " (2)");
    EXPECT_EQ(read(L"Layout"), "Plan (0)");
    EXPECT_EQ(read(L"PageSetup"), "A3 Landscape (0)");
}

TEST_F(DrawingContext, TheBlockEditorHidesTheVisualStyleSettingsAndKeepsTheVisualStyle) {
    type(L"BEDIT\nDoor\n");
    pass();
    EXPECT_EQ(listed(), joined({kShared, {"VisualStyle"}, kPlot, {"UCSPerViewport", "UCSName"}}));
    EXPECT_EQ(read(L"VSEdges"), " (2)");

    type(L"BCLOSE\n");
    pass();
    EXPECT_EQ(read(L"VSEdges"), "1 (0)");
}

TEST_F(DrawingContext, ALayerWrittenLeavesAsTheHostsCommandAndComesBackAsOneUnnamedChange) {
    listed();
    ManagerSpy manager(KyDiManager::getContextManager());
    pass();
    manager.take();
    sentTexts();

    EXPECT_EQ(write(L"Layer", KyRxValue(layer(L"Doors"))), Kyro::eOk);
    EXPECT_EQ(sentTexts(), std::vector<std::wstring>{L"'_clayer\nDoors\n"});
    host.idle();
    pass();
    EXPECT_EQ(manager.take(), (std::vector<std::string>{"contextChanged DRAWING []"}));
    KyRxValue value;
    ASSERT_EQ(property(L"Layer")->getValue(context, value), Kyro::eOk);
    EXPECT_EQ(*valueCast<KyDbObjectId>(&value), layer(L"Doors"));

    // An id that is no layer finds no item: no failure, and nothing is sent.
    const KyDbObjectId linetypes = host.documents().currentDatabase()->linetypeTableId();
    EXPECT_EQ(write(L"Layer", KyRxValue(linetypes)), Kyro::eOk);
    EXPECT_EQ(write(L"Layer", KyRxValue(3)), Kyro::eInvalidInput);
    EXPECT_EQ(sentTexts(), std::vector<std::wstring>{});
    pass();
    EXPECT_EQ(manager.take(), std::vector<std::string>{});
}

TEST_F(DrawingContext, AWriteGoesDirectlyOrByCommandAsItsValueDoesAndAGuardRefusesIt) {
    listed();
    sentTexts();
    // Faces are not shown: their opacity can't be set.
    EXPECT_EQ(write(L"VSFaceOpacity", KyRxValue(-40)), Kyro::eNotApplicable);
    EXPECT_EQ(hostValue(L"VSFACEOPACITY"), L"-60");

    EXPECT_EQ(write(L"VSFaceStyle", KyRxValue(1)), Kyro::eOk);
    EXPECT_EQ(write(L"VSFaceOpacity", KyRxValue(-40)), Kyro::eOk);
    EXPECT_EQ(write(L"TextSize", KyRxValue(3.5)), Kyro::eOk);
    EXPECT_EQ(hostValue(L"VSFACESTYLE"), L"1");
    EXPECT_EQ(hostValue(L"VSFACEOPACITY"), L"-40");
    EXPECT_EQ(hostValue(L"TEXTSIZE"), L"3.5");

    // A colour the list doesn't hold yet enters it and is written at once.
    KyCmColor teal;
    teal.setRGB(0, 128, 128);
    EXPECT_EQ(write(L"Color", KyRxValue(teal)), Kyro::eOk);
    EXPECT_EQ(hostValue(L"CECOLOR"), L"RGB:0,128,128");
    EXPECT_EQ(write(L"Lineweight", KyRxValue(KyDb::kLnWt050)), Kyro::eOk);
    EXPECT_EQ(sentTexts(), std::vector<std::wstring>{L"'_celweight\n50\n"})
        << "only the lineweight leaves as a command";
}

TEST_F(DrawingContext, APlotStyleIsWrittenAsItsItem) {
    sentTexts();
    KyDiObservableCollection* styles = KyDiManager::getKnownCollection(L"KYRO_PLOTSTYLENAME");
    ASSERT_NE(styles, nullptr);
    KyDiDynamicObject* thin = nullptr;
    for (int i = 0; i < styles->getItems().length(); ++i) {
        if (KyDiGetItemName(styles->getItems()[i]) == KyString(L"Thin")) {
            thin = styles->getItems()[i];
        }
    }
    ASSERT_NE(thin, nullptr);
    // Through the member a palette lists: its value filter keeps the item.
    const auto* listedStyle = kyrxCast<KyRxProperty>(KyDiFindMember(context, L"PlotStyle"));
    ASSERT_NE(listedStyle, nullptr);
    EXPECT_EQ(listedStyle->setValue(context, KyRxValue(thin)), Kyro::eOk);
    EXPECT_EQ(hostValue(L"CPLOTSTYLE"), L"Thin");
}

TEST_F(DrawingContext, OnADrawingOpenedReadOnlyOnlyTileModeTellsTheRefusedLock) {
    KyString error;
    ASSERT_NE(host.documents().openDocument(KyString::fromUtf8(KYDI_TEST_SAMPLE), error,
                                            KyRefDocumentManager::OpenMode::kReadOnly),
              nullptr);
    pass();
    listed();
    EXPECT_EQ(write(L"TileMode", KyRxValue(false)), Kyro::eDocumentReadOnly);
    EXPECT_EQ(write(L"TextSize", KyRxValue(3.5)), Kyro::eOk);
    EXPECT_EQ(hostValue(L"TILEMODE"), L"1");
    EXPECT_EQ(hostValue(L"TEXTSIZE"), L"2.5");
}

TEST_F(DrawingContext, WithTheLastDrawingClosedItIsInactiveListsNothingAndReadsNeutralValues) {
    listed();
    host.documents().closeDocument(sample);
    host.documents().releaseClosedDocuments();
    pass();
    EXPECT_FALSE(context->isActive());
    EXPECT_EQ(listed(), Names{});
    EXPECT_EQ(read(L"Layer"), "0 (0)");
    EXPECT_EQ(read(L"Lineweight"), "Default (0)");
    EXPECT_EQ(read(L"TextSize"), "0 (0)");
    EXPECT_EQ(read(L"TileMode"), "true (0)");
}

}  // namespace
