// Not part of the interface: how every part of the data item layer reaches
// the host, and the one rule by which it asks for the current document.
#pragma once

#include "kydi/KyDiTypes.h"

class KyDbDatabase;
class KyDiColorService;
class KyDiDocumentManager;
class KyDiEditorService;
class KyDiExternalReferenceHost;
class KyDiHost;
class KyDiLayerService;
class KyDiPlotService;
class KyDiRenderService;
class KyDiSelectionService;
class KyDiUcsService;
class KyDiViewportService;
class KyDiVisualStyleService;

class KyDiHostAccess {
public:
    // The host; null before initialize.
    static KyDiHost* host();
    // The host's services; null before initialize or when the host has none.
    static KyDiDocumentManager* documentManager();
    static KyDiEditorService* editor();
    static KyDiViewportService* viewportService();
    static KyDiVisualStyleService* visualStyleService();
    static KyDiUcsService* ucsService();
    static KyDiRenderService* renderService();
    static KyDiLayerService* layerService();
    static KyDiPlotService* plotService();
    static KyDiColorService* colorService();
    static KyDiSelectionService* selectionService();
    static KyDiExternalReferenceHost* xrefHost();

    // The current document: the document manager's answer, except that the
    // document being destroyed counts as none. Every part asks this, unless
    // it needs the raw answer.
    static KyDiDocument currentDocument();
    // The document manager's answer as it stands.
    static KyDiDocument rawCurrentDocument();
    // The document the host is destroying now; no document at other times.
    static KyDiDocument dyingDocument();
    // The database that commands work on now; null without one.
    static KyDbDatabase* workingDatabase();
    // The document that owns `database`; no document for a database without
    // one (or a null database).
    static KyDiDocument documentOf(KyDbDatabase* database);
    // The database of `document`; null for no document or one without.
    static KyDbDatabase* databaseOf(KyDiDocument document);

    // Reads a 16-bit system variable through the editor service; false, with
    // `value` 0, without an editor service, when the host refuses the read or
    // when the variable is of another type.
    static bool readShort(const wchar_t* name, short& value);
};
