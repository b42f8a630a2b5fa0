// The "SELECTION" context over the sample drawing: the members the selected
// objects have in common and the values they agree on, "varies" where they
// differ; a write to all of them as one undoable change that leaves objects
// on locked layers alone; the groups by kind and the filter; the limit of
// PROPOBJLIMIT.
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <set>

#include "KyRefDocument.h"
#include "KyRefSelectionService.h"
#include "contexts/ManagerSpy.h"
#include "contexts/SelectionCommonValues.h"
#include "db/KyAxDocLock.h"
#include "db/KyCmColor.h"
#include "db/KyDbBlockReference.h"
#include "db/KyDbBlockTableRecord.h"
#include "db/KyDbCircle.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbEntity.h"
#include "db/KyDbHandle.h"
#include "db/KyDbLine.h"
#include "db/KyDbObjectPointer.h"
#include "db/KyDbOpenObject.h"
#include "db/KyDbStandardContent.h"
#include "db/KyDbSymbolTable.h"
#include "db/KyDbUnknownEntity.h"
#include "db/KyDbViewport.h"
#include "kydi/IKyDiSelectionItemProvider.h"
#include "kydi/KyDiContext.h"
#include "kydi/KyDiContextManager.h"
#include "kydi/KyDiDynamicObjectReactor.h"
#include "kydi/KyDiFunctions.h"
#include "kydi/KyDiObservableCollection.h"
#include "manager/RefHostFixture.h"
#include "rx/KyRxMemberQueryEngine.h"
#include "rx/KyRxProperty.h"

namespace {

using Lines = std::vector<std::string>;

class SelectionContext : public kytest::RefHostFixture {
protected:
    void SetUp() override {
        RefHostFixture::SetUp();
        KyString error;
        ASSERT_NE(host.documents().openDocument(KyString::fromUtf8(KYDI_TEST_SAMPLE), error),
                  nullptr);
        context = KyDiManager::getContextManager()->getContext(L"SELECTION", true);
        ASSERT_NE(context, nullptr);
        kinds = dynamic_cast<IKyDiSelectionItemProvider*>(context);
        ASSERT_NE(kinds, nullptr);
        spy = std::make_unique<kytest::ManagerSpy>(KyDiManager::getContextManager());
    }
    void TearDown() override {
        spy.reset();
        RefHostFixture::TearDown();
    }
    // Selects, and lets two passes bring the context in step.
    void select(std::initializer_list<const wchar_t*> handles) {
        std::vector<KyDbObjectId> ids;
        for (const wchar_t* handle : handles) {
            ids.push_back(object(handle));
        }
        host.selectionService()->setSelection(ids);
        KyDiManager::refresh();
        KyDiManager::refresh();
        spy->take();
    }
    std::set<std::string> members() {
        std::set<std::string> names;
        const std::unique_ptr<KyRxMemberIterator> it(context->newMemberIterator());
        for (; it != nullptr && !it->done(); it->next()) {
            names.insert(KyString(it->current()->name()).utf8());
        }
        return names;
    }
    const KyRxProperty* property(const wchar_t* name) {
        return kyrxCast<KyRxProperty>(KyDiFindMember(context, name));
    }
    KyRxValue read(const wchar_t* name) {
        KyRxValue value;
        const KyRxProperty* found = property(name);
        EXPECT_NE(found, nullptr) << KyString(name).utf8();
        if (found != nullptr) {
            EXPECT_EQ(found->getValue(context, value), Kyro::eOk);
        }
        return value;
    }
    static KyCmColor colorIndex(unsigned short index) {
        KyCmColor color;
        color.setColorIndex(index);
        return color;
    }
    // The index of a colour read through the context (its item's value).
    static int colorIndexOf(const KyRxValue& value) {
        KyDiDynamicObject* const* item = valueCast<KyDiDynamicObject*>(&value);
        const KyCmColor* color =
            item != nullptr ? valueCast<KyCmColor>((*item)->value()) : valueCast<KyCmColor>(&value);
        return color != nullptr ? color->colorIndex() : -1;
    }
    KyCmColor colorOf(const wchar_t* handle) {
        KyDbObjectPointer<KyDbEntity> entity(object(handle), KyDb::kForRead);
        return entity->color();
    }

    KyDiContext* context = nullptr;
    IKyDiSelectionItemProvider* kinds = nullptr;
    std::unique_ptr<kytest::ManagerSpy> spy;
};

TEST_F(SelectionContext, TwoLinesShowTheirCommonValuesAndOneWriteReachesBoth) {
    EXPECT_FALSE(context->isActive()) << "nothing selected";
    EXPECT_EQ(context->priority(), 20);
    select({L"4B", L"4C"});
    EXPECT_TRUE(context->isActive());
    const std::set<std::string> listed = members();
    EXPECT_TRUE(listed.contains("StartPoint"));
    EXPECT_TRUE(read(L"StartPoint").isVaries());
    EXPECT_FALSE(read(L"LayerId").isVaries());
    const KyRxValue layer = read(L"LayerId");
    ASSERT_NE(valueCast<KyDiDynamicObject*>(&layer), nullptr);
    EXPECT_EQ(KyDiGetItemName(*valueCast<KyDiDynamicObject*>(&layer)).utf8(), "Walls");

    // One write, one step of undo, one change told.
    ASSERT_EQ(property(L"Color")->setValue(context, KyRxValue(colorIndex(3))), Kyro::eOk);
    EXPECT_EQ(colorOf(L"4B").colorIndex(), 3);
    EXPECT_EQ(colorOf(L"4C").colorIndex(), 3);
    KyDiManager::refresh();
    EXPECT_EQ(spy->take(), Lines{"contextChanged SELECTION []"});
    type(L"U\n");
    EXPECT_EQ(commandLine().back(), L"Undone: OPM_CHGPROP");
    EXPECT_TRUE(colorOf(L"4B").isByLayer());
    EXPECT_TRUE(colorOf(L"4C").isByLayer());

    // "Varies" written changes nothing, and is no command to undo.
    commandLine();
    property(L"Color")->setValue(context, KyRxValue::varies());
    EXPECT_TRUE(colorOf(L"4B").isByLayer());
    type(L"U\n");
    EXPECT_NE(commandLine().back(), L"Undone: OPM_CHGPROP");
    EXPECT_EQ(kydbOpenObjectCount(), 0);
}

TEST_F(SelectionContext, ALineAndACircleShowOnlyWhatTheyShareAndAFilterNarrowsToOne) {
    select({L"4B", L"4E"});
    std::set<std::string> listed = members();
    EXPECT_TRUE(listed.contains("Color"));
    EXPECT_FALSE(listed.contains("StartPoint"));
    EXPECT_FALSE(listed.contains("Radius"));
    ASSERT_EQ(kinds->getItemCount(), 2);
    EXPECT_EQ(kinds->getItem(0).objectClass, KyDbLine::desc());
    EXPECT_EQ(kinds->getItem(1).objectClass, KyDbCircle::desc());
    EXPECT_EQ(kinds->getItem(1).localizedName.utf8(), "Circle");
    EXPECT_EQ(kinds->getItem(2).objectClass, nullptr);

    KyArray<KyString> lineAndCircle;
    lineAndCircle.append(KyString(L"KyDbLine"));
    lineAndCircle.append(KyString(L"KyDbCircle"));
    KyArray<KyString> lineOnly;
    lineOnly.append(KyString(L"KyDbLine"));
    EXPECT_TRUE(kinds->containsAnyClass(lineOnly));
    EXPECT_FALSE(kinds->containsOnlyClasses(lineOnly));
    EXPECT_TRUE(kinds->containsOnlyClasses(lineAndCircle));

    // A value read before a filter is not what the filter reads.
    EXPECT_TRUE(read(L"LocalizedName").isVaries());
    // Narrowed to the circle: its own members, its values, writes to it alone.
    ASSERT_TRUE(kinds->setFilterClass(KyDbCircle::desc()));
    EXPECT_FALSE(read(L"LocalizedName").isVaries());
    EXPECT_FALSE(kinds->setFilterClass(KyDbLine::desc()->myParent()));
    ASSERT_TRUE(kinds->setFilterClass(KyDbCircle::desc()));
    listed = members();
    EXPECT_TRUE(listed.contains("Radius"));
    ASSERT_EQ(property(L"Color")->setValue(context, KyRxValue(colorIndex(5))), Kyro::eOk);
    EXPECT_EQ(colorOf(L"4E").colorIndex(), 5);
    EXPECT_TRUE(colorOf(L"4B").isByLayer());
    // The change of the written object keeps the filter; the next change of
    // the selection is told and starts over.
    KyDiManager::refresh();
    EXPECT_EQ(kinds->getFilterClass(), KyDbCircle::desc());
    spy->take();
    host.selectionService()->setSelection({object(L"4C")});
    KyDiManager::refresh();
    EXPECT_EQ(spy->take(), Lines{"contextChanged SELECTION []"});
    EXPECT_EQ(kinds->getFilterClass(), nullptr);
    EXPECT_EQ(kinds->getItemCount(), 1);
    ASSERT_TRUE(kinds->setFilterClass(KyDbLine::desc()));
    EXPECT_TRUE(kinds->setFilterClass(nullptr));
    EXPECT_EQ(kinds->getFilterClass(), nullptr);
}

TEST_F(SelectionContext, ListedValuesReadTogetherAreWhatEachReadAloneGives) {
    // Lines alike and apart, a circle, a hatch: values agree, vary, or fail.
    select({L"4B", L"4C", L"4D", L"4E", L"BB"});
    const KyDiItemArray& selected =
        KyDiManager::getKnownCollection(L"KYDI_DATAITEM_SELECTED_ITEMS")->getItems();
    std::vector<const KyRxProperty*> listed;
    {
        const std::unique_ptr<KyRxMemberIterator> it(context->newMemberIterator());
        for (; it != nullptr && !it->done(); it->next()) {
            if (const auto* each = kyrxCast<KyRxProperty>(it->current())) {
                listed.push_back(each);
            }
        }
    }
    ASSERT_GT(listed.size(), 5U);
    int varying = 0;
    for (const KyRxProperty* each : listed) {
        KyRxValue together;
        const Kyro::ErrorStatus status = each->getValue(context, together);
        KyRxValue alone;
        EXPECT_EQ(SelectionCommonValues::getCommonValue(selected, SelectionCommonValues::Kind(),
                                                        each, alone, -1, nullptr,
                                                        SelectionCommonValues::Filter()),
                  status)
            << KyString(each->name()).utf8();
        EXPECT_EQ(together.text().utf8(), alone.text().utf8()) << KyString(each->name()).utf8();
        varying += together.isVaries() ? 1 : 0;
    }
    EXPECT_GT(varying, 0);
    EXPECT_LT(varying, static_cast<int>(listed.size()));
    EXPECT_EQ(kydbOpenObjectCount(), 0);
}

TEST_F(SelectionContext, AClassNameFilterSeparatesKindsOfOneClassAndOutlivesItsOwnWrite) {
    // Entities of kinds the platform keeps whole: one class, two names.
    std::vector<KyDbObjectId> kept;
    {
        KyDbDatabase* database = host.documents().currentDatabase();
        const KyAxDocLock lock(database);
        KyDbObjectId modelId;
        {
            KyDbObjectPointer<KyDbSymbolTable> blocks(database->blockTableId(), KyDb::kForRead);
            blocks->getAt(KyDbStandardContent::kModelSpaceName, modelId);
        }
        KyDbObjectPointer<KyDbBlockTableRecord> model(modelId, KyDb::kForWrite);
        for (const wchar_t* kind : {L"SPRINKLER", L"VALVE", L"SPRINKLER"}) {
            auto* entity = new KyDbUnknownEntity();
            entity->setTypeName(kind);
            KyDbObjectId id;
            ASSERT_EQ(model->appendKyDbEntity(id, entity), Kyro::eOk);
            entity->close();
            kept.push_back(id);
        }
    }
    host.selectionService()->setSelection(kept);
    KyDiManager::refresh();
    KyDiManager::refresh();
    ASSERT_EQ(kinds->getItemCount(), 2);
    EXPECT_EQ(kinds->getItem(0).className.utf8(), "SPRINKLER");
    EXPECT_EQ(kinds->getItem(0).count, 2);
    EXPECT_EQ(kinds->getItem(1).className.utf8(), "VALVE");

    ASSERT_TRUE(kinds->setFilter(KyDbUnknownEntity::desc(), KyString(L"VALVE")));
    EXPECT_TRUE(members().contains("Color"));
    ASSERT_EQ(property(L"Color")->setValue(context, KyRxValue(colorIndex(4))), Kyro::eOk);
    KyDbObjectPointer<KyDbEntity> valve(kept[1], KyDb::kForRead);
    EXPECT_EQ(valve->color().colorIndex(), 4);
    valve.close();
    KyDbObjectPointer<KyDbEntity> sprinkler(kept[0], KyDb::kForRead);
    EXPECT_TRUE(sprinkler->color().isByLayer()) << "another kind of the same class";
    sprinkler.close();
    // The change its own write makes of the list keeps the filter.
    KyDiManager::refresh();
    EXPECT_EQ(kinds->getFilterClass(), KyDbUnknownEntity::desc());
    EXPECT_EQ(kinds->getFilterName().utf8(), "VALVE");
    EXPECT_EQ(colorIndexOf(read(L"Color")), 4);
}

TEST_F(SelectionContext, AClippedViewportWithItsClipIsNarrowedToTheViewport) {
    // 6C is clipped by an outline of its own; 4A stands for that outline.
    select({L"6C", L"4A"});
    EXPECT_EQ(kinds->getFilterClass(), KyDbViewport::desc());
    // One more object: the user means them all.
    select({L"6C", L"4A", L"4B"});
    EXPECT_EQ(kinds->getFilterClass(), nullptr);
    // A viewport without a clip of its own is no reason to narrow.
    select({L"6B", L"4A"});
    EXPECT_EQ(kinds->getFilterClass(), nullptr);
}

TEST_F(SelectionContext, ObjectsOnLockedLayersAreLeftAloneAndOnlyThoseAnswer87) {
    // The leader 5C and the dimension 5B stand on the locked layer
    // "Dimensions".
    select({L"4B", L"5C"});
    ASSERT_EQ(property(L"Color")->setValue(context, KyRxValue(colorIndex(2))), Kyro::eOk);
    EXPECT_EQ(colorOf(L"4B").colorIndex(), 2);
    EXPECT_FALSE(colorOf(L"5C").colorIndex() == 2);
    select({L"5B", L"5C"});
    EXPECT_EQ(property(L"Color")->setValue(context, KyRxValue(colorIndex(2))),
              Kyro::eAllObjectsExcluded);
    EXPECT_FALSE(colorOf(L"5B").colorIndex() == 2);
}

TEST_F(SelectionContext, TwoHatchesAddUpTheAreaTheyCoverAndAHatchWithALineDoesNot) {
    // The floor 5E and the rug BB overlap: the area they cover together
    // counts the overlap once.
    select({L"5E", L"BB"});
    EXPECT_TRUE(members().contains("CumulativeArea"));
    EXPECT_TRUE(read(L"Area").isVaries());
    const KyRxValue area = read(L"CumulativeArea");
    ASSERT_NE(valueCast<double>(&area), nullptr);
    EXPECT_DOUBLE_EQ(*valueCast<double>(&area), 14900000.0);
    // Read on any list of hatches, as its one boxed array.
    const KyDiItemArray& hatches =
        KyDiManager::getKnownCollection(L"KYDI_DATAITEM_SELECTED_ITEMS")->getItems();
    KyDiItemArray rugOnly;
    rugOnly.append(hatches[1]);
    KyRxValue value;
    ASSERT_EQ(KyDiGetCommonValue(rugOnly, property(L"CumulativeArea"), value), Kyro::eOk);
    EXPECT_LT(*valueCast<double>(&value), 14900000.0);
    EXPECT_GT(*valueCast<double>(&value), 0.0);
    // Not on the context itself, nor on an empty list.
    const auto* own = kyrxCast<KyRxProperty>(
        KyRxMemberQueryEngine::theEngine()->find(context, L"CumulativeArea"));
    ASSERT_NE(own, nullptr);
    EXPECT_EQ(own->getValue(context, value), Kyro::eNotThatKindOfClass);
    EXPECT_EQ(KyDiGetCommonValue(KyDiItemArray(), property(L"CumulativeArea"), value),
              Kyro::eNotApplicable);

    select({L"5E", L"4B"});
    EXPECT_FALSE(members().contains("CumulativeArea"));
    // Asked all the same, a line among the hatches makes it not applicable.
    EXPECT_EQ(KyDiGetCommonValue(hatches, own, value), Kyro::eNotApplicable);
}

TEST_F(SelectionContext, ACollectionIsReadForTheOneObjectTheLastListingUnderAFilterLeft) {
    select({L"58", L"4B"});
    const KyDiItemArray& selected =
        KyDiManager::getKnownCollection(L"KYDI_DATAITEM_SELECTED_ITEMS")->getItems();
    const KyRxPropertyBase* attributes = nullptr;
    {
        KyDbObjectPointer<KyDbObject> reference(object(L"58"), KyDb::kForRead);
        attributes = kyrxCast<KyRxPropertyBase>(
            KyRxMemberQueryEngine::theEngine()->find(reference.object(), L"Attributes"));
    }
    ASSERT_NE(attributes, nullptr);
    KyRxValue value;
    EXPECT_EQ(KyDiGetCommonValue(selected, attributes, value), Kyro::eNotApplicable)
        << "two objects";
    ASSERT_TRUE(kinds->setFilterClass(KyDbBlockReference::desc()));
    EXPECT_EQ(KyDiGetCommonValue(selected, attributes, value), Kyro::eNotApplicable)
        << "no listing under the filter yet";
    EXPECT_TRUE(members().contains("Attributes"));
    EXPECT_NE(KyDiGetCommonValue(selected, attributes, value), Kyro::eNotApplicable)
        << "the listing left one object";
    ASSERT_TRUE(kinds->setFilterClass(KyDbBlockReference::desc()));
    EXPECT_EQ(KyDiGetCommonValue(selected, attributes, value), Kyro::eNotApplicable)
        << "a new filter forgets what the last listing left";
}

TEST_F(SelectionContext, AReactorToldOfAWriteReadsTheWrittenValue) {
    select({L"4B", L"4C"});
    const KyRxValue before = read(L"Color");
    // Reads the colour while it is told.
    class Reader : public KyDiDynamicObjectReactor {
    public:
        explicit Reader(std::function<std::string()> readColor)
            : m_readColor(std::move(readColor)) {}
        void changed(KyDiDynamicObject*, const wchar_t*, void*) override {
            seen.push_back(m_readColor());
        }
        std::vector<std::string> seen;

    private:
        std::function<std::string()> m_readColor;
    } reader([this] { return read(L"Color").text().utf8(); });
    context->addReactor(&reader);
    ASSERT_EQ(property(L"Color")->setValue(context, KyRxValue(colorIndex(3))), Kyro::eOk);
    KyDiManager::refresh();
    context->removeReactor(&reader);
    ASSERT_FALSE(reader.seen.empty());
    for (const std::string& seen : reader.seen) {
        EXPECT_NE(seen, before.text().utf8()) << "a stale value was read while told";
    }
}

TEST_F(SelectionContext, TheFreeFunctionsReadCommonValuesAndTellCellsApart) {
    EXPECT_FALSE(hasTableSubSelection()) << "nothing selected";
    select({L"4B", L"4C"});
    const KyDiItemArray& lines =
        KyDiManager::getKnownCollection(L"KYDI_DATAITEM_SELECTED_ITEMS")->getItems();
    KyRxValue value;
    ASSERT_EQ(KyDiGetCommonValue(lines, property(L"StartPoint"), value), Kyro::eOk);
    EXPECT_TRUE(value.isVaries());
    ASSERT_EQ(KyDiGetCommonValue(lines, property(L"LineWeight"), value), Kyro::eOk);
    EXPECT_FALSE(value.isVaries());
    EXPECT_FALSE(hasTableSubSelection());
    ASSERT_EQ(host.selectionService()->selectCells(object(L"61"), KyDbCellRange(0, 0, 0, 1)),
              Kyro::eOk);
    KyDiManager::refresh();
    EXPECT_TRUE(hasTableSubSelection());
}

TEST_F(SelectionContext, BeyondPropObjLimitTheContextIsInactive) {
    select({L"4B", L"4C", L"4E"});
    type(L"PROPOBJLIMIT\n2\n");
    EXPECT_FALSE(context->isActive());
    type(L"PROPOBJLIMIT\n3\n");
    EXPECT_TRUE(context->isActive());
    type(L"PROPOBJLIMIT\n0\n");
    EXPECT_TRUE(context->isActive()) << "0 is no limit";
}

}  // namespace
