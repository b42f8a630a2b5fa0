// The layer filter tracker: a filter is made current by the -LAYER command's
// Filter Set option, which the host runs on a drawing with filters; the
// current filter comes from the list of layer filters, which answers none
// while it can't be made.
#include <gtest/gtest.h>

#include "KyRefDocument.h"
#include "KyRefLayerFilters.h"
#include "collections/CollectionFixture.h"
#include "kydi/KyDiCurrencyTracker.h"
#include "kydi/KyDiDataItemFactory.h"
#include "manager/KnownCollectionRegistry.h"
#include "rx/KyRxValue.h"

namespace {

using Texts = std::vector<std::wstring>;

class LayerFilters : public kytest::CollectionFixture {
protected:
    void SetUp() override {
        CollectionFixture::SetUp();
        KyString error;
        ASSERT_NE(host.documents().openDocument(KyString::fromUtf8(KYDI_TEST_SAMPLE), error),
                  nullptr)
            << error.utf8();
    }
};

TEST_F(LayerFilters, AFilterIsSetByTheLayerCommandAndNoneIsCurrentWithoutTheirList) {
    KyDiCurrencyTracker* tracker =
        KnownCollectionRegistry::getCurrencyTracker(L"LAYERFILTERS", true);
    KyDiDynamicObject* wet = createDataItem(KyString(L"Wet"), KyRxValue(KyString(L"Wet")));
    tracker->setCurrentItem(wet);
    deleteItem(wet);
    EXPECT_EQ(sentWithFlags(), (Texts{L"'_.-LAYER\n_Filter\n_Set\n\"Wet\"\n\n (0 0 0)"}));
    host.idle();
    EXPECT_EQ(KyRefLayerFilters::current(db()), L"Wet");
    tracker->setCurrentItem(nullptr);
    EXPECT_EQ(sentWithFlags(), Texts{});
    EXPECT_EQ(tracker->getCurrentItem(), nullptr);
}

}  // namespace
