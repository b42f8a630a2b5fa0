// The layer palette over the sample: the layer list as the palette shows it
// (the "On" column turned around from IsOff, flags as check boxes alone,
// transparencies in percent, the current marker), under Qt's model tester;
// the list of colours a colour cell is edited with; and the window, whose current layer box, filter
// and command line reach the host and follow it through the palette's refresh steps.
#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSignalSpy>
#include <QSortFilterProxyModel>
#include <QTest>
#include <QTreeView>
#include <memory>
#include <vector>

#include "KyPalColorDelegate.h"
#include "KyPalCurrentLayerBox.h"
#include "KyPalLayerTable.h"
#include "KyPalLayerTableModel.h"
#include "KyPalPropertyPanel.h"
#include "KyPalWindow.h"
#include "KyRefDocument.h"
#include "KyRefSelectionService.h"
#include "QtModelFixture.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbHandle.h"
#include "kydiqt/KyDiQtCollectionModel.h"
#include "kydiqt/KyDiQtPropertyModel.h"
#include "manager/RefHostFixture.h"

namespace {

using Column = KyPalLayerTableModel::Column;

// The sample open in the reference host, the layer started, and a Qt
// application for widgets on the offscreen platform.
class Palette : public kytest::RefHostFixture {
protected:
    Palette() : RefHostFixture(onManualClock(), Drawing::kNone) {}

    void SetUp() override {
        m_app = kytest::offscreenApplication<QApplication>();
        KyString error;
        ASSERT_NE(host.documents().openDocument(KyString::fromUtf8(KYDI_TEST_SAMPLE), error),
                  nullptr)
            << error.utf8();
        RefHostFixture::SetUp();
        KyDiManager::refresh();
    }
    void TearDown() override {
        // What reads the layer goes before the layer stops.
        m_testers.clear();
        m_table.reset();
        m_layers.reset();
        m_window.reset();
        RefHostFixture::TearDown();
        m_app.reset();
    }

    // The palette's layer list over the layers, under the tester.
    KyPalLayerTableModel& table() {
        m_layers = std::make_unique<KyDiQtCollectionModel>(
            KyDiManager::getKnownCollection(L"LAYER"), KyPalLayerTableModel::columnProperties());
        m_table = std::make_unique<KyPalLayerTableModel>();
        m_table->setSourceModel(m_layers.get());
        test(m_layers.get());
        test(m_table.get());
        return *m_table;
    }
    // The palette, with the tester on every model it shows.
    KyPalWindow& window() {
        m_window = std::make_unique<KyPalWindow>(host);
        test(m_window->layers());
        test(m_window->layerTable()->shownRows());
        test(m_window->layerTable()->shownRows()->sourceModel());
        test(m_window->properties()->model());
        return *m_window;
    }
    void test(QAbstractItemModel* model) {
        m_testers.push_back(std::make_unique<QAbstractItemModelTester>(
            model, QAbstractItemModelTester::FailureReportingMode::Fatal));
    }
    static int rowOf(const QAbstractItemModel& model, const QString& name) {
        for (int row = 0; row < model.rowCount(); ++row) {
            if (model.index(row, Column::NameColumn).data() == name) {
                return row;
            }
        }
        ADD_FAILURE() << "no row " << name.toStdString();
        return -1;
    }
    static QVariant cell(const QAbstractItemModel& model, const char* name, int column,
                         int role = Qt::DisplayRole) {
        return model.index(rowOf(model, name), column).data(role);
    }

private:
    std::unique_ptr<QApplication> m_app;
    std::unique_ptr<KyDiQtCollectionModel> m_layers;
    std::unique_ptr<KyPalLayerTableModel> m_table;
    std::vector<std::unique_ptr<QAbstractItemModelTester>> m_testers;
    std::unique_ptr<KyPalWindow> m_window;
};

TEST_F(Palette, TheLayerListShowsWhatAPaletteShowsAndWritesThroughTheHost) {
    KyPalLayerTableModel& layers = table();
    EXPECT_EQ(layers.headerData(Column::OnColumn, Qt::Horizontal).toString(), "On");
    EXPECT_EQ(layers.headerData(Column::FreezeColumn, Qt::Horizontal).toString(), "Frozen");
    EXPECT_EQ(cell(layers, "Walls", Column::CurrentColumn).toString(), QString::fromUtf8("\u2713"));
    EXPECT_EQ(cell(layers, "Doors", Column::CurrentColumn).toString(), "");
    // "Hidden Lines" is off, "Doors" on; a flag shows no text beside its box.
    EXPECT_EQ(cell(layers, "Hidden Lines", Column::OnColumn, Qt::CheckStateRole), Qt::Unchecked);
    EXPECT_EQ(cell(layers, "Doors", Column::OnColumn, Qt::CheckStateRole), Qt::Checked);
    EXPECT_EQ(cell(layers, "Grid", Column::LockColumn, Qt::CheckStateRole), Qt::Checked);
    EXPECT_FALSE(cell(layers, "Doors", Column::OnColumn).isValid());
    const QModelIndex doorsOn = layers.index(rowOf(layers, "Doors"), Column::OnColumn);
    EXPECT_TRUE(layers.flags(doorsOn) & Qt::ItemIsUserCheckable);
    EXPECT_FALSE(layers.flags(doorsOn) & Qt::ItemIsEditable);
    // Transparencies in percent, as the command line writes them.
    EXPECT_EQ(cell(layers, "Windows", Column::TransparencyColumn).toString(), "20");
    EXPECT_EQ(cell(layers, "Grid", Column::TransparencyColumn).toString(), "80");
    EXPECT_EQ(cell(layers, "Doors", Column::TransparencyColumn, Qt::EditRole), 0);
    EXPECT_EQ(cell(layers, "Walls", Column::ColorColumn, Qt::ToolTipRole).toString(), "blue");

    // Unchecking "On" turns the layer off, by the host's command; a
    // transparency is written in percent, and one past 90 is refused.
    sentTexts();
    ASSERT_TRUE(layers.setData(doorsOn, Qt::Unchecked, Qt::CheckStateRole));
    EXPECT_EQ(sentTexts(), std::vector<std::wstring>{L"'_.-LAYER\n_OFF\n=Doors\n\n"});
    EXPECT_FALSE(layers.setData(doorsOn, false)) << "a flag changes by its check box only";
    const QModelIndex doorsTransparency =
        layers.index(rowOf(layers, "Doors"), Column::TransparencyColumn);
    ASSERT_TRUE(layers.setData(doorsTransparency, 30));
    EXPECT_FALSE(layers.setData(doorsTransparency, 95));
    host.idle();
    KyDiManager::refresh();
    EXPECT_EQ(cell(layers, "Doors", Column::OnColumn, Qt::CheckStateRole), Qt::Unchecked);
    EXPECT_EQ(cell(layers, "Doors", Column::TransparencyColumn).toString(), "30");

    // The marker moves with the current layer, and the marker cells say so.
    QSignalSpy changed(&layers, &QAbstractItemModel::dataChanged);
    type(L"CLAYER\nDoors\n");
    KyDiManager::refresh();
    EXPECT_EQ(cell(layers, "Doors", Column::CurrentColumn).toString(), QString::fromUtf8("\u2713"));
    EXPECT_EQ(cell(layers, "Walls", Column::CurrentColumn).toString(), "");
    int markerRowsTold = 0;
    for (const QList<QVariant>& signal : changed) {
        const auto first = signal[0].value<QModelIndex>();
        const auto last = signal[1].value<QModelIndex>();
        markerRowsTold +=
            first.column() <= Column::CurrentColumn && last.column() >= Column::CurrentColumn;
    }
    EXPECT_EQ(markerRowsTold, 2);
}

TEST_F(Palette, TheColourListOffersTheHeldColourAndWritesAnIndexColour) {
    KyPalLayerTableModel& layers = table();
    const QModelIndex doors = layers.index(rowOf(layers, "Doors"), Column::ColorColumn);
    KyPalColorDelegate delegate(false);
    QWidget parent;
    auto* box = qobject_cast<QComboBox*>(delegate.createEditor(&parent, {}, doors));
    ASSERT_NE(box, nullptr);
    delegate.setEditorData(box, doors);
    // Index colour 30 is not among the standard seven: it heads the list.
    EXPECT_EQ(box->currentIndex(), 0);
    EXPECT_EQ(box->currentText(), "30");
    EXPECT_EQ(box->findText("ByLayer"), -1) << "a layer's colour is never ByLayer";
    sentTexts();
    delegate.setModelData(box, &layers, doors);
    EXPECT_TRUE(sentTexts().empty()) << "the colour held is not written again";
    box->setCurrentIndex(box->findText("red"));
    delegate.setModelData(box, &layers, doors);
    EXPECT_EQ(sentTexts(), std::vector<std::wstring>{L"'_.-LAYER\n_COLOR\n1\n=Doors\n\n"});
    // Any other cell gets the styled delegate's own editor.
    const QModelIndex name = layers.index(rowOf(layers, "Doors"), Column::NameColumn);
    EXPECT_EQ(qobject_cast<QComboBox*>(delegate.createEditor(&parent, {}, name)), nullptr);
}

TEST_F(Palette, TheWindowSendsTheUsersChoicesAndFollowsTheHost) {
    KyPalWindow& palette = window();
    KyPalCurrentLayerBox& current = *palette.currentLayer();
    EXPECT_EQ(current.currentText(), "Walls");
    const QModelIndex drawingLayer = palette.properties()->model()->valueIndex("Layer");
    EXPECT_EQ(drawingLayer.data().toString(), "Walls");
    auto* tree = palette.findChild<QTreeView*>("propertyTree");
    ASSERT_NE(tree, nullptr);
    EXPECT_TRUE(tree->isExpanded(drawingLayer.parent())) << "the categories stand open";

    // A choice goes to the host, and shows for good once it has run it.
    QTest::keyClick(&current, Qt::Key_Down);
    EXPECT_EQ(current.currentText(), "Doors");
    EXPECT_EQ(hostValue(L"CLAYER"), L"Walls");
    palette.refreshStep();
    EXPECT_EQ(hostValue(L"CLAYER"), L"Doors");
    EXPECT_EQ(current.currentText(), "Doors");
    EXPECT_EQ(palette.properties()->model()->valueIndex("Layer").data().toString(), "Doors");
    // A frozen layer can't be current: the box shows the current one again.
    current.setCurrentIndex(rowOf(*palette.layers(), "Construction"));
    Q_EMIT current.activated(current.currentIndex());
    palette.refreshStep();
    EXPECT_EQ(current.currentText(), "Doors");

    // The command line: typed text reaches the host, its answers the log.
    auto* input = palette.findChild<QLineEdit*>("commandInput");
    auto* log = palette.findChild<QPlainTextEdit*>("commandLog");
    ASSERT_NE(input, nullptr);
    ASSERT_NE(log, nullptr);
    EXPECT_TRUE(log->toPlainText().contains("Cannot set the frozen layer \"Construction\" current"))
        << log->toPlainText().toStdString();
    QTest::keyClicks(input, "CLAYER");
    QTest::keyClick(input, Qt::Key_Return);
    QTest::keyClicks(input, "Hatch");
    QTest::keyClick(input, Qt::Key_Return);
    EXPECT_TRUE(input->text().isEmpty());
    palette.refreshStep();
    EXPECT_EQ(current.currentText(), "Hatch");
    EXPECT_TRUE(log->toPlainText().contains("CLAYER")) << log->toPlainText().toStdString();

    // The filter keeps the names with the text typed, in any case, or
    // matching a pattern.
    QSortFilterProxyModel& shown = *palette.layerTable()->shownRows();
    palette.layerTable()->setFilterText("WAL");
    ASSERT_EQ(shown.rowCount(), 1);
    EXPECT_EQ(shown.index(0, Column::NameColumn).data().toString(), "Walls");
    palette.layerTable()->setFilterText("d?or");
    ASSERT_EQ(shown.rowCount(), 1);
    EXPECT_EQ(shown.index(0, Column::NameColumn).data().toString(), "Doors");
    palette.layerTable()->setFilterText("");
    EXPECT_EQ(shown.rowCount(), palette.layers()->rowCount());
}

}  // namespace

namespace {

TEST_F(Palette, ThePropertyPanelShowsTheSelectionWhileSomethingIsSelected) {
    KyPalWindow& palette = window();
    KyPalPropertyPanel& panel = *palette.properties();
    EXPECT_EQ(panel.shownContext(), "DRAWING");
    KyDbObjectId line;
    KyDbObjectId circle;
    KyDbDatabase* db = host.documents().currentDatabase();
    db->getKyDbObjectId(line, KyDbHandle(0x4B));
    db->getKyDbObjectId(circle, KyDbHandle(0x4E));
    host.selectionService()->setSelection({line, circle});
    palette.refreshStep();
    EXPECT_EQ(panel.shownContext(), "SELECTION");
    // What a line and a circle share, and the values they agree on.
    EXPECT_TRUE(panel.model()->valueIndex("Color").isValid());
    EXPECT_FALSE(panel.model()->valueIndex("Radius").isValid());
    EXPECT_TRUE(
        panel.model()->valueIndex("LocalizedName").data(KyDiQtPropertyModel::VariesRole).toBool());
    host.selectionService()->clear();
    palette.refreshStep();
    EXPECT_EQ(panel.shownContext(), "DRAWING");
}

}  // namespace
