// A randomized storm over every collection of the symbol tables and named
// dictionaries: records made, renamed and erased through the host's commands,
// undo and redo, current items set through the collections, batches, document
// switches, and refreshes now and then, thousands of steps from a fixed seed,
// with the contract checker on every collection. At the end, after a refill
// of each and a forced pass, every collection holds what a fresh fill of the
// drawing in front holds.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>

#include "KyRefDocument.h"
#include "KyRefManualClock.h"
#include "collections/CollectionFixture.h"
#include "kydi/KyDiFunctions.h"
#include "support/FreshFill.h"
#include "support/StormDice.h"

namespace {

namespace fs = std::filesystem;

struct StormCollection {
    const wchar_t* name;
    // The kind word of the host's RECORD command.
    const wchar_t* kind;
};

const StormCollection kCollections[] = {
    {L"LINETYPE", L"LINETYPE"},
    {L"TEXTSTYLE", L"TEXTSTYLE"},
    {L"DIMSTYLE", L"DIMSTYLE"},
    {L"KYRO_TABLESTYLE", L"TABLESTYLE"},
    {L"KYRO_MLEADERSTYLE", L"MLEADERSTYLE"},
    {L"KYRO_SECTIONVIEWSTYLE", L"SECTIONVIEWSTYLE"},
    {L"KYRO_DETAILVIEWSTYLE", L"DETAILVIEWSTYLE"},
    {L"KYRO_MATERIAL", L"MATERIAL"},
    {L"KYRO_LAYOUT", L"LAYOUT"},
    {L"KYRO_PLOTSETTINGS", L"PLOTSETTINGS"},
};

class Storm : public kytest::CollectionFixture {
protected:
    kytest::StormDice dice{20261124};

    int pick(int count) { return dice.pick(count); }
    std::wstring name() { return L"S" + std::to_wstring(pick(8)); }

    void step(const fs::path& batchFile) {
        const StormCollection& target = kCollections[pick(std::size(kCollections))];
        const std::wstring kind = target.kind;
        switch (pick(12)) {
            case 0:
            case 1:
            case 2:
                type((L"RECORD\n_New\n" + kind + L"\n" + name() + L"\n").c_str());
                break;
            case 3:
            case 4:
                type((L"RECORD\n_Rename\n" + kind + L"\n" + name() + L"\n" + name() + L"\n")
                         .c_str());
                break;
            case 5:
            case 6:
                type((L"RECORD\n_Erase\n" + kind + L"\n" + name() + L"\n").c_str());
                break;
            case 7:
                type(pick(2) == 0 ? L"U\n" : L"REDO\n");
                break;
            case 8: {
                KyDiObservableCollection* collection = known(target.name);
                const KyDiItemArray& items = collection->getItems();
                if (!items.isEmpty()) {
                    collection->setCurrentItem(items[pick(items.length())]);
                    host.idle();
                }
                break;
            }
            case 9: {
                // Another drawing in front, sometimes a new one.
                KyRefDocumentManager& documents = host.documents();
                if (documents.count() < 3 && pick(4) == 0) {
                    documents.newDocument();
                } else {
                    documents.makeCurrent(documents.at(pick(documents.count())));
                }
                break;
            }
            case 10: {
                std::ofstream batch(batchFile);
                for (int i = 0; i < 3; ++i) {
                    batch << "RECORD\n_New\n"
                          << KyString(kind.c_str()).utf8() << "\n"
                          << KyString(name().c_str()).utf8() << "\n";
                }
                batch.close();
                type((L"BATCH\n" + batchFile.wstring() + L"\n").c_str());
                break;
            }
            default:
                // Past the throttle, the host's own request is a pass.
                host.clock()->advance(pick(400));
                host.events().raiseRefreshNeeded(false);
                break;
        }
    }
};

TEST_F(Storm, EveryCollectionFollowsThousandsOfRandomChangesAndEndsAsAFreshFill) {
    std::vector<std::unique_ptr<kytest::ContractChecker>> checkers;
    for (const StormCollection& collection : kCollections) {
        KyDiObservableCollection* known = KyDiManager::getKnownCollection(collection.name);
        ASSERT_NE(known, nullptr);
        checkers.push_back(
            std::make_unique<kytest::ContractChecker>(known, KyString(collection.name).utf8()));
    }
    const fs::path batchFile =
        fs::temp_directory_path() / ("kydi-storm-" + std::to_string(getpid()) + ".txt");
    int notifications = 0;
    for (int i = 0; i < 3000 && !HasFailure(); ++i) {
        step(batchFile);
    }
    fs::remove(batchFile);
    commandLine();
    for (const StormCollection& collection : kCollections) {
        EXPECT_TRUE(KyDiNotifyCollectionModified(collection.name));
    }
    pass();
    for (size_t i = 0; i < std::size(kCollections); ++i) {
        const wchar_t* name = kCollections[i].name;
        EXPECT_EQ(kytest::heldItems(known(name)), kytest::freshItems(name))
            << KyString(name).utf8();
        checkers[i]->expectInStep();
        notifications += checkers[i]->notifications();
    }
    EXPECT_GT(notifications, 500) << "the storm reached the collections";
}

}  // namespace
