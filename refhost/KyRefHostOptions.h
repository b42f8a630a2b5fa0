// KyRefHostOptions: what a reference host is built with. Every service is
// there unless switched off; a service switched off answers null from the
// host, as for an application without that feature.
#pragma once

#include <filesystem>

struct KyRefHostOptions {
    bool editor = true;
    bool viewportService = true;
    bool visualStyleService = true;
    bool selectionService = true;
    bool regenerationService = true;
    bool ucsService = true;
    bool layerService = true;
    bool plotService = true;
    bool renderService = true;
    bool colorService = true;
    bool scaleListService = true;
    bool imageService = true;
    bool recentBlockService = true;
    bool countingService = true;
    // A manual clock in place of the process's steady clock while the host
    // lives (tests and scripts).
    bool manualClock = false;
    // The folder the commands that name files read from (KyRefFileFolder);
    // empty for the process's working folder, with no limit.
    std::filesystem::path fileFolder;

    // A host with the document manager alone: no editor, no service.
    static KyRefHostOptions withoutServices() {
        KyRefHostOptions options;
        options.editor = false;
        options.viewportService = false;
        options.visualStyleService = false;
        options.selectionService = false;
        options.regenerationService = false;
        options.ucsService = false;
        options.layerService = false;
        options.plotService = false;
        options.renderService = false;
        options.colorService = false;
        options.scaleListService = false;
        options.imageService = false;
        options.recentBlockService = false;
        options.countingService = false;
        return options;
    }
};
