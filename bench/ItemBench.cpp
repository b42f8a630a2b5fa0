// Data items over a drawing of 10,000 layers: finding the kept item of a
// record, reading a layer's colour through its item and wrapper (an open, a
// read, a colour turned into its value item), listing a layer's members, and
// the refresh pass over 1,000 watched objects of which none changed.
#include <benchmark/benchmark.h>

#include <memory>
#include <vector>

#include "KyRefDocument.h"
#include "KyRefHost.h"
#include "db/KyAxDocLock.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbLayerTable.h"
#include "db/KyDbLayerTableRecord.h"
#include "db/KyDbObjectPointer.h"
#include "kydi/KyDiDataItemFactory.h"
#include "kydi/KyDiDynamicObject.h"
#include "kydi/KyDiFunctions.h"
#include "kydi/KyDiManager.h"
#include "kydi/KyDiObjectReactor.h"
#include "rx/KyRxMemberQueryEngine.h"
#include "rx/KyRxProperty.h"

namespace {

// The host with one drawing of `count` layers and the layer started on it,
// once for the process (the layer starts once per process).
class Session {
public:
    static Session& instance() {
        static Session* s_session = new Session(10000);
        return *s_session;
    }

    explicit Session(int count) : m_host(options()) {
        m_host.documents().newDocument();
        KyDbDatabase* db = m_host.documents().current()->database();
        const KyAxDocLock lock(db);
        KyDbObjectPointer<KyDbLayerTable> table(db->layerTableId(), KyDb::kForWrite);
        for (int i = 0; i < count; ++i) {
            auto* layer = new KyDbLayerTableRecord();
            layer->setName(KyString::formatted(L"L%d", i));
            KyDbObjectId id;
            table->add(id, layer);
            layer->close();
            m_layers.push_back(id);
        }
        KyDiManager::initialize(&m_host);
    }
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    const std::vector<KyDbObjectId>& layers() const { return m_layers; }

private:
    static KyRefHostOptions options() {
        KyRefHostOptions options;
        options.manualClock = true;
        return options;
    }
    KyRefHost m_host;
    std::vector<KyDbObjectId> m_layers;
};

KyDiDynamicObject* itemOf(KyDbObjectId id) {
    return createDataItem(KyString(), KyRxValue(id));
}

void BM_KeptItemOfARecord(benchmark::State& state) {
    Session& session = Session::instance();
    for (KyDbObjectId id : session.layers()) {
        itemOf(id);
    }
    size_t i = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(itemOf(session.layers()[i++ % session.layers().size()]));
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_KeptItemOfARecord);

void BM_ColourReadThroughTheItem(benchmark::State& state) {
    Session& session = Session::instance();
    KyDiDynamicObject* item = itemOf(session.layers()[5000]);
    const auto* color = kyrxCast<KyRxProperty>(KyDiFindMember(item, L"Color"));
    for (auto _ : state) {
        KyRxValue value;
        color->getValue(item, value);
        benchmark::DoNotOptimize(value);
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_ColourReadThroughTheItem);

void BM_MembersOfALayer(benchmark::State& state) {
    Session& session = Session::instance();
    KyDiDynamicObject* item = itemOf(session.layers()[5000]);
    for (auto _ : state) {
        const std::unique_ptr<KyRxMemberIterator> members(item->newMemberIterator());
        int count = 0;
        for (; !members->done(); members->next()) {
            ++count;
        }
        benchmark::DoNotOptimize(count);
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_MembersOfALayer);

void BM_RefreshWithQuietWatches(benchmark::State& state) {
    Session& session = Session::instance();
    KyDiObjectReactor reactor;
    const std::vector<KyDbObjectId> watched(session.layers().begin(),
                                            session.layers().begin() + 1000);
    for (KyDbObjectId id : watched) {
        KyDiManager::addObjectReactor(id, &reactor);
    }
    KyDiManager::refresh();
    for (auto _ : state) {
        KyDiManager::refresh();
    }
    for (KyDbObjectId id : watched) {
        KyDiManager::removeObjectReactor(id, &reactor);
    }
}
BENCHMARK(BM_RefreshWithQuietWatches);

}  // namespace

BENCHMARK_MAIN();
