// The effective values and the "DRAWING" context at 1,000, 10,000 and 100,000
// layers:
// - every bound key of the effective property read when nothing changed;
// - the current layer set through the host (its command queued and run at
//   idle) to the propertyChanged that reports it;
// - a forced refresh pass over an unchanged drawing, with both effective
//   properties bound to every key and "DRAWING" built, and the same pass
//   before anything was bound or built, which runs first; and the flush steps
//   of both effective properties alone, which is what they add to a pass;
// - "DRAWING"'s members listed with their values.
#include <benchmark/benchmark.h>

#include <cwchar>
#include <map>
#include <memory>

#include "KyRefDocument.h"
#include "KyRefHost.h"
#include "LayerDrawings.h"
#include "db/KyAxDocLock.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbLayerTableRecord.h"
#include "db/KyDbObjectPointer.h"
#include "db/KyDbSymbolTable.h"
#include "db/KyDbUndoController.h"
#include "effective/EffectiveEntryTable.h"
#include "effective/KyDiImpEffectiveProperty.h"
#include "kydi/KyDiContext.h"
#include "kydi/KyDiContextManager.h"
#include "kydi/KyDiEffectiveProperty.h"
#include "kydi/KyDiEffectivePropertyReactor.h"
#include "kydi/KyDiManager.h"
#include "manager/KyDiManagerModule.h"
#include "rx/KyRxMemberQueryEngine.h"
#include "rx/KyRxProperty.h"

namespace {

using Getter = kybench::EffectiveGetter;
using kybench::kGetters;

// Counts what an effective property tells.
class Told : public KyDiEffectivePropertyReactor {
public:
    void propertyChanged(const wchar_t* key) override {
        ++changes;
        layerChanges += std::wcscmp(key, L"LAYER") == 0 ? 1 : 0;
    }
    void allPropertiesChanged() override { ++all; }
    int changes = 0;
    int layerChanges = 0;
    int all = 0;
};

// The host and the layer, started once for the process: one drawing for each
// number of layers, the one in front being the size a benchmark asks for,
// with both effective properties bound to every key and the "DRAWING"
// context built and listed.
class Session {
public:
    static Session& instance() {
        static Session* s_session = new Session();
        return *s_session;
    }

    // The drawing of `count` layers in front; with `bind`, both effective
    // properties bound to every key and "DRAWING" built and listed.
    void use(int count, bool bind = true) {
        auto found = m_drawings.find(count);
        if (found == m_drawings.end()) {
            found = m_drawings.emplace(count, make(count)).first;
        }
        m_host.documents().makeCurrent(found->second);
        KyDiManager::refresh();
        if (!bind) {
            KyDiManager::refresh();
            return;
        }
        if (m_drawing == nullptr) {
            m_drawing = KyDiManager::getContextManager()->getContext(L"DRAWING", true);
        }
        KyDiImpEffectiveProperty* drawing = KyDiManagerModule::getDrawingEffectiveProperty();
        KyDiImpEffectiveProperty* clients = KyDiManager::getEffectiveProperty()->imp();
        // The clients' property first: the layers and the viewport tell the
        // instance that binds a key first.
        for (const KyDiEffectiveEntry& row : EffectiveEntryTable::rows()) {
            KyDiDynamicObject* item = nullptr;
            clients->getItem(row.key, item);
        }
        for (const KyDiEffectiveEntry& row : EffectiveEntryTable::rows()) {
            drawing->getItem(row.key);
        }
        listDrawing();
        settle();
    }

    KyRefHost& host() { return m_host; }
    KyDiContext* drawing() const { return m_drawing; }

    // Every member of "DRAWING" with its value; the number read.
    int listDrawing() {
        int read = 0;
        const std::unique_ptr<KyRxMemberIterator> members(m_drawing->newMemberIterator());
        for (; members != nullptr && !members->done(); members->next()) {
            if (const auto* property = kyrxCast<KyRxProperty>(members->current())) {
                KyRxValue value;
                read += property->getValue(m_drawing, value) == Kyro::eOk ? 1 : 0;
            }
        }
        return read;
    }

private:
    // A switch settles over a few passes (the plot styles are read anew in
    // the pass after the one that saw another plot style table): passes
    // until one reports nothing.
    void settle() {
        Told told;
        KyDiManager::getEffectiveProperty()->addReactor(&told);
        for (int pass = 0; pass < 8; ++pass) {
            const int before = told.changes + told.all;
            KyDiManager::refresh();
            if (told.changes + told.all == before) {
                break;
            }
        }
        KyDiManager::getEffectiveProperty()->removeReactor(&told);
    }

    Session() : m_host(options()) { KyDiManager::initialize(&m_host); }
    static KyRefHostOptions options() {
        KyRefHostOptions options;
        options.manualClock = true;
        return options;
    }

    // A new drawing with `count` layers named L0, L1 ...
    KyRefDocument* make(int count) {
        KyRefDocument* document = m_host.documents().newDocument();
        KyDbDatabase* db = document->database();
        const KyAxDocLock lock(db);
        db->undoController()->setRecording(false);
        KyDbObjectPointer<KyDbSymbolTable> table(db->layerTableId(), KyDb::kForWrite);
        for (int i = 0; i < count; ++i) {
            auto* record = new KyDbLayerTableRecord();
            record->setName(KyString::formatted(L"L%d", i));
            table->add(record);
            record->close();
        }
        table.close();
        db->undoController()->setRecording(true);
        return document;
    }

    KyRefHost m_host;
    KyDiContext* m_drawing = nullptr;
    std::map<int, KyRefDocument*> m_drawings;
};

// Registered first, so that it runs before any other benchmark binds a key
// or builds "DRAWING".
void BM_ForcedPassBeforeBinding(benchmark::State& state) {
    Session::instance().use(static_cast<int>(state.range(0)), false);
    for (auto _ : state) {
        KyDiManager::refresh();
    }
}
BENCHMARK(BM_ForcedPassBeforeBinding)->Arg(1000)->Arg(10000)->Arg(100000);

void BM_ReadEveryBoundKeyUnchanged(benchmark::State& state) {
    Session::instance().use(static_cast<int>(state.range(0)));
    KyDiEffectiveProperty* effective = KyDiManager::getEffectiveProperty();
    for (auto _ : state) {
        for (const Getter getter : kGetters) {
            KyDiDynamicObject* item = nullptr;
            benchmark::DoNotOptimize((effective->*getter)(item));
            benchmark::DoNotOptimize(item);
        }
    }
}
BENCHMARK(BM_ReadEveryBoundKeyUnchanged)->Arg(1000)->Arg(10000)->Arg(100000);

void BM_CurrentLayerSetThroughTheHostToItsReport(benchmark::State& state) {
    Session& session = Session::instance();
    const int count = static_cast<int>(state.range(0));
    session.use(count);
    KyDiEffectiveProperty* effective = KyDiManager::getEffectiveProperty();
    Told told;
    effective->addReactor(&told);
    // Another layer each round, and back; the drawing keeps the layer of the
    // last round of an earlier run.
    static std::map<int, int> s_rounds;
    int round = 0;
    for (auto _ : state) {
        ++round;
        session.host().editor()->interpreter().queue(
            KyString::formatted(L"'_clayer\nL%d\n", s_rounds[count]++ % 2 == 0 ? count / 2 : 0));
        session.host().idle();
        KyDiManager::refresh();
    }
    effective->removeReactor(&told);
    if (told.layerChanges != round || told.all != 0) {
        state.SkipWithError("a change of the current layer went unreported");
    }
}
BENCHMARK(BM_CurrentLayerSetThroughTheHostToItsReport)->Arg(1000)->Arg(10000)->Arg(100000);

void BM_ForcedPassUnchanged(benchmark::State& state) {
    Session::instance().use(static_cast<int>(state.range(0)));
    Told told;
    KyDiManager::getEffectiveProperty()->addReactor(&told);
    for (auto _ : state) {
        KyDiManager::refresh();
    }
    KyDiManager::getEffectiveProperty()->removeReactor(&told);
    if (told.changes != 0 || told.all != 0) {
        state.SkipWithError("an unchanged drawing was reported");
    }
}
BENCHMARK(BM_ForcedPassUnchanged)->Arg(1000)->Arg(10000)->Arg(100000);

// What the effective values themselves add to such a pass: the flush step of
// both instances, which follows the document and reports what was marked.
void BM_EffectiveFlushStepsUnchanged(benchmark::State& state) {
    Session::instance().use(static_cast<int>(state.range(0)));
    KyDiImpEffectiveProperty* drawing = KyDiManagerModule::getDrawingEffectiveProperty();
    KyDiImpEffectiveProperty* clients = KyDiManager::getEffectiveProperty()->imp();
    for (auto _ : state) {
        drawing->flushStep();
        clients->flushStep();
    }
}
BENCHMARK(BM_EffectiveFlushStepsUnchanged)->Arg(1000)->Arg(10000)->Arg(100000);

void BM_ListDrawingMembersWithValues(benchmark::State& state) {
    Session& session = Session::instance();
    session.use(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        benchmark::DoNotOptimize(session.listDrawing());
    }
}
BENCHMARK(BM_ListDrawingMembersWithValues)->Arg(1000)->Arg(10000)->Arg(100000);

}  // namespace

BENCHMARK_MAIN();
