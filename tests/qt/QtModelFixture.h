// The data item layer on the reference host, with a Qt application on the
// offscreen platform, and Qt's model tester in its fatal mode for every model
// a test makes: a notification that disagrees with the model's state stops
// the test on the spot.
#pragma once

#include <QAbstractItemModelTester>
#include <QGuiApplication>
#include <QSignalSpy>
#include <memory>
#include <string>
#include <vector>

#include "KyRefDocument.h"
#include "kydi/KyDiFunctions.h"
#include "kydi/KyDiObservableCollection.h"
#include "kydiqt/KyDiQtCollectionModel.h"
#include "manager/RefHostFixture.h"

// Texts print as themselves in a failure.
inline void PrintTo(const QString& text, std::ostream* out) {
    *out << '"' << text.toStdString() << '"';
}

namespace kytest {

// The Qt application of a test, on the offscreen platform unless the
// environment names another.
template <typename Application>
std::unique_ptr<Application> offscreenApplication() {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    static int argc = 1;
    static char name[] = "qt_tests";
    static char* argv[] = {name, nullptr};
    return std::make_unique<Application>(argc, argv);
}

class QtModelFixture : public RefHostFixture {
protected:
    using RefHostFixture::RefHostFixture;

    void SetUp() override {
        m_app = offscreenApplication<QGuiApplication>();
        RefHostFixture::SetUp();
    }
    void TearDown() override {
        m_testers.clear();
        m_models.clear();
        RefHostFixture::TearDown();
        m_app.reset();
    }

    // A model kept until the end of the test, under the tester.
    template <typename Model>
    Model* keep(std::unique_ptr<Model> model) {
        Model* kept = model.get();
        m_testers.push_back(std::make_unique<QAbstractItemModelTester>(
            kept, QAbstractItemModelTester::FailureReportingMode::Fatal));
        m_models.push_back(std::move(model));
        return kept;
    }
    KyDiQtCollectionModel* modelOf(const wchar_t* collection, const QStringList& columns = {}) {
        return keep(std::make_unique<KyDiQtCollectionModel>(
            KyDiManager::getKnownCollection(collection), columns));
    }

    // The display names of a model's rows and of its collection's items.
    static std::vector<std::string> rows(const KyDiQtCollectionModel& model) {
        std::vector<std::string> names;
        for (int row = 0; row < model.rowCount(); ++row) {
            names.push_back(model.index(row, 0).data().toString().toStdString());
        }
        return names;
    }
    static std::vector<std::string> items(const KyDiQtCollectionModel& model) {
        std::vector<std::string> names;
        for (KyDiDynamicObject* item : model.collection()->getItems()) {
            names.push_back(KyDiGetItemName(item).utf8());
        }
        return names;
    }
    // The model's rows are the collection's items, one by one, in order.
    static void expectRowsAreItems(const KyDiQtCollectionModel& model, const std::string& where) {
        const KyDiItemArray& items = model.collection()->getItems();
        ASSERT_EQ(model.rowCount(), items.length()) << where;
        for (int row = 0; row < items.length(); ++row) {
            ASSERT_EQ(model.item(row), items[row]) << where << ": row " << row;
        }
        ASSERT_EQ(model.currentRow(), model.rowOf(model.collection()->getCurrentItem())) << where;
    }

    // Opens a drawing file; it becomes the document in front.
    KyRefDocument* open(const std::string& path) {
        KyString error;
        KyRefDocument* document = host.documents().openDocument(KyString::fromUtf8(path), error);
        EXPECT_NE(document, nullptr) << path << ": " << error.utf8();
        return document;
    }

private:
    std::unique_ptr<QGuiApplication> m_app;
    std::vector<std::unique_ptr<QAbstractItemModel>> m_models;
    std::vector<std::unique_ptr<QAbstractItemModelTester>> m_testers;
};

}  // namespace kytest
