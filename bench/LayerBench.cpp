// The layers as a live collection at 1,000, 10,000 and 100,000 layers:
// - one layer changed by the host's layer command: the host's share (the
//   command queued and run at idle) and the system's share (the refresh pass
//   from the record's close to the itemsModified that reports it);
// - the refill after one new layer, to its itemsChanged;
// - a switch into a viewport that freezes one layer and back, each to its
//   itemsModified (the viewport context reports at the end of one pass, the
//   layers at the next: two passes).
#include <benchmark/benchmark.h>

#include <map>
#include <vector>

#include "KyRefDocument.h"
#include "KyRefHost.h"
#include "db/KyAxDocLock.h"
#include "db/KyDbBlockTableRecord.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbLayerTableRecord.h"
#include "db/KyDbObjectPointer.h"
#include "db/KyDbStandardContent.h"
#include "db/KyDbSymbolTable.h"
#include "db/KyDbUndoController.h"
#include "db/KyDbViewport.h"
#include "kydi/KyDiCollectionReactor.h"
#include "kydi/KyDiManager.h"
#include "kydi/KyDiObservableCollection.h"

namespace {

struct Drawing {
    KyRefDocument* document = nullptr;
    std::vector<KyDbObjectId> layers;
    KyDbObjectId viewport;
};

// The host and the layer, started once for the process: one drawing for each
// number of layers, each with a paper space viewport that freezes one layer.
class Session {
public:
    static Session& instance() {
        static Session* s_session = new Session();
        return *s_session;
    }

    Drawing& use(int count) {
        auto found = m_drawings.find(count);
        if (found == m_drawings.end()) {
            found = m_drawings.emplace(count, make(count)).first;
        }
        m_host.documents().makeCurrent(found->second.document);
        m_host.plotService()->setLayoutByName(KyDbStandardContent::kFirstLayoutName);
        m_host.leaveViewport();
        KyDiManager::getKnownCollection(L"LAYER");
        KyDiManager::refresh();
        KyDiManager::refresh();
        return found->second;
    }

    KyRefHost& host() { return m_host; }
    KyDbDatabase* db() { return m_host.documents().current()->database(); }

private:
    Session() : m_host(options()) { KyDiManager::initialize(&m_host); }
    static KyRefHostOptions options() {
        KyRefHostOptions options;
        options.manualClock = true;
        return options;
    }

    Drawing make(int count) {
        Drawing drawing;
        drawing.document = m_host.documents().newDocument();
        KyDbDatabase* db = drawing.document->database();
        const KyAxDocLock lock(db);
        db->undoController()->setRecording(false);
        {
            KyDbObjectPointer<KyDbSymbolTable> table(db->layerTableId(), KyDb::kForWrite);
            for (int i = 0; i < count; ++i) {
                auto* record = new KyDbLayerTableRecord();
                record->setName(KyString::formatted(L"L%d", i));
                KyDbObjectId id;
                table->add(id, record);
                record->close();
                drawing.layers.push_back(id);
            }
        }
        KyDbObjectId paperId;
        {
            KyDbObjectPointer<KyDbSymbolTable> blocks(db->blockTableId(), KyDb::kForRead);
            blocks->getAt(KyDbStandardContent::kPaperSpaceName, paperId);
        }
        KyDbObjectPointer<KyDbBlockTableRecord> paper(paperId, KyDb::kForWrite);
        // The paper itself, then the viewport onto model space.
        for (int i = 0; i < 2; ++i) {
            auto* viewport = new KyDbViewport();
            paper->appendKyDbEntity(drawing.viewport, viewport);
            if (i == 1) {
                KyArray<KyDbObjectId> frozen;
                frozen.append(drawing.layers[drawing.layers.size() / 2]);
                viewport->freezeLayersInViewport(frozen);
            }
            viewport->close();
        }
        db->undoController()->setRecording(true);
        return drawing;
    }

    KyRefHost m_host;
    std::map<int, Drawing> m_drawings;
};

class Told : public KyDiCollectionReactor {
public:
    void itemsModified(const KyDiItemArray& items) override { modified += items.length(); }
    void itemsChanged(const KyDiItemArray& items, const KyDiItemArray&) override {
        added += items.length();
    }
    void collectionReset() override { ++resets; }
    int modified = 0;
    int added = 0;
    int resets = 0;
};

// The layer command that changes the colour of one layer of the drawing of
// `count` layers, by its literal name, to another colour each time.
KyString colorCommand(int count) {
    static std::map<int, int> s_commands;
    return KyString::formatted(L"'_.-LAYER\n_Color\n%d\n=L%d\n\n", 1 + s_commands[count]++ % 2,
                               count / 2);
}

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
