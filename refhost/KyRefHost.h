// KyRefHost: the reference host, a working host application around the data
// item layer. It owns its documents, its editor with the command interpreter,
// its system variables and every service of KyDiHost, each with state that a
// test or a script sets; a host can be built with any service absent
// (KyRefHostOptions). Its reactors hear the events a real host raises, at the
// moments a real host raises them. It also holds the host's side of the
// second contract, KyDiExternalReferenceHost (externalReferenceHost()), which
// the application hands over with KyDiManager::initializeXRefHost.
//
// System variables. A write outside any command (setVar, a variable of the
// variables dictionary, a direct write of the drawing's header by the data
// item layer under its own lock) is told at once: sysVarWillChange, then
// sysVarChanged(name, true) for every variable whose value changed by it (a
// refused write: sysVarChanged(name, false)). Inside a command the changes
// are told once, when the command ends. A change of CTAB is followed by the
// plot settings events of the layout now current (its settings are in
// effect) and layoutChanged, of the current UCS (UCSNAME, UCSORG, UCSXDIR, UCSYDIR) by
// one ucsChanged, of the view resolution (VIEWRES) by a regeneration.
//
// Plot settings. A change of a layout's plot style table, page setup or
// raster resolution (by a command, its undo or redo, the plot service or a
// write of the layout's members) is told as plotSettingsChanged, then
// plotSettingsChangedForLayout with the layout's name, then layoutChanged:
// inside a command or another report of changes when it ends, after the
// variables it changed; otherwise at once, as the write-open of the layout
// ends.
//
// Layouts and viewports. Any layout becomes current through CTAB (the plot
// service's setLayoutByName writes it too): TILEMODE follows, and CVPORT
// shows the paper of a layout or the tiled viewport of model space. On a
// layout the user enters one of its viewports, as a click into it does
// (enterViewport), and leaves it for the paper (leaveViewport): CVPORT
// changes, sysVarChanged tells it, and refreshNeeded follows.
#pragma once

#include <memory>
#include <vector>

#include "KyRefBlockEditor.h"
#include "KyRefColorService.h"
#include "KyRefCommandLine.h"
#include "KyRefCountingService.h"
#include "KyRefDocumentManager.h"
#include "KyRefEditor.h"
#include "KyRefExternalReferenceService.h"
#include "KyRefFileFolder.h"
#include "KyRefHostEvents.h"
#include "KyRefHostOptions.h"
#include "KyRefImageService.h"
#include "KyRefLayerService.h"
#include "KyRefPlotService.h"
#include "KyRefRecentBlockService.h"
#include "KyRefRegenerationService.h"
#include "KyRefRenderService.h"
#include "KyRefScaleListService.h"
#include "KyRefSelectionService.h"
#include "KyRefSysVarStore.h"
#include "KyRefUcsService.h"
#include "KyRefViewportService.h"
#include "KyRefVisualStyleService.h"
#include "kydi/KyDiHost.h"

class KyRefManualClock;
class KyRefVariablesDictionary;

class KyRefHost : public KyDiHost {
public:
    explicit KyRefHost(const KyRefHostOptions& options = KyRefHostOptions());
    // Closes every document, with its events, and takes back what the host
    // installed in the process (its variables dictionary, its clock).
    ~KyRefHost() override;
    KyRefHost(const KyRefHost&) = delete;
    KyRefHost& operator=(const KyRefHost&) = delete;

    // ---- KyDiHost
    void addReactor(KyDiHostReactor* reactor) override;
    void removeReactor(KyDiHostReactor* reactor) override;
    KyRefDocumentManager* documentManager() override { return m_documents.get(); }
    KyRefEditor* editor() override { return m_editor.get(); }
    KyRefViewportService* viewportService() override { return m_viewport.get(); }
    KyRefVisualStyleService* visualStyleService() override { return m_visualStyle.get(); }
    KyRefSelectionService* selectionService() override { return m_selection.get(); }
    KyRefRegenerationService* regenerationService() override { return m_regeneration.get(); }
    KyRefUcsService* ucsService() override { return m_ucs.get(); }
    KyRefLayerService* layerService() override { return m_layer.get(); }
    KyRefPlotService* plotService() override { return m_plot.get(); }
    KyRefRenderService* renderService() override { return m_render.get(); }
    KyRefColorService* colorService() override { return m_color.get(); }
    KyRefScaleListService* scaleListService() override { return m_scaleList.get(); }
    KyRefImageService* imageService() override { return m_image.get(); }
    KyRefRecentBlockService* recentBlockService() override { return m_recentBlock.get(); }
    void* reservedService() override { return nullptr; }
    KyRefCountingService* countingService() override { return m_counting.get(); }

    // ---- The host's side
    // The display of external references; always there.
    KyRefExternalReferenceService& externalReferenceHost() { return *m_externalReferences; }
    KyRefHostEvents& events() { return m_events; }
    KyRefDocumentManager& documents() { return *m_documents; }
    const KyRefDocumentManager& documents() const { return *m_documents; }
    KyRefSysVarStore& sysVars() { return m_sysVars; }
    const KyRefSysVarStore& sysVars() const { return m_sysVars; }
    // The command line; there is one also without an editor (services write
    // on it).
    KyRefCommandLine& commandLine() { return m_commandLine; }
    // The manual clock; null when the host runs on the real one.
    KyRefManualClock* clock() { return m_clock.get(); }
    // Where the files that commands name are found.
    const KyRefFileFolder& fileFolder() const { return m_fileFolder; }
    KyRefBlockEditor& blockEditor() { return m_blockEditor; }
    const KyRefBlockEditor& blockEditor() const { return m_blockEditor; }

    // The host is idle: it runs the queued command text.
    void idle();
    // CMDNAMES: the commands running or waiting, joined by "'".
    KyString commandNames() const;

    // Makes the viewport entity `viewportId` of the layout shown current. A
    // viewport of another layout (or any, in model space), the paper
    // viewport, a viewport that is off or erased, or something else is
    // refused with its status, and `reason` says why as the user reads it.
    Kyro::ErrorStatus enterViewport(KyDbObjectId viewportId, KyString* reason = nullptr);
    // Leaves the viewport entered for the paper of the layout; eNotApplicable
    // in model space, eOk when the paper is current already.
    Kyro::ErrorStatus leaveViewport(KyString* reason = nullptr);
    // Regenerates the whole drawing, as after a restored view or REPAINT:
    // with no display to redraw, the regeneration service counts it, and
    // the reactors hear invalidateAll.
    void regenerateAll();

    // Writes a system variable as the host does outside a command: the
    // change is told at once (see above). Inside a command it is told with
    // the command's other changes.
    KyRefSysVarStatus setVariable(const wchar_t* name, const resbuf& value, unsigned flags = 0,
                                  KyString* error = nullptr);

    // ---- Reports of variable changes: from the first begin to the last end,
    // changes are gathered; the outermost end answers the names of the
    // variables whose values changed.
    void beginChangeReport();
    std::vector<KyString> endChangeReport();
    bool isGatheringChanges() const { return m_reportDepth > 0; }
    // Raises sysVarChanged(name, true) for each name; outside any report the
    // changes of plot settings not told yet (see above); then layoutChanged,
    // ucsChanged and a regeneration as the names and the plot settings call
    // for.
    void raiseVariableChanges(const std::vector<KyString>& names);

    // ---- Told by the documents
    void drawingVariableWillChange(KyRefDocument& document, const wchar_t* name);
    void drawingVariableChanged(KyRefDocument& document, const wchar_t* name);
    // A layout of a document changed; its watch of plot settings has it.
    void plotSettingsModified();
    void documentClosing(KyRefDocument& document);
    void currentDocumentChanged();

private:
    // Makes the viewport `number` of the layout shown current (CVPORT).
    Kyro::ErrorStatus showViewport(short number, KyString* reason);
    // Raises the plot settings events of the changes the documents' watches
    // hold; true when there was one.
    bool raisePlotSettingsChanges();
    // Raises the plot settings events for the layout now current, whose
    // settings are in effect once it is made current.
    void raisePlotSettingsOfCurrentLayout();

    KyRefHostEvents m_events;
    KyRefCommandLine m_commandLine;
    KyRefSysVarStore m_sysVars;
    std::unique_ptr<KyRefManualClock> m_clock;
    KyRefFileFolder m_fileFolder;
    KyRefBlockEditor m_blockEditor{*this};
    std::unique_ptr<KyRefDocumentManager> m_documents;
    std::unique_ptr<KyRefEditor> m_editor;
    std::unique_ptr<KyRefViewportService> m_viewport;
    std::unique_ptr<KyRefVisualStyleService> m_visualStyle;
    std::unique_ptr<KyRefSelectionService> m_selection;
    std::unique_ptr<KyRefRegenerationService> m_regeneration;
    std::unique_ptr<KyRefUcsService> m_ucs;
    std::unique_ptr<KyRefLayerService> m_layer;
    std::unique_ptr<KyRefPlotService> m_plot;
    std::unique_ptr<KyRefRenderService> m_render;
    std::unique_ptr<KyRefColorService> m_color;
    std::unique_ptr<KyRefScaleListService> m_scaleList;
    std::unique_ptr<KyRefImageService> m_image;
    std::unique_ptr<KyRefRecentBlockService> m_recentBlock;
    std::unique_ptr<KyRefCountingService> m_counting;
    std::unique_ptr<KyRefExternalReferenceService> m_externalReferences;
    std::unique_ptr<KyRefVariablesDictionary> m_variables;
    KyRefSysVarStore::Snapshot m_reportStart;
    int m_reportDepth = 0;
    // A write of the header outside any command is being told.
    bool m_headerWrite = false;
};
