// Database items: the members of a record as a palette sees them, read and
// written through the item; erased records; entries of dictionaries;
// sub-entities; rows without a record; reserved names in the user's
// language; and the helpers that name items and find their members.
#include <gtest/gtest.h>

#include <memory>

#include "base/KyRxResourceInstance.h"
#include "db/KyAxDocLock.h"
#include "db/KyDbAttribute.h"
#include "db/KyDbBlockReference.h"
#include "db/KyDbDictionary.h"
#include "db/KyDbLine.h"
#include "db/KyDbLinetypeTableRecord.h"
#include "db/KyDbObjectPointer.h"
#include "db/KyDbSymbolTable.h"
#include "ge/KyGePoint3d.h"
#include "kydi/KyDiDbComplexItem.h"
#include "kydi/KyDiDbDictionaryItem.h"
#include "kydi/KyDiFunctions.h"
#include "objects/ItemFixture.h"
#include "rx/KyRxStandardAttributes.h"

namespace {

class DbItems : public kytest::ItemFixture {
protected:
    void TearDown() override {
        KyRxResourceInstance::setLanguage(L"");
        ItemFixture::TearDown();
    }
    KyDbObjectId addLine() {
        return content().addEntity<KyDbLine>([](KyDbLine& line) {
            line.setStartPoint(KyGePoint3d(0, 0, 0));
            line.setEndPoint(KyGePoint3d(3, 4, 0));
        });
    }
    void erase(KyDbObjectId id, bool erasing = true) {
        const KyAxDocLock lock(db());
        KyDbObjectPointer<KyDbObject> object(id, KyDb::kForWrite, true);
        ASSERT_EQ(object->erase(erasing), Kyro::eOk);
    }
};

TEST_F(DbItems, AnItemListsTheRecordsMembersWrappedAndReadsThemThroughTheRecord) {
    const KyDbObjectId line = addLine();
    KyDiDynamicObject* item = itemOf(line);
    const std::vector<std::wstring> names = memberNames(item);
    for (const wchar_t* expected : {L"LayerId", L"Color", L"StartPoint", L"EndPoint", L"Length"}) {
        EXPECT_NE(std::find(names.begin(), names.end(), expected), names.end()) << expected;
    }
    KyRxValue value;
    ASSERT_EQ(read(item, L"Length", value), Kyro::eOk);
    EXPECT_EQ(value, KyRxValue(5.0));
    // An id becomes the item of its record: the same item every time.
    ASSERT_EQ(read(item, L"LayerId", value), Kyro::eOk);
    KyDiDynamicObject* layer = itemIn(value);
    ASSERT_NE(layer, nullptr);
    EXPECT_EQ(layer, itemOf(layerId(L"0")));
    EXPECT_EQ(KyDiGetItemName(layer), KyString(L"0"));

    // A write reaches the record.
    ASSERT_EQ(write(item, L"EndPoint", KyRxValue(KyGePoint3d(6, 8, 0))), Kyro::eOk);
    ASSERT_EQ(read(item, L"Length", value), Kyro::eOk);
    EXPECT_EQ(value, KyRxValue(10.0));
    // A wrapper keeps the host's name, local name and placement.
    const KyRxProperty* color = property(item, L"Color");
    ASSERT_NE(color, nullptr);
    EXPECT_NE(color->attributes().get(KyRxUiPlacementAttribute::desc()), nullptr);
    EXPECT_FALSE(KyDiGetDescription(color).isEmpty());
}

TEST_F(DbItems, AnErasedRecordStillReadsAndRefusesWrites) {
    const KyDbObjectId line = addLine();
    KyDiDynamicObject* item = itemOf(line);
    const KyRxProperty* length = property(item, L"Length");
    const KyRxProperty* end = property(item, L"EndPoint");
    erase(line);
    KyRxValue value;
    EXPECT_EQ(length->getValue(item, value), Kyro::eOk);
    EXPECT_EQ(value, KyRxValue(5.0));
    EXPECT_EQ(end->setValue(item, KyRxValue(KyGePoint3d(1, 1, 0))), Kyro::eWasErased);
    // An erased record still lists its members, to be read.
    EXPECT_FALSE(memberNames(item).empty());
}

TEST_F(DbItems, ANullIdReadThroughAWrapperStaysAnId) {
    const KyDbObjectId reference = content().addEntity<KyDbBlockReference>();
    KyRxValue value;
    // A block reference that names no block yet.
    ASSERT_EQ(read(itemOf(reference), L"BlockTableRecordId", value), Kyro::eOk);
    EXPECT_EQ(value, KyRxValue(KyDbObjectId()));
}

TEST_F(DbItems, ADictionaryEntryIsNamedByItsKeyWhichItCantChange) {
    const KyDbObjectId dictionary = db()->namedObjectsDictionaryId();
    const KyDbObjectId entry =
        content().addEntry<KyDbDictionary>(dictionary, L"SITE_NOTES", [](KyDbDictionary&) {});
    KyDiDynamicObject* item = createDataItem(L"", KyRxValue(entry), nullptr, &dictionary);
    ASSERT_NE(kyrxCast<KyDiDbDictionaryItem>(static_cast<KyRxObject*>(item)), nullptr);
    EXPECT_EQ(memberNames(item), (std::vector<std::wstring>{L"Name"}));
    KyRxValue value;
    ASSERT_EQ(read(item, L"Name", value), Kyro::eOk);
    EXPECT_EQ(text(value), L"SITE_NOTES");
    EXPECT_EQ(write(item, L"Name", KyRxValue(KyString(L"OTHER"))), Kyro::eNotApplicable);
    {
        const KyAxDocLock lock(db());
        KyDbObjectPointer<KyDbDictionary> named(dictionary, KyDb::kForWrite);
        ASSERT_EQ(named->remove(L"SITE_NOTES"), Kyro::eOk);
    }
    EXPECT_EQ(read(item, L"Name", value), Kyro::eInvalidInput);
    EXPECT_EQ(text(value), L"");
}

TEST_F(DbItems, ASubEntityIsNamedByItsKindAndLeadsToItsEntity) {
    const KyDbObjectId line = addLine();
    // A line has an edge and vertices to open; for a face, which it lacks,
    // and for the null id the class is the line's.
    const struct {
        KyDb::SubentType type;
        const wchar_t* name;
        const wchar_t* className;
    } kKinds[] = {{KyDb::kFaceSubentType, L"FaceSubEntity", L"KyDbLine"},
                  {KyDb::kEdgeSubentType, L"EdgeSubEntity", L"KyDbEdgePart"},
                  {KyDb::kVertexSubentType, L"VertexSubEntity", L"KyDbVertexPart"},
                  {KyDb::kNullSubentType, L"SubEntity", L"KyDbLine"}};
    for (const auto& kind : kKinds) {
        const KyDbFullSubentPath path(line, KyDbSubentId(kind.type, 0));
        const std::unique_ptr<KyDiDynamicObject> part(createDataItem(L"", KyRxValue(line), &path));
        const std::unique_ptr<KyDiDynamicObject> again(createDataItem(L"", KyRxValue(line), &path));
        EXPECT_NE(part.get(), again.get()) << "not kept";
        EXPECT_EQ(memberNames(part.get()), (std::vector<std::wstring>{L"Name", L"ParentType"}));
        KyRxValue value;
        ASSERT_EQ(read(part.get(), L"Name", value), Kyro::eOk);
        EXPECT_EQ(text(value), kind.name);
        ASSERT_EQ(read(part.get(), L"ParentType", value), Kyro::eOk);
        EXPECT_EQ(itemIn(value), itemOf(line));
        EXPECT_EQ(KyDiGetSubEntityClassName(part.get()), KyString(kind.className));
    }
}

TEST_F(DbItems, TheClassOfASelectedAttributeIsTheAttributes) {
    const KyDbObjectId reference = content().addEntity<KyDbBlockReference>();
    {
        const KyAxDocLock lock(db());
        KyDbObjectPointer<KyDbBlockReference> block(reference, KyDb::kForWrite);
        KyDbObjectId attributeId;
        auto* attribute = new KyDbAttribute();
        ASSERT_EQ(block->appendAttribute(attributeId, attribute), Kyro::eOk);
        attribute->close();
    }
    const KyDbFullSubentPath path(reference, KyDbSubentId(KyDb::kAttributeSubentType, 0));
    const std::unique_ptr<KyDiDynamicObject> part(createDataItem(L"", KyRxValue(reference), &path));
    EXPECT_EQ(KyDiGetSubEntityClassName(part.get()), KyString(L"KyDbAttribute"));
    EXPECT_EQ(KyDiGetSubEntityClassName(itemOf(reference)), KyString(L"KyDbBlockReference"));
    const std::unique_ptr<KyDiDynamicObject> named(createDataItem(L"x", KyRxValue(1)));
    EXPECT_EQ(KyDiGetSubEntityClassName(named.get()), KyString());
}

TEST_F(DbItems, AReservedNameReadsInTheUsersLanguage) {
    KyDbObjectId continuous;
    {
        KyDbObjectPointer<KyDbSymbolTable> linetypes(db()->linetypeTableId(), KyDb::kForRead);
        ASSERT_EQ(linetypes->getAt(L"Continuous", continuous), Kyro::eOk);
    }
    KyRxValue value;
    ASSERT_EQ(read(itemOf(continuous), L"Name", value), Kyro::eOk);
    EXPECT_EQ(text(value), L"Continuous");
    KyRxResourceInstance::setLanguage(L"de");
    ASSERT_EQ(read(itemOf(continuous), L"Name", value), Kyro::eOk);
    EXPECT_EQ(text(value), L"Durchgehend");
    EXPECT_EQ(KyDiGetItemName(itemOf(continuous)), KyString(L"Durchgehend"));
    // A layer's name is not a reserved name of layers.
    addLayer(L"Continuous");
    EXPECT_EQ(KyDiGetItemName(itemOf(layerId(L"Continuous"))), KyString(L"Continuous"));
}

TEST_F(DbItems, MembersAreFoundByTheirExactName) {
    const KyDbObjectId line = addLine();
    KyDiDynamicObject* item = itemOf(line);
    const KyRxMember* length = KyDiFindMember(item, L"Length");
    ASSERT_NE(length, nullptr);
    EXPECT_EQ(length, property(item, L"Length")) << "the wrapper the item shows";
    EXPECT_EQ(KyDiFindMember(item, L"length"), nullptr);
    // Any other object is asked of the query engine.
    KyDbObjectPointer<KyDbLine> opened(line, KyDb::kForRead);
    const KyRxMember* host = KyDiFindMember(opened.object(), L"Length");
    ASSERT_NE(host, nullptr);
    EXPECT_NE(host, length);
    EXPECT_EQ(KyDiGetItemName(nullptr), KyString());
}

}  // namespace
