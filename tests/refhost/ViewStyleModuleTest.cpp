// The host's view style module "KYSYNERGYOBJ": known from the start and
// loaded only when asked, its service while it runs, and the two functions
// it exports, which read and give the styles of the sample's section and
// detail callouts, as one step of undo, and answer false while it is
// unloaded; and a style a callout names is in use.
#include "KyRefDocument.h"
#include "KyRefViewStyleModule.h"
#include "RefHostTestSupport.h"
#include "db/KyAxDocLock.h"
#include "db/KyDbBlockTableRecord.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbDictionary.h"
#include "db/KyDbObjectPointer.h"
#include "db/KyDbStandardContent.h"
#include "db/KyDbSymbolTable.h"
#include "db/KyDbUndoController.h"
#include "db/KyDbViewCallout.h"
#include "db/KyDbViewStyleModule.h"
#include "rx/KyRxDictionary.h"
#include "rx/KyRxDynamicLinker.h"

namespace refhost {
namespace {

namespace Module = KyDbViewStyleModule;

KyRxDynamicLinker* linker() {
    return kyrxCast<KyRxDynamicLinker>(kyrxSysRegistry()->at(KYRX_DYNAMIC_LINKER));
}

template <typename Function>
Function symbol(const wchar_t* name) {
    return reinterpret_cast<Function>(linker()->getSymbolAddress(Module::kModuleName, name));
}

// The sample drawing, with its section callout (BC, style "Standard") and
// its detail callout (BD, style "Metric").
class ViewStyleModuleTest : public RefHostTest {
protected:
    ViewStyleModuleTest() {
        KyString error;
        KyRefDocument* sample = host->documents().openDocument(L"" KYDI_TEST_SAMPLE, error);
        EXPECT_NE(sample, nullptr) << error.utf8();
        database = sample->database();
        section = byHandle(0xBC);
        detail = byHandle(0xBD);
        wall = byHandle(0x4B);
    }
    ~ViewStyleModuleTest() override { kyrxUnloadModule(Module::kModuleName); }

    KyDbObjectId byHandle(std::uint64_t handle) const {
        KyDbObjectId id;
        EXPECT_EQ(database->getKyDbObjectId(id, KyDbHandle(handle)), Kyro::eOk);
        return id;
    }
    KyDbObjectId style(int kind, const wchar_t* name) const {
        KyDbObjectPointer<KyDbDictionary> styles(KyDbViewCallout::styleDictionaryId(database, kind),
                                                 KyDb::kForRead);
        KyDbObjectId id;
        EXPECT_EQ(styles->getAt(name, id), Kyro::eOk);
        return id;
    }
    KyDbObjectId styleOf(KyDbObjectId callout) const {
        return KyDbObjectPointer<KyDbViewCallout>(callout, KyDb::kForRead)->viewStyle();
    }
    // Reads `id` through the function `get`: its style and kind, or false.
    static bool read(KyModelDocGetViewStyleForEntityFn get, KyDbObjectId id, KyDbObjectId& styleId,
                     int& kind) {
        KyDbObjectPointer<KyDbEntity> entity(id, KyDb::kForRead);
        return get(entity.object(), styleId, kind);
    }
    // A second section callout in the sample's model space, not for undo.
    KyDbObjectId addSectionCallout() {
        KyAxDocLock lock(database);
        database->undoController()->setRecording(false);
        KyDbObjectId modelSpace;
        KyDbObjectPointer<KyDbSymbolTable>(database->blockTableId(), KyDb::kForRead)
            ->getAt(KyDbStandardContent::kModelSpaceName, modelSpace);
        KyDbObjectId id;
        {
            KyDbObjectPointer<KyDbBlockTableRecord> model(modelSpace, KyDb::kForWrite);
            auto* callout = new KyDbViewCallout();
            EXPECT_EQ(model->appendKyDbEntity(id, callout), Kyro::eOk);
            callout->close();
        }
        database->undoController()->setRecording(true);
        return id;
    }

    KyDbDatabase* database = nullptr;
    KyDbObjectId section;
    KyDbObjectId detail;
    KyDbObjectId wall;
};

TEST_F(ViewStyleModuleTest, TheModuleIsKnownFromTheStartAndRunsOnlyWhileLoaded) {
    ASSERT_NE(linker(), nullptr);
    EXPECT_TRUE(linker()->isModuleRegistered(L"KYSYNERGYOBJ"));
    EXPECT_FALSE(linker()->isModuleLoaded(L"KYSYNERGYOBJ")) << "loaded only when asked";
    EXPECT_FALSE(kyrxServiceIsRegistered(L"KYSYNERGYOBJ"));
    EXPECT_EQ(linker()->getSymbolAddress(L"KYSYNERGYOBJ", L"KyModelDocGetViewStyleForEntity"),
              nullptr);

    for (int round = 0; round < 2; ++round) {
        ASSERT_TRUE(kyrxLoadModule(L"KYSYNERGYOBJ", false)) << "round " << round;
        auto* services = kyrxCast<KyRxDictionary>(kyrxSysRegistry()->at(KYRX_SERVICE_DICTIONARY));
        ASSERT_NE(services, nullptr);
        EXPECT_NE(kyrxCast<KyRxService>(services->at(L"KYSYNERGYOBJ")), nullptr);
        EXPECT_NE(linker()->getSymbolAddress(L"KYSYNERGYOBJ", L"KyModelDocGetViewStyleForEntity"),
                  nullptr);
        EXPECT_NE(linker()->getSymbolAddress(L"KYSYNERGYOBJ", L"KyModelDocSetViewStyleForEntities"),
                  nullptr);
        EXPECT_EQ(linker()->getSymbolAddress(L"KYSYNERGYOBJ", L"KyModelDocGetViewStyle"), nullptr);

        EXPECT_TRUE(kyrxUnloadModule(L"KYSYNERGYOBJ"));
        EXPECT_FALSE(kyrxServiceIsRegistered(L"KYSYNERGYOBJ"));
        EXPECT_EQ(linker()->getSymbolAddress(L"KYSYNERGYOBJ", L"KyModelDocSetViewStyleForEntities"),
                  nullptr);
    }
    // Made known again (as by another host), a running module runs on.
    ASSERT_TRUE(kyrxLoadModule(L"KYSYNERGYOBJ", false));
    KyRefViewStyleModule::registerModule();
    EXPECT_TRUE(linker()->isModuleLoaded(L"KYSYNERGYOBJ"));
}

TEST_F(ViewStyleModuleTest, TheStyleAndKindOfACalloutAreReadWhileTheModuleRuns) {
    ASSERT_TRUE(kyrxLoadModule(Module::kModuleName, false));
    const auto get = symbol<KyModelDocGetViewStyleForEntityFn>(Module::kGetViewStyleForEntity);
    ASSERT_NE(get, nullptr);
    KyDbObjectId styleId;
    int kind = 0;
    ASSERT_TRUE(read(get, section, styleId, kind));
    EXPECT_EQ(styleId, style(1, L"Standard"));
    EXPECT_EQ(kind, 1);
    ASSERT_TRUE(read(get, detail, styleId, kind));
    EXPECT_EQ(styleId, style(2, L"Metric"));
    EXPECT_EQ(kind, 2);

    styleId = KyDbObjectId();
    kind = 0;
    EXPECT_FALSE(read(get, wall, styleId, kind)) << "a line has no view style";
    EXPECT_FALSE(get(nullptr, styleId, kind));
    EXPECT_TRUE(styleId.isNull());
    EXPECT_EQ(kind, 0);

    // The address kept from the load answers false once the module is gone,
    // and answers again when it is back.
    ASSERT_TRUE(kyrxUnloadModule(Module::kModuleName));
    EXPECT_FALSE(read(get, section, styleId, kind));
    ASSERT_TRUE(kyrxLoadModule(Module::kModuleName, false));
    EXPECT_TRUE(read(get, section, styleId, kind));
}

TEST_F(ViewStyleModuleTest, AStyleGoesToEveryCalloutOfItsKindAsOneStepOfUndo) {
    const KyDbObjectId second = addSectionCallout();
    ASSERT_TRUE(kyrxLoadModule(Module::kModuleName, false));
    const auto set = symbol<KyModelDocSetViewStyleForEntitiesFn>(Module::kSetViewStyleForEntities);
    ASSERT_NE(set, nullptr);
    const KyDbObjectId metric = style(1, L"Metric");
    KyArray<KyDbObjectId> ids;
    for (const KyDbObjectId& id : {wall, section, detail, second}) {
        ids.append(id);
    }
    const int groups = database->undoController()->undoCount();
    {
        KyAxDocLock lock(database);
        EXPECT_TRUE(set(ids, &metric, 1));
        EXPECT_FALSE(set(ids, &metric, 1)) << "each has the style already: none changed";
    }
    EXPECT_EQ(styleOf(section), metric);
    EXPECT_EQ(styleOf(second), metric);
    EXPECT_EQ(styleOf(detail), style(2, L"Metric")) << "a detail callout keeps its own";
    EXPECT_EQ(database->undoController()->undoCount(), groups + 1);
    EXPECT_STREQ(database->undoController()->undoLabel(), L"View style");

    ASSERT_EQ(host->documents().current()->database(), database);
    run(L"U\n");
    EXPECT_EQ(takeLog(), (Lines{"Command: U", "Undone: View style"}));
    EXPECT_EQ(styleOf(section), style(1, L"Standard"));
    EXPECT_EQ(styleOf(second), database->sectionViewStyle());
}

TEST_F(ViewStyleModuleTest, AStyleOfTheWrongKindOrNoneChangesNothing) {
    ASSERT_TRUE(kyrxLoadModule(Module::kModuleName, false));
    const auto set = symbol<KyModelDocSetViewStyleForEntitiesFn>(Module::kSetViewStyleForEntities);
    ASSERT_NE(set, nullptr);
    const KyDbObjectId sectionMetric = style(1, L"Metric");
    const KyDbObjectId detailStandard = style(2, L"Standard");
    const KyDbObjectId none;
    KyArray<KyDbObjectId> ids;
    ids.append(section);
    ids.append(detail);
    const int groups = database->undoController()->undoCount();
    {
        KyAxDocLock lock(database);
        EXPECT_FALSE(set(ids, nullptr, 1));
        EXPECT_FALSE(set(ids, &none, 1));
        EXPECT_FALSE(set(ids, &detailStandard, 1)) << "a detail style for section callouts";
        EXPECT_FALSE(set(ids, &sectionMetric, 2)) << "a section style for detail callouts";
        EXPECT_FALSE(set(ids, &sectionMetric, 3));
        EXPECT_FALSE(set(KyArray<KyDbObjectId>(), &sectionMetric, 1));
    }
    EXPECT_FALSE(set(ids, &sectionMetric, 1)) << "without the document lock nothing is written";
    EXPECT_EQ(styleOf(section), style(1, L"Standard"));
    EXPECT_EQ(styleOf(detail), style(2, L"Metric"));
    EXPECT_EQ(database->undoController()->undoCount(), groups) << "no step of undo for nothing";

    // While the module is unloaded, a kept address changes nothing.
    ASSERT_TRUE(kyrxUnloadModule(Module::kModuleName));
    KyAxDocLock lock(database);
    EXPECT_FALSE(set(ids, &sectionMetric, 1));
    EXPECT_EQ(styleOf(section), style(1, L"Standard"));
}

// Not the module's doing, but what makes its styles safe to hand out: a
// style a callout names can't be erased.
TEST_F(ViewStyleModuleTest, AStyleACalloutNamesIsInUse) {
    const KyDbObjectId detailMetric = style(2, L"Metric");
    const KyDbObjectId sectionMetric = style(1, L"Metric");
    run(L"RECORD\n_Erase\nDETAILVIEWSTYLE\nMetric\n");
    EXPECT_EQ(takeLog().back(), "Cannot erase detail view style \"Metric\": it is in use.");
    EXPECT_FALSE(isErased(detailMetric));
    run(L"RECORD\n_Erase\nSECTIONVIEWSTYLE\nMetric\n");
    EXPECT_TRUE(isErased(sectionMetric)) << "no callout names the section style";
}

}  // namespace
}  // namespace refhost
