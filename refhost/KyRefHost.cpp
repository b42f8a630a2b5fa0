#include "KyRefHost.h"

#include "KyRefHostApplicationServices.h"
#include "KyRefLayoutViewports.h"
#include "KyRefManualClock.h"
#include "KyRefReadAccess.h"
#include "KyRefSysVarTable.h"
#include "KyRefVariablesDictionary.h"
#include "KyRefViewStyleModule.h"
#include "db/KyAxDocLock.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbLayout.h"

namespace {

template <typename Service, typename... Args>
std::unique_ptr<Service> makeIf(bool wanted, Args&... args) {
    return wanted ? std::make_unique<Service>(args...) : nullptr;
}

}  // namespace

KyRefHost::KyRefHost(const KyRefHostOptions& options)
    : m_sysVars(this),
      m_clock(options.manualClock ? std::make_unique<KyRefManualClock>() : nullptr),
      m_fileFolder(options.fileFolder),
      m_documents(std::make_unique<KyRefDocumentManager>(*this)),
      m_editor(makeIf<KyRefEditor>(options.editor, *this)),
      m_viewport(makeIf<KyRefViewportService>(options.viewportService, *this)),
      m_visualStyle(makeIf<KyRefVisualStyleService>(options.visualStyleService, *this)),
      m_selection(makeIf<KyRefSelectionService>(options.selectionService, *this)),
      m_regeneration(makeIf<KyRefRegenerationService>(options.regenerationService)),
      m_ucs(makeIf<KyRefUcsService>(options.ucsService, *this)),
      m_layer(makeIf<KyRefLayerService>(options.layerService, *this)),
      m_plot(makeIf<KyRefPlotService>(options.plotService, *this)),
      m_render(makeIf<KyRefRenderService>(options.renderService, *this)),
      m_color(makeIf<KyRefColorService>(options.colorService)),
      m_scaleList(makeIf<KyRefScaleListService>(options.scaleListService)),
      m_image(makeIf<KyRefImageService>(options.imageService)),
      m_recentBlock(makeIf<KyRefRecentBlockService>(options.recentBlockService, *this)),
      m_counting(makeIf<KyRefCountingService>(options.countingService)),
      m_externalReferences(std::make_unique<KyRefExternalReferenceService>(*this)),
      m_variables(std::make_unique<KyRefVariablesDictionary>(*this)) {
    KyRxVariablesDictionary::install(m_variables.get());
    KyRefHostApplicationServices::install();
    // Known from the start, loaded only when a client asks for it.
    KyRefViewStyleModule::registerModule();
}

KyRefHost::~KyRefHost() {
    m_documents->closeAll();
    m_editor.reset();
    m_documents->releaseClosedDocuments();
    if (KyRxVariablesDictionary::get() == m_variables.get()) {
        KyRxVariablesDictionary::install(nullptr);
    }
    m_variables.reset();
}

void KyRefHost::addReactor(KyDiHostReactor* reactor) {
    m_events.add(reactor);
}

void KyRefHost::removeReactor(KyDiHostReactor* reactor) {
    m_events.remove(reactor);
}

void KyRefHost::idle() {
    if (m_editor != nullptr) {
        m_editor->idle();
    }
    if (m_editor == nullptr || !m_editor->interpreter().isRunning()) {
        m_documents->releaseClosedDocuments();
    }
}

KyString KyRefHost::commandNames() const {
    return m_editor != nullptr ? m_editor->commandNames() : KyString();
}

KyRefSysVarStatus KyRefHost::setVariable(const wchar_t* name, const resbuf& value, unsigned flags,
                                         KyString* error) {
    const KyRefSysVarRow* row = KyRefSysVarTable::find(name);
    const bool tellNow = !isGatheringChanges() && row != nullptr;
    if (tellNow) {
        m_events.raiseSysVarWillChange(row->name);
    }
    beginChangeReport();
    const KyRefSysVarStatus status = m_sysVars.set(name, value, flags, error);
    raiseVariableChanges(endChangeReport());
    if (tellNow && status != KyRefSysVarStatus::kOk) {
        m_events.raiseSysVarChanged(row->name, false);
    }
    return status;
}

Kyro::ErrorStatus KyRefHost::enterViewport(KyDbObjectId viewportId, KyString* reason) {
    KyDbDatabase* database = m_documents->currentDatabase();
    KyString why;
    short number = 0;
    const Kyro::ErrorStatus status =
        KyRefLayoutViewports::checkEntry(database, viewportId, number, why);
    if (status != Kyro::eOk) {
        if (reason != nullptr) {
            *reason = why;
        }
        return status;
    }
    return showViewport(number, reason);
}

Kyro::ErrorStatus KyRefHost::leaveViewport(KyString* reason) {
    KyDbDatabase* database = m_documents->currentDatabase();
    if (database == nullptr || database->tilemode()) {
        if (reason != nullptr) {
            *reason = database == nullptr ? L"No drawing is open." : L"Model space is shown.";
        }
        return database == nullptr ? Kyro::eNoCurrentDocument : Kyro::eNotApplicable;
    }
    return showViewport(KyRefLayoutViewports::kPaper, reason);
}

Kyro::ErrorStatus KyRefHost::showViewport(short number, KyString* reason) {
    KyDbDatabase* database = m_documents->currentDatabase();
    if (KyRefLayoutViewports::currentNumber(database) == number) {
        return Kyro::eOk;
    }
    // The host switches viewports itself, under its own lock of the drawing.
    const KyAxDocLock lock(database);
    const KyRefSysVarStatus status =
        setVariable(L"CVPORT", *KyRefResbuf::makeShort(number), 0, reason);
    if (status != KyRefSysVarStatus::kOk) {
        return Kyro::eNotApplicable;
    }
    // Inside a command its end asks for the refresh.
    if (!isGatheringChanges()) {
        m_events.raiseRefreshNeeded(false);
    }
    return Kyro::eOk;
}

void KyRefHost::regenerateAll() {
    if (m_regeneration != nullptr) {
        m_regeneration->regenerateAll();
    }
    m_events.raiseInvalidateAll();
}

void KyRefHost::beginChangeReport() {
    if (m_reportDepth++ == 0) {
        m_reportStart = m_sysVars.snapshot();
    }
}

std::vector<KyString> KyRefHost::endChangeReport() {
    if (m_reportDepth == 0 || --m_reportDepth > 0) {
        return {};
    }
    std::vector<KyString> changed = m_sysVars.changedSince(m_reportStart);
    m_reportStart.clear();
    return changed;
}

void KyRefHost::raiseVariableChanges(const std::vector<KyString>& names) {
    bool layout = false;
    bool ucs = false;
    bool resolution = false;
    for (const KyString& name : names) {
        m_events.raiseSysVarChanged(name, true);
        layout = layout || name.compareNoCase(L"CTAB") == 0;
        ucs = ucs || name.compareNoCase(L"UCSNAME") == 0 || name.compareNoCase(L"UCSORG") == 0 ||
              name.compareNoCase(L"UCSXDIR") == 0 || name.compareNoCase(L"UCSYDIR") == 0;
        resolution = resolution || name.compareNoCase(L"VIEWRES") == 0;
    }
    const bool plotSettings = !isGatheringChanges() && raisePlotSettingsChanges();
    if (layout && !plotSettings) {
        // Another layout is current: the plot settings in effect are its own.
        raisePlotSettingsOfCurrentLayout();
    }
    if (layout || plotSettings) {
        m_events.raiseLayoutChanged();
    }
    if (ucs) {
        m_events.raiseUcsChanged();
    }
    if (resolution) {
        regenerateAll();
    }
}

void KyRefHost::drawingVariableWillChange(KyRefDocument& document, const wchar_t* name) {
    if (isGatheringChanges() || &document != m_documents->current()) {
        return;
    }
    m_headerWrite = true;
    if (const KyRefSysVarRow* row = KyRefSysVarTable::find(name)) {
        m_events.raiseSysVarWillChange(row->name);
    }
    beginChangeReport();
}

void KyRefHost::drawingVariableChanged(KyRefDocument&, const wchar_t*) {
    if (!m_headerWrite || m_reportDepth != 1) {
        return;
    }
    m_headerWrite = false;
    raiseVariableChanges(endChangeReport());
}

void KyRefHost::plotSettingsModified() {
    if (!isGatheringChanges() && raisePlotSettingsChanges()) {
        m_events.raiseLayoutChanged();
    }
}

void KyRefHost::raisePlotSettingsOfCurrentLayout() {
    m_events.raisePlotSettingsChanged();
    KyRefReadAccess<KyDbLayout> layout(kydbCurrentLayoutId(m_documents->currentDatabase()));
    if (layout) {
        m_events.raisePlotSettingsChangedForLayout(layout->layoutName());
    }
}

bool KyRefHost::raisePlotSettingsChanges() {
    std::vector<KyString> layouts;
    for (int index = 0; index < m_documents->count(); ++index) {
        for (KyString& name : m_documents->at(index)->plotSettings().take()) {
            layouts.push_back(std::move(name));
        }
    }
    if (layouts.empty()) {
        return false;
    }
    m_events.raisePlotSettingsChanged();
    for (const KyString& name : layouts) {
        m_events.raisePlotSettingsChangedForLayout(name);
    }
    return true;
}

void KyRefHost::documentClosing(KyRefDocument& document) {
    if (m_editor == nullptr) {
        return;
    }
    if (m_editor->interpreter().isWaiting() && &document == m_documents->current()) {
        m_editor->interpreter().dropWaitingCommand();
    }
    m_editor->closeScopes(document);
}

void KyRefHost::currentDocumentChanged() {
    if (m_editor != nullptr && m_editor->interpreter().isWaiting()) {
        m_editor->interpreter().dropWaitingCommand();
    }
    m_blockEditor.currentDocumentChanged();
}
