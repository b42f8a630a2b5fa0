// The table model over the layers at 1,000, 10,000 and 100,000 layers:
// - one layer changed by the host's layer command, from the refresh pass to
//   the collection's itemsModified, and beside it the same pass to the
//   model's dataChanged (the pass is timed, the command is not);
// - a refill of the whole list (the collection reset) until a table view
//   has painted its first screen of rows.
// Runs on Qt's offscreen platform.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QTableView>

#include "LayerDrawings.h"
#include "kydi/KyDiFunctions.h"
#include "kydiqt/KyDiQtCollectionModel.h"

namespace {

using kybench::colorCommand;
using kybench::Session;
using kybench::Told;

const QStringList kColumns = {"Color", "LinetypeObjectId", "LineWeight", "Transparency",
                              "IsOff", "IsFrozen",         "IsLocked",   "IsPlottable"};

// The colour command of one round, run by the host outside the timing.
void changeOneLayer(benchmark::State& state, Session& session, int count) {
    state.PauseTiming();
    session.host().editor()->interpreter().queue(colorCommand(count));
    session.host().idle();
    state.ResumeTiming();
}

void BM_ChangedLayerToItemsModified(benchmark::State& state) {
    Session& session = Session::instance();
    const int count = static_cast<int>(state.range(0));
    session.use(count);
    KyDiObservableCollection* layers = KyDiManager::getKnownCollection(L"LAYER");
    Told told;
    layers->addReactor(&told);
    int round = 0;
    for (auto _ : state) {
        changeOneLayer(state, session, count);
        ++round;
        KyDiManager::refresh();
    }
    layers->removeReactor(&told);
    if (told.modified != round || told.resets != 0) {
        state.SkipWithError("a change went unreported, or came as a reset");
    }
}
BENCHMARK(BM_ChangedLayerToItemsModified)->Arg(1000)->Arg(10000)->Arg(100000);

void BM_ChangedLayerToDataChanged(benchmark::State& state) {
    Session& session = Session::instance();
    const int count = static_cast<int>(state.range(0));
    session.use(count);
    KyDiQtCollectionModel model(KyDiManager::getKnownCollection(L"LAYER"), kColumns);
    int changed = 0;
    QObject::connect(&model, &QAbstractItemModel::dataChanged, [&] { ++changed; });
    int round = 0;
    for (auto _ : state) {
        changeOneLayer(state, session, count);
        ++round;
        KyDiManager::refresh();
    }
    if (changed != round) {
        state.SkipWithError("a change did not reach the model");
    }
}
BENCHMARK(BM_ChangedLayerToDataChanged)->Arg(1000)->Arg(10000)->Arg(100000);

void BM_RefillToThePaintedView(benchmark::State& state) {
    Session& session = Session::instance();
    const int count = static_cast<int>(state.range(0));
    session.use(count);
    KyDiQtCollectionModel model(KyDiManager::getKnownCollection(L"LAYER"), kColumns);
    QTableView view;
    view.setModel(&model);
    view.resize(1000, 700);
    int resets = 0;
    QObject::connect(&model, &QAbstractItemModel::modelReset, [&] { ++resets; });
    int round = 0;
    for (auto _ : state) {
        KyDiNotifyCollectionReset(L"LAYER");
        KyDiManager::refresh();
        benchmark::DoNotOptimize(view.grab());
        ++round;
    }
    if (resets != round || model.rowCount() < count) {
        state.SkipWithError("the refill did not reach the view");
    }
}
BENCHMARK(BM_RefillToThePaintedView)
    ->Arg(1000)
    ->Arg(10000)
    ->Arg(100000)
    ->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
