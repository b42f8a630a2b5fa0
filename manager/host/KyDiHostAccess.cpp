#include "manager/host/KyDiHostAccess.h"

#include "base/resbuf.h"
#include "kydi/KyDiHost.h"
#include "manager/KyDiManagerState.h"

KyDiHost* KyDiHostAccess::host() {
    return kydiManagerState().host;
}

KyDiDocumentManager* KyDiHostAccess::documentManager() {
    KyDiHost* current = host();
    return current != nullptr ? current->documentManager() : nullptr;
}

KyDiEditorService* KyDiHostAccess::editor() {
    KyDiHost* current = host();
    return current != nullptr ? current->editor() : nullptr;
}

KyDiViewportService* KyDiHostAccess::viewportService() {
    KyDiHost* current = host();
    return current != nullptr ? current->viewportService() : nullptr;
}

KyDiVisualStyleService* KyDiHostAccess::visualStyleService() {
    KyDiHost* current = host();
    return current != nullptr ? current->visualStyleService() : nullptr;
}

KyDiUcsService* KyDiHostAccess::ucsService() {
    KyDiHost* current = host();
    return current != nullptr ? current->ucsService() : nullptr;
}

KyDiRenderService* KyDiHostAccess::renderService() {
    KyDiHost* current = host();
    return current != nullptr ? current->renderService() : nullptr;
}

KyDiLayerService* KyDiHostAccess::layerService() {
    KyDiHost* current = host();
    return current != nullptr ? current->layerService() : nullptr;
}

KyDiPlotService* KyDiHostAccess::plotService() {
    KyDiHost* current = host();
    return current != nullptr ? current->plotService() : nullptr;
}

KyDiColorService* KyDiHostAccess::colorService() {
    KyDiHost* current = host();
    return current != nullptr ? current->colorService() : nullptr;
}

KyDiSelectionService* KyDiHostAccess::selectionService() {
    KyDiHost* current = host();
    return current != nullptr ? current->selectionService() : nullptr;
}

KyDiExternalReferenceHost* KyDiHostAccess::xrefHost() {
    return kydiManagerState().xrefHost;
}

KyDiDocument KyDiHostAccess::currentDocument() {
    const KyDiDocument document = rawCurrentDocument();
    // While the host destroys a document it may still answer it as current;
    // nothing may bind to it again.
    if (document == kydiManagerState().dyingDatabase) {
        return kKyDiNoDocument;
    }
    return document;
}

KyDiDocument KyDiHostAccess::rawCurrentDocument() {
    KyDiDocumentManager* documents = documentManager();
    return documents != nullptr ? documents->currentDocument() : kKyDiNoDocument;
}

KyDiDocument KyDiHostAccess::dyingDocument() {
    return kydiManagerState().dyingDatabase;
}

KyDbDatabase* KyDiHostAccess::workingDatabase() {
    KyDiDocumentManager* documents = documentManager();
    return documents != nullptr ? documents->workingDatabase() : nullptr;
}

KyDiDocument KyDiHostAccess::documentOf(KyDbDatabase* database) {
    KyDiDocumentManager* documents = documentManager();
    return documents != nullptr && database != nullptr ? documents->documentOf(database)
                                                       : kKyDiNoDocument;
}

KyDbDatabase* KyDiHostAccess::databaseOf(KyDiDocument document) {
    KyDiDocumentManager* documents = documentManager();
    if (documents == nullptr || document == kKyDiNoDocument || document == kKyDiUnboundDocument) {
        return nullptr;
    }
    return documents->databaseOf(document);
}

bool KyDiHostAccess::readShort(const wchar_t* name, short& value) {
    value = 0;
    KyDiEditorService* service = editor();
    if (service == nullptr) {
        return false;
    }
    // A zeroed record: a refused read leaves nothing stale to compare.
    resbuf* record = kyutNewRb(KYRB_NONE);
    const bool isShort =
        service->getVar(name, record) == KYRT_NORM && record->restype == KYRB_SHORT;
    if (isShort) {
        value = record->resval.rint;
    }
    kyutRelRb(record);
    return isShort;
}
