// A host application of its own, built against the installed libraries with
// the Qt adapters: one drawing it makes itself, held by a document manager of
// a few lines, the data item layer started on it, and the layers shown in a
// QTableView through the collection model. It checks what the view shows and
// that a layer added afterwards shows once a refresh pass has told it.
#include <QApplication>
#include <QTableView>
#include <cstdio>

#include "db/KyDbDatabase.h"
#include "db/KyDbLayerTable.h"
#include "db/KyDbLayerTableRecord.h"
#include "db/KyDbObjectPointer.h"
#include "kydi/KyDiHost.h"
#include "kydi/KyDiManager.h"
#include "kydi/KyDiObservableCollection.h"
#include "kydiqt/KyDiQtCollectionModel.h"

namespace {

constexpr KyDiDocument kDocument = 1;

class Documents : public KyDiDocumentManager {
public:
    explicit Documents(KyDbDatabase* database) : m_database(database) {}
    int documentCount() override { return 1; }
    KyDiDocument document(int index) override { return index == 0 ? kDocument : kKyDiNoDocument; }
    KyDiDocument currentDocument() override { return kDocument; }
    KyDiDocument documentOf(KyDbDatabase* database) override {
        return database != nullptr && database == m_database ? kDocument : kKyDiNoDocument;
    }
    KyDbDatabase* databaseOf(KyDiDocument document) override {
        return document == kDocument ? m_database : nullptr;
    }
    KyDbDatabase* workingDatabase() override { return m_database; }
    KyString documentName(KyDiDocument document) override {
        return document == kDocument ? KyString(L"Plan.kyd") : KyString();
    }
    bool isDocumentQuiescent(KyDiDocument) override { return true; }
    void longTransactionId(KyDbObjectId& out, KyDiDocument) override { out = KyDbObjectId(); }

private:
    KyDbDatabase* m_database;
};

// A host with documents and nothing else: every optional service is absent.
class Host : public KyDiHost {
public:
    explicit Host(KyDbDatabase* database) : m_documents(database) {}
    void addReactor(KyDiHostReactor* reactor) override { m_reactor = reactor; }
    void removeReactor(KyDiHostReactor*) override { m_reactor = nullptr; }
    KyDiDocumentManager* documentManager() override { return &m_documents; }
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

    // What a host does when its drawing changed: the layer looks at its
    // next pass.
    void drawingChanged() {
        if (m_reactor != nullptr) {
            m_reactor->drawingContentChanged();
        }
    }

private:
    Documents m_documents;
    KyDiHostReactor* m_reactor = nullptr;
};

bool addLayer(KyDbDatabase* database, const wchar_t* name) {
    KyDbObjectPointer<KyDbLayerTable> table(database->layerTableId(), KyDb::kForWrite);
    if (!table) {
        return false;
    }
    auto* layer = new KyDbLayerTableRecord();
    layer->setName(name);
    KyDbObjectId id;
    if (table->add(id, layer) != Kyro::eOk) {
        delete layer;
        return false;
    }
    layer->close();
    return true;
}

int fail(const char* what) {
    std::printf("failed: %s\n", what);
    return 1;
}

int run(Host& host, KyDbDatabase* database) {
    KyDiManager::initialize(&host);
    KyDiManager::refresh();
    KyDiObservableCollection* layers = KyDiManager::getKnownCollection(L"LAYER");
    if (layers == nullptr) {
        return fail("no layer collection");
    }
    KyDiQtCollectionModel model(layers, {"Color", "IsFrozen"});
    QTableView view;
    view.setModel(&model);
    view.resize(400, 200);
    view.show();
    QApplication::processEvents();
    if (model.rowCount() != 3 || view.model()->index(1, 0).data().toString() != "Walls") {
        return fail("the view does not show the drawing's layers");
    }
    addLayer(database, L"Doors");
    host.drawingChanged();
    KyDiManager::refresh();
    QApplication::processEvents();
    if (view.model()->rowCount() != 4 || view.model()->index(3, 0).data().toString() != "Doors") {
        return fail("a new layer did not reach the view");
    }
    std::printf("ok: %d layers in a QTableView, the last %s\n", view.model()->rowCount(),
                view.model()->index(3, 0).data().toString().toUtf8().constData());
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication app(argc, argv);
    auto* database = new KyDbDatabase();
    if (!addLayer(database, L"Walls") || !addLayer(database, L"Windows")) {
        delete database;
        return fail("the drawing could not be made");
    }
    Host host(database);
    const int status = run(host, database);
    KyDiManager::uninitialize();
    delete database;
    return status;
}
