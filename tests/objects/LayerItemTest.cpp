// A layer item writes "Color", "IsOff", "IsFrozen" and "IsLocked" as the
// layer command a user would type; the host runs it at idle and the record
// changes then. Every other write goes to the record at once.
#include <gtest/gtest.h>

#include "KyRefLayerService.h"
#include "db/KyCmColorBook.h"
#include "db/KyDbObjectPointer.h"
#include "objects/ItemFixture.h"

namespace {

class LayerItems : public kytest::ItemFixture {
protected:
    void SetUp() override {
        ItemFixture::SetUp();
        walls = addLayer(L"Walls", 5);
        sentTexts();
        commandLine();
    }

    KyCmColor colorOf(KyDbObjectId layer) {
        KyDbObjectPointer<KyDbLayerTableRecord> record(layer, KyDb::kForRead);
        return record->color();
    }
    bool flagOf(KyDbObjectId layer, bool (KyDbLayerTableRecord::*flag)() const) {
        KyDbObjectPointer<KyDbLayerTableRecord> record(layer, KyDb::kForRead);
        return (record.object()->*flag)();
    }
    void makeCurrent(KyDbObjectId layer) {
        const KyAxDocLock lock(db());
        db()->setClayer(layer);
    }

    KyDbObjectId walls;
};

using Texts = std::vector<std::wstring>;

TEST_F(LayerItems, AColourByIndexTrueColourOrBookColourLeavesAsItsCommandAndComesBack) {
    KyCmColor book;
    book.setRGB(155, 17, 30);
    book.setNames(L"3020", L"RAL");
    KyCmColorBook::addColor(book);
    KyDiDynamicObject* item = itemOf(walls);

    ASSERT_EQ(write(item, L"Color", KyRxValue(indexColor(1))), Kyro::eOk);
    EXPECT_EQ(colorOf(walls), indexColor(5)) << "nothing changes before the host runs it";
    EXPECT_EQ(sentTexts(), (Texts{L"'_.-LAYER\n_COLOR\n1\n=Walls\n\n"}));
    host.idle();
    EXPECT_EQ(colorOf(walls), indexColor(1));

    ASSERT_EQ(write(item, L"Color", KyRxValue(trueColor(10, 20, 30))), Kyro::eOk);
    EXPECT_EQ(sentTexts(), (Texts{L"'_.-LAYER\n_COLOR\n_TRUECOLOR\n10,20,30\n=Walls\n\n"}));
    host.idle();
    EXPECT_EQ(colorOf(walls), trueColor(10, 20, 30));

    ASSERT_EQ(write(item, L"Color", KyRxValue(book)), Kyro::eOk);
    EXPECT_EQ(sentTexts(), (Texts{L"'_.-LAYER\n_COLOR\n_COLORBOOK\nRAL\n3020\n=Walls\n\n"}));
    host.idle();
    EXPECT_EQ(colorOf(walls), book);

    // The colour reads back as the colour's item.
    KyRxValue value;
    ASSERT_EQ(read(item, L"Color", value), Kyro::eOk);
    KyDiDynamicObject* colorItem = itemIn(value);
    ASSERT_NE(colorItem, nullptr);
    EXPECT_EQ(*colorItem->value(), KyRxValue(book));
    // Written back as an item, it leaves as the colour it stands for.
    ASSERT_EQ(write(item, L"Color", value), Kyro::eOk);
    EXPECT_EQ(sentTexts(), (Texts{L"'_.-LAYER\n_COLOR\n_COLORBOOK\nRAL\n3020\n=Walls\n\n"}));
}

TEST_F(LayerItems, ANamedColourWithoutABookLeavesByItsName) {
    KyCmColor signal = trueColor(200, 30, 30);
    signal.setNames(L"Signal");
    KyCmColorBook::addColor(signal);
    ASSERT_EQ(write(itemOf(walls), L"Color", KyRxValue(signal)), Kyro::eOk);
    EXPECT_EQ(sentTexts(), (Texts{L"'_.-LAYER\n_COLOR\nSignal\n=Walls\n\n"}));
    host.idle();
    EXPECT_EQ(colorOf(walls), signal);
}

TEST_F(LayerItems, ALayerOfADrawingInTheBackgroundIsWrittenDirectly) {
    KyDiDynamicObject* item = itemOf(walls);
    host.documents().newDocument();
    ASSERT_EQ(write(item, L"IsLocked", KyRxValue(true)), Kyro::eOk);
    EXPECT_EQ(sentTexts(), Texts{}) << "the command would reach the drawing in front";
    EXPECT_TRUE(flagOf(walls, &KyDbLayerTableRecord::isLocked));
}

TEST_F(LayerItems, TheStatesLeaveAsTheirCommands) {
    KyDiDynamicObject* item = itemOf(walls);
    EXPECT_EQ(write(item, L"IsOff", KyRxValue(true)), Kyro::eOk);
    EXPECT_EQ(write(item, L"IsFrozen", KyRxValue(true)), Kyro::eOk);
    EXPECT_EQ(write(item, L"IsLocked", KyRxValue(true)), Kyro::eOk);
    EXPECT_EQ(sentTexts(), (Texts{L"'_.-LAYER\n_OFF\n=Walls\n\n", L"'_.-LAYER\n_FREEZE\n=Walls\n\n",
                                  L"'_.-LAYER\n_LOCK\n=Walls\n\n"}));
    host.idle();
    EXPECT_TRUE(flagOf(walls, &KyDbLayerTableRecord::isOff));
    EXPECT_TRUE(flagOf(walls, &KyDbLayerTableRecord::isFrozen));
    EXPECT_TRUE(flagOf(walls, &KyDbLayerTableRecord::isLocked));

    write(item, L"IsOff", KyRxValue(false));
    write(item, L"IsFrozen", KyRxValue(false));
    write(item, L"IsLocked", KyRxValue(false));
    EXPECT_EQ(sentTexts(), (Texts{L"'_.-LAYER\n_ON\n=Walls\n\n", L"'_.-LAYER\n_THAW\n=Walls\n\n",
                                  L"'_.-LAYER\n_UNLOCK\n=Walls\n\n"}));
    host.idle();
    EXPECT_FALSE(flagOf(walls, &KyDbLayerTableRecord::isOff));
    EXPECT_FALSE(flagOf(walls, &KyDbLayerTableRecord::isFrozen));
    EXPECT_FALSE(flagOf(walls, &KyDbLayerTableRecord::isLocked));
}

TEST_F(LayerItems, TurningTheCurrentLayerOffAsksTheUserFirst) {
    makeCurrent(walls);
    KyDiDynamicObject* item = itemOf(walls);
    KyRefLayerService& layers = *host.layerService();

    layers.setTurnOnAnswer(KyDiLayerService::kTurnLayerOn);
    EXPECT_EQ(write(item, L"IsOff", KyRxValue(true)), Kyro::eOk);
    EXPECT_EQ(sentTexts(), Texts{}) << "the user keeps it on";
    layers.setTurnOnAnswer(0);
    EXPECT_EQ(write(item, L"IsOff", KyRxValue(true)), Kyro::eOk);
    EXPECT_EQ(sentTexts(), Texts{}) << "the question was dismissed";
    layers.setTurnOnAnswer(KyDiLayerService::kLeaveLayerOff);
    EXPECT_EQ(write(item, L"IsOff", KyRxValue(true)), Kyro::eOk);
    EXPECT_EQ(sentTexts(), (Texts{L"'_.-LAYER\n_OFF\n=Walls\n_Yes\n\n"}));
    EXPECT_EQ(layers.questionCount(), 3);
    host.idle();
    EXPECT_TRUE(flagOf(walls, &KyDbLayerTableRecord::isOff));
    // Turning it on asks nothing.
    EXPECT_EQ(write(item, L"IsOff", KyRxValue(false)), Kyro::eOk);
    EXPECT_EQ(sentTexts(), (Texts{L"'_.-LAYER\n_ON\n=Walls\n\n"}));
    EXPECT_EQ(layers.questionCount(), 3);
}

TEST_F(LayerItems, TheCurrentLayerCantBeFrozenAndTheUserIsTold) {
    makeCurrent(walls);
    EXPECT_EQ(write(itemOf(walls), L"IsFrozen", KyRxValue(true)), Kyro::eOk);
    EXPECT_EQ(sentTexts(), Texts{});
    EXPECT_EQ(host.layerService()->cantFreezeReportCount(), 1);
    EXPECT_FALSE(flagOf(walls, &KyDbLayerTableRecord::isFrozen));
}

TEST_F(LayerItems, ANameGoesOutAsItStandsBehindTheEqualsSign) {
    const wchar_t* const kNames[] = {L"Exterior walls", L"Level #2", L"A@B", L"~Hidden", L"x.y",
                                     L"[Old]",          L"A#"};
    // "A#" is also a pattern of "A1": the literal form reaches it alone.
    const KyDbObjectId a1 = addLayer(L"A1");
    for (const wchar_t* name : kNames) {
        SCOPED_TRACE(KyString(name).utf8());
        const KyDbObjectId layer = addLayer(name);
        ASSERT_EQ(write(itemOf(layer), L"IsLocked", KyRxValue(true)), Kyro::eOk);
        EXPECT_EQ(sentTexts(), (Texts{std::wstring(L"'_.-LAYER\n_LOCK\n=") + name + L"\n\n"}));
        host.idle();
        EXPECT_TRUE(flagOf(layer, &KyDbLayerTableRecord::isLocked)) << name;
        EXPECT_FALSE(flagOf(walls, &KyDbLayerTableRecord::isLocked)) << name;
        EXPECT_FALSE(flagOf(a1, &KyDbLayerTableRecord::isLocked)) << name;
    }
}

TEST_F(LayerItems, OtherPropertiesAndVariesGoToTheRecordAndNotAsCommands) {
    KyDiDynamicObject* item = itemOf(walls);
    host.commandLine().write(L"Command: ");
    ASSERT_EQ(write(item, L"Description", KyRxValue(KyString(L"Outer shell"))), Kyro::eOk);
    EXPECT_EQ(sentTexts(), Texts{});
    KyRxValue value;
    ASSERT_EQ(read(item, L"Description", value), Kyro::eOk);
    EXPECT_EQ(text(value), L"Outer shell");
    // A direct write closes the prompt's line: what comes next stands apart.
    host.commandLine().write(L"next");
    EXPECT_EQ(commandLine(), (std::vector<std::wstring>{L"Command: ", L"next"}));

    // "Varies" reaches the property as it is, which refuses it: the record
    // stays as it was.
    EXPECT_NE(write(item, L"Color", KyRxValue::varies()), Kyro::eOk);
    EXPECT_EQ(sentTexts(), Texts{});
    EXPECT_EQ(colorOf(walls), indexColor(5));
}

class LayerItemsWithoutLayerService : public kytest::ItemFixture {
protected:
    LayerItemsWithoutLayerService() : ItemFixture(withoutLayerService()) {}
    static KyRefHostOptions withoutLayerService() {
        KyRefHostOptions options = onManualClock();
        options.layerService = false;
        return options;
    }
};

TEST_F(LayerItemsWithoutLayerService, AWriteThatCantBeSentGoesToTheRecordAtOnce) {
    const KyDbObjectId walls = addLayer(L"Walls", 5);
    ASSERT_EQ(write(itemOf(walls), L"Color", KyRxValue(indexColor(3))), Kyro::eOk);
    EXPECT_EQ(sentTexts(), Texts{});
    KyDbObjectPointer<KyDbLayerTableRecord> record(walls, KyDb::kForRead);
    EXPECT_EQ(record->color(), indexColor(3));
}

}  // namespace
