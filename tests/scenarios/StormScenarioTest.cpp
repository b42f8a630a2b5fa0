// The long storm: a hundred thousand random steps from a fixed seed through
// the reference host (HostStorm), with every known collection the registry
// can make under the contract checker, every context and the context manager
// under ContextCheck, and no database object left open after any step. Now
// and then, and at the end, two forced passes bring everything in step; then
// each collection holds what a fresh fill of the drawing in front holds, its
// current item is the record the drawing names current, every item and
// context that reads differently from the last look was told to have changed
// (ChangeWitness), and so was every effective value, which reads what the
// selected entities share (EffectiveWitness). A batch starts a busy stretch,
// which drops what the collections had pending: after one, the collections
// are reset first, and now and then a look comes just before one.
//
// KYDI_STORM_SEED replaces the seed, KYDI_STORM_STEPS the number of steps;
// KYDI_STORM_CHECK_EVERY=N looks after every N steps as well (from the step
// KYDI_STORM_CHECK_FROM on, if given).
// A failure names the step it came in and the steps before it.
#include <gtest/gtest.h>

#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <deque>
#include <filesystem>
#include <iostream>
#include <memory>

#include "KyAppContextList.h"
#include "KyRefDocument.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbOpenObject.h"
#include "kydi/KyDiContextIterator.h"
#include "kydi/KyDiContextManager.h"
#include "kydi/KyDiDbItem.h"
#include "kydi/KyDiFunctions.h"
#include "manager/RefHostFixture.h"
#include "scenarios/ChangeWitness.h"
#include "scenarios/ContextCheck.h"
#include "scenarios/EffectiveWitness.h"
#include "scenarios/HostStorm.h"
#include "support/CollectionContract.h"
#include "support/FreshFill.h"
#include "support/StormDice.h"

namespace {

namespace fs = std::filesystem;

class Storm : public kytest::RefHostFixture {
protected:
    struct Checked {
        std::string name;
        KyDiObservableCollection* collection;
        std::unique_ptr<kytest::ContractChecker> checker;
        std::unique_ptr<kytest::CollectionWitness> witness;
    };

    void SetUp() override {
        RefHostFixture::SetUp();
        folder = fs::temp_directory_path() / ("kydi-storm-" + std::to_string(getpid()));
        fs::create_directories(folder);
        fs::copy_file(KYDI_TEST_SAMPLE, folder / "scratch.kyd",
                      fs::copy_options::overwrite_existing);
        KyString error;
        ASSERT_NE(host.documents().openDocument(KyString::fromUtf8(KYDI_TEST_SAMPLE), error),
                  nullptr)
            << error.utf8();
    }
    void TearDown() override {
        contextWitnesses.clear();
        effectiveWitness.reset();
        checked.clear();
        RefHostFixture::TearDown();
        std::error_code ignored;
        fs::remove_all(folder, ignored);
    }

    // Every known collection the registry can make, under the checker.
    void buildCollections() {
        const KyDiKnownCollectionNames names = KyDiGetKnownCollectionNames();
        for (int i = 0; i < names.length(); ++i) {
            if (!names[i].available) {
                continue;
            }
            KyDiObservableCollection* collection =
                KyDiManager::getKnownCollection(names[i].name.kwszPtr());
            ASSERT_NE(collection, nullptr) << names[i].name.utf8() << " is said to be available";
            const std::string name = names[i].name.utf8();
            // World stands outside the UCS table; a plot style table the list
            // doesn't offer, and a layout the list lacks, are items of their
            // trackers' own.
            const auto current =
                name == "UCS_PLANES" || name == "PLOTSTYLETABLE" || name == "KYRO_LAYOUT"
                    ? kytest::ContractChecker::Current::kAnywhere
                    : kytest::ContractChecker::Current::kAmongItems;
            checked.push_back({name, collection,
                               std::make_unique<kytest::ContractChecker>(collection, name, current),
                               std::make_unique<kytest::CollectionWitness>(collection, name)});
        }
    }

    // Two forced passes (the layers hear the viewport context at the second),
    // then every collection is what a fresh fill makes of the drawing in
    // front, and where the drawing names the current record (CLAYER ...),
    // the current item stands for it; whatever reads differently since the
    // last look was told (ChangeWitness). Trackers are not asked: some answer
    // what changed since they were asked last.
    void expectInStep(const std::string& when, bool afterBatch = false) {
        // What a busy stretch dropped is seen again after a reset.
        ++looks;
        if (afterBatch) {
            ++looksAfterReset;
            for (const Checked& each : checked) {
                KyDiNotifyCollectionReset(KyString::fromUtf8(each.name).kwszPtr());
            }
        }
        KyDiManager::refresh();
        KyDiManager::refresh();
        for (const auto& witness : contextWitnesses) {
            witness->look(when);
        }
        KyDbDatabase* db = host.documents().currentDatabase();
        for (const Checked& each : checked) {
            const KyString name = KyString::fromUtf8(each.name);
            const std::vector<std::string> held = kytest::heldItems(each.collection, db);
            const std::vector<std::string> fresh = kytest::freshItems(name.kwszPtr());
            if (each.name == "COLOR") {
                // The palette keeps every colour it held: a fresh fill is
                // part of it.
                EXPECT_TRUE(std::includes(held.begin(), held.end(), fresh.begin(), fresh.end()))
                    << "COLOR lacks a colour of a fresh fill " << when;
            } else {
                EXPECT_EQ(held, fresh) << each.name << " differs from a fresh fill " << when;
            }
            const KnownCollectionRow* row = kytest::knownRow(name.kwszPtr());
            if (db != nullptr && row != nullptr && row->getCurrent != nullptr) {
                const auto* current = kyrxCast<KyDiDbItem>(
                    static_cast<KyRxObject*>(each.collection->getCurrentItem()));
                EXPECT_TRUE((current != nullptr ? current->objectId() : KyDbObjectId()) ==
                            (db->*row->getCurrent)())
                    << each.name << ": the current item is not the drawing's " << when;
            }
            each.checker->expectInStep();
            each.witness->look(when);
        }
        // Last: reading the effective colour of a selection may put that
        // colour in the colour list, told at the next pass.
        if (effectiveWitness != nullptr) {
            effectiveWitness->look(when, afterBatch);
        }
    }
    // A witness on every context the manager holds.
    void witnessContexts() {
        KyDiContextManager* manager = KyDiManager::getContextManager();
        const std::unique_ptr<KyDiContextIterator> contexts(manager->getContexts());
        for (; contexts != nullptr && !contexts->done(); contexts->next()) {
            auto* context = const_cast<KyDiContext*>(contexts->current());
            contextWitnesses.push_back(std::make_unique<kytest::ContextWitness>(
                context, KyString(manager->getName(context)).utf8()));
        }
    }

    fs::path folder;
    int looks = 0;
    int looksAfterReset = 0;
    std::vector<Checked> checked;
    std::vector<std::unique_ptr<kytest::ContextWitness>> contextWitnesses;
    std::unique_ptr<kytest::EffectiveWitness> effectiveWitness;
};

TEST_F(Storm, AHundredThousandRandomStepsKeepEveryCollectionAndContextInStep) {
    const auto started = std::chrono::steady_clock::now();
    kytest::StormDice dice(20261124);
    const long long steps = kytest::StormDice::fromEnvironment("KYDI_STORM_STEPS", 100000);
    // To find the step a fault comes in: a look after every so many steps.
    const long long checkEvery = kytest::StormDice::fromEnvironment("KYDI_STORM_CHECK_EVERY", 0);
    const long long checkFrom = kytest::StormDice::fromEnvironment("KYDI_STORM_CHECK_FROM", 0);
    std::string where = "setting up";

    buildCollections();
    ASSERT_GE(checked.size(), 10U);
    KyAppContextList::makeAll();
    kytest::ContextCheck contexts(where);
    ASSERT_GE(contexts.watchAll(), 1);
    witnessContexts();
    effectiveWitness = std::make_unique<kytest::EffectiveWitness>(host);
    std::vector<KyDiObservableCollection*> collections;
    for (const Checked& each : checked) {
        collections.push_back(each.collection);
    }
    kytest::HostStorm storm(host, dice, KYDI_TEST_SAMPLE, folder / "scratch.kyd",
                            folder / "batch.txt", where);
    storm.setCollections(collections);
    // A batch drops what the collections had pending, and the look after
    // one starts with a reset; now and then a look just before a batch, with
    // none since the last look, sees the collections as they followed the
    // steps one by one.
    storm.setBeforeBatch([&] {
        if (dice.oneIn(8) && !storm.batchRan()) {
            expectInStep("before the batch at " + where);
        }
    });
    expectInStep("at the start");

    std::deque<std::string> recent;
    long long open = kydbOpenObjectCount();
    long long step = 0;
    for (; step < steps && !HasFailure(); ++step) {
        storm.step();
        recent.push_back(where);
        if (recent.size() > 40) {
            recent.pop_front();
        }
        const long long now = kydbOpenObjectCount();
        EXPECT_EQ(now, open) << "database objects left open at " << where;
        open = now;
        for (const Checked& each : checked) {
            each.checker->expectInStep();
        }
        // The dice are asked every time, so that a check asked for by the
        // environment leaves the steps as they were.
        if (dice.oneIn(300) || (checkEvery > 0 && step >= checkFrom && step % checkEvery == 0)) {
            expectInStep("at " + where, storm.takeBatchRan());
        }
    }
    if (HasFailure()) {
        std::cout << "the storm failed at " << where << "; the steps before it:\n";
        for (const std::string& line : recent) {
            std::cout << "  " << line << "\n";
        }
        return;
    }

    // The end: each collection as a fresh fill, as it followed the steps
    // (reset only when a batch ran since the last look); and again with a
    // drawing in front, if none is.
    where = "the end";
    expectInStep("at the end", storm.takeBatchRan());
    if (host.documents().count() == 0) {
        host.documents().newDocument();
        expectInStep("at the end, with a new drawing");
    }

    int notifications = 0;
    for (const Checked& each : checked) {
        notifications += each.checker->notifications();
    }
    const auto seconds = std::chrono::duration_cast<std::chrono::duration<double>>(
                             std::chrono::steady_clock::now() - started)
                             .count();
    std::cout << "storm: " << step << " steps in " << seconds << " s, seed " << dice.seed() << "; "
              << notifications << " collection notifications, " << contexts.contextReports()
              << " context reports, " << contexts.changes() << " contextChanged, "
              << contexts.activeChanges() << " activeContextsChanged; " << looks << " looks, "
              << looksAfterReset << " of them after a reset\n";
    for (const auto& [kind, count] : storm.mix()) {
        std::cout << "  " << kind << ": " << count << "\n";
    }
    EXPECT_GT(notifications, static_cast<int>(steps / 10)) << "the storm reached the collections";
    EXPECT_GT(contexts.changes() + contexts.activeChanges(), 0) << "the storm reached the contexts";
}

}  // namespace
