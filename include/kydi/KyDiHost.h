// KyDiHost: the contract between the data item layer and the application
// that loads it. The application implements it and hands it to
// KyDiManager::initialize. The data item layer reaches documents, the command
// line and the optional features only through it, and learns of events
// through the KyDiHostReactor that it registers. A service that answers null
// is a feature the application does not have: reads then answer nothing and
// writes do nothing.
#pragma once

#include "kydi/KyDiColorService.h"
#include "kydi/KyDiCountingService.h"
#include "kydi/KyDiDocumentManager.h"
#include "kydi/KyDiEditorService.h"
#include "kydi/KyDiExport.h"
#include "kydi/KyDiHostReactor.h"
#include "kydi/KyDiImageService.h"
#include "kydi/KyDiLayerService.h"
#include "kydi/KyDiPlotService.h"
#include "kydi/KyDiRecentBlockService.h"
#include "kydi/KyDiRegenerationService.h"
#include "kydi/KyDiRenderService.h"
#include "kydi/KyDiScaleListService.h"
#include "kydi/KyDiSelectionService.h"
#include "kydi/KyDiUcsService.h"
#include "kydi/KyDiViewportService.h"
#include "kydi/KyDiVisualStyleService.h"

class KYDI_API KyDiHost {
public:
    virtual ~KyDiHost() = default;

    // Registers `reactor` for the host's events; they may arrive from then on.
    virtual void addReactor(KyDiHostReactor* reactor) = 0;
    // Takes `reactor` back; no event reaches it afterwards.
    virtual void removeReactor(KyDiHostReactor* reactor) = 0;
    // The document manager; never null.
    virtual KyDiDocumentManager* documentManager() = 0;
    // The command line and system variables; null when there is none.
    virtual KyDiEditorService* editor() = 0;
    // The current view; may be null.
    virtual KyDiViewportService* viewportService() = 0;
    // Visual styles of the current view; may be null.
    virtual KyDiVisualStyleService* visualStyleService() = 0;
    // The selection of the current document; may be null (nothing is selected).
    virtual KyDiSelectionService* selectionService() = 0;
    // Redrawing after layer changes; may be null.
    virtual KyDiRegenerationService* regenerationService() = 0;
    // The current user coordinate system; may be null.
    virtual KyDiUcsService* ucsService() = 0;
    // Layer manager settings and questions; may be null.
    virtual KyDiLayerService* layerService() = 0;
    // Plot settings and plot style tables; may be null.
    virtual KyDiPlotService* plotService() = 0;
    // Render presets and settings; may be null.
    virtual KyDiRenderService* renderService() = 0;
    // Names of the fixed colour list entries; may be null.
    virtual KyDiColorService* colorService() = 0;
    // Annotation scales; may be null.
    virtual KyDiScaleListService* scaleListService() = 0;
    // Analysis of the selection by kind; may be null.
    virtual KyDiImageService* imageService() = 0;
    // Recently used blocks; may be null.
    virtual KyDiRecentBlockService* recentBlockService() = 0;
    // Reserved for a service to come; the data item layer never calls it.
    virtual void* reservedService() = 0;
    // Object counts; may be null.
    virtual KyDiCountingService* countingService() = 0;
};
