// The table model over a live collection: the layers of every real drawing
// and of the sample as rows, each notification of the collection as the
// model's own emitted, writes leaving as the host's commands.
#include <gtest/gtest.h>

#include <QColor>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "KyRefDocumentManager.h"
#include "QtModelFixture.h"
#include "kydiqt/KyDiQtValue.h"

namespace {

namespace fs = std::filesystem;
using kytest::QtModelFixture;

const QStringList kLayerColumns = {"Color", "LinetypeObjectId", "LineWeight", "Transparency",
                                   "IsOff", "IsFrozen",         "IsLocked",   "IsPlottable"};

class CollectionModel : public QtModelFixture {
protected:
    // The model's emitted, one line each, in the order emitted.
    void record(QAbstractItemModel* model) {
        QObject::connect(
            model, &QAbstractItemModel::rowsInserted, [this](const QModelIndex&, int a, int b) {
                emitted.push_back("inserted " + std::to_string(a) + "-" + std::to_string(b));
            });
        QObject::connect(
            model, &QAbstractItemModel::rowsRemoved, [this](const QModelIndex&, int a, int b) {
                emitted.push_back("removed " + std::to_string(a) + "-" + std::to_string(b));
            });
        QObject::connect(
            model, &QAbstractItemModel::dataChanged,
            [this](const QModelIndex& a, const QModelIndex& b, const QList<int>& roles) {
                emitted.push_back("changed " + std::to_string(a.row()) + "-" +
                                  std::to_string(b.row()) + (roles.isEmpty() ? "" : " roles"));
            });
        QObject::connect(model, &QAbstractItemModel::modelReset,
                         [this] { emitted.push_back("reset"); });
        QObject::connect(model, &QAbstractItemModel::layoutChanged,
                         [this] { emitted.push_back("layout"); });
        if (auto* table = qobject_cast<KyDiQtCollectionModel*>(model)) {
            QObject::connect(table, &KyDiQtCollectionModel::currentRowChanged, [this](int row) {
                emitted.push_back("current " + std::to_string(row));
            });
        }
    }
    std::vector<std::string> take() { return std::exchange(emitted, {}); }
    // Lets the host run what was typed, then a forced pass.
    void settle() {
        host.idle();
        KyDiManager::refresh();
    }

    std::vector<std::string> emitted;
};

// Reads every cell of every row in every role a view asks for.
void readAll(const QAbstractItemModel& model) {
    for (int row = 0; row < model.rowCount(); ++row) {
        for (int column = 0; column < model.columnCount(); ++column) {
            const QModelIndex index = model.index(row, column);
            for (const int role : {int(Qt::DisplayRole), int(Qt::EditRole), int(Qt::DecorationRole),
                                   int(Qt::CheckStateRole), int(Qt::ToolTipRole)}) {
                index.data(role);
            }
            model.flags(index);
        }
    }
}

TEST_F(CollectionModel, ShowsTheLayersOfEveryRealDrawingAndOfTheSample) {
    const char* drawings = std::getenv("KYDI_DRAWINGS_DIR");
    drawings = drawings != nullptr ? drawings : KYDI_TEST_DRAWINGS;
    std::vector<fs::path> files = {KYDI_TEST_SAMPLE};
    if (drawings != nullptr && fs::exists(drawings)) {
        for (const auto& entry : fs::directory_iterator(drawings)) {
            if (entry.path().extension() == ".kyd") {
                files.push_back(entry.path());
            }
        }
    }
    KyDiQtCollectionModel* layers = modelOf(L"LAYER", kLayerColumns);
    int swatches = 0;
    for (const fs::path& file : files) {
        KyRefDocument* document = open(file.string());
        ASSERT_NE(document, nullptr);
        KyDiManager::refresh();
        expectRowsAreItems(*layers, file.filename().string());
        EXPECT_GE(layers->rowCount(), 1) << file;
        readAll(*layers);
        for (int row = 0; row < layers->rowCount(); ++row) {
            // Every layer has a colour with red, green and blue: a swatch.
            swatches += layers->index(row, 1).data(Qt::DecorationRole).value<QColor>().isValid();
            EXPECT_TRUE(layers->index(row, 5).data(Qt::CheckStateRole).isValid()) << file;
        }
        EXPECT_TRUE(layers->index(layers->currentRow(), 0)
                        .data(KyDiQtCollectionModel::CurrentItemRole)
                        .toBool())
            << file << ": the current layer is marked";
        host.documents().closeDocument(document);
        KyDiManager::refresh();
        expectRowsAreItems(*layers, "after closing " + file.filename().string());
    }
    EXPECT_GE(swatches, static_cast<int>(files.size()));
    if (files.size() == 1) {
        GTEST_SKIP() << "only the sample: the real drawings are not beside the checkout";
    }
}

TEST_F(CollectionModel, HeadersFlagsAndRolesComeFromTheLayersMembers) {
    open(KYDI_TEST_SAMPLE);
    KyDiManager::refresh();
    KyDiQtCollectionModel* layers = modelOf(L"LAYER", kLayerColumns);
    EXPECT_EQ(layers->headerData(0, Qt::Horizontal).toString(), "Name");
    EXPECT_EQ(layers->headerData(2, Qt::Horizontal).toString(), "Linetype");
    EXPECT_EQ(layers->headerData(8, Qt::Horizontal).toString(), "Plot");
    EXPECT_EQ(layers->headerData(8, Qt::Horizontal, KyDiQtCollectionModel::PropertyNameRole),
              "IsPlottable");
    const int walls = layers->rowOf(layers->collection()->getCurrentItem());
    ASSERT_GE(walls, 0);
    EXPECT_EQ(layers->index(walls, 0).data().toString(), "Walls");
    EXPECT_EQ(layers->index(walls, 1).data().toString(), "blue");
    const QVariant color = layers->index(walls, 1).data(Qt::EditRole);
    ASSERT_EQ(color.metaType(), QMetaType::fromType<KyCmColor>());
    EXPECT_EQ(color.value<KyCmColor>().colorIndex(), 5);
    EXPECT_EQ(layers->index(walls, 1).data(Qt::DecorationRole).value<QColor>(), QColor(0, 0, 255));
    EXPECT_EQ(layers->index(walls, 2).data(Qt::EditRole).toString(), "Continuous");
    EXPECT_EQ(layers->index(walls, 6).data(Qt::CheckStateRole).toInt(), Qt::Unchecked);
    EXPECT_FALSE(layers->index(walls, 1).data(Qt::ToolTipRole).toString().isEmpty());
    EXPECT_TRUE(layers->flags(layers->index(walls, 1)) & Qt::ItemIsEditable);
    EXPECT_TRUE(layers->flags(layers->index(walls, 6)) & Qt::ItemIsUserCheckable);
    // A read-only member is not editable; a name that is no member reads
    // nothing.
    KyDiQtCollectionModel* more = modelOf(L"LAYER", {"IsDependent", "NoSuchMember"});
    EXPECT_FALSE(more->flags(more->index(walls, 1)) & Qt::ItemIsEditable);
    EXPECT_FALSE(more->index(walls, 2).data().isValid());
    EXPECT_FALSE(more->setData(more->index(walls, 1), true));
    EXPECT_EQ(more->headerData(2, Qt::Horizontal).toString(), "NoSuchMember");
}

TEST_F(CollectionModel, AColourSetThroughTheModelLeavesAsTheHostsCommandAndShowsOnceRun) {
    open(KYDI_TEST_SAMPLE);
    KyDiManager::refresh();
    KyDiQtCollectionModel* layers = modelOf(L"LAYER", kLayerColumns);
    record(layers);
    const int doors = [&] {
        for (int row = 0; row < layers->rowCount(); ++row) {
            if (layers->index(row, 0).data().toString() == "Doors") {
                return row;
            }
        }
        return -1;
    }();
    ASSERT_GE(doors, 0);
    sentTexts();
    KyCmColor red;
    red.setColorIndex(1);
    ASSERT_TRUE(layers->setData(layers->index(doors, 1), QVariant::fromValue(red)));
    EXPECT_EQ(sentTexts(), std::vector<std::wstring>{L"'_.-LAYER\n_COLOR\n1\n=Doors\n\n"});
    EXPECT_TRUE(take().empty()) << "nothing shows before the host ran the command";
    EXPECT_NE(layers->index(doors, 1).data().toString(), "red");
    commandLine();
    settle();
    // The host ran the command as it was sent: its command line shows it.
    const std::vector<std::wstring> ran = commandLine();
    EXPECT_NE(std::find(ran.begin(), ran.end(), L"Command: '_.-LAYER"), ran.end());
    EXPECT_EQ(take(), std::vector<std::string>{"changed " + std::to_string(doors) + "-" +
                                               std::to_string(doors)});
    EXPECT_EQ(layers->index(doors, 1).data().toString(), "red");
    EXPECT_EQ(layers->index(doors, 1).data(Qt::DecorationRole).value<QColor>(), QColor(255, 0, 0));
    // A true colour from a QColor, a flag by its check box, an index by number.
    ASSERT_TRUE(layers->setData(layers->index(doors, 1), QColor(10, 20, 30)));
    ASSERT_TRUE(layers->setData(layers->index(doors, 7), Qt::Checked, Qt::CheckStateRole));
    EXPECT_EQ(sentTexts(),
              (std::vector<std::wstring>{L"'_.-LAYER\n_COLOR\n_TRUECOLOR\n10,20,30\n=Doors\n\n",
                                         L"'_.-LAYER\n_LOCK\n=Doors\n\n"}));
    // What fits no colour is refused without a command.
    EXPECT_FALSE(layers->setData(layers->index(doors, 1), QString("mauve")));
    EXPECT_FALSE(layers->setData(layers->index(doors, 1), 300));
    EXPECT_TRUE(sentTexts().empty());
}

TEST_F(CollectionModel, EveryNotificationOfTheCollectionMapsToTheModelsSignals) {
    KyDiQtCollectionModel* layers = modelOf(L"LAYER", kLayerColumns);
    KyDiManager::refresh();
    record(layers);
    ASSERT_EQ(rows(*layers), std::vector<std::string>{"0"});
    type(L"-LAYER\n_New\nA,B,C\n\n");
    settle();
    EXPECT_EQ(take(), std::vector<std::string>{"inserted 1-3"});
    EXPECT_EQ(rows(*layers), (std::vector<std::string>{"0", "A", "B", "C"}));
    type(L"-LAYER\n_Color\n3\nB\n\n");
    settle();
    EXPECT_EQ(take(), std::vector<std::string>{"changed 2-2"});
    type(L"RECORD\n_Rename\nLAYER\nC\nD\n");
    settle();
    EXPECT_EQ(take(), std::vector<std::string>{"changed 3-3"});
    type(L"-LAYER\n_Set\nB\n\n");
    settle();
    EXPECT_EQ(take(), (std::vector<std::string>{"changed 0-0", "changed 2-2", "current 2"}));
    EXPECT_TRUE(layers->index(2, 0).data(KyDiQtCollectionModel::CurrentItemRole).toBool());
    // Two runs go in one pass, the last first.
    type(L"RECORD\n_Erase\nLAYER\nA\n");
    type(L"RECORD\n_Erase\nLAYER\nD\n");
    settle();
    EXPECT_EQ(take(), (std::vector<std::string>{"removed 3-3", "removed 1-1"}));
    EXPECT_EQ(rows(*layers), (std::vector<std::string>{"0", "B"}));
    type(L"U\n");
    settle();
    EXPECT_EQ(take(), std::vector<std::string>{"inserted 2-2"});
    EXPECT_EQ(rows(*layers), (std::vector<std::string>{"0", "B", "D"}));
    expectRowsAreItems(*layers, "after undo");
    // Another drawing in front: the list is built anew.
    host.documents().newDocument();
    settle();
    const std::vector<std::string> switched = take();
    ASSERT_FALSE(switched.empty());
    EXPECT_EQ(switched.front(), "reset");
    expectRowsAreItems(*layers, "in the new drawing");
}

TEST_F(CollectionModel, SetCurrentRowAsksTheHostAndFollowsWhenItHasRun) {
    type(L"-LAYER\n_New\nWalls\n\n");
    settle();
    KyDiQtCollectionModel* layers = modelOf(L"LAYER");
    QSignalSpy current(layers, &KyDiQtCollectionModel::currentRowChanged);
    const std::vector<std::string> names = rows(*layers);
    const int walls =
        static_cast<int>(std::find(names.begin(), names.end(), "Walls") - names.begin());
    ASSERT_LT(walls, layers->rowCount());
    layers->setCurrentRow(walls);
    EXPECT_EQ(current.count(), 0);
    settle();
    ASSERT_EQ(current.count(), 1);
    EXPECT_EQ(current.front().front().toInt(), walls);
    EXPECT_EQ(layers->currentRow(), walls);
    layers->setCurrentRow(99);
    settle();
    EXPECT_EQ(current.count(), 1);
}

}  // namespace
