// The property panel's tree over an item of a record and over the "DRAWING"
// context: categories and localized names as the members place them, values
// re-read when the record or the context reports a change, writes through
// the object.
#include <gtest/gtest.h>

#include "QtModelFixture.h"
#include "kydiqt/KyDiQtPropertyModel.h"
#include "kydiqt/KyDiQtValue.h"

namespace {

using kytest::QtModelFixture;

class PropertyModel : public QtModelFixture {
protected:
    void SetUp() override {
        QtModelFixture::SetUp();
        open(KYDI_TEST_SAMPLE);
        KyDiManager::refresh();
    }
    KyDiDynamicObject* layer(const char* name) {
        for (KyDiDynamicObject* item : KyDiManager::getKnownCollection(L"LAYER")->getItems()) {
            if (KyDiGetItemName(item).utf8() == name) {
                return item;
            }
        }
        ADD_FAILURE() << "no layer " << name;
        return nullptr;
    }
    static QString value(const KyDiQtPropertyModel& model, const char* property,
                         int role = Qt::DisplayRole) {
        return model.valueIndex(property).data(role).toString();
    }
    void settle() {
        host.idle();
        KyDiManager::refresh();
    }
};

TEST_F(PropertyModel, ALayerItemShowsItsPlacedMembersAndFollowsAColourChange) {
    auto* model = keep(std::make_unique<KyDiQtPropertyModel>());
    model->setObject(layer("Doors"));
    ASSERT_GE(model->rowCount(), 1);
    const QModelIndex general = model->index(0, 0);
    EXPECT_EQ(general.data().toString(), "General");
    // By weight: the name first, then the colour.
    EXPECT_EQ(model->index(0, 0, general).data(KyDiQtPropertyModel::PropertyNameRole), "Name");
    EXPECT_EQ(model->index(1, 0, general).data().toString(), "Color");
    EXPECT_EQ(model->index(2, 0, general).data().toString(), "Linetype");
    EXPECT_EQ(value(*model, "Name"), "Doors");
    EXPECT_TRUE(model->valueIndex("IsDependent").data(KyDiQtPropertyModel::ReadOnlyRole).toBool());
    EXPECT_FALSE(model->flags(model->valueIndex("IsDependent")) & Qt::ItemIsEditable);
    EXPECT_TRUE(model->flags(model->valueIndex("Color")) & Qt::ItemIsEditable);
    EXPECT_EQ(value(*model, "LinetypeObjectId", Qt::EditRole), "DASHED");

    QSignalSpy changed(model, &QAbstractItemModel::dataChanged);
    const QString before = value(*model, "Color");
    sentTexts();
    ASSERT_TRUE(model->setData(model->valueIndex("Color"), 3));
    EXPECT_EQ(sentTexts(), std::vector<std::wstring>{L"'_.-LAYER\n_COLOR\n3\n=Doors\n\n"});
    EXPECT_EQ(changed.count(), 0);
    EXPECT_EQ(value(*model, "Color"), before);
    settle();
    EXPECT_GE(changed.count(), 1);
    EXPECT_EQ(value(*model, "Color"), "green");
    // The linetype is written by its item's display name.
    ASSERT_TRUE(model->setData(model->valueIndex("LinetypeObjectId"), QString("Continuous")));
    settle();
    EXPECT_EQ(value(*model, "LinetypeObjectId", Qt::EditRole), "Continuous");
    EXPECT_FALSE(model->setData(model->valueIndex("LinetypeObjectId"), QString("NoSuchType")));
    EXPECT_FALSE(model->setData(model->valueIndex("IsDependent"), true));
}

TEST_F(PropertyModel, AnErasedLayerLeavesTheModelEmpty) {
    type(L"-LAYER\n_New\nScratch\n\n");
    settle();
    auto* model = keep(std::make_unique<KyDiQtPropertyModel>());
    model->setObject(layer("Scratch"));
    ASSERT_GE(model->rowCount(), 1);
    QSignalSpy reset(model, &QAbstractItemModel::modelReset);
    type(L"RECORD\n_Erase\nLAYER\nScratch\n");
    settle();
    EXPECT_EQ(reset.count(), 1);
    EXPECT_EQ(model->rowCount(), 0);
    EXPECT_EQ(model->object(), nullptr);
}

TEST_F(PropertyModel, TheDrawingContextFollowsATileModeChange) {
    auto* model = keep(std::make_unique<KyDiQtPropertyModel>());
    model->setContext("DRAWING");
    ASSERT_GE(model->rowCount(), 1);
    EXPECT_EQ(value(*model, "Layer"), "Walls");
    EXPECT_TRUE(model->valueIndex("VSEdges").isValid()) << "model space shows the visual style";
    QSignalSpy reset(model, &QAbstractItemModel::modelReset);
    type(L"TILEMODE\n0\n");
    settle();
    // The layout shows other properties: the list is built anew.
    EXPECT_EQ(reset.count(), 1);
    EXPECT_FALSE(model->valueIndex("VSEdges").isValid());
    EXPECT_EQ(value(*model, "PlotAttachedTo"), "Layout");
    // A layer made current through the panel leaves as the host's command.
    sentTexts();
    ASSERT_TRUE(model->setData(model->valueIndex("Layer"), QString("Doors")));
    EXPECT_FALSE(sentTexts().empty());
    QSignalSpy changed(model, &QAbstractItemModel::dataChanged);
    settle();
    EXPECT_GE(changed.count(), 1);
    EXPECT_EQ(value(*model, "Layer"), "Doors");
}

TEST_F(PropertyModel, AChangeThatNamesItsPropertiesRereadsOnlyTheirRows) {
    auto* model = keep(std::make_unique<KyDiQtPropertyModel>());
    model->setContext("VIEWPORT");
    ASSERT_TRUE(model->valueIndex("ViewCenter").isValid());
    QSignalSpy reset(model, &QAbstractItemModel::modelReset);
    std::vector<std::string> changed;
    QObject::connect(model, &QAbstractItemModel::dataChanged, [&](const QModelIndex& first) {
        changed.push_back(
            first.data(KyDiQtPropertyModel::PropertyNameRole).toString().toStdString());
    });
    KyDiManager::refresh();
    KyDiManager::refresh();
    changed.clear();
    // The units' precision changes how the points read, and nothing else; the
    // context hears it at the second pass.
    type(L"_.SETVAR\nLUPREC\n6\n");
    KyDiManager::refresh();
    KyDiManager::refresh();
    EXPECT_EQ(reset.count(), 0);
    EXPECT_EQ(changed, (std::vector<std::string>{"CameraLocation", "ViewCenter"}));
}

}  // namespace
