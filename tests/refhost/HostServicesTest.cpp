// The services of the reference host: each can be left out, each answers
// from the current drawing where it can, and keeps the state a test sets. And
// the host's manual clock, and its events on copies of the reactor list.
#include "KyRefManualClock.h"
#include "KyRefReadAccess.h"
#include "RefHostTestSupport.h"
#include "base/KyRxResourceInstance.h"
#include "db/KyAxDocLock.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbDictionary.h"
#include "db/KyDbDictionaryIterator.h"
#include "db/KyDbLayout.h"
#include "db/KyDbObjectPointer.h"
#include "db/KyDbVisualStyle.h"
#include "pal/KyPal.h"

namespace refhost {
namespace {

class HostServicesTest : public RefHostTest {};

// The current layout of `database`, open for read while the result lives.
KyRefReadAccess<KyDbLayout> layoutOf(KyDbDatabase* database) {
    return KyRefReadAccess<KyDbLayout>(kydbCurrentLayoutId(database));
}

// The names of the items of `ids`, read through their dictionary.
Lines visualStyleNames(const KyArray<KyDbObjectId>& ids);

struct ServiceRow {
    const char* name;
    bool KyRefHostOptions::*option;
    bool (*present)(KyRefHost& host);
};

template <auto Getter>
bool has(KyRefHost& host) {
    return (host.*Getter)() != nullptr;
}

const ServiceRow kServices[] = {
    {"editor", &KyRefHostOptions::editor, has<&KyRefHost::editor>},
    {"viewport", &KyRefHostOptions::viewportService, has<&KyRefHost::viewportService>},
    {"visual style", &KyRefHostOptions::visualStyleService, has<&KyRefHost::visualStyleService>},
    {"selection", &KyRefHostOptions::selectionService, has<&KyRefHost::selectionService>},
    {"regeneration", &KyRefHostOptions::regenerationService, has<&KyRefHost::regenerationService>},
    {"ucs", &KyRefHostOptions::ucsService, has<&KyRefHost::ucsService>},
    {"layer", &KyRefHostOptions::layerService, has<&KyRefHost::layerService>},
    {"plot", &KyRefHostOptions::plotService, has<&KyRefHost::plotService>},
    {"render", &KyRefHostOptions::renderService, has<&KyRefHost::renderService>},
    {"color", &KyRefHostOptions::colorService, has<&KyRefHost::colorService>},
    {"scale list", &KyRefHostOptions::scaleListService, has<&KyRefHost::scaleListService>},
    {"image", &KyRefHostOptions::imageService, has<&KyRefHost::imageService>},
    {"recent block", &KyRefHostOptions::recentBlockService, has<&KyRefHost::recentBlockService>},
    {"counting", &KyRefHostOptions::countingService, has<&KyRefHost::countingService>},
};

TEST(HostOptionsTest, EachServiceCanBeLeftOutAndTheOthersStay) {
    for (const ServiceRow& left : kServices) {
        KyRefHostOptions options;
        options.*left.option = false;
        KyRefHost host(options);
        for (const ServiceRow& service : kServices) {
            EXPECT_EQ(service.present(host), &service != &left)
                << service.name << " with " << left.name << " left out";
        }
    }
}

TEST(HostOptionsTest, AHostWithEveryServiceAbsentStillHasItsDocuments) {
    KyRefHost host(KyRefHostOptions::withoutServices());
    for (const ServiceRow& service : kServices) {
        EXPECT_FALSE(service.present(host)) << service.name;
    }
    EXPECT_EQ(host.reservedService(), nullptr);
    ASSERT_NE(host.documentManager(), nullptr);
    EXPECT_EQ(host.documentManager()->currentDocument(), kKyDiNoDocument);
    host.documents().newDocument();
    host.idle();
    KyRefResbufPtr value;
    EXPECT_EQ(host.sysVars().get(L"LUPREC", value), KyRefSysVarStatus::kOk);
    EXPECT_EQ(value->resval.rint, 4);
    EXPECT_TRUE(host.commandNames().isEmpty());
}

TEST_F(HostServicesTest, TheVisualStylesOfferedAreTheDrawingsOwnForUsers) {
    KyRefVisualStyleService& styles = *host->visualStyleService();
    KyArray<KyDbObjectId> ids;
    ASSERT_EQ(styles.getListedStyles(db(), ids), Kyro::eOk);
    EXPECT_EQ(visualStyleNames(ids),
              (Lines{"2dWireframe", "Conceptual", "Hidden", "Modeling", "Realistic", "Shaded",
                     "Shaded with edges", "Shades of Gray", "Sketchy", "Wireframe", "X-Ray"}));

    KyDbObjectId current;
    ASSERT_EQ(styles.getCurrent(current), Kyro::eOk);
    EXPECT_EQ(current, ids[0]);
    EXPECT_EQ(styles.styleKind(current), 4);
    EXPECT_TRUE(styles.isTwoDimensional());

    KyRefReadAccess<KyDbDictionary> dictionary(db()->visualStyleDictionaryId());
    KyDbObjectId internal;
    dictionary->getAt(L"Basic", internal);
    EXPECT_EQ(styles.styleKind(internal), KyDiVisualStyleService::kUnlistedStyle);

    spy.take();
    ASSERT_EQ(styles.setCurrent(ids[1], 0), Kyro::eOk);
    EXPECT_EQ(styles.currentName(), L"Conceptual");
    EXPECT_FALSE(styles.isTwoDimensional());
    EXPECT_EQ(spy.take(), Lines{"invalidateAll"}) << "another style is drawn anew";
    ASSERT_EQ(styles.setCurrent(ids[1], 0), Kyro::eOk);
    EXPECT_EQ(styles.setCurrent(db()->layerTableId(), 0), Kyro::eInvalidInput);
    EXPECT_EQ(spy.take(), Lines{}) << "the same style, and none";
}

Lines visualStyleNames(const KyArray<KyDbObjectId>& ids) {
    Lines names;
    for (int i = 0; i < ids.length(); ++i) {
        KyRefReadAccess<KyDbVisualStyle> style(ids[i]);
        names.push_back(style ? style->name().utf8() : "?");
    }
    return names;
}

TEST_F(HostServicesTest, TheViewResolutionIsAVariableWhoseChangeRegenerates) {
    KyRefVisualStyleService& styles = *host->visualStyleService();
    EXPECT_EQ(styles.getViewResolution(), 1000);
    EXPECT_EQ(styles.setViewResolution(500), Kyro::eOk);
    EXPECT_EQ(styles.setViewResolution(0), Kyro::eInvalidInput);
    EXPECT_EQ(styles.getViewResolution(), 500);
    EXPECT_EQ(spy.take(),
              (Lines{"sysVarWillChange VIEWRES", "sysVarChanged VIEWRES true", "invalidateAll",
                     "sysVarWillChange VIEWRES", "sysVarChanged VIEWRES false"}));
    // Typed, it regenerates once the command has told its changes.
    run(L"VIEWRES\n2000\n");
    EXPECT_EQ(spy.take(), (Lines{"commandWillStart VIEWRES", "sysVarChanged VIEWRES true",
                                 "invalidateAll", "commandEnded VIEWRES", "refreshNeeded false"}));
    EXPECT_EQ(styles.getViewResolution(), 2000);
}

TEST_F(HostServicesTest, TheScalesOfferedAreTheDrawingsScaleList) {
    KyArray<KyString> names;
    ASSERT_EQ(host->scaleListService()->getScaleNames(db(), names), Kyro::eOk);
    ASSERT_EQ(names.length(), 17);
    EXPECT_EQ(names[0], L"1:1");
    EXPECT_EQ(names[16], L"100:1");
    EXPECT_EQ(host->scaleListService()->getScaleNames(nullptr, names), Kyro::eInvalidInput);
}

TEST_F(HostServicesTest, EachLayoutKeepsItsPlotStyleTableAndChangesAreTold) {
    KyRefPlotService& plot = *host->plotService();
    KyString text;
    ASSERT_TRUE(plot.getPlotStyleTable(text));
    EXPECT_EQ(text, L"Default.ctb");
    ASSERT_TRUE(plot.getPlotStyleTableType(text));
    EXPECT_EQ(text, L"Color-dependent");
    ASSERT_TRUE(plot.getPlotAttachmentSpace(text));
    EXPECT_EQ(text, L"Model");

    const KyString monochrome(L"MONOCHROME.ctb");
    const KyString named(L"Default.stb");
    EXPECT_TRUE(plot.setPlotStyleTable(&monochrome));
    EXPECT_FALSE(plot.setPlotStyleTable(&named)) << "a table of the other kind";
    EXPECT_TRUE(plot.setPlotStyleTable(&monochrome));
    EXPECT_EQ(spy.take(),
              (Lines{"plotSettingsChanged", "plotSettingsChangedForLayout Model", "layoutChanged"}))
        << "once: the refused table and the same one again are no change";
    EXPECT_EQ(layoutOf(db())->plotStyleTable(), L"Monochrome.ctb")
        << "the layout keeps the table in its own spelling";

    ASSERT_TRUE(plot.setLayoutByName(KyString(L"Layout1")));
    EXPECT_EQ(spy.take(),
              (Lines{"sysVarWillChange CTAB", "sysVarChanged TILEMODE true",
                     "sysVarChanged CTAB true", "sysVarChanged CVPORT true", "plotSettingsChanged",
                     "plotSettingsChangedForLayout Layout1", "layoutChanged"}))
        << "the settings of the layout now current are in effect";
    ASSERT_TRUE(plot.getPlotStyleTable(text));
    EXPECT_EQ(text, L"Default.ctb");
    ASSERT_TRUE(plot.getPageSetupName(text));
    EXPECT_EQ(text, L"") << "the settings come from no page setup";
    ASSERT_TRUE(plot.getPlotAttachmentSpace(text));
    EXPECT_EQ(text, L"Layout");
    EXPECT_FALSE(plot.setLayoutByName(KyString(L"Layout9")));

    short dpi = -1;
    ASSERT_TRUE(plot.getRasterDpi(dpi));
    EXPECT_EQ(dpi, 0);
    spy.take();
    EXPECT_TRUE(plot.setRasterDpi(600));
    EXPECT_FALSE(plot.setRasterDpi(10));
    EXPECT_FALSE(plot.setRasterDpi(0)) << "a resolution, not none";
    ASSERT_TRUE(plot.getRasterDpi(dpi));
    EXPECT_EQ(dpi, 600);
    EXPECT_EQ(spy.take(), (Lines{"plotSettingsChanged", "plotSettingsChangedForLayout Layout1",
                                 "layoutChanged"}));
    EXPECT_EQ(layoutOf(db())->rasterDpi(), 600);

    ASSERT_TRUE(plot.setLayoutByName(KyString(L"Model")));
    ASSERT_TRUE(plot.getRasterDpi(dpi));
    EXPECT_EQ(dpi, 0) << "each layout has its own";
    ASSERT_TRUE(plot.getPlotStyleTable(text));
    EXPECT_EQ(text, L"Monochrome.ctb");
}

TEST_F(HostServicesTest, ThePlotServicesChangesAreStepsOfUndo) {
    KyRefPlotService& plot = *host->plotService();
    ASSERT_TRUE(plot.setRasterDpi(1200));
    spy.take();
    run(L"U\n");
    EXPECT_EQ(layoutOf(db())->rasterDpi(), 0);
    EXPECT_EQ(
        spy.take(),
        (Lines{"commandWillStart U", "plotSettingsChanged", "plotSettingsChangedForLayout Model",
               "layoutChanged", "drawingContentChanged", "commandEnded U", "refreshNeeded false"}));
}

// A drawing with named plot styles, made current.
KyRefDocument* namedPlotStyleDrawing(KyRefHost& host) {
    KyRefDocument* document = host.documents().newDocument();
    KyAxDocLock lock(document->database());
    EXPECT_EQ(document->database()->setPlotStyleMode(false), Kyro::eOk);
    return document;
}

Lines texts(const KyArray<KyString>& names) {
    Lines lines;
    for (int i = 0; i < names.length(); ++i) {
        lines.push_back(names[i].utf8());
    }
    return lines;
}

Lines texts(const std::vector<KyString>& names) {
    Lines lines;
    for (const KyString& name : names) {
        lines.push_back(name.utf8());
    }
    return lines;
}

TEST_F(HostServicesTest, ThePlotStylesOfferedAreThoseOfTheTableOfTheDrawingsLayout) {
    KyRefPlotService& plot = *host->plotService();
    KyDbObjectId owner;
    KyArray<KyString> names;
    EXPECT_FALSE(plot.getPlotStyleNames(db(), owner, names)) << "colour-dependent styles";
    EXPECT_FALSE(plot.getPlotStyleNames(nullptr, owner, names));
    EXPECT_TRUE(names.isEmpty());

    KyRefDocument* named = namedPlotStyleDrawing(*host);
    ASSERT_TRUE(plot.getPlotStyleNames(named->database(), owner, names));
    EXPECT_EQ(owner, named->database()->plotStyleNameDictionaryId());
    EXPECT_EQ(texts(names), (Lines{"Normal", "Style 1"}))
        << "the table offers a style the drawing doesn't hold yet";

    const KyString grayscale(L"Grayscale.stb");
    ASSERT_TRUE(plot.setPlotStyleTable(&grayscale));
    plot.setTableStyles(KyString(L"GRAYSCALE.STB"), {KyString(L"Normal"), KyString(L"Halftone")});
    host->documents().newDocument();
    names.removeAll();
    ASSERT_TRUE(plot.getPlotStyleNames(named->database(), owner, names));
    EXPECT_EQ(texts(names), (Lines{"Normal", "Halftone"}))
        << "the table of that drawing, not of the drawing in front";

    host->documents().makeCurrent(named);
    ASSERT_TRUE(plot.setLayoutByName(KyString(L"Layout1")));
    names.removeAll();
    ASSERT_TRUE(plot.getPlotStyleNames(named->database(), owner, names));
    EXPECT_EQ(texts(names), (Lines{"Normal", "Style 1"})) << "the layout has a table of its own";

    KyDbDatabase background(true);
    ASSERT_EQ(background.setPlotStyleMode(false), Kyro::eOk);
    names.removeAll();
    ASSERT_TRUE(plot.getPlotStyleNames(&background, owner, names));
    EXPECT_EQ(texts(names), (Lines{"Normal", "Style 1"})) << "a drawing without a document";
}

// The names of the layouts of `database` with the table each names.
std::vector<std::pair<KyString, KyString>> layoutTables(KyDbDatabase* database) {
    std::vector<std::pair<KyString, KyString>> tables;
    KyRefReadAccess<KyDbDictionary> layouts(database->layoutDictionaryId());
    const std::unique_ptr<KyDbDictionaryIterator> it(layouts->newIterator());
    for (; !it->done(); it->next()) {
        KyRefReadAccess<KyDbLayout> layout(it->objectId());
        tables.emplace_back(layout->layoutName(), layout->plotStyleTable());
    }
    return tables;
}

TEST_F(HostServicesTest, EveryTableTheSampleNamesIsOnOfferWithEveryStyleTheSampleUses) {
    KyString error;
    KyRefDocument* sample = host->documents().openDocument(L"" KYDI_TEST_SAMPLE, error);
    ASSERT_NE(sample, nullptr) << error.utf8();
    KyRefPlotService& plot = *host->plotService();
    KyArray<KyString> offered;
    plot.listPlotStyleTables(offered, true, false);
    const auto tables = layoutTables(sample->database());
    ASSERT_EQ(tables.size(), 3u);
    for (const auto& [layoutName, table] : tables) {
        EXPECT_TRUE(offered.contains(table)) << layoutName.utf8() << " names " << table.utf8();
        ASSERT_TRUE(plot.setLayoutByName(layoutName));
        KyDbObjectId owner;
        KyArray<KyString> styles;
        ASSERT_TRUE(plot.getPlotStyleNames(sample->database(), owner, styles));
        for (const char* used : {"Normal", "Thin", "Bold"}) {
            EXPECT_TRUE(styles.contains(KyString::fromUtf8(used)))
                << table.utf8() << " lacks " << used;
        }
    }
    ASSERT_TRUE(plot.setLayoutByName(KyString(L"Model")));
    KyDbObjectId owner;
    KyArray<KyString> styles;
    ASSERT_TRUE(plot.getPlotStyleNames(sample->database(), owner, styles));
    EXPECT_EQ(texts(styles), (Lines{"Normal", "Thin", "Bold"})) << "the sample's own table";
}

TEST_F(HostServicesTest, RenderPresetsAreTheHostsAndTheDrawings) {
    KyRefRenderService& render = *host->renderService();
    KyString name;
    render.getCurrentPresetName(name);
    EXPECT_EQ(name, L"Medium");
    EXPECT_EQ(render.setCurrentPreset(KyString(L"high")), Kyro::eOk);
    EXPECT_EQ(render.setCurrentPreset(KyString(L"Blinding")), Kyro::eKeyNotFound);
    render.getCurrentPresetName(name);
    EXPECT_EQ(name, L"high");
    EXPECT_EQ(render.setCurrentPreset(KyString(L"High")), Kyro::eOk);
    EXPECT_EQ(texts(render.appliedPresets()), (Lines{"high", "High"}))
        << "taken up each time it is made current, the refused one never";
    KyArray<KyDbObjectId> ids;
    EXPECT_EQ(render.getPresetIds(db(), ids), Kyro::eOk);
    EXPECT_TRUE(ids.isEmpty()) << "a new drawing has no presets of its own";
    KyDbObjectId owner;
    EXPECT_EQ(render.getPresetDictionaryId(db(), owner), Kyro::eOk);
    EXPECT_EQ(owner, db()->renderSettingsDictionaryId());
    render.getOutputSize(name);
    EXPECT_EQ(name, L"640x480");
    render.setPaletteAvailable(false);
    EXPECT_EQ(render.setDisplayProperties(true), Kyro::eNotApplicable);
    EXPECT_FALSE(render.displaysProperties()) << "a refused show changes nothing";
}

TEST_F(HostServicesTest, EachDrawingHasItsOwnBackgroundBehindExternalReferences) {
    KyDiExternalReferenceHost& references = host->externalReferenceHost();
    KyRefDocument* first = host->documents().current();
    KyCmColor red;
    red.setColorIndex(KyCmColor::kACIRed);
    host->externalReferenceHost().setBackgroundOverride(first->handle(), red);
    host->documents().newDocument();

    KyCmColor color;
    ASSERT_EQ(references.getBackgroundOverride(color, nullptr), Kyro::eOk);
    EXPECT_TRUE(color.isNone()) << "the drawing in front has none";
    ASSERT_EQ(references.getBackgroundOverride(color, first->database()), Kyro::eOk);
    EXPECT_EQ(color.colorIndex(), KyCmColor::kACIRed);
    host->documents().makeCurrent(first);
    ASSERT_EQ(references.getBackgroundOverride(color, nullptr), Kyro::eOk);
    EXPECT_EQ(color.colorIndex(), KyCmColor::kACIRed);

    KyCmColor none;
    none.setColorMethod(KyCmColor::kNone);
    host->externalReferenceHost().setBackgroundOverride(first->handle(), none);
    ASSERT_EQ(references.getBackgroundOverride(color, nullptr), Kyro::eOk);
    EXPECT_TRUE(color.isNone());

    KyDbDatabase background(true);
    color = red;
    EXPECT_EQ(references.getBackgroundOverride(color, &background), Kyro::eInvalidInput);
    EXPECT_EQ(color.colorIndex(), KyCmColor::kACIRed) << "left alone";
    host->documents().closeAll();
    EXPECT_EQ(references.getBackgroundOverride(color, nullptr), Kyro::eNoCurrentDocument);
}

TEST_F(HostServicesTest, TheUcsIsWhatUcsnameNames) {
    KyString name;
    KyDbObjectId id;
    ASSERT_EQ(host->ucsService()->getCurrent(name, id), Kyro::eOk);
    EXPECT_EQ(name, L"World");
    EXPECT_TRUE(id.isNull());
    host->documents().closeAll();
    EXPECT_EQ(host->ucsService()->getCurrent(name, id), Kyro::eNoCurrentDocument);
}

TEST_F(HostServicesTest, TheColorListNamesAreInTheUsersLanguage) {
    KyRefColorService& colors = *host->colorService();
    KyString name;
    ASSERT_EQ(colors.name(1, name), Kyro::eOk);
    EXPECT_EQ(name, L"ByLayer");
    ASSERT_EQ(colors.name(3, name), Kyro::eOk);
    EXPECT_EQ(name, L"red");
    EXPECT_EQ(colors.name(10, name), Kyro::eInvalidInput);
    KyRxResourceInstance::setLanguage(L"de");
    ASSERT_EQ(colors.name(2, name), Kyro::eOk);
    KyRxResourceInstance::setLanguage(L"");
    EXPECT_EQ(name, L"VonBlock");
}

TEST_F(HostServicesTest, TheLayerServiceAnswersAsSetAndCountsItsQuestions) {
    KyRefLayerService& layers = *host->layerService();
    EXPECT_EQ(layers.askTurnOnCurrentLayer(), KyDiLayerService::kTurnLayerOn);
    layers.setTurnOnAnswer(KyDiLayerService::kLeaveLayerOff);
    EXPECT_EQ(layers.askTurnOnCurrentLayer(), KyDiLayerService::kLeaveLayerOff);
    EXPECT_EQ(layers.questionCount(), 2);
    layers.reportCurrentLayerCantFreeze();
    EXPECT_EQ(takeLog(), (Lines{"The current layer can't be frozen."}));
}

TEST_F(HostServicesTest, RecentBlocksCountsAndRegenerationsAreKeptAsSet) {
    host->recentBlockService()->setNames({KyString(L"Door"), KyString(L"Window")});
    host->recentBlockService()->noteInserted(L"window");
    KyArray<KyString> names;
    host->recentBlockService()->getRecentBlockNames(names);
    ASSERT_EQ(names.length(), 2);
    EXPECT_EQ(names[0], L"window");
    EXPECT_EQ(names[1], L"Door");

    KyString name;
    KyString value;
    EXPECT_EQ(host->countingService()->getActiveRecord(name, value), Kyro::eNotApplicable);
    host->countingService()->setRecords({{KyString(L"Doors"), KyString(L"12")}});
    host->countingService()->setActiveIndex(0);
    EXPECT_EQ(host->countingService()->getActiveRecord(name, value), Kyro::eOk);
    EXPECT_EQ(value, L"12");

    KyArray<KyDbObjectId> layers;
    layers.append(db()->layerTableId());
    host->regenerationService()->setRegenMode(2);
    host->regenerationService()->regenLayers(layers, host->regenerationService()->regenMode());
    ASSERT_EQ(host->regenerationService()->requests().size(), 1U);
    EXPECT_EQ(host->regenerationService()->requests()[0].mode, 2);
}

TEST_F(HostServicesTest, TheManualClockMovesOnlyWhenTold) {
    ASSERT_NE(host->clock(), nullptr);
    EXPECT_EQ(KyPal::SteadyClock::now(), KyRefManualClock::kStartNanoseconds);
    host->clock()->advance(250);
    EXPECT_EQ(KyPal::SteadyClock::now(), KyRefManualClock::kStartNanoseconds + 250'000'000);
    host->clock()->advance(-5);
    EXPECT_EQ(KyPal::SteadyClock::now(), KyRefManualClock::kStartNanoseconds + 250'000'000);
    host.reset();
    const std::int64_t real = KyPal::SteadyClock::now();
    EXPECT_LT(real, KyPal::SteadyClock::now() + 1) << "the real clock is back";
    EXPECT_NE(real, KyRefManualClock::kStartNanoseconds + 250'000'000);
}

// Removes itself and the reactor after it while an event is raised.
class LeavingReactor : public EventSpy {
public:
    LeavingReactor(KyRefHost& host, KyDiHostReactor& next) : m_host(host), m_next(next) {}
    void refreshNeeded(bool force) override {
        EventSpy::refreshNeeded(force);
        m_host.removeReactor(this);
        m_host.removeReactor(&m_next);
    }

private:
    KyRefHost& m_host;
    KyDiHostReactor& m_next;
};

TEST_F(HostServicesTest, AReactorRemovedDuringAnEventIsNotCalledAfterwards) {
    host->removeReactor(&spy);
    LeavingReactor leaving(*host, spy);
    host->addReactor(&leaving);
    host->addReactor(&spy);
    host->events().raiseRefreshNeeded(true);
    host->events().raiseRefreshNeeded(false);
    EXPECT_EQ(leaving.take(), (Lines{"refreshNeeded true"}));
    EXPECT_TRUE(spy.lines().empty());
    EXPECT_EQ(host->events().count(), 0);
}

}  // namespace
}  // namespace refhost
