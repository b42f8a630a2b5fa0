// The effective property clients are given, over a selection of the sample
// drawing: the values the selected entities share, varies where they differ,
// not applicable where one has no such value; one scan of the selection for
// all stale keys; the change-property commands a write sends, the direct
// transparency write, and the object reactors on what was selected.
#include <gtest/gtest.h>

#include "KyRefSelectionService.h"
#include "db/KyAxDocLock.h"
#include "db/KyCmTransparency.h"
#include "db/KyDbEntity.h"
#include "db/KyDbHostApplicationServices.h"
#include "db/KyDbObjectPointer.h"
#include "db/KyDbOpenObject.h"
#include "effective/EffectiveFixture.h"
#include "effective/EffectiveSelectionAccessors.h"
#include "effective/KyDiImpEffectiveSelectionProperty.h"
#include "kydi/KyDiDataItemFactory.h"
#include "kydi/KyDiObservableCollection.h"
#include "rx/KyRxDynamicLinker.h"

namespace {

using kytest::EffectiveFixture;
using kytest::EffectiveSpy;
using kytest::Reports;
using Texts = std::vector<std::wstring>;
using E = KyDiEffectiveProperty;

class EffectiveSelection : public EffectiveFixture {
protected:
    void SetUp() override {
        EffectiveFixture::SetUp();
        imp = dynamic_cast<KyDiImpEffectiveSelectionProperty*>(effective->imp());
        ASSERT_NE(imp, nullptr);
        sentTexts();
    }
    // Selects by handle, and lets a pass tell the change.
    void select(std::initializer_list<const wchar_t*> handles) {
        std::vector<KyDbObjectId> ids;
        for (const wchar_t* handle : handles) {
            ids.push_back(object(handle));
        }
        host.selectionService()->setSelection(ids);
        pass();
    }
    // The item of `name` in the known collection `list`.
    static KyDiDynamicObject* itemNamed(const wchar_t* list, const wchar_t* name) {
        KyDiObservableCollection* collection = KyDiManager::getKnownCollection(list);
        const KyDiItemArray& items = collection->getItems();
        for (int i = 0; i < items.length(); ++i) {
            if (KyDiGetItemName(items[i]).compare(name) == 0) {
                return items[i];
            }
        }
        ADD_FAILURE() << "no item " << KyString(name).utf8();
        return nullptr;
    }
    // Whether the object of `handle` carries the selection's object reactor.
    bool watched(const wchar_t* handle) {
        KyDbObjectPointer<KyDbObject> dbObject(object(handle), KyDb::kForRead);
        const KyDbReactorList* reactors = dbObject->reactors();
        for (int i = 0; reactors != nullptr && i < reactors->length(); ++i) {
            if (dynamic_cast<KyDiObjectModifiedReactor<KyDiImpEffectiveSelectionProperty>*>(
                    static_cast<KyDbObjectReactor*>(reactors->at(i))) != nullptr) {
                return true;
            }
        }
        return false;
    }
    KyCmTransparency transparencyOf(const wchar_t* handle) {
        KyDbObjectPointer<KyDbEntity> entity(object(handle), KyDb::kForRead);
        return entity->transparency();
    }

    KyDiImpEffectiveSelectionProperty* imp = nullptr;
};

TEST_F(EffectiveSelection, SelectedEntitiesShowWhatTheyShareVariesWhereTheyDifferAndNoneWithout) {
    // Two lines of "Walls", both by layer.
    select({L"4B", L"4C"});
    EXPECT_EQ(read(&E::getLayer), "Walls");
    EXPECT_EQ(read(&E::getColor), "ByLayer");
    EXPECT_EQ(read(&E::getLinetype), "ByLayer");
    EXPECT_EQ(read(&E::getLineWeight), "ByLayer");
    // A line has no dimension, text or table style.
    EXPECT_EQ(read(&E::getDimensionStyle), "status 2");
    EXPECT_EQ(read(&E::getTextStyle), "status 2");
    EXPECT_EQ(read(&E::getTableStyle), "status 2");

    // Same layer, another colour: the layer is shared, the colour varies.
    select({});
    type(L"CHPROP\n4C\n\n_Color\n1\n\n");
    select({L"4B", L"4C", L"4E"});
    EXPECT_EQ(read(&E::getLayer), "Walls");
    EXPECT_EQ(read(&E::getColor), "varies");

    // A line of another layer with its own colour, lineweight and
    // transparency: those vary.
    select({L"4B", L"4D"});
    EXPECT_EQ(read(&E::getLayer), "varies");
    EXPECT_EQ(read(&E::getColor), "varies");
    EXPECT_EQ(read(&E::getLineWeight), "varies");
    EXPECT_EQ(read(&E::getTransparency), "varies");
    EXPECT_EQ(read(&E::getLinetype), "varies");
    // Both lines have no material of their own.
    EXPECT_EQ(read(&E::getMaterial), "ByLayer");

    // The styles of annotations: a dimension and a leader share theirs; a
    // dimension, a text and a multiline text share a text style only when
    // they have the same.
    select({L"5B", L"5C"});
    EXPECT_EQ(read(&E::getDimensionStyle), "ISO-25");
    EXPECT_EQ(read(&E::getTextStyle), "status 2") << "a leader has no text style";
    select({L"5D"});
    EXPECT_EQ(read(&E::getMLeaderStyle), "Callout");
    select({L"61"});
    EXPECT_EQ(read(&E::getTableStyle), "Schedule");

    // Nothing selected: what a new object would get; never "varies".
    type(L"CLAYER\nDoors\n");
    select({});
    EXPECT_EQ(read(&E::getLayer), "Doors");
    EXPECT_EQ(read(&E::getColor), "ByLayer");
    EXPECT_EQ(kydbOpenObjectCount(), 0);
}

TEST_F(EffectiveSelection, ANonEntityFirstMakesEveryReadValueVaryAndTheRestNotApplicable) {
    // A layer record is no entity: the line after it is compared to nothing.
    select({L"30", L"4B"});
    EXPECT_EQ(read(&E::getLayer), "varies");
    EXPECT_EQ(read(&E::getColor), "varies");
    EXPECT_EQ(read(&E::getTransparency), "varies");
    EXPECT_EQ(read(&E::getDimensionStyle), "status 2");
    // A non-entity after the line changes nothing.
    select({L"4B", L"30"});
    EXPECT_EQ(read(&E::getLayer), "Walls");
}

TEST_F(EffectiveSelection, OneReportPerSelectionChangeAndOneScanPaysForEveryKey) {
    select({L"4B"});
    EXPECT_EQ(read(&E::getLayer), "Walls");
    EXPECT_EQ(read(&E::getColor), "ByLayer");
    EffectiveSpy spy(effective);
    select({L"4B", L"4D"});
    EXPECT_EQ(spy.take(), Reports{"allPropertiesChanged"});

    // The first read computes every bound key at once.
    EXPECT_EQ(read(&E::getLayer), "varies");
    for (const wchar_t* key : {L"LAYER", L"COLOR"}) {
        EXPECT_EQ(imp->entry(key)->flags & KyDiEffectiveEntry::kEntryDirty, 0U)
            << KyString(key).utf8();
    }
    EXPECT_EQ(read(&E::getColor), "varies");
    pass();
    EXPECT_EQ(spy.take(), Reports{});
}

TEST_F(EffectiveSelection, ObjectReactorsStayOnAllSelectedSinceEmptyAndLeaveAtTheNextReadAfter) {
    select({L"4B"});
    read(&E::getLayer);
    select({L"4C"});
    read(&E::getLayer);
    EXPECT_TRUE(watched(L"4B")) << "kept while the selection stands";
    EXPECT_TRUE(watched(L"4C"));
    EXPECT_EQ(imp->watchedObjects().size(), 2U);

    // A change of a watched object is told at the next pass, as all keys.
    EffectiveSpy spy(effective);
    type(L"-LAYER\n_Lock\nWalls\n\n");
    {
        KyAxDocLock lock;
        KyDbObjectPointer<KyDbEntity> line(object(L"4B"), KyDb::kForWrite);
        line->setColorIndex(1);
    }
    pass();
    EXPECT_EQ(spy.take(), Reports{"allPropertiesChanged"});

    select({});
    EXPECT_TRUE(watched(L"4B")) << "nothing read yet";
    EXPECT_EQ(read(&E::getLayer), "Walls") << "the current layer";
    EXPECT_FALSE(watched(L"4B"));
    EXPECT_FALSE(watched(L"4C"));
    EXPECT_TRUE(imp->watchedObjects().empty());
}

TEST_F(EffectiveSelection, ASwitchOfDocumentOrItsCloseTakesTheReactorsOff) {
    select({L"4B", L"4C"});
    read(&E::getLayer);
    ASSERT_TRUE(watched(L"4B"));
    const KyDbObjectId line = object(L"4B");
    KyRefDocument* other = host.documents().newDocument();
    pass();
    EXPECT_TRUE(imp->watchedObjects().empty());
    KyDbObject* dbObject = nullptr;
    ASSERT_EQ(kydbOpenObject(dbObject, line, KyDb::kForRead), Kyro::eOk);
    EXPECT_TRUE(dbObject->reactors() == nullptr || dbObject->reactors()->isEmpty());
    dbObject->close();

    // Back in the sample, then the sample closes while its objects are
    // watched: the sanitizer catches a reactor left on a freed object.
    host.documents().makeCurrent(sample);
    pass();
    select({L"4B"});
    read(&E::getLayer);
    ASSERT_FALSE(imp->watchedObjects().empty());
    host.documents().closeDocument(sample);
    pass();
    EXPECT_TRUE(imp->watchedObjects().empty());
    EXPECT_EQ(host.documents().current(), other);
}

TEST_F(EffectiveSelection, NoObjectKeepsTheReactorAfterShutdown) {
    select({L"4B", L"4C"});
    read(&E::getLayer);
    ASSERT_TRUE(watched(L"4B"));
    const KyDbObjectId line = object(L"4B");
    stop();
    KyDbObject* dbObject = nullptr;
    ASSERT_EQ(kydbOpenObject(dbObject, line, KyDb::kForRead), Kyro::eOk);
    EXPECT_TRUE(dbObject->reactors() == nullptr || dbObject->reactors()->isEmpty());
    dbObject->close();
}

TEST_F(EffectiveSelection, ViewStylesAnswerThroughTheHostsModuleOnlyWhileItIsLoaded) {
    // Without the module no callout answers, and asking doesn't load it.
    select({L"BC"});
    EXPECT_EQ(read(&E::getSectionViewStyle), "status 2");
    EXPECT_FALSE(kyrxServiceIsRegistered(L"KYSYNERGYOBJ"));

    // Loaded later, it takes effect at the next reading.
    ASSERT_TRUE(kyrxLoadModule(L"KYSYNERGYOBJ", false));
    select({});
    select({L"BC"});
    EXPECT_EQ(read(&E::getSectionViewStyle), "Standard");
    EXPECT_EQ(read(&E::getDetailViewStyle), "status 2") << "a section callout";
    select({L"BD"});
    EXPECT_EQ(read(&E::getDetailViewStyle), "Metric");
    select({L"BC", L"BD"});
    EXPECT_EQ(read(&E::getSectionViewStyle), "status 2");

    // A section style given to the selection reaches the section callout, as
    // one step of undo.
    select({L"BC", L"4B"});
    ASSERT_EQ(effective->setSectionViewStyle(itemNamed(L"KYRO_SECTIONVIEWSTYLE", L"Metric")),
              Kyro::eOk);
    EXPECT_EQ(sentTexts(), Texts{});
    select({L"BC"});
    EXPECT_EQ(read(&E::getSectionViewStyle), "Metric");
    type(L"U\n");
    select({L"BC"});
    EXPECT_EQ(read(&E::getSectionViewStyle), "Standard");

    // Unloaded again: the functions kept answer nothing.
    ASSERT_TRUE(kyrxUnloadModule(L"KYSYNERGYOBJ"));
    select({L"BD"});
    EXPECT_EQ(read(&E::getDetailViewStyle), "status 2");
    EXPECT_EQ(effective->setDetailViewStyle(itemNamed(L"KYRO_DETAILVIEWSTYLE", L"Standard")),
              Kyro::eOk)
        << "the module's refusal is not the setter's answer";
    EXPECT_EQ(kydbOpenObjectCount(), 0);
}

TEST_F(EffectiveSelection, WritesSendTheChangePropertyCommandsAUserWouldType) {
    select({L"4B", L"4C"});
    // The layer command runs, and both lines move in one step.
    effective->setLayer(itemNamed(L"LAYER", L"Doors"));
    EXPECT_EQ(sentTexts(), Texts{L"_chprop\n_layer\nDoors\n\n"});
    host.idle();
    pass();
    EXPECT_EQ(read(&E::getLayer), "Doors");
    type(L"U\n");
    pass();
    EXPECT_EQ(read(&E::getLayer), "Walls");

    ASSERT_EQ(effective->setLayer(itemNamed(L"LAYER", L"Doors")), Kyro::eOk);
    ASSERT_EQ(effective->setLinetype(itemNamed(L"LINETYPE", L"Continuous")), Kyro::eOk);
    EXPECT_EQ(sentTexts(),
              (Texts{L"_chprop\n_layer\nDoors\n\n", L"_chprop\n_ltype\nContinuous\n\n"}));

    // Colours by index name, as a true colour and from a book.
    KyCmColor color;
    color.setColorIndex(1);
    effective->setColor(createDataItem(KyString(), KyRxValue(color)));
    color.setRGB(255, 128, 0);
    effective->setColor(createDataItem(KyString(), KyRxValue(color)));
    color.setRGB(204, 6, 5);
    color.setNames(L"RAL 3020", L"RAL CLASSIC");
    effective->setColor(createDataItem(KyString(), KyRxValue(color)));
    EXPECT_EQ(sentTexts(),
              (Texts{L"_chprop\n_color\nred\n\n", L"_chprop\n_color\n_Truecolor\n255,128,0\n\n",
                     L"_chprop\n_color\n_COlorbook\nRAL CLASSIC\nRAL 3020\n\n"}));

    // Styles through the optional change-property command.
    effective->setDimensionStyle(itemNamed(L"DIMSTYLE", L"ISO-25"));
    effective->setTextStyle(itemNamed(L"TEXTSTYLE", L"Standard"));
    effective->setMLeaderStyle(itemNamed(L"KYRO_MLEADERSTYLE", L"Callout"));
    effective->setTableStyle(itemNamed(L"KYRO_TABLESTYLE", L"Schedule"));
    EXPECT_EQ(
        sentTexts(),
        (Texts{L"_optchprop\n_dimstyle\nISO-25\n\n", L"_optchprop\n_textstyle\nStandard\n\n",
               L"_optchprop\n_mlstyle\nCallout\n\n", L"_optchprop\n_tablestyle\nSchedule\n\n"}));

    // A layer of an external reference and a material send nothing.
    KyDiDynamicObject* xrefLayer =
        createDataItem(KyString(L"Site Plan|Walls"), KyRxValue(KyDbObjectId()));
    EXPECT_EQ(effective->setLayer(xrefLayer), Kyro::eOk);
    deleteItem(xrefLayer);
    EXPECT_EQ(effective->setMaterial(itemNamed(L"KYRO_MATERIAL", L"Global")), Kyro::eOk);
    EXPECT_EQ(sentTexts(), Texts{});
}

TEST_F(EffectiveSelection, TheLineweightTextFollowsTheUnitsLineweightsAreShownIn) {
    const short units = gLineWeightUnits;
    gLineWeightUnits = 1;
    EXPECT_EQ(EffectiveSelectionAccessors::lineweightText(25).utf8(), "0.25");
    EXPECT_EQ(EffectiveSelectionAccessors::lineweightText(211).utf8(), "2.11");
    gLineWeightUnits = 0;
    EXPECT_EQ(EffectiveSelectionAccessors::lineweightText(25).utf8(), "0.010");
    EXPECT_EQ(EffectiveSelectionAccessors::lineweightText(-1).utf8(), "_bylayer");
    EXPECT_EQ(EffectiveSelectionAccessors::lineweightText(-2).utf8(), "_byblock");
    EXPECT_EQ(EffectiveSelectionAccessors::lineweightText(-3).utf8(), "_default");
    gLineWeightUnits = 1;

    select({L"4B"});
    KyDiCollection* weights =
        KyDiManager::getCollection(KyRxValueType::Desc<KyDb::LineWeight>::value().enumeration());
    ASSERT_NE(weights, nullptr);
    KyDiDynamicObject* thirty = nullptr;
    for (int i = 0; i < weights->getItems().length(); ++i) {
        const KyRxValue* value = weights->getItems()[i]->value();
        if (valueCast<KyDb::LineWeight>(value) != nullptr &&
            *valueCast<KyDb::LineWeight>(value) == KyDb::kLnWt030) {
            thirty = weights->getItems()[i];
        }
    }
    ASSERT_NE(thirty, nullptr);
    effective->setLineWeight(thirty);
    EXPECT_EQ(sentTexts(), Texts{L"_chprop\n_lweight\n0.30\n\n"});
    host.idle();
    pass();
    EXPECT_EQ(read(&E::getLineWeight), KyDiGetItemName(thirty).utf8());
    gLineWeightUnits = units;
}

TEST_F(EffectiveSelection, ObjectsOnLockedLayersAreLeftAloneUnlessTheWriteIsDirect) {
    // Only objects on locked layers: no command leaves.
    select({L"5B", L"5C"});
    EXPECT_EQ(effective->setLayer(itemNamed(L"LAYER", L"Doors")), Kyro::eOk);
    EXPECT_EQ(sentTexts(), Texts{});

    // The transparency is written directly to every object watched since
    // the selection began, the locked one too, in one step of undo.
    select({L"4B"});
    read(&E::getTransparency);
    select({L"4C", L"5B"});
    read(&E::getTransparency);
    KyCmTransparency half(127);
    ASSERT_EQ(effective->setTransparency(createDataItem(KyString(), KyRxValue(half))), Kyro::eOk);
    EXPECT_EQ(sentTexts(), Texts{});
    for (const wchar_t* handle : {L"4B", L"4C", L"5B"}) {
        EXPECT_EQ(transparencyOf(handle), half) << KyString(handle).utf8();
    }
    pass();
    EXPECT_EQ(read(&E::getTransparency),
              KyDiGetItemName(createDataItem(KyString(), KyRxValue(half))).utf8());
    type(L"U\n");
    EXPECT_TRUE(transparencyOf(L"4B").isByLayer());
    EXPECT_TRUE(transparencyOf(L"5B").isByLayer());

    // The marker of an unreadable transparency writes nothing.
    KyCmTransparency error;
    error.setMethod(KyCmTransparency::kErrorValue);
    EXPECT_EQ(effective->setTransparency(createDataItem(KyString(), KyRxValue(error))), Kyro::eOk);
    EXPECT_TRUE(transparencyOf(L"4B").isByLayer());
    EXPECT_EQ(kydbOpenObjectCount(), 0);
}

}  // namespace
