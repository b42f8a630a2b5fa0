// The drawing database: open/close pairs, appending layers, and a full walk
// of the layer table at 1,000, 10,000 and 100,000 layers.
#include <benchmark/benchmark.h>

#include <memory>

#include "db/KyDbDatabase.h"
#include "db/KyDbLayerTable.h"
#include "db/KyDbLayerTableIterator.h"
#include "db/KyDbLayerTableRecord.h"
#include "db/KyDbObjectPointer.h"
#include "db/KyDbUndoController.h"

namespace {

// Appends `count` layers named L0 ... to the database in one write-open.
void addLayers(KyDbDatabase& db, int count) {
    KyDbObjectPointer<KyDbLayerTable> table(db.layerTableId(), KyDb::kForWrite);
    for (int i = 0; i < count; ++i) {
        auto* layer = new KyDbLayerTableRecord();
        layer->setName(KyString::formatted(L"L%d", i));
        table->add(layer);
        layer->close();
    }
}

KyDbObjectId layerZero(KyDbDatabase& db) {
    KyDbObjectPointer<KyDbLayerTable> table(db.layerTableId(), KyDb::kForRead);
    KyDbObjectId id;
    table->getAt(L"0", id);
    return id;
}

void BM_OpenCloseForRead(benchmark::State& state) {
    KyDbDatabase db;
    const KyDbObjectId id = layerZero(db);
    for (auto _ : state) {
        KyDbObject* object = nullptr;
        kydbOpenObject(object, id, KyDb::kForRead);
        benchmark::DoNotOptimize(object);
        object->close();
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_OpenCloseForRead);

void BM_OpenCloseForWrite(benchmark::State& state) {
    KyDbDatabase db;
    const KyDbObjectId id = layerZero(db);
    for (auto _ : state) {
        KyDbObject* object = nullptr;
        kydbOpenObject(object, id, KyDb::kForWrite);
        benchmark::DoNotOptimize(object);
        object->close();
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_OpenCloseForWrite);

// Appends state.range(0) layers into a new drawing; range(1) says whether
// undo records the appends.
void BM_AppendLayers(benchmark::State& state) {
    const int count = static_cast<int>(state.range(0));
    for (auto _ : state) {
        state.PauseTiming();
        auto db = std::make_unique<KyDbDatabase>();
        db->undoController()->setRecording(state.range(1) != 0);
        state.ResumeTiming();
        addLayers(*db, count);
        state.PauseTiming();
        db.reset();
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * count);
}
BENCHMARK(BM_AppendLayers)
    ->ArgsProduct({{1000, 10000, 100000}, {0, 1}})
    ->ArgNames({"layers", "undo"})
    ->Unit(benchmark::kMillisecond);

// Walks the whole layer table, opening each record for read and reading it.
void BM_WalkLayerTable(benchmark::State& state) {
    KyDbDatabase db;
    db.undoController()->setRecording(false);
    addLayers(db, static_cast<int>(state.range(0)) - 1);
    KyDbObjectPointer<KyDbLayerTable> table(db.layerTableId(), KyDb::kForRead);
    for (auto _ : state) {
        KyDbLayerTableIterator* raw = nullptr;
        table->newIterator(raw);
        std::unique_ptr<KyDbLayerTableIterator> it(raw);
        int off = 0;
        for (; !it->done(); it->step()) {
            KyDbLayerTableRecord* layer = nullptr;
            it->getRecord(layer, KyDb::kForRead);
            off += layer->isOff() ? 1 : 0;
            layer->close();
        }
        benchmark::DoNotOptimize(off);
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(BM_WalkLayerTable)->Arg(1000)->Arg(10000)->Arg(100000)->ArgName("layers");

// Walks the ids only, as a list that looks at erased flags does.
void BM_WalkLayerIds(benchmark::State& state) {
    KyDbDatabase db;
    db.undoController()->setRecording(false);
    addLayers(db, static_cast<int>(state.range(0)) - 1);
    KyDbObjectPointer<KyDbLayerTable> table(db.layerTableId(), KyDb::kForRead);
    for (auto _ : state) {
        KyDbLayerTableIterator* raw = nullptr;
        table->newIterator(raw, true, false);
        std::unique_ptr<KyDbLayerTableIterator> it(raw);
        int erased = 0;
        for (; !it->done(); it->step(true, false)) {
            KyDbObjectId id;
            it->getRecordId(id);
            erased += id.isErased() ? 1 : 0;
        }
        benchmark::DoNotOptimize(erased);
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(BM_WalkLayerIds)->Arg(1000)->Arg(10000)->Arg(100000)->ArgName("layers");

}  // namespace

BENCHMARK_MAIN();
