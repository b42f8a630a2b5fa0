// The host contract as an application sees it: every header compiles on its
// own terms, a host without any optional feature and a host with all of them
// can be written against it, and calls reach the implementation through each
// operation.
#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

#include "kydi/KyDiColorService.h"
#include "kydi/KyDiCountingRecord.h"
#include "kydi/KyDiCountingService.h"
#include "kydi/KyDiDocumentManager.h"
#include "kydi/KyDiEditorService.h"
#include "kydi/KyDiExport.h"
#include "kydi/KyDiExternalReferenceHost.h"
#include "kydi/KyDiHost.h"
#include "kydi/KyDiHostReactor.h"
#include "kydi/KyDiImageService.h"
#include "kydi/KyDiLayerService.h"
#include "kydi/KyDiPlotService.h"
#include "kydi/KyDiRecentBlockService.h"
#include "kydi/KyDiRegenerationService.h"
#include "kydi/KyDiRenderService.h"
#include "kydi/KyDiScaleListService.h"
#include "kydi/KyDiSelectionService.h"
#include "kydi/KyDiTypes.h"
#include "kydi/KyDiUcsService.h"
#include "kydi/KyDiViewportService.h"
#include "kydi/KyDiVisualStyleService.h"

// The selection's sub-entity paths need the complete path type to be held in
// an array; the test exercises them once the drawing database declares it.
#if __has_include("db/KyDbFullSubentPath.h")
#include "db/KyDbFullSubentPath.h"
#define KYDI_TEST_HAS_SUBENT_PATH 1
#else
#define KYDI_TEST_HAS_SUBENT_PATH 0
#endif

namespace {

// A document manager with no document open.
class EmptyDocumentManager final : public KyDiDocumentManager {
public:
    int documentCount() override { return 0; }
    KyDiDocument document(int) override { return kKyDiNoDocument; }
    KyDiDocument currentDocument() override { return kKyDiNoDocument; }
    KyDiDocument documentOf(KyDbDatabase*) override { return kKyDiNoDocument; }
    KyDbDatabase* databaseOf(KyDiDocument) override { return nullptr; }
    KyDbDatabase* workingDatabase() override { return nullptr; }
    KyString documentName(KyDiDocument) override { return KyString(); }
    bool isDocumentQuiescent(KyDiDocument) override { return true; }
    void longTransactionId(KyDbObjectId& out, KyDiDocument) override { out.setNull(); }
};

// A host with a document manager and nothing else. It keeps its reactors and
// raises events on request, as an application does.
class BareHost : public KyDiHost {
public:
    void addReactor(KyDiHostReactor* reactor) override { reactors.push_back(reactor); }
    void removeReactor(KyDiHostReactor* reactor) override { std::erase(reactors, reactor); }
    KyDiDocumentManager* documentManager() override { return &documents; }
    KyDiEditorService* editor() override { return nullptr; }
    KyDiViewportService* viewportService() override { return nullptr; }
    KyDiVisualStyleService* visualStyleService() override { return nullptr; }
    KyDiSelectionService* selectionService() override { return nullptr; }
    KyDiRegenerationService* regenerationService() override { return nullptr; }
    KyDiUcsService* ucsService() override { return nullptr; }
    KyDiLayerService* layerService() override { return nullptr; }
    KyDiPlotService* plotService() override { return nullptr; }
    KyDiRenderService* renderService() override { return nullptr; }
    KyDiColorService* colorService() override { return nullptr; }
    KyDiScaleListService* scaleListService() override { return nullptr; }
    KyDiImageService* imageService() override { return nullptr; }
    KyDiRecentBlockService* recentBlockService() override { return nullptr; }
    void* reservedService() override { return nullptr; }
    KyDiCountingService* countingService() override { return nullptr; }

    // Raises every event once, in slot order.
    void raiseEveryEvent(KyDiDocument document) {
        for (KyDiHostReactor* reactor : std::vector<KyDiHostReactor*>(reactors)) {
            reactor->refreshNeeded(true);
            reactor->documentToBeDestroyed(document);
            reactor->documentDestroyed();
            reactor->documentDestructionDone();
            reactor->sysVarChanged(L"CLAYER", true);
            reactor->sysVarWillChange(L"CLAYER");
            reactor->commandWillStart(L"LINE");
            reactor->hostStateChanged();
            reactor->invalidateAll();
            reactor->drawingContentChanged();
            reactor->commandEnded(L"-LAYER");
            reactor->ucsChanged();
            reactor->plotSettingsChanged();
            reactor->plotSettingsChangedForLayout(L"Layout1");
            reactor->layoutChanged();
            reactor->documentBecameQuiet(document);
            reactor->documentBecameBusy(document);
        }
    }

    EmptyDocumentManager documents;
    std::vector<KyDiHostReactor*> reactors;
};

// Writes each event as one line: its name and its arguments.
class RecordingReactor final : public KyDiHostReactor {
public:
    void refreshNeeded(bool force) override { add("refreshNeeded", force); }
    void documentToBeDestroyed(KyDiDocument document) override {
        add("documentToBeDestroyed", document);
    }
    void documentDestroyed() override { add("documentDestroyed"); }
    void documentDestructionDone() override { add("documentDestructionDone"); }
    void sysVarChanged(const wchar_t* name, bool success) override {
        add("sysVarChanged", name, success);
    }
    void sysVarWillChange(const wchar_t* name) override { add("sysVarWillChange", name); }
    void commandWillStart(const wchar_t* globalCommandName) override {
        add("commandWillStart", globalCommandName);
    }
    void hostStateChanged() override { add("hostStateChanged"); }
    void invalidateAll() override { add("invalidateAll"); }
    void drawingContentChanged() override { add("drawingContentChanged"); }
    void commandEnded(const wchar_t* globalCommandName) override {
        add("commandEnded", globalCommandName);
    }
    void ucsChanged() override { add("ucsChanged"); }
    void plotSettingsChanged() override { add("plotSettingsChanged"); }
    void plotSettingsChangedForLayout(const wchar_t* layoutName) override {
        add("plotSettingsChangedForLayout", layoutName);
    }
    void layoutChanged() override { add("layoutChanged"); }
    void documentBecameQuiet(KyDiDocument document) override {
        add("documentBecameQuiet", document);
    }
    void documentBecameBusy(KyDiDocument document) override { add("documentBecameBusy", document); }

    std::vector<std::string> lines;

private:
    static std::string text(bool value) { return value ? "true" : "false"; }
    static std::string text(KyDiDocument value) { return std::to_string(value); }
    static std::string text(const wchar_t* value) { return KyString(value).utf8(); }

    void add(const char* event) { lines.emplace_back(event); }
    template <typename A>
    void add(const char* event, A a) {
        lines.push_back(std::string(event) + " " + text(a));
    }
    template <typename A, typename B>
    void add(const char* event, A a, B b) {
        lines.push_back(std::string(event) + " " + text(a) + " " + text(b));
    }
};

// One implementation of each optional service, each answering fixed values.

class TestEditor final : public KyDiEditorService {
public:
    Kyro::ErrorStatus sendCommand(const wchar_t* text, bool, bool, bool) override {
        queued.append(text);
        return Kyro::eOk;
    }
    int getVar(const wchar_t* name, resbuf* out) override {
        if (KyString(name).compareNoCase(L"CVPORT") != 0) {
            return KYRT_REJECTED;
        }
        out->restype = KYRB_SHORT;
        out->resval.rint = 2;
        return KYRT_NORM;
    }
    int setVar(const wchar_t*, const resbuf*) override { return KYRT_REJECTED; }
    void prompt(const wchar_t* text) override { commandLine.append(text); }
    void beginCommand(const wchar_t* name) override { scopes.append(name).append(L"{"); }
    void endCommand(const wchar_t* name) override { scopes.append(L"}").append(name); }
    const wchar_t* localCommandName(const wchar_t*) override { return L"-CALQUE"; }

    KyString queued;
    KyString commandLine;
    KyString scopes;
};

class TestViewport final : public KyDiViewportService {
public:
    Kyro::ErrorStatus getCurrentViewportId(KyDbObjectId& out) override {
        out.setNull();
        return Kyro::eOk;
    }
    Kyro::ErrorStatus viewportId(KyDbObjectId&) override { return Kyro::eNotApplicable; }
    Kyro::ErrorStatus viewportKey(KyDbObjectId&) override { return Kyro::eNotApplicable; }
    bool matchesView(const KyDbViewTableRecord* view) override { return view == nullptr; }
    Kyro::ErrorStatus restoreView(const KyDbObjectId&) override { return Kyro::eNotApplicable; }
    Kyro::ErrorStatus getViewPoint(KyGePoint3d& out, int selector) override {
        out = selector == kCameraLocation ? camera : center;
        return Kyro::eOk;
    }
    Kyro::ErrorStatus setViewPoint(const KyGePoint3d& point, int selector) override {
        (selector == kCameraLocation ? camera : center) = point;
        return Kyro::eOk;
    }
    bool isNavBoxOff(KyDbDatabase*) override { return true; }
    bool isViewLocked(KyDbDatabase*) override { return false; }
    double getLensLength() override { return lensLength; }
    Kyro::ErrorStatus setLensLength(double length) override {
        lensLength = length;
        return Kyro::eOk;
    }
    Kyro::ErrorStatus getExposureParameters(KyGiPhotographicExposureParameters& out) override {
        out = exposure;
        return Kyro::eOk;
    }
    Kyro::ErrorStatus setExposureParameters(
        const KyGiPhotographicExposureParameters& parameters) override {
        exposure = parameters;
        return Kyro::eOk;
    }
    Kyro::ErrorStatus getBackgroundOverride(KyCmColor& out) override {
        return out.setColorIndex(KyCmColor::kACIBlue);
    }

    KyGePoint3d camera{1.0, 2.0, 3.0};
    KyGePoint3d center;
    double lensLength = 50.0;
    KyGiPhotographicExposureParameters exposure;
};

class TestVisualStyles final : public KyDiVisualStyleService {
public:
    Kyro::ErrorStatus getCurrent(KyDbObjectId& out) override {
        out.setNull();
        return Kyro::eOk;
    }
    int styleKind(const KyDbObjectId&) override { return kUnlistedStyle; }
    Kyro::ErrorStatus setCurrent(const KyDbObjectId&, int mode) override {
        return mode == 0 ? Kyro::eOk : Kyro::eInvalidInput;
    }
    Kyro::ErrorStatus getListedStyles(KyDbDatabase*, KyArray<KyDbObjectId>& ids) override {
        ids.append(KyDbObjectId::kNull);
        return Kyro::eOk;
    }
    bool isTwoDimensional() override { return true; }
    int getViewResolution() override { return resolution; }
    Kyro::ErrorStatus setViewResolution(int value) override {
        resolution = value;
        return Kyro::eOk;
    }

    int resolution = 1000;
};

class TestSelection final : public KyDiSelectionService {
public:
    bool hasSelection() override { return false; }
    Kyro::ErrorStatus getSelection(KyArray<KyDbObjectId>&, SubentPathArray&) override {
        return Kyro::eOk;
    }
    Kyro::ErrorStatus filterForWrite(int, int& total, int& excludedA, int& excludedB,
                                     const KyRxClass*, KyArray<KyDbObjectId>* excludedIdsA,
                                     KyArray<KyDbObjectId>*, const KyString&) override {
        total = 3;
        excludedA = 1;
        excludedB = 0;
        if (excludedIdsA != nullptr) {
            excludedIdsA->append(KyDbObjectId::kNull);
        }
        return Kyro::eOk;
    }
    Kyro::ErrorStatus getSelectionCounts(int mode, int& total, int& excluded, int& third,
                                         const KyRxClass*, KyArray<KyDbObjectId>*,
                                         KyArray<KyDbObjectId>*, KyString& text) override {
        if (mode != kChangeProperties) {
            return Kyro::eInvalidInput;
        }
        total = 4;
        excluded = 2;
        third = 1;
        text = L"1 was on a locked layer.";
        return Kyro::eOk;
    }
};

class TestRegeneration final : public KyDiRegenerationService {
public:
    void regenLayers(const KyArray<KyDbObjectId>& layerIds, int mode) override {
        regenerated += layerIds.length();
        lastMode = mode;
    }
    int regenMode() override { return 4; }

    int regenerated = 0;
    int lastMode = -1;
};

class TestUcs final : public KyDiUcsService {
public:
    Kyro::ErrorStatus getCurrent(KyString& name, KyDbObjectId& id) override {
        name = L"World";
        id.setNull();
        return Kyro::eOk;
    }
};

class TestLayers final : public KyDiLayerService {
public:
    int askTurnOnCurrentLayer() override { return kLeaveLayerOff; }
    void reportCurrentLayerCantFreeze() override { ++reports; }
    int restoreFlags() override { return 0x7; }
    bool isLayerFilterInverted() override { return false; }
    bool isLayerFilterApplied() override { return true; }

    int reports = 0;
};

class TestPlot final : public KyDiPlotService {
public:
    bool getPlotStyleNames(KyDbDatabase*, KyDbObjectId& owner, KyArray<KyString>& names) override {
        owner.setNull();
        names.append(KyString(L"Style 1"));
        return true;
    }
    bool listPlotStyleTables(KyArray<KyString>& names, bool namedTables, bool) override {
        if (namedTables) {
            names.append(KyString(L"monochrome.stb"));
        }
        return true;
    }
    bool getPlotStyleTable(KyString& name) override {
        name = table;
        return true;
    }
    bool setPlotStyleTable(const KyString* name) override {
        if (name == nullptr) {
            return false;
        }
        table = *name;
        return true;
    }
    bool getPlotAttachmentSpace(KyString& text) override {
        text = L"Model";
        return true;
    }
    bool getPlotStyleTableType(KyString& text) override {
        text = L"Named";
        return true;
    }
    bool setLayoutByName(const KyString& name) override { return name == L"Layout1"; }
    bool getPageSetupName(KyString& name) override {
        name = L"Setup";
        return true;
    }
    bool getRasterDpi(short& dpi) override {
        dpi = rasterDpi;
        return true;
    }
    bool setRasterDpi(short dpi) override {
        rasterDpi = dpi;
        return true;
    }
    bool isViewBusy() override { return false; }

    KyString table = L"monochrome.stb";
    short rasterDpi = 0;
};

class TestRender final : public KyDiRenderService {
public:
    Kyro::ErrorStatus getCurrentPresetName(KyString& name) override {
        name = preset;
        return Kyro::eOk;
    }
    Kyro::ErrorStatus setCurrentPreset(const KyString& name) override {
        preset = name;
        return Kyro::eOk;
    }
    Kyro::ErrorStatus findPreset(int where, const KyString&, KyDbObjectId& id) override {
        id.setNull();
        return where == kDrawingPresets ? Kyro::eKeyNotFound : Kyro::eInvalidInput;
    }
    Kyro::ErrorStatus getPresetIds(KyDbDatabase*, KyArray<KyDbObjectId>&) override {
        return Kyro::eOk;
    }
    Kyro::ErrorStatus getPresetDictionaryId(KyDbDatabase*, KyDbObjectId& owner) override {
        owner.setNull();
        return Kyro::eOk;
    }
    Kyro::ErrorStatus getOutputSize(KyString& text) override {
        text = L"640 x 480";
        return Kyro::eOk;
    }
    Kyro::ErrorStatus setDisplayProperties(bool display) override {
        return display ? Kyro::eOk : Kyro::eNotApplicable;
    }

    KyString preset = L"Medium";
};

class TestColors final : public KyDiColorService {
public:
    Kyro::ErrorStatus name(int position, KyString& out) override {
        if (position < 0 || position > 9) {
            return Kyro::eInvalidIndex;
        }
        out.format(L"Entry %d", position);
        return Kyro::eOk;
    }
};

class TestScales final : public KyDiScaleListService {
public:
    Kyro::ErrorStatus getScaleNames(KyDbDatabase*, KyArray<KyString>& names) override {
        names.append(KyString(L"1:1"));
        names.append(KyString(L"1:2"));
        return Kyro::eOk;
    }
};

class TestImages final : public KyDiImageService {
public:
    int analyze(const KyArray<KyDbObjectId>& allIds,
                const KyArray<KyDbObjectId>& groupIds) override {
        return allIds.length() * 10 + groupIds.length();
    }
};

class TestRecentBlocks final : public KyDiRecentBlockService {
public:
    Kyro::ErrorStatus getRecentBlockNames(KyArray<KyString>& names) override {
        names.append(KyString(L"Door"));
        return Kyro::eOk;
    }
};

class TestCounting final : public KyDiCountingService {
public:
    Kyro::ErrorStatus getRecords(KyArray<KyDiCountingRecord>& records) override {
        KyDiCountingRecord record;
        record.name = L"Chair";
        record.value = L"12";
        records.append(record);
        return Kyro::eOk;
    }
    Kyro::ErrorStatus getActiveRecord(KyString& name, KyString& value) override {
        name = L"Chair";
        value = L"12";
        return Kyro::eOk;
    }
};

class TestExternalReferences final : public KyDiExternalReferenceHost {
public:
    Kyro::ErrorStatus getBackgroundOverride(KyCmColor& out, KyDbDatabase*) override {
        return out.setColorIndex(KyCmColor::kACIRed);
    }
};

// A host that has every feature.
class FullHost final : public BareHost {
public:
    KyDiEditorService* editor() override { return &editorService; }
    KyDiViewportService* viewportService() override { return &viewport; }
    KyDiVisualStyleService* visualStyleService() override { return &visualStyles; }
    KyDiSelectionService* selectionService() override { return &selection; }
    KyDiRegenerationService* regenerationService() override { return &regeneration; }
    KyDiUcsService* ucsService() override { return &ucs; }
    KyDiLayerService* layerService() override { return &layers; }
    KyDiPlotService* plotService() override { return &plot; }
    KyDiRenderService* renderService() override { return &render; }
    KyDiColorService* colorService() override { return &colors; }
    KyDiScaleListService* scaleListService() override { return &scales; }
    KyDiImageService* imageService() override { return &images; }
    KyDiRecentBlockService* recentBlockService() override { return &recentBlocks; }
    KyDiCountingService* countingService() override { return &counting; }

    TestEditor editorService;
    TestViewport viewport;
    TestVisualStyles visualStyles;
    TestSelection selection;
    TestRegeneration regeneration;
    TestUcs ucs;
    TestLayers layers;
    TestPlot plot;
    TestRender render;
    TestColors colors;
    TestScales scales;
    TestImages images;
    TestRecentBlocks recentBlocks;
    TestCounting counting;
};

TEST(HostContract, DocumentHandleIsPointerWideWithTwoMarks) {
    EXPECT_EQ(sizeof(void*), sizeof(KyDiDocument));
    EXPECT_EQ(0, kKyDiNoDocument);
    EXPECT_EQ(-1, kKyDiUnboundDocument);
}

TEST(HostContract, BareHostAnswersNoServiceAndNoDocument) {
    BareHost bare;
    KyDiHost& host = bare;

    EXPECT_EQ(nullptr, host.editor());
    EXPECT_EQ(nullptr, host.viewportService());
    EXPECT_EQ(nullptr, host.visualStyleService());
    EXPECT_EQ(nullptr, host.selectionService());
    EXPECT_EQ(nullptr, host.regenerationService());
    EXPECT_EQ(nullptr, host.ucsService());
    EXPECT_EQ(nullptr, host.layerService());
    EXPECT_EQ(nullptr, host.plotService());
    EXPECT_EQ(nullptr, host.renderService());
    EXPECT_EQ(nullptr, host.colorService());
    EXPECT_EQ(nullptr, host.scaleListService());
    EXPECT_EQ(nullptr, host.imageService());
    EXPECT_EQ(nullptr, host.recentBlockService());
    EXPECT_EQ(nullptr, host.reservedService());
    EXPECT_EQ(nullptr, host.countingService());

    KyDiDocumentManager* documents = host.documentManager();
    ASSERT_NE(nullptr, documents);
    EXPECT_EQ(0, documents->documentCount());
    EXPECT_EQ(kKyDiNoDocument, documents->document(0));
    EXPECT_EQ(kKyDiNoDocument, documents->currentDocument());
    EXPECT_EQ(kKyDiNoDocument, documents->documentOf(nullptr));
    EXPECT_EQ(nullptr, documents->databaseOf(kKyDiNoDocument));
    EXPECT_EQ(nullptr, documents->workingDatabase());
    EXPECT_TRUE(documents->documentName(kKyDiNoDocument).isEmpty());
    EXPECT_TRUE(documents->isDocumentQuiescent(kKyDiNoDocument));
    KyDbObjectId transaction;
    documents->longTransactionId(transaction, kKyDiNoDocument);
    EXPECT_TRUE(transaction.isNull());
}

TEST(HostContract, ReactorHearsEveryEventInOrderUntilRemoved) {
    BareHost bare;
    KyDiHost& host = bare;
    RecordingReactor reactor;

    host.addReactor(&reactor);
    bare.raiseEveryEvent(7);
    host.removeReactor(&reactor);
    bare.raiseEveryEvent(8);

    const std::vector<std::string> expected = {
        "refreshNeeded true",
        "documentToBeDestroyed 7",
        "documentDestroyed",
        "documentDestructionDone",
        "sysVarChanged CLAYER true",
        "sysVarWillChange CLAYER",
        "commandWillStart LINE",
        "hostStateChanged",
        "invalidateAll",
        "drawingContentChanged",
        "commandEnded -LAYER",
        "ucsChanged",
        "plotSettingsChanged",
        "plotSettingsChangedForLayout Layout1",
        "layoutChanged",
        "documentBecameQuiet 7",
        "documentBecameBusy 7",
    };
    EXPECT_EQ(expected, reactor.lines);
}

TEST(HostContract, EditorServiceQueuesCommandsAndAnswersHostResults) {
    FullHost full;
    KyDiEditorService* editor = static_cast<KyDiHost&>(full).editor();
    ASSERT_NE(nullptr, editor);

    EXPECT_EQ(Kyro::eOk, editor->sendCommand(L"'_clayer\nWalls\n", false, false, true));
    EXPECT_STREQ(L"'_clayer\nWalls\n", full.editorService.queued.kwszPtr());

    resbuf value{};
    EXPECT_EQ(KYRT_NORM, editor->getVar(L"CVPORT", &value));
    EXPECT_EQ(KYRB_SHORT, value.restype);
    EXPECT_EQ(2, value.resval.rint);
    EXPECT_EQ(KYRT_REJECTED, editor->getVar(L"NOSUCHVAR", &value));
    EXPECT_EQ(KYRT_REJECTED, editor->setVar(L"CVPORT", &value));

    editor->prompt(L"");
    editor->beginCommand(L"OPM_CHGPROP");
    editor->endCommand(L"OPM_CHGPROP");
    EXPECT_STREQ(L"OPM_CHGPROP{}OPM_CHGPROP", full.editorService.scopes.kwszPtr());
    EXPECT_STREQ(L"-CALQUE", editor->localCommandName(L"-LAYER"));
}

TEST(HostContract, ViewServicesAnswerThroughTheHost) {
    FullHost full;
    KyDiHost& host = full;

    KyDiViewportService* viewport = host.viewportService();
    ASSERT_NE(nullptr, viewport);
    KyDbObjectId id;
    EXPECT_EQ(Kyro::eOk, viewport->getCurrentViewportId(id));
    EXPECT_EQ(Kyro::eNotApplicable, viewport->viewportId(id));
    EXPECT_EQ(Kyro::eNotApplicable, viewport->viewportKey(id));
    EXPECT_TRUE(viewport->matchesView(nullptr));
    EXPECT_EQ(Kyro::eNotApplicable, viewport->restoreView(id));
    KyGePoint3d point;
    EXPECT_EQ(Kyro::eOk, viewport->getViewPoint(point, KyDiViewportService::kCameraLocation));
    EXPECT_EQ(KyGePoint3d(1.0, 2.0, 3.0), point);
    EXPECT_EQ(Kyro::eOk,
              viewport->setViewPoint(KyGePoint3d(4.0, 5.0, 6.0), KyDiViewportService::kViewCenter));
    EXPECT_EQ(KyGePoint3d(4.0, 5.0, 6.0), full.viewport.center);
    EXPECT_TRUE(viewport->isNavBoxOff(nullptr));
    EXPECT_FALSE(viewport->isViewLocked(nullptr));
    EXPECT_EQ(Kyro::eOk, viewport->setLensLength(35.0));
    EXPECT_DOUBLE_EQ(35.0, viewport->getLensLength());
    KyGiPhotographicExposureParameters exposure;
    ASSERT_TRUE(exposure.setExposure(10.0));
    EXPECT_EQ(Kyro::eOk, viewport->setExposureParameters(exposure));
    KyGiPhotographicExposureParameters readBack;
    EXPECT_EQ(Kyro::eOk, viewport->getExposureParameters(readBack));
    EXPECT_EQ(exposure, readBack);
    KyCmColor background;
    EXPECT_EQ(Kyro::eOk, viewport->getBackgroundOverride(background));
    EXPECT_EQ(KyCmColor::kACIBlue, background.colorIndex());

    KyDiVisualStyleService* styles = host.visualStyleService();
    ASSERT_NE(nullptr, styles);
    EXPECT_EQ(Kyro::eOk, styles->getCurrent(id));
    EXPECT_EQ(20067, styles->styleKind(id));
    EXPECT_EQ(Kyro::eOk, styles->setCurrent(id, 0));
    KyArray<KyDbObjectId> ids;
    EXPECT_EQ(Kyro::eOk, styles->getListedStyles(nullptr, ids));
    EXPECT_EQ(1, ids.length());
    EXPECT_TRUE(styles->isTwoDimensional());
    EXPECT_EQ(Kyro::eOk, styles->setViewResolution(500));
    EXPECT_EQ(500, styles->getViewResolution());

    KyDiUcsService* ucs = host.ucsService();
    ASSERT_NE(nullptr, ucs);
    KyString name;
    EXPECT_EQ(Kyro::eOk, ucs->getCurrent(name, id));
    EXPECT_STREQ(L"World", name.kwszPtr());
    EXPECT_TRUE(id.isNull());

    KyDiRenderService* render = host.renderService();
    ASSERT_NE(nullptr, render);
    EXPECT_EQ(Kyro::eOk, render->setCurrentPreset(KyString(L"High")));
    EXPECT_EQ(Kyro::eOk, render->getCurrentPresetName(name));
    EXPECT_STREQ(L"High", name.kwszPtr());
    EXPECT_EQ(Kyro::eKeyNotFound, render->findPreset(KyDiRenderService::kDrawingPresets, name, id));
    EXPECT_EQ(Kyro::eOk, render->getPresetIds(nullptr, ids));
    EXPECT_EQ(Kyro::eOk, render->getPresetDictionaryId(nullptr, id));
    EXPECT_EQ(Kyro::eOk, render->getOutputSize(name));
    EXPECT_STREQ(L"640 x 480", name.kwszPtr());
    EXPECT_EQ(Kyro::eNotApplicable, render->setDisplayProperties(false));
}

TEST(HostContract, SelectionAndLayerServicesAnswerThroughTheHost) {
    FullHost full;
    KyDiHost& host = full;

    KyDiSelectionService* selection = host.selectionService();
    ASSERT_NE(nullptr, selection);
    EXPECT_FALSE(selection->hasSelection());
    KyArray<KyDbObjectId> ids;
#if KYDI_TEST_HAS_SUBENT_PATH
    KyDiSelectionService::SubentPathArray paths;
    EXPECT_EQ(Kyro::eOk, selection->getSelection(ids, paths));
    EXPECT_TRUE(ids.isEmpty());
    EXPECT_TRUE(paths.isEmpty());
#endif
    int total = 0;
    int excludedA = 0;
    int excludedB = 0;
    KyArray<KyDbObjectId> idsA;
    KyArray<KyDbObjectId> idsB;
    EXPECT_EQ(Kyro::eOk, selection->filterForWrite(1, total, excludedA, excludedB, nullptr, &idsA,
                                                   &idsB, KyString()));
    EXPECT_EQ(3, total);
    EXPECT_EQ(1, excludedA);
    EXPECT_EQ(1, idsA.length());
    EXPECT_EQ(Kyro::eOk, selection->filterForWrite(1, total, excludedA, excludedB, nullptr, nullptr,
                                                   nullptr, KyString()));
    EXPECT_EQ(1, KyDiSelectionService::kChangeProperties);
    int third = 0;
    KyString text;
    EXPECT_EQ(Kyro::eOk, selection->getSelectionCounts(1, total, excludedA, third, nullptr, nullptr,
                                                       nullptr, text));
    EXPECT_EQ(4, total);
    EXPECT_EQ(2, excludedA);
    EXPECT_EQ(1, third);
    EXPECT_STREQ(L"1 was on a locked layer.", text.kwszPtr());

    KyDiImageService* images = host.imageService();
    ASSERT_NE(nullptr, images);
    EXPECT_EQ(11, images->analyze(idsA, idsA));

    KyDiLayerService* layers = host.layerService();
    ASSERT_NE(nullptr, layers);
    EXPECT_EQ(1002, layers->askTurnOnCurrentLayer());
    EXPECT_EQ(1001, KyDiLayerService::kTurnLayerOn);
    layers->reportCurrentLayerCantFreeze();
    EXPECT_EQ(1, full.layers.reports);
    EXPECT_EQ(0x7, layers->restoreFlags());
    EXPECT_FALSE(layers->isLayerFilterInverted());
    EXPECT_TRUE(layers->isLayerFilterApplied());

    KyDiRegenerationService* regeneration = host.regenerationService();
    ASSERT_NE(nullptr, regeneration);
    regeneration->regenLayers(idsA, regeneration->regenMode());
    EXPECT_EQ(1, full.regeneration.regenerated);
    EXPECT_EQ(4, full.regeneration.lastMode);
}

TEST(HostContract, ListServicesAnswerThroughTheHost) {
    FullHost full;
    KyDiHost& host = full;
    KyDbObjectId owner;
    KyString text;

    KyDiPlotService* plot = host.plotService();
    ASSERT_NE(nullptr, plot);
    KyArray<KyString> names;
    EXPECT_TRUE(plot->getPlotStyleNames(nullptr, owner, names));
    EXPECT_TRUE(plot->listPlotStyleTables(names, true, false));
    ASSERT_EQ(2, names.length());
    EXPECT_STREQ(L"monochrome.stb", names[1].kwszPtr());
    const KyString table(L"grayscale.stb");
    EXPECT_TRUE(plot->setPlotStyleTable(&table));
    EXPECT_TRUE(plot->getPlotStyleTable(text));
    EXPECT_STREQ(L"grayscale.stb", text.kwszPtr());
    EXPECT_TRUE(plot->getPlotAttachmentSpace(text));
    EXPECT_TRUE(plot->getPlotStyleTableType(text));
    EXPECT_TRUE(plot->setLayoutByName(KyString(L"Layout1")));
    EXPECT_TRUE(plot->getPageSetupName(text));
    EXPECT_TRUE(plot->setRasterDpi(300));
    short dpi = 0;
    EXPECT_TRUE(plot->getRasterDpi(dpi));
    EXPECT_EQ(300, dpi);
    EXPECT_FALSE(plot->isViewBusy());

    KyDiColorService* colors = host.colorService();
    ASSERT_NE(nullptr, colors);
    EXPECT_EQ(Kyro::eOk, colors->name(9, text));
    EXPECT_STREQ(L"Entry 9", text.kwszPtr());

    KyDiScaleListService* scales = host.scaleListService();
    ASSERT_NE(nullptr, scales);
    KyArray<KyString> scaleNames;
    EXPECT_EQ(Kyro::eOk, scales->getScaleNames(nullptr, scaleNames));
    EXPECT_EQ(2, scaleNames.length());

    KyDiRecentBlockService* recentBlocks = host.recentBlockService();
    ASSERT_NE(nullptr, recentBlocks);
    KyArray<KyString> blocks;
    EXPECT_EQ(Kyro::eOk, recentBlocks->getRecentBlockNames(blocks));
    EXPECT_EQ(1, blocks.length());

    KyDiCountingService* counting = host.countingService();
    ASSERT_NE(nullptr, counting);
    KyArray<KyDiCountingRecord> records;
    EXPECT_EQ(Kyro::eOk, counting->getRecords(records));
    ASSERT_EQ(1, records.length());
    EXPECT_STREQ(L"Chair", records[0].name.kwszPtr());
    EXPECT_STREQ(L"12", records[0].value.kwszPtr());
    KyString value;
    EXPECT_EQ(Kyro::eOk, counting->getActiveRecord(text, value));
    EXPECT_STREQ(L"12", value.kwszPtr());
}

TEST(HostContract, ExternalReferenceHostAnswersTheBackgroundOverride) {
    TestExternalReferences references;
    KyDiExternalReferenceHost& host = references;
    KyCmColor color;
    EXPECT_EQ(Kyro::eOk, host.getBackgroundOverride(color, nullptr));
    EXPECT_EQ(KyCmColor::kACIRed, color.colorIndex());
}

#if (defined(__x86_64__) || defined(__i386__)) && !defined(_WIN32)

// The virtual table slot of a virtual member function, counted from the
// destructor's two entries, on the common x86 C++ ABI: a pointer to a virtual
// member holds 1 plus the byte offset of its slot.
template <typename F>
std::ptrdiff_t slotOf(F function) {
    struct Representation {
        std::uintptr_t pointer;
        std::ptrdiff_t adjustment;
    };
    static_assert(sizeof(F) == sizeof(Representation));
    Representation representation;
    std::memcpy(&representation, &function, sizeof representation);
    EXPECT_EQ(1u, representation.pointer & 1u) << "not a virtual member function";
    return static_cast<std::ptrdiff_t>((representation.pointer - 1) / sizeof(void*));
}

// Hosts built against this order stay compatible only while it holds: the
// destructor comes first, then the operations in this order.
TEST(HostContract, HostOperationsKeepTheirSlots) {
    EXPECT_EQ(2, slotOf(&KyDiHost::addReactor));
    EXPECT_EQ(3, slotOf(&KyDiHost::removeReactor));
    EXPECT_EQ(4, slotOf(&KyDiHost::documentManager));
    EXPECT_EQ(5, slotOf(&KyDiHost::editor));
    EXPECT_EQ(6, slotOf(&KyDiHost::viewportService));
    EXPECT_EQ(7, slotOf(&KyDiHost::visualStyleService));
    EXPECT_EQ(8, slotOf(&KyDiHost::selectionService));
    EXPECT_EQ(9, slotOf(&KyDiHost::regenerationService));
    EXPECT_EQ(10, slotOf(&KyDiHost::ucsService));
    EXPECT_EQ(11, slotOf(&KyDiHost::layerService));
    EXPECT_EQ(12, slotOf(&KyDiHost::plotService));
    EXPECT_EQ(13, slotOf(&KyDiHost::renderService));
    EXPECT_EQ(14, slotOf(&KyDiHost::colorService));
    EXPECT_EQ(15, slotOf(&KyDiHost::scaleListService));
    EXPECT_EQ(16, slotOf(&KyDiHost::imageService));
    EXPECT_EQ(17, slotOf(&KyDiHost::recentBlockService));
    EXPECT_EQ(18, slotOf(&KyDiHost::reservedService));
    EXPECT_EQ(19, slotOf(&KyDiHost::countingService));
}

TEST(HostContract, ReactorEventsKeepTheirSlots) {
    EXPECT_EQ(2, slotOf(&KyDiHostReactor::refreshNeeded));
    EXPECT_EQ(3, slotOf(&KyDiHostReactor::documentToBeDestroyed));
    EXPECT_EQ(4, slotOf(&KyDiHostReactor::documentDestroyed));
    EXPECT_EQ(5, slotOf(&KyDiHostReactor::documentDestructionDone));
    EXPECT_EQ(6, slotOf(&KyDiHostReactor::sysVarChanged));
    EXPECT_EQ(7, slotOf(&KyDiHostReactor::sysVarWillChange));
    EXPECT_EQ(8, slotOf(&KyDiHostReactor::commandWillStart));
    EXPECT_EQ(9, slotOf(&KyDiHostReactor::hostStateChanged));
    EXPECT_EQ(10, slotOf(&KyDiHostReactor::invalidateAll));
    EXPECT_EQ(11, slotOf(&KyDiHostReactor::drawingContentChanged));
    EXPECT_EQ(12, slotOf(&KyDiHostReactor::commandEnded));
    EXPECT_EQ(13, slotOf(&KyDiHostReactor::ucsChanged));
    EXPECT_EQ(14, slotOf(&KyDiHostReactor::plotSettingsChanged));
    EXPECT_EQ(15, slotOf(&KyDiHostReactor::plotSettingsChangedForLayout));
    EXPECT_EQ(16, slotOf(&KyDiHostReactor::layoutChanged));
    EXPECT_EQ(17, slotOf(&KyDiHostReactor::documentBecameQuiet));
    EXPECT_EQ(18, slotOf(&KyDiHostReactor::documentBecameBusy));
}

TEST(HostContract, DocumentManagerAndEditorKeepTheirSlots) {
    EXPECT_EQ(2, slotOf(&KyDiDocumentManager::documentCount));
    EXPECT_EQ(3, slotOf(&KyDiDocumentManager::document));
    EXPECT_EQ(4, slotOf(&KyDiDocumentManager::currentDocument));
    EXPECT_EQ(5, slotOf(&KyDiDocumentManager::documentOf));
    EXPECT_EQ(6, slotOf(&KyDiDocumentManager::databaseOf));
    EXPECT_EQ(7, slotOf(&KyDiDocumentManager::workingDatabase));
    EXPECT_EQ(8, slotOf(&KyDiDocumentManager::documentName));
    EXPECT_EQ(9, slotOf(&KyDiDocumentManager::isDocumentQuiescent));
    EXPECT_EQ(10, slotOf(&KyDiDocumentManager::longTransactionId));

    EXPECT_EQ(2, slotOf(&KyDiEditorService::sendCommand));
    EXPECT_EQ(3, slotOf(&KyDiEditorService::getVar));
    EXPECT_EQ(4, slotOf(&KyDiEditorService::setVar));
    EXPECT_EQ(5, slotOf(&KyDiEditorService::prompt));
    EXPECT_EQ(6, slotOf(&KyDiEditorService::beginCommand));
    EXPECT_EQ(7, slotOf(&KyDiEditorService::endCommand));
    EXPECT_EQ(8, slotOf(&KyDiEditorService::localCommandName));

    EXPECT_EQ(2, slotOf(&KyDiExternalReferenceHost::getBackgroundOverride));
}

#endif

}  // namespace
