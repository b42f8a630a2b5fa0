// The layers as a live collection at 1,000, 10,000 and 100,000 layers:
// - one layer changed by the host's layer command: the host's share (the
//   command queued and run at idle) and the system's share (the refresh pass
//   from the record's close to the itemsModified that reports it);
// - the refill after one new layer, to its itemsChanged;
// - a switch into a viewport that freezes one layer and back, each to its
//   itemsModified (the viewport context reports at the end of one pass, the
//   layers at the next: two passes).
#include <benchmark/benchmark.h>

#include "LayerDrawings.h"

namespace {

using kybench::colorCommand;
using kybench::Drawing;
using kybench::Session;
using kybench::Told;

void BM_ChangedLayerHostShare(benchmark::State& state) {
    Session& session = Session::instance();
    const int count = static_cast<int>(state.range(0));
    session.use(count);
    for (auto _ : state) {
        session.host().editor()->interpreter().queue(colorCommand(count));
        session.host().idle();
        state.PauseTiming();
        KyDiManager::refresh();
        state.ResumeTiming();
    }
}
BENCHMARK(BM_ChangedLayerHostShare)->Arg(1000)->Arg(10000)->Arg(100000);

void BM_ChangedLayerSystemShare(benchmark::State& state) {
    Session& session = Session::instance();
    const int count = static_cast<int>(state.range(0));
    session.use(count);
    KyDiObservableCollection* layers = KyDiManager::getKnownCollection(L"LAYER");
    Told told;
    layers->addReactor(&told);
    int round = 0;
    for (auto _ : state) {
        state.PauseTiming();
        session.host().editor()->interpreter().queue(colorCommand(count));
        session.host().idle();
        ++round;
        state.ResumeTiming();
        KyDiManager::refresh();
    }
    layers->removeReactor(&told);
    if (told.modified != round || told.resets != 0) {
        state.SkipWithError("a change went unreported, or came as a reset");
    }
}
BENCHMARK(BM_ChangedLayerSystemShare)->Arg(1000)->Arg(10000)->Arg(100000);

void BM_RefillAfterANewLayer(benchmark::State& state) {
    Session& session = Session::instance();
    const int count = static_cast<int>(state.range(0));
    session.use(count);
    KyDiObservableCollection* layers = KyDiManager::getKnownCollection(L"LAYER");
    Told told;
    layers->addReactor(&told);
    static int s_added = 0;
    int round = 0;
    for (auto _ : state) {
        state.PauseTiming();
        {
            const KyAxDocLock lock(session.db());
            KyDbObjectPointer<KyDbSymbolTable> table(session.db()->layerTableId(), KyDb::kForWrite);
            auto* record = new KyDbLayerTableRecord();
            record->setName(KyString::formatted(L"New%d", s_added++));
            table->add(record);
            record->close();
        }
        ++round;
        state.ResumeTiming();
        KyDiManager::refresh();
    }
    layers->removeReactor(&told);
    if (told.added != round) {
        state.SkipWithError("a new layer went unreported");
    }
}
BENCHMARK(BM_RefillAfterANewLayer)->Arg(1000)->Arg(10000)->Arg(100000);

void BM_ViewportSwitchToItsReport(benchmark::State& state) {
    Session& session = Session::instance();
    const int count = static_cast<int>(state.range(0));
    const Drawing& drawing = session.use(count);
    KyDiObservableCollection* layers = KyDiManager::getKnownCollection(L"LAYER");
    Told told;
    layers->addReactor(&told);
    int round = 0;
    for (auto _ : state) {
        // Into the viewport, and back out to the paper on the next round.
        if (round++ % 2 == 0) {
            session.host().enterViewport(drawing.viewport);
        } else {
            session.host().leaveViewport();
        }
        KyDiManager::refresh();
        KyDiManager::refresh();
    }
    layers->removeReactor(&told);
    if (told.modified != round) {
        state.SkipWithError("a switch went unreported");
    }
}
BENCHMARK(BM_ViewportSwitchToItsReport)->Arg(1000)->Arg(10000)->Arg(100000);

}  // namespace

BENCHMARK_MAIN();
