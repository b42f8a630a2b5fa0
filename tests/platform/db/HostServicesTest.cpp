// The host side of the database: the services object a host replaces, the
// working database, the colour service, the drawing trace, and the global
// lineweight units.
#include <gtest/gtest.h>

#include "DbTestSupport.h"
#include "db/KyDbColorService.h"
#include "db/KyDbHostApplicationServices.h"
#include "db/KyDbTrace.h"

namespace dbtest {
namespace {

class GreyColors : public KyDbColorService {
public:
    unsigned int trueColorOf(int index) const override {
        return index == 7 ? 0xC2808080u : 0xC2000000u;
    }
};

class HostWithColors : public KyDbHostApplicationServices {
public:
    KyDbColorService* colorService() const override { return &m_colors; }

private:
    mutable GreyColors m_colors;
};

TEST(HostServicesTest, AHostReplacesTheServicesAndGetsTheBuiltInOnesBack) {
    KyDbHostApplicationServices* builtIn = kydbHostApplicationServices();
    ASSERT_NE(builtIn, nullptr);
    EXPECT_EQ(builtIn->colorService(), nullptr) << "no colours without a host";
    {
        HostWithColors host;
        kydbSetHostApplicationServices(&host);
        EXPECT_EQ(kydbHostApplicationServices(), &host);
        ASSERT_NE(kydbHostApplicationServices()->colorService(), nullptr);
        EXPECT_EQ(kydbHostApplicationServices()->colorService()->trueColorOf(7), 0xC2808080u);
    }
    EXPECT_EQ(kydbHostApplicationServices(), builtIn) << "a deleted host's services are dropped";
}

TEST(HostServicesTest, ADeletedDatabaseStopsBeingTheWorkingDatabase) {
    KyDbHostApplicationServices* services = kydbHostApplicationServices();
    auto* db = new KyDbDatabase();
    services->setWorkingDatabase(db);
    EXPECT_EQ(services->workingDatabase(), db);
    delete db;
    EXPECT_EQ(services->workingDatabase(), nullptr);
}

TEST(HostServicesTest, TheTraceHidesMarkedRecordsOnlyWhileShown) {
    KyDbDatabase db;
    const KyDbObjectId layers = db.layerTableId();
    kydbiSetSkipDisplayForTrace(layers, true);
    EXPECT_FALSE(kydbiSkipDisplayForTrace(layers));
    kydbiSetDrawingTraceShown(true);
    EXPECT_TRUE(kydbiIsDrawingTraceShown());
    EXPECT_TRUE(kydbiSkipDisplayForTrace(layers));
    EXPECT_FALSE(kydbiSkipDisplayForTrace(db.blockTableId()));
    kydbiSetSkipDisplayForTrace(layers, false);
    EXPECT_FALSE(kydbiSkipDisplayForTrace(layers));
    kydbiSetDrawingTraceShown(false);
}

TEST(HostServicesTest, LineweightUnitsAreOneGlobalSetting) {
    EXPECT_EQ(gLineWeightUnits, 1) << "millimetres at start";
    gLineWeightUnits = 0;
    EXPECT_EQ(gLineWeightUnits, 0);
    static_assert(sizeof(gLineWeightUnits) == 2, "a 16-bit setting");
}

}  // namespace
}  // namespace dbtest
