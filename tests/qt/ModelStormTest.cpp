// The storm of the models: random steps of the reference host from a fixed
// seed (HostStorm: layers made, renamed, erased, undone and redone, drawings
// opened, switched and closed, layouts and viewports entered ...) with a
// table model over every known collection and a property panel over the
// "DRAWING" context, each under Qt's model tester. After every refresh pass
// each model's rows are its collection's items, and a shadow list kept only
// from the model's signals is those items too: the signals told every
// change. 2,000 steps by default; KYDI_STORM_STEPS sets another number and
// KYDI_STORM_SEED another seed.
#include <gtest/gtest.h>

#include <unistd.h>

#include <QPersistentModelIndex>
#include <deque>
#include <filesystem>
#include <iostream>

#include "QtModelFixture.h"
#include "kydi/KyDiManagerReactor.h"
#include "kydiqt/KyDiQtPropertyModel.h"
#include "scenarios/HostStorm.h"
#include "support/StormDice.h"

namespace {

namespace fs = std::filesystem;

// The rows of a model as its signals tell them.
class ShadowRows {
public:
    explicit ShadowRows(KyDiQtCollectionModel* model) : m_model(model) {
        m_rows = current();
        QObject::connect(model, &QAbstractItemModel::rowsInserted,
                         [this](const QModelIndex&, int first, int last) {
                             ++m_runs;
                             for (int row = first; row <= last; ++row) {
                                 m_rows.insert(m_rows.begin() + row, m_model->item(row));
                             }
                         });
        QObject::connect(model, &QAbstractItemModel::rowsRemoved,
                         [this](const QModelIndex&, int first, int last) {
                             ++m_runs;
                             m_rows.erase(m_rows.begin() + first, m_rows.begin() + last + 1);
                         });
        QObject::connect(model, &QAbstractItemModel::modelReset, [this] {
            m_rows = current();
            ++m_resets;
        });
        QObject::connect(model, &QAbstractItemModel::dataChanged, [this] { ++m_changes; });
        QObject::connect(model, &QAbstractItemModel::layoutChanged, [this] {
            m_rows = current();
            ++m_layouts;
        });
    }
    const std::vector<KyDiDynamicObject*>& rows() const { return m_rows; }
    int layouts() const { return m_layouts; }
    int runs() const { return m_runs; }
    int resets() const { return m_resets; }
    int changes() const { return m_changes; }

private:
    std::vector<KyDiDynamicObject*> current() const {
        std::vector<KyDiDynamicObject*> rows;
        for (int row = 0; row < m_model->rowCount(); ++row) {
            rows.push_back(m_model->item(row));
        }
        return rows;
    }

    KyDiQtCollectionModel* m_model;
    std::vector<KyDiDynamicObject*> m_rows;
    std::vector<QPersistentModelIndex> m_moving;
    int m_layouts = 0;
    int m_runs = 0;
    int m_resets = 0;
    int m_changes = 0;
};

class ModelStorm : public kytest::QtModelFixture, public KyDiManagerReactor {
protected:
    struct Watched {
        std::string name;
        KyDiQtCollectionModel* model;
        std::unique_ptr<ShadowRows> shadow;
    };

    void SetUp() override {
        QtModelFixture::SetUp();
        folder = fs::temp_directory_path() / ("kydi-qt-storm-" + std::to_string(getpid()));
        fs::create_directories(folder);
        fs::copy_file(KYDI_TEST_SAMPLE, folder / "scratch.kyd",
                      fs::copy_options::overwrite_existing);
        open(KYDI_TEST_SAMPLE);
        KyDiManager::addReactor(static_cast<KyDiManagerReactor*>(this));
    }
    void TearDown() override {
        KyDiManager::removeReactor(static_cast<KyDiManagerReactor*>(this));
        watched.clear();
        QtModelFixture::TearDown();
        std::error_code ignored;
        fs::remove_all(folder, ignored);
    }

    void refreshEnded() override { check("after a pass in " + *where); }

    void check(const std::string& when) {
        ++checks;
        for (const Watched& each : watched) {
            const KyDiItemArray& items = each.model->collection()->getItems();
            const std::vector<KyDiDynamicObject*> expected(items.begin(), items.end());
            EXPECT_EQ(each.shadow->rows(), expected)
                << each.name << ": the signals missed a change " << when;
            expectRowsAreItems(*each.model, each.name + " " + when);
        }
    }

    fs::path folder;
    std::vector<Watched> watched;
    const std::string* where = nullptr;
    int checks = 0;
};

const QStringList kLayerColumns = {"Color", "LinetypeObjectId", "LineWeight", "Transparency",
                                   "IsOff", "IsFrozen",         "IsLocked",   "IsPlottable"};

TEST_F(ModelStorm, EveryModelFollowsItsCollectionThroughRandomSteps) {
    kytest::StormDice dice(20261125);
    const long long steps = kytest::StormDice::fromEnvironment("KYDI_STORM_STEPS", 2000);
    std::string at = "setting up";
    where = &at;
    const KyDiKnownCollectionNames names = KyDiGetKnownCollectionNames();
    std::vector<KyDiObservableCollection*> collections;
    for (int i = 0; i < names.length(); ++i) {
        if (!names[i].available) {
            continue;
        }
        const bool layers = names[i].name.compare(L"LAYER") == 0;
        KyDiQtCollectionModel* model =
            modelOf(names[i].name.kwszPtr(), layers ? kLayerColumns : QStringList{});
        ASSERT_NE(model->collection(), nullptr) << names[i].name.utf8();
        watched.push_back({names[i].name.utf8(), model, std::make_unique<ShadowRows>(model)});
        collections.push_back(model->collection());
    }
    ASSERT_GE(watched.size(), 10U);
    auto* drawing = keep(std::make_unique<KyDiQtPropertyModel>());
    drawing->setContext("DRAWING");

    kytest::HostStorm storm(host, dice, KYDI_TEST_SAMPLE, folder / "scratch.kyd",
                            folder / "batch.txt", at);
    storm.setCollections(collections);
    std::deque<std::string> recent;
    long long step = 0;
    for (; step < steps && !HasFailure(); ++step) {
        storm.step();
        recent.push_back(at);
        if (recent.size() > 30) {
            recent.pop_front();
        }
        check("after " + at);
        // Now and then a view reads every cell.
        if (dice.oneIn(25)) {
            for (const Watched& each : watched) {
                for (int row = 0; row < each.model->rowCount(); ++row) {
                    for (int column = 0; column < each.model->columnCount(); ++column) {
                        each.model->index(row, column).data();
                        each.model->index(row, column).data(Qt::DecorationRole);
                    }
                }
            }
        }
    }
    if (HasFailure()) {
        std::cout << "the model storm failed at " << at << "; the steps before it:\n";
        for (const std::string& line : recent) {
            std::cout << "  " << line << "\n";
        }
        return;
    }
    int layouts = 0, runs = 0, resets = 0, changes = 0;
    for (const Watched& each : watched) {
        layouts += each.shadow->layouts();
        runs += each.shadow->runs();
        resets += each.shadow->resets();
        changes += each.shadow->changes();
    }
    std::cout << "model storm: " << step << " steps, " << checks << " checks; " << runs
              << " runs of rows inserted or removed, " << changes << " dataChanged, " << resets
              << " resets, " << layouts << " layout changes; seed " << dice.seed() << "\n";
    EXPECT_GT(checks, steps);
    EXPECT_GT(runs, steps / 50) << "the storm reached the models";
    EXPECT_GT(changes, steps / 20);
}

}  // namespace
