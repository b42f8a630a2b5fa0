// The "SELECTION" context and the effective values over 1,000, 10,000 and
// 25,000 selected objects, of two shapes: uniform (lines alike in layer,
// colour, linetype and lineweight) and mixed (lines that differ in all four,
// and every tenth object a circle, so that the lines' own members go):
// - a new selection to the report of "SELECTION": the host's selection set,
//   then refresh passes until the context reported the change;
// - the common members listed (the context's member iterator);
// - every listed value read once after a new selection, beside the baseline
//   of one open for read, read and compare of one property on each object;
//   "ratio" is the read of one value over that baseline;
// - every value read again, which the context answers from what it kept;
// - the twelve keys of the effective property read after a new selection,
//   and one key alone;
// - a colour written to all the objects through the context (one
//   change-property command of the host), and the refresh pass after it.
// The writes run last: they leave the drawings in other colours.
//
// "per_object" and "per_value_object" are seconds per selected object (and
// per listed value): a figure that stays flat from 1,000 to 25,000 objects
// grows linearly.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <iterator>
#include <memory>
#include <vector>

#include "LayerDrawings.h"
#include "db/KyDbEntity.h"
#include "kydi/KyDiContext.h"
#include "kydi/KyDiContextChange.h"
#include "kydi/KyDiContextManager.h"
#include "kydi/KyDiContextReactor.h"
#include "kydi/KyDiEffectiveProperty.h"
#include "kydi/KyDiFunctions.h"
#include "kydi/KyDiManager.h"
#include "kydi/KyDiObservableCollection.h"
#include "rx/KyRxMemberQueryEngine.h"
#include "rx/KyRxProperty.h"

namespace {

using kybench::SelectionDrawing;
using kybench::Session;
using kybench::Shape;
using Clock = std::chrono::steady_clock;

using Getter = kybench::EffectiveGetter;
using kybench::kGetters;

double secondsSince(Clock::time_point start) {
    return std::chrono::duration<double>(Clock::now() - start).count();
}

// Seconds per unit of `units` done each iteration.
benchmark::Counter perUnit(double units) {
    return benchmark::Counter(
        units, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

// Counts the reports a client of "SELECTION" hears: a change of the context,
// or of the set of active contexts (after which a client reads everything
// again).
class SelectionTold : public KyDiContextReactor {
public:
    explicit SelectionTold(KyDiContext* selection) : m_selection(selection) {
        KyDiManager::getContextManager()->addReactor(this);
    }
    ~SelectionTold() override { KyDiManager::getContextManager()->removeReactor(this); }
    SelectionTold(const SelectionTold&) = delete;
    SelectionTold& operator=(const SelectionTold&) = delete;

    void contextChanged(const KyDiContextChange* change) override {
        reports += change->context == m_selection ? 1 : 0;
    }
    void activeContextsChanged() override { ++reports; }
    int reports = 0;

private:
    KyDiContext* m_selection;
};

// The members "SELECTION" lists now, and the properties among them; the
// iterator lives as long as the listing.
class Listing {
public:
    explicit Listing(KyDiContext* context) : m_members(context->newMemberIterator()) {
        for (; m_members != nullptr && !m_members->done(); m_members->next()) {
            if (const auto* property = kyrxCast<KyRxProperty>(m_members->current())) {
                properties.push_back(property);
            }
        }
    }
    std::vector<const KyRxProperty*> properties;

private:
    std::unique_ptr<KyRxMemberIterator> m_members;
};

// The selection drawing of the benchmark's size and shape in front, all its
// objects selected, and "SELECTION" in step with them.
class Selected {
public:
    explicit Selected(benchmark::State& state)
        : m_count(static_cast<int>(state.range(0))),
          m_drawing(Session::instance().useSelection(
              m_count, state.range(1) != 0 ? Shape::kMixed : Shape::kUniform)),
          m_context(KyDiManager::getContextManager()->getContext(L"SELECTION", true)),
          m_told(m_context) {
        m_orders[0] = m_drawing.objects;
        m_orders[1] = m_drawing.objects;
        std::reverse(m_orders[1].begin(), m_orders[1].end());
        // Whatever an earlier benchmark left selected goes first, so that
        // the first change below is one.
        Session::instance().host().selectionService()->clear();
        KyDiManager::refresh();
        KyDiManager::refresh();
        const KyDiObservableCollection* items =
            KyDiManager::getKnownCollection(L"KYDI_DATAITEM_SELECTED_ITEMS");
        if (change() == 0 || items == nullptr || items->getItems().length() != m_count ||
            !m_context->isActive()) {
            state.SkipWithError("the objects were not selected, or \"SELECTION\" did not follow");
            m_ready = false;
        }
    }

    bool ready() const { return m_ready; }
    int count() const { return m_count; }
    KyDiContext* context() const { return m_context; }
    const std::vector<KyDbObjectId>& objects() const { return m_drawing.objects; }

    // Selects the same objects in the other order than the last time, which
    // the host tells as a new selection, then refreshes until "SELECTION"
    // reported it. The passes that took; 0 when it did not report in four.
    int change() {
        m_reversed = !m_reversed;
        Session::instance().host().selectionService()->setSelection(m_orders[m_reversed ? 1 : 0]);
        return refreshUntilReported();
    }

    // Refresh passes until "SELECTION" reported a change; the passes that
    // took, 0 when it did not report in four.
    int refreshUntilReported() {
        const int before = m_told.reports;
        for (int pass = 1; pass <= 4; ++pass) {
            KyDiManager::refresh();
            if (m_told.reports != before) {
                return pass;
            }
        }
        return 0;
    }

private:
    int m_count;
    const SelectionDrawing& m_drawing;
    KyDiContext* m_context;
    SelectionTold m_told;
    std::vector<KyDbObjectId> m_orders[2];
    bool m_reversed = true;
    bool m_ready = true;
};

// Every listed value read once; the number read.
int readEvery(KyDiContext* context, const Listing& listing) {
    int read = 0;
    for (const KyRxProperty* property : listing.properties) {
        KyRxValue value;
        read += property->getValue(context, value) == Kyro::eOk ? 1 : 0;
        benchmark::DoNotOptimize(value);
    }
    return read;
}

// The entities' reflected "Color", as the host declares it.
const KyRxProperty* entityColor(KyDbObjectId id) {
    KyDbObjectPointer<KyDbEntity> entity(id, KyDb::kForRead);
    KyRxMemberQueryEngine* engine = KyRxMemberQueryEngine::theEngine();
    return kyrxCast<KyRxProperty>(
        engine->find(entity.object(), L"Color", engine->promotingContext()));
}

// The least any common value costs: each object opened for read, its
// "Color" read, and compared with the first object's. The number that
// agreed with the first.
int openReadCompare(const std::vector<KyDbObjectId>& ids, const KyRxProperty* color) {
    KyRxValue first;
    int agreed = 0;
    for (size_t i = 0; i < ids.size(); ++i) {
        KyDbObjectPointer<KyDbEntity> entity(ids[i], KyDb::kForRead);
        KyRxValue value;
        color->getValue(entity.object(), value);
        if (i == 0) {
            first = value;
        } else {
            agreed += value == first ? 1 : 0;
        }
    }
    return agreed;
}

void selectionArgs(benchmark::internal::Benchmark* bench) {
    bench->ArgsProduct({{1000, 10000, 25000}, {0, 1}})
        ->ArgNames({"objects", "mixed"})
        ->Unit(benchmark::kMillisecond);
}

void BM_NewSelectionToItsReport(benchmark::State& state) {
    Selected selected(state);
    if (!selected.ready()) {
        return;
    }
    int passes = 0;
    bool reported = true;
    for (auto _ : state) {
        const int taken = selected.change();
        passes += taken;
        reported = reported && taken > 0;
    }
    if (!reported) {
        state.SkipWithError("a new selection went unreported");
    }
    state.counters["passes"] = benchmark::Counter(passes, benchmark::Counter::kAvgIterations);
    state.counters["per_object"] = perUnit(selected.count());
}
BENCHMARK(BM_NewSelectionToItsReport)->Apply(selectionArgs);

void BM_ListCommonMembers(benchmark::State& state) {
    Selected selected(state);
    if (!selected.ready()) {
        return;
    }
    size_t listed = 0;
    for (auto _ : state) {
        const Listing listing(selected.context());
        listed = listing.properties.size();
    }
    state.counters["properties"] = static_cast<double>(listed);
    state.counters["per_object"] = perUnit(selected.count());
}
BENCHMARK(BM_ListCommonMembers)->Apply(selectionArgs);

// The time is the reads alone: the new selection and the listing before
// them run untimed, and so does the baseline after them.
void BM_ReadEveryValueAfterANewSelection(benchmark::State& state) {
    Selected selected(state);
    if (!selected.ready()) {
        return;
    }
    const KyRxProperty* color = entityColor(selected.objects().front());
    if (color == nullptr) {
        state.SkipWithError("the entities have no reflected Color");
        return;
    }
    double reads = 0.0;
    double baseline = 0.0;
    size_t values = 0;
    for (auto _ : state) {
        selected.change();
        const Listing listing(selected.context());
        values = listing.properties.size();
        const Clock::time_point start = Clock::now();
        benchmark::DoNotOptimize(readEvery(selected.context(), listing));
        const double seconds = secondsSince(start);
        state.SetIterationTime(seconds);
        reads += seconds;
        const Clock::time_point baselineStart = Clock::now();
        benchmark::DoNotOptimize(openReadCompare(selected.objects(), color));
        baseline += secondsSince(baselineStart);
    }
    const double iterations = static_cast<double>(state.iterations());
    state.counters["values"] = static_cast<double>(values);
    state.counters["per_value_object"] = perUnit(static_cast<double>(values) * selected.count());
    state.counters["baseline_per_object"] = baseline / (iterations * selected.count());
    state.counters["ratio"] = values > 0 ? reads / (static_cast<double>(values) * baseline) : 0.0;
}
BENCHMARK(BM_ReadEveryValueAfterANewSelection)->Apply(selectionArgs)->UseManualTime();

void BM_ReadEveryValueAgain(benchmark::State& state) {
    Selected selected(state);
    if (!selected.ready()) {
        return;
    }
    const Listing listing(selected.context());
    readEvery(selected.context(), listing);
    for (auto _ : state) {
        benchmark::DoNotOptimize(readEvery(selected.context(), listing));
    }
    state.counters["values"] = static_cast<double>(listing.properties.size());
    state.counters["per_value"] =
        perUnit(static_cast<double>(std::max<size_t>(listing.properties.size(), 1)));
    state.SetLabel("flat in the number of objects: the context keeps what it read");
}
BENCHMARK(BM_ReadEveryValueAgain)->Apply(selectionArgs)->Unit(benchmark::kMicrosecond);

// Every key read once, so that each is bound and follows the selection.
void bindEveryKey() {
    KyDiEffectiveProperty* effective = KyDiManager::getEffectiveProperty();
    for (const Getter getter : kGetters) {
        KyDiDynamicObject* item = nullptr;
        (effective->*getter)(item);
    }
}

// `getters` read after each new selection; the time is the reads alone.
void readKeysAfterANewSelection(benchmark::State& state, const Getter* getters, size_t count) {
    Selected selected(state);
    if (!selected.ready()) {
        return;
    }
    bindEveryKey();
    selected.change();
    KyDiEffectiveProperty* effective = KyDiManager::getEffectiveProperty();
    for (auto _ : state) {
        selected.change();
        const Clock::time_point start = Clock::now();
        for (size_t i = 0; i < count; ++i) {
            KyDiDynamicObject* item = nullptr;
            benchmark::DoNotOptimize((effective->*getters[i])(item));
            benchmark::DoNotOptimize(item);
        }
        state.SetIterationTime(secondsSince(start));
    }
    state.counters["keys"] = static_cast<double>(count);
    state.counters["per_object"] = perUnit(selected.count());
}

// The reads take a fraction of the new selection before them: a fixed number
// of rounds, so that the untimed part does not decide the run's length.
constexpr int kKeyRounds = 200;

void BM_EffectiveTwelveKeysAfterANewSelection(benchmark::State& state) {
    readKeysAfterANewSelection(state, kGetters, std::size(kGetters));
}
BENCHMARK(BM_EffectiveTwelveKeysAfterANewSelection)
    ->Apply(selectionArgs)
    ->UseManualTime()
    ->Iterations(kKeyRounds)
    ->Unit(benchmark::kMicrosecond);

void BM_EffectiveLayerAloneAfterANewSelection(benchmark::State& state) {
    readKeysAfterANewSelection(state, kGetters, 1);
}
BENCHMARK(BM_EffectiveLayerAloneAfterANewSelection)
    ->Apply(selectionArgs)
    ->UseManualTime()
    ->Iterations(kKeyRounds)
    ->Unit(benchmark::kMicrosecond);

KyRxValue colorIndex(unsigned short index) {
    KyCmColor color;
    color.setColorIndex(index);
    return KyRxValue(color);
}

// The colour index of the entity `id`.
unsigned short colorIndexOf(KyDbObjectId id) {
    KyDbObjectPointer<KyDbEntity> entity(id, KyDb::kForRead);
    return entity ? entity->color().colorIndex() : 0;
}

// A colour written to every selected object through "SELECTION", 5 and 6 in
// turn, each the one the objects do not have, so that every object changes;
// `timeWrite` times the write, otherwise the refresh passes after it until
// "SELECTION" reported.
void writeColorToAll(benchmark::State& state, bool timeWrite) {
    Selected selected(state);
    if (!selected.ready()) {
        return;
    }
    const auto* color = kyrxCast<KyRxProperty>(KyDiFindMember(selected.context(), L"Color"));
    if (color == nullptr) {
        state.SkipWithError("\"SELECTION\" lists no Color");
        return;
    }
    // An earlier run may have left either colour.
    unsigned short next = colorIndexOf(selected.objects().front()) == 5 ? 6 : 5;
    bool written = true;
    bool reported = true;
    for (auto _ : state) {
        const KyRxValue value = colorIndex(next);
        next = next == 5 ? 6 : 5;
        if (!timeWrite) {
            state.PauseTiming();
        }
        written = color->setValue(selected.context(), value) == Kyro::eOk && written;
        if (timeWrite) {
            state.PauseTiming();
        } else {
            state.ResumeTiming();
        }
        reported = selected.refreshUntilReported() > 0 && reported;
        if (timeWrite) {
            state.ResumeTiming();
        }
    }
    if (!written || !reported) {
        state.SkipWithError("a write failed or went unreported");
    }
    state.counters["per_object"] = perUnit(selected.count());
}

void BM_WriteColorToAll(benchmark::State& state) {
    writeColorToAll(state, true);
}
BENCHMARK(BM_WriteColorToAll)->Apply(selectionArgs);

void BM_RefreshAfterWritingColorToAll(benchmark::State& state) {
    writeColorToAll(state, false);
}
BENCHMARK(BM_RefreshAfterWritingColorToAll)->Apply(selectionArgs);

}  // namespace

BENCHMARK_MAIN();
