// The refresh pass over an unchanged drawing with every collection of the
// symbol tables and named dictionaries built, at 1,000, 10,000 and 100,000
// linetypes and text styles; and one renamed record, from the change to the
// itemsModified that reports it.
#include <benchmark/benchmark.h>

#include <map>
#include <vector>

#include "KyRefDocument.h"
#include "KyRefHost.h"
#include "db/KyAxDocLock.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbLinetypeTableRecord.h"
#include "db/KyDbObjectPointer.h"
#include "db/KyDbSymbolTable.h"
#include "db/KyDbTextStyleTableRecord.h"
#include "db/KyDbUndoController.h"
#include "kydi/KyDiCollectionReactor.h"
#include "kydi/KyDiManager.h"
#include "kydi/KyDiObservableCollection.h"

namespace {

const wchar_t* const kCollections[] = {
    L"DIMSTYLE",
    L"TEXTSTYLE",
    L"LINETYPE",
    L"KYRO_TABLESTYLE",
    L"KYRO_MLEADERSTYLE",
    L"KYRO_SECTIONVIEWSTYLE",
    L"KYRO_DETAILVIEWSTYLE",
    L"KYRO_MATERIAL",
    L"KYRO_LAYOUT",
    L"KYRO_PLOTSETTINGS",
};

template <typename Record>
std::vector<KyDbObjectId> addRecords(KyDbObjectId tableId, const wchar_t* prefix, int count) {
    std::vector<KyDbObjectId> ids;
    KyDbObjectPointer<KyDbSymbolTable> table(tableId, KyDb::kForWrite);
    for (int i = 0; i < count; ++i) {
        auto* record = new Record();
        record->setName(KyString::formatted(L"%ls%d", prefix, i));
        KyDbObjectId id;
        table->add(id, record);
        record->close();
        ids.push_back(id);
    }
    return ids;
}

// The host and the layer, started once for the process (the layer starts
// once per process): one drawing for each size of table, the one in front
// being the size a benchmark asks for, with every collection built and
// settled on it.
class Session {
public:
    static Session& instance() {
        static Session* s_session = new Session();
        return *s_session;
    }

    // Brings the drawing of `count` linetypes and text styles to the front.
    void use(int count) {
        auto found = m_documents.find(count);
        if (found == m_documents.end()) {
            KyRefDocument* document = m_host.documents().newDocument();
            KyDbDatabase* db = document->database();
            const KyAxDocLock lock(db);
            db->undoController()->setRecording(false);
            m_linetypes[count] =
                addRecords<KyDbLinetypeTableRecord>(db->linetypeTableId(), L"LT", count);
            addRecords<KyDbTextStyleTableRecord>(db->textStyleTableId(), L"TS", count);
            db->undoController()->setRecording(true);
            found = m_documents.emplace(count, document).first;
        }
        m_host.documents().makeCurrent(found->second);
        for (const wchar_t* name : kCollections) {
            KyDiManager::getKnownCollection(name);
        }
        KyDiManager::refresh();
        KyDiManager::refresh();
    }

    KyDbDatabase* db() { return m_host.documents().current()->database(); }
    const std::vector<KyDbObjectId>& linetypes(int count) { return m_linetypes[count]; }

private:
    Session() : m_host(options()) { KyDiManager::initialize(&m_host); }
    static KyRefHostOptions options() {
        KyRefHostOptions options;
        options.manualClock = true;
        return options;
    }
    KyRefHost m_host;
    std::map<int, KyRefDocument*> m_documents;
    std::map<int, std::vector<KyDbObjectId>> m_linetypes;
};

void BM_RefreshOfAnUnchangedDrawing(benchmark::State& state) {
    Session::instance().use(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        KyDiManager::refresh();
    }
}
BENCHMARK(BM_RefreshOfAnUnchangedDrawing)->Arg(1000)->Arg(10000)->Arg(100000);

class Modified : public KyDiCollectionReactor {
public:
    void itemsModified(const KyDiItemArray& items) override { count += items.length(); }
    int count = 0;
};

void BM_RenamedRecordToItsReport(benchmark::State& state) {
    Session& session = Session::instance();
    const int count = static_cast<int>(state.range(0));
    session.use(count);
    KyDiObservableCollection* linetypes = KyDiManager::getKnownCollection(L"LINETYPE");
    Modified reactor;
    linetypes->addReactor(&reactor);
    const KyDbObjectId id = session.linetypes(count)[session.linetypes(count).size() / 2];
    static int s_renames = 0;
    int round = 0;
    for (auto _ : state) {
        {
            const KyAxDocLock lock(session.db());
            KyDbObjectPointer<KyDbLinetypeTableRecord> record(id, KyDb::kForWrite);
            record->setName(KyString::formatted(L"Renamed%d", s_renames++));
            ++round;
        }
        KyDiManager::refresh();
    }
    linetypes->removeReactor(&reactor);
    if (reactor.count != round) {
        state.SkipWithError("a rename went unreported");
    }
}
BENCHMARK(BM_RenamedRecordToItsReport)->Arg(1000)->Arg(10000)->Arg(100000);

}  // namespace

BENCHMARK_MAIN();
