// The selected items: one item per selected object, then one per selected
// sub-entity; the kind of selection they make; how an item is opened
// (CSelectedItemHelper); a change of a selected object told as modified
// unless sub-entities are selected; dimensions the host hides left out.
#include <gtest/gtest.h>

#include "KyRefDocument.h"
#include "KyRefHost.h"
#include "KyRefSelectionService.h"
#include "collections/CSelectedItemHelper.h"
#include "collections/CollectionFixture.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbDimension.h"
#include "db/KyDbEntityPart.h"
#include "db/KyDbGuid.h"
#include "db/KyDbHandle.h"
#include "db/KyDbObject.h"
#include "db/KyDbOpenObject.h"
#include "db/KyDbTable.h"
#include "db/KyDbTableCellSelection.h"
#include "kydi/KyDiDbComplexItem.h"

namespace {

using kytest::CollectionSpy;
using kytest::ContractChecker;
using Lines = std::vector<std::string>;
using Selected = KyDiDataSelectedItemCollectionImp;

class SelectedItems : public kytest::CollectionFixture {
protected:
    void SetUp() override {
        CollectionFixture::SetUp();
        KyString error;
        ASSERT_NE(host.documents().openDocument(KyString::fromUtf8(KYDI_TEST_SAMPLE), error),
                  nullptr);
        selected = known(L"KYDI_DATAITEM_SELECTED_ITEMS");
        ASSERT_NE(selected, nullptr);
        pass();
    }
    Selected& imp() { return *static_cast<Selected*>(selected->imp()); }
    KyDiDbItem* itemAt(int index) {
        return kyrxCast<KyDiDbItem>(static_cast<KyRxObject*>(selected->getItems()[index]));
    }
    // What each item stands for: "#4B", or "#4A/EdgeSubEntity".
    Lines standing() {
        Lines out;
        for (int i = 0; i < selected->getItems().length(); ++i) {
            KyDiDbItem* item = itemAt(i);
            std::string text = "#" + KyString(KyDbHandle(item->objectId().handle()).text()).utf8();
            if (kyrxCast<KyDiDbComplexItem>(static_cast<KyRxObject*>(item)) != nullptr) {
                text += "/" + KyDiGetItemName(item).utf8();
            }
            out.push_back(text);
        }
        return out;
    }

    KyDiObservableCollection* selected = nullptr;
};

TEST_F(SelectedItems, ObjectsThenSubEntitiesAndTheKindOfSelectionTheyMake) {
    ContractChecker checker(selected, "KYDI_DATAITEM_SELECTED_ITEMS");
    CollectionSpy spy(selected);
    host.selectionService()->setSelection({object(L"4B"), object(L"4E")});
    pass();
    EXPECT_EQ(spy.take(), Lines{"collectionReset"});
    EXPECT_EQ(standing(), (Lines{"#4B", "#4E"}));
    EXPECT_EQ(imp().subEntitySelection(), Selected::kPlainObjects);

    // The ids the host lists come first, then its paths; the entity of a
    // selected part is no item unless it is selected itself.
    host.selectionService()->setSelection(
        {object(L"4B")},
        {KyDbFullSubentPath(object(L"4A"), KyDbSubentId(KyDb::kFaceSubentType, 0)),
         KyDbFullSubentPath(object(L"4A"), KyDbSubentId(KyDb::kEdgeSubentType, 1))});
    pass();
    EXPECT_EQ(spy.take(), Lines{"collectionReset"});
    EXPECT_EQ(standing(), (Lines{"#4B", "#4A/FaceSubEntity", "#4A/EdgeSubEntity"}));
    EXPECT_EQ(imp().subEntitySelection(), Selected::kSubEntities);
    EXPECT_EQ(Selected::reclassify(selected->getItems()), Selected::kCellsOrComplex);

    // A change of a selected object is no modified item while sub-entities
    // are selected: their items are made anew.
    type(L"CHPROP\n_Color\n3\n\n");
    pass();
    EXPECT_EQ(spy.take(), Lines{});
    checker.expectInStep();

    // Another drawing in front: nothing is selected there, and no path is
    // kept.
    host.documents().newDocument();
    pass();
    EXPECT_TRUE(imp().subEntities().isEmpty());
    EXPECT_EQ(imp().subEntitySelection(), Selected::kPlainObjects);
    checker.expectInStep();
}

TEST_F(SelectedItems, AChangedSelectedObjectIsToldAsModified) {
    host.selectionService()->setSelection({object(L"4B"), object(L"4E")});
    pass();
    ContractChecker checker(selected, "KYDI_DATAITEM_SELECTED_ITEMS");
    CollectionSpy spy(selected);
    type(L"CHPROP\n_Color\n3\n\n");
    pass();
    EXPECT_EQ(spy.take(), Lines{"itemsModified [, ]"});
    checker.expectInStep();
}

TEST_F(SelectedItems, TheHelperOpensTheObjectOrThePartTheItemNames) {
    host.selectionService()->setSelection(
        {object(L"4B")},
        {KyDbFullSubentPath(object(L"4A"), KyDbSubentId(KyDb::kEdgeSubentType, 1)),
         KyDbFullSubentPath(object(L"4A"), KyDbSubentId(KyDb::kFaceSubentType, 0))});
    pass();
    {
        // A plain item among sub-entities: its object.
        const CSelectedItemHelper line(itemAt(0), KyDb::kForRead, imp().subEntitySelection());
        EXPECT_EQ(line.getLastError(), Kyro::eOk);
        EXPECT_NE(kyrxCast<KyDbObject>(line.object()), nullptr);
        EXPECT_EQ(kyrxCast<KyDbObject>(line.object())->objectId(), object(L"4B"));
        // A sub-entity's item: its part.
        const CSelectedItemHelper edge(itemAt(1), KyDb::kForRead, imp().subEntitySelection());
        EXPECT_EQ(edge.getLastError(), Kyro::eOk);
        EXPECT_NE(kyrxCast<KyDbEntityPart>(edge.object()), nullptr);
    }
    EXPECT_EQ(kydbOpenObjectCount(), 0) << "the helper closes what it opened";

    // One table with selected cells: the cells stand for it.
    ASSERT_EQ(host.selectionService()->selectCells(object(L"61"), KyDbCellRange(1, 0, 2, 2)),
              Kyro::eOk);
    pass();
    EXPECT_EQ(standing(), Lines{"#61"});
    EXPECT_EQ(imp().subEntitySelection(), Selected::kCellsOrComplex);
    EXPECT_EQ(Selected::reclassify(selected->getItems()), Selected::kCellsOrComplex);
    {
        const CSelectedItemHelper cells(itemAt(0), KyDb::kForRead, imp().subEntitySelection());
        EXPECT_EQ(cells.getLastError(), Kyro::eOk);
        EXPECT_NE(kyrxCast<KyDbTableCellSelection>(cells.object()), nullptr);
    }
    // The same table selected whole: a plain object, with no part to open.
    host.selectionService()->setSelection({object(L"61")});
    pass();
    EXPECT_EQ(imp().subEntitySelection(), Selected::kPlainObjects);
    {
        const CSelectedItemHelper cells(itemAt(0), KyDb::kForRead, Selected::kCellsOrComplex);
        EXPECT_EQ(cells.getLastError(), Kyro::eNullSubentity);
    }
    EXPECT_EQ(kydbOpenObjectCount(), 0);
}

TEST_F(SelectedItems, DimensionsTheHostHidesAreLeftOut) {
    kydbSetClassIdHook([](const KyDbObject* object, KyGuid*) {
        return kyrxCast<KyDbDimension>(const_cast<KyDbObject*>(object)) != nullptr
                   ? static_cast<Kyro::ErrorStatus>(528)
                   : Kyro::eNotApplicable;
    });
    host.selectionService()->setSelection({object(L"5B"), object(L"4B")});
    pass();
    EXPECT_EQ(standing(), Lines{"#4B"});
    kydbSetClassIdHook(nullptr);
}

}  // namespace
