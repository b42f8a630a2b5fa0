// The database classes through the member query engine: what a palette
// finds on an entity and on a layer, reads and writes with their open modes
// and value types, reference paths from an object to the items of a table,
// the names of a class, which properties a palette may edit, and a walk over
// every class that checks what each placed property offers a palette.
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "DbTestSupport.h"
#include "base/KyRxResourceInstance.h"
#include "db/KyDbBlockReference.h"
#include "db/KyDbDictionaryWithDefault.h"
#include "db/KyDbDimension.h"
#include "db/KyDbHostApplicationServices.h"
#include "db/KyDbLine.h"
#include "db/KyDbPolyline.h"
#include "db/KyDbStandardContent.h"
#include "db/KyDbText.h"
#include "db/KyDbUnknownEntity.h"
#include "rx/KyRxClass.h"
#include "rx/KyRxDictionary.h"
#include "rx/KyRxMemberQueryEngine.h"
#include "rx/KyRxProperty.h"
#include "rx/KyRxStandardAttributes.h"

namespace dbtest {
namespace {

KyRxMemberQueryEngine* engine() {
    return KyRxMemberQueryEngine::theEngine();
}

const KyRxProperty* findProperty(const KyRxObject* object, const wchar_t* name) {
    return kyrxCast<KyRxProperty>(engine()->find(object, name, engine()->promotingContext()));
}

template <typename T>
const T* attributeOf(const KyRxMember* member) {
    return static_cast<const T*>(member->attributes().get(T::desc()));
}

std::string text(const KyString& value) {
    return value.utf8();
}

// The ids a collection property gives, as labels.
Lines valuesOf(const KyRxCollectionProperty* property, const KyRxObject* object) {
    Lines labels;
    std::unique_ptr<KyRxValueIterator> it(property->newValueIterator(object));
    if (!it) {
        return {"no iterator"};
    }
    for (; !it->done(); it->next()) {
        KyRxValue value;
        it->current(value);
        const KyDbObjectId* id = valueCast<KyDbObjectId>(&value);
        labels.push_back(id != nullptr ? labelOf(*id) : "not an id");
    }
    return labels;
}

class ReflectionTest : public DbTest {
protected:
    ReflectionTest() : walls(addLayer(L"Walls")), line(addEntity(new KyDbLine())) {}

    KyDbObjectId walls;
    KyDbObjectId line;
};

TEST_F(ReflectionTest, ALineShowsItsColorAndWritesItWhenOpenForWrite) {
    KyDbObjectPointer<KyDbLine> entity(line, KyDb::kForRead);
    const KyRxProperty* color = findProperty(entity.object(), L"Color");
    ASSERT_NE(color, nullptr);
    EXPECT_EQ(&color->type(), &KyRxValueType::Desc<KyCmColor>::value());
    KyRxValue value;
    ASSERT_EQ(color->getValue(entity.object(), value), Kyro::eOk);
    ASSERT_NE(valueCast<KyCmColor>(&value), nullptr);
    EXPECT_TRUE(valueCast<KyCmColor>(&value)->isByLayer());

    KyCmColor red;
    red.setColorIndex(1);
    EXPECT_EQ(color->setValue(entity.object(), KyRxValue(red)), Kyro::eWasNotOpenForWrite);
    entity.close();
    EXPECT_EQ(color->getValue(entity.object(), value), Kyro::eNotThatKindOfClass)
        << "no object at all";

    KyDbObjectPointer<KyDbLine> writable(line, KyDb::kForWrite);
    EXPECT_EQ(color->setValue(writable.object(), KyRxValue(7)), Kyro::eInvalidInput);
    EXPECT_EQ(color->setValue(writable.object(), KyRxValue(red)), Kyro::eOk);
    EXPECT_EQ(writable->color(), red);
    writable.close();

    KyDbLine* closed = nullptr;
    ASSERT_EQ(kydbOpenObject(closed, line, KyDb::kForRead), Kyro::eOk);
    closed->close();
    EXPECT_EQ(color->getValue(closed, value), Kyro::eInvalidOpenState)
        << "an object of the database is read while it is open";
}

TEST_F(ReflectionTest, AnIdPropertyRefersToTheItemsItsValueComesFrom) {
    KyDbObjectPointer<KyDbLine> entity(line, KyDb::kForRead);
    const KyRxProperty* layer = findProperty(entity.object(), L"LayerId");
    ASSERT_NE(layer, nullptr);
    const auto* refersTo = attributeOf<KyRxRefersToAttribute>(layer);
    ASSERT_NE(refersTo, nullptr);
    EXPECT_STREQ(refersTo->path(), L"/LayerTableId/Items");
    ASSERT_NE(attributeOf<KyRxDisplayAsAttribute>(layer), nullptr);
    EXPECT_STREQ(attributeOf<KyRxDisplayAsAttribute>(layer)->path(), L"Name");
    const auto* placement = attributeOf<KyRxUiPlacementAttribute>(layer);
    ASSERT_NE(placement, nullptr);
    EXPECT_STREQ(placement->category(), L"General");

    const KyRxPropertyBase* items =
        KyRxRefersToAttribute::parseReference(refersTo->path(), entity.object(), nullptr, nullptr);
    ASSERT_NE(items, nullptr);
    EXPECT_STREQ(items->name(), L"Items");
    EXPECT_EQ(items->owner(), KyDbSymbolTable::desc());
    entity.close();
    EXPECT_EQ(kydbOpenObjectCount(), 0) << "the table opened on the way is closed";

    const KyRxPropertyBase* styles = KyRxRefersToAttribute::parseReference(
        L"/RenderSettingsDictionary/Items", db, nullptr, nullptr);
    ASSERT_NE(styles, nullptr);
    EXPECT_EQ(styles->owner(), KyDbDictionary::desc());
}

TEST_F(ReflectionTest, APathFromAnObjectInNoDatabaseStartsAtTheWorkingDatabase) {
    KyDbLine loose;
    EXPECT_EQ(
        KyRxRefersToAttribute::parseReference(L"/LayerTableId/Items", &loose, nullptr, nullptr),
        nullptr);
    kydbHostApplicationServices()->setWorkingDatabase(db);
    EXPECT_NE(
        KyRxRefersToAttribute::parseReference(L"/LayerTableId/Items", &loose, nullptr, nullptr),
        nullptr);
    KyDbObjectPointer<KyDbLayerTable> table(db->layerTableId(), KyDb::kForWrite);
    EXPECT_NE(
        KyRxRefersToAttribute::parseReference(L"/LayerTableId/Items", &loose, nullptr, nullptr),
        nullptr)
        << "a table the caller has open for write is used as it is";
    EXPECT_TRUE(table->isWriteEnabled());
}

TEST_F(ReflectionTest, ItemsAreTheRecordsThatAreNotErased) {
    addLayer(L"Doors");
    KyDbObjectPointer<KyDbLayerTable> table(db->layerTableId(), KyDb::kForRead);
    const auto* items = kyrxCast<KyRxCollectionProperty>(
        engine()->find(table.object(), L"Items", engine()->promotingContext()));
    ASSERT_NE(items, nullptr);
    EXPECT_EQ(valuesOf(items, table.object()), (Lines{"0", "Walls", "Doors"}));
    table.close();

    ASSERT_EQ(setErased(walls, true), Kyro::eOk);
    table.open(db->layerTableId(), KyDb::kForRead);
    EXPECT_EQ(valuesOf(items, table.object()), (Lines{"0", "Doors"}));
    int count = 0;
    EXPECT_EQ(items->tryGetCount(table.object(), count), Kyro::eOk);
    EXPECT_EQ(count, 2);

    KyDbObjectPointer<KyDbDictionary> materials(db->materialDictionaryId(), KyDb::kForRead);
    EXPECT_EQ(
        valuesOf(kyrxCast<KyRxCollectionProperty>(engine()->find(materials.object(), L"Items")),
                 materials.object())
            .size(),
        3u);
}

TEST_F(ReflectionTest, TheDatabaseShowsItsTablesAndDictionaries) {
    struct Row {
        const wchar_t* name;
        KyDbObjectId id;
    };
    const Row rows[] = {
        {L"LayerTableId", db->layerTableId()},
        {L"LinetypeTableId", db->linetypeTableId()},
        {L"BlockTableId", db->blockTableId()},
        {L"UCSTableId", db->UCSTableId()},
        {L"MaterialDictionaryId", db->materialDictionaryId()},
        {L"PlotStyleNameDictionaryId", db->plotStyleNameDictionaryId()},
        {L"VisualStyleDictionaryId", db->visualStyleDictionaryId()},
        {L"LayoutDictionaryId", db->layoutDictionaryId()},
        {L"RenderSettingsDictionary", db->renderSettingsDictionaryId()},
    };
    for (const Row& row : rows) {
        const KyRxProperty* property = findProperty(db, row.name);
        ASSERT_NE(property, nullptr) << text(row.name);
        KyRxValue value;
        ASSERT_EQ(property->getValue(db, value), Kyro::eOk);
        EXPECT_EQ(value, KyRxValue(row.id)) << text(row.name);
        EXPECT_EQ(property->setValue(db, value), Kyro::eNotApplicable) << "read-only";
    }
}

TEST_F(ReflectionTest, ALayerShowsWhatAPaletteEditsOfIt) {
    KyDbObjectPointer<KyDbLayerTableRecord> layer(walls, KyDb::kForWrite);
    const wchar_t* const names[] = {L"Name",        L"Color",        L"LinetypeObjectId",
                                    L"LineWeight",  L"Transparency", L"PlotStyleName",
                                    L"IsOff",       L"IsFrozen",     L"IsLocked",
                                    L"IsPlottable", L"Description",  L"IsDependent"};
    for (const wchar_t* name : names) {
        const KyRxProperty* property = findProperty(layer.object(), name);
        ASSERT_NE(property, nullptr) << text(name);
        EXPECT_NE(attributeOf<KyRxUiPlacementAttribute>(property), nullptr) << text(name);
    }
    EXPECT_STREQ(
        attributeOf<KyRxRefersToAttribute>(findProperty(layer.object(), L"LinetypeObjectId"))
            ->path(),
        L"/LinetypeTableId/Items");

    EXPECT_EQ(findProperty(layer.object(), L"IsOff")->setValue(layer.object(), KyRxValue(true)),
              Kyro::eOk);
    EXPECT_TRUE(layer->isOff());
    EXPECT_EQ(findProperty(layer.object(), L"Name")->setValue(layer.object(), KyRxValue(L"Wände")),
              Kyro::eOk);
    EXPECT_EQ(layer->name(), KyString(L"Wände"));
    EXPECT_EQ(findProperty(layer.object(), L"LineWeight")
                  ->setValue(layer.object(), KyRxValue(KyDb::kLnWtByLayer)),
              Kyro::eInvalidInput)
        << "the layer's own refusal comes through";
    EXPECT_EQ(findProperty(layer.object(), L"IsDependent")->setValue(layer.object(), true),
              Kyro::eNotApplicable);
}

TEST_F(ReflectionTest, APaletteKnowsWhichPropertiesItMayEditBeforeItTries) {
    KyDbObjectPointer<KyDbLayerTableRecord> layer(walls, KyDb::kForRead);
    EXPECT_FALSE(findProperty(layer.object(), L"Name")->isReadOnly());
    EXPECT_FALSE(findProperty(layer.object(), L"Color")->isReadOnly());
    EXPECT_TRUE(findProperty(layer.object(), L"IsDependent")->isReadOnly());
    EXPECT_TRUE(findProperty(layer.object(), L"ClassName")->isReadOnly());
    EXPECT_TRUE(findProperty(db, L"LayerTableId")->isReadOnly());

    KyDbDimension dimension;
    EXPECT_TRUE(findProperty(&dimension, L"Measurement")->isReadOnly());
    EXPECT_FALSE(findProperty(&dimension, L"DecimalPlaces")->isReadOnly());
    const auto* points = kyrxCast<KyRxIndexedProperty>(
        engine()->find(&dimension, L"Points", engine()->promotingContext()));
    ASSERT_NE(points, nullptr);
    EXPECT_FALSE(points->isReadOnly()) << "points are written one by one";

    KyDbText text;
    const KyRxMemberArray* coordinates = findProperty(&text, L"Position")->children();
    ASSERT_NE(coordinates, nullptr);
    const auto* x = kyrxCast<KyRxProperty>((*coordinates)[0]);
    ASSERT_NE(x, nullptr);
    EXPECT_STREQ(x->name(), L"X");
    EXPECT_FALSE(x->isReadOnly());
    EXPECT_EQ(x->setValue(&text, KyRxValue(4.0)), Kyro::eOk);
    EXPECT_EQ(text.position().x, 4.0);

    KyDbObjectPointer<KyDbLayerTable> table(db->layerTableId(), KyDb::kForRead);
    const auto* items = kyrxCast<KyRxCollectionProperty>(
        engine()->find(table.object(), L"Items", engine()->promotingContext()));
    ASSERT_NE(items, nullptr);
    EXPECT_TRUE(items->isReadOnly()) << "records come and go through their table";
}

TEST_F(ReflectionTest, ClassNameIsEmptyUnlessTheClassCannotTellTheKind) {
    auto* solid = new KyDbUnknownEntity();
    solid->setTypeName(L"SOLID");
    const KyDbObjectId solidId = addEntity(solid);
    KyDbObjectPointer<KyDbLine> entity(line, KyDb::kForRead);
    KyDbObjectPointer<KyDbUnknownEntity> unknown(solidId, KyDb::kForRead);

    auto read = [](const KyRxObject* object, const wchar_t* name) {
        KyRxValue value;
        EXPECT_EQ(findProperty(object, name)->getValue(object, value), Kyro::eOk);
        const KyString* found = valueCast<KyString>(&value);
        return found != nullptr ? text(*found) : std::string("not a text");
    };
    EXPECT_EQ(read(entity.object(), L"ClassName"), "");
    EXPECT_EQ(read(unknown.object(), L"ClassName"), "SOLID");
    EXPECT_EQ(read(unknown.object(), L"LocalizedName"), "SOLID");
    EXPECT_EQ(read(entity.object(), L"LocalizedName"), "Line");
    KyRxResourceInstance::setLanguage(L"de");
    EXPECT_EQ(read(entity.object(), L"LocalizedName"), "Linie");
    EXPECT_EQ(text(KyRxLocalizedNameAttribute::getLocalizedName(KyDbBlockReference::desc())),
              "Blockreferenz");
    EXPECT_EQ(text(findProperty(entity.object(), L"Color")->localName()), "Farbe");
    KyRxResourceInstance::setLanguage(L"");
}

TEST_F(ReflectionTest, AnEntryOfADictionaryIsNamedByItsKey) {
    KyDbObjectPointer<KyDbDictionaryWithDefault> names(db->plotStyleNameDictionaryId(),
                                                       KyDb::kForRead);
    KyDbObjectPointer<KyDbObject> normal(names->defaultId(), KyDb::kForRead);
    KyRxValue value;
    ASSERT_EQ(findProperty(normal.object(), L"Name")->getValue(normal.object(), value), Kyro::eOk);
    EXPECT_EQ(value, KyRxValue(KyString(L"Normal")));
    EXPECT_EQ(findProperty(normal.object(), L"Name")->setValue(normal.object(), value),
              Kyro::eNotApplicable)
        << "a key is changed through its dictionary";
}

TEST_F(ReflectionTest, PointsOfAPolylineAreReadAndWrittenByIndex) {
    auto* polyline = new KyDbPolyline();
    polyline->addVertexAt(0, KyGePoint3d(1, 1, 0));
    polyline->addVertexAt(1, KyGePoint3d(2, 2, 0));
    const KyDbObjectId id = addEntity(polyline);
    KyDbObjectPointer<KyDbPolyline> open(id, KyDb::kForWrite);
    const auto* points = kyrxCast<KyRxIndexedProperty>(
        engine()->find(open.object(), L"Points", engine()->promotingContext()));
    ASSERT_NE(points, nullptr);
    int count = 0;
    EXPECT_EQ(points->tryGetCount(open.object(), count), Kyro::eOk);
    EXPECT_EQ(count, 2);
    EXPECT_EQ(points->setValue(open.object(), 1, KyRxValue(KyGePoint3d(5, 5, 0))), Kyro::eOk);
    KyRxValue value;
    EXPECT_EQ(points->getValue(open.object(), 1, value), Kyro::eOk);
    EXPECT_EQ(value, KyRxValue(KyGePoint3d(5, 5, 0)));
    EXPECT_EQ(points->getValue(open.object(), 2, value), Kyro::eInvalidIndex);
    EXPECT_EQ(points->setValue(open.object(), 0, KyRxValue(1.0)), Kyro::eInvalidInput);
}

// Every database class a reader can make: each placed property is named and
// described in the base language and in German, and reads on a new object.
TEST_F(ReflectionTest, EveryPlacedPropertyIsNamedInBothLanguagesAndReadsOnANewObject) {
    // Makes every class of the platform known by name first.
    ASSERT_TRUE(kyrxBuildClassHierarchy());
    std::vector<const KyRxClass*> classes;
    std::unique_ptr<KyRxDictionaryIterator> it(kyrxClassDictionary()->newIterator());
    for (; !it->done(); it->next()) {
        const KyRxClass* cls = kyrxCast<KyRxClass>(it->object());
        if (cls != nullptr && cls->isDerivedFrom(KyDbObject::desc())) {
            classes.push_back(cls);
        }
    }
    ASSERT_GT(classes.size(), 50u);

    int placed = 0;
    for (const KyRxClass* cls : classes) {
        std::unique_ptr<KyRxObject> object(cls->create());
        if (!object) {
            continue;  // a base class: its members are walked with its children
        }
        const std::string className = text(cls->name());
        EXPECT_FALSE(text(KyRxLocalizedNameAttribute::getLocalizedName(cls)) == className)
            << className << " has no local name";
        std::unique_ptr<KyRxMemberIterator> members(
            engine()->newMemberIterator(object.get(), engine()->defaultContext()));
        for (; !members->done(); members->next()) {
            const KyRxMember* member = members->current();
            if (attributeOf<KyRxUiPlacementAttribute>(member) == nullptr) {
                continue;
            }
            ++placed;
            const std::string where = className + "." + text(member->name());
            const auto* name = attributeOf<KyRxLocalizedNameAttribute>(member);
            const auto* description = attributeOf<KyRxDescriptionAttribute>(member);
            ASSERT_NE(name, nullptr) << where;
            ASSERT_NE(description, nullptr) << where;
            EXPECT_EQ(name->table(), 0u) << where;
            for (const wchar_t* language : {L"", L"de"}) {
                KyRxResourceInstance::setLanguage(language);
                EXPECT_FALSE(name->localizedName().isEmpty()) << where << " " << text(language);
                EXPECT_FALSE(description->description().isEmpty())
                    << where << " " << text(language);
            }
            KyRxResourceInstance::setLanguage(L"");
            if (const auto* property = kyrxCast<KyRxProperty>(member)) {
                KyRxValue value;
                EXPECT_EQ(property->getValue(object.get(), value), Kyro::eOk) << where;
                EXPECT_EQ(&value.type(), &property->type()) << where;
                if (property->isReadOnly()) {
                    EXPECT_EQ(property->setValue(object.get(), value), Kyro::eNotApplicable)
                        << where << " says it is read-only, so refuses even its own value";
                }
            } else if (const auto* collection = kyrxCast<KyRxCollectionProperty>(member)) {
                int count = -1;
                EXPECT_EQ(collection->tryGetCount(object.get(), count), Kyro::eOk) << where;
            }
        }
    }
    EXPECT_GT(placed, 150);
}

}  // namespace
}  // namespace dbtest
