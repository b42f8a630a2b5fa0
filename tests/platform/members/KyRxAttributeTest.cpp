// Attributes: collections that own what they hold, local names and
// descriptions from resource tables in two languages, and reference paths
// followed from object to object.
#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "MemberTestSupport.h"
#include "base/KyRxResourceInstance.h"
#include "rx/KyRxStandardAttributes.h"

namespace {

constexpr unsigned kTestTable = 7;

// Counts the attributes of its kind alive.
class CountedAttribute : public KyRxAttribute {
public:
    explicit CountedAttribute(int& alive) : m_alive(alive) { ++m_alive; }
    ~CountedAttribute() override { --m_alive; }

private:
    int& m_alive;
};

template <typename T>
struct MemberDeleter {
    void operator()(T* member) const { KyRxMember::deleteMember(member); }
};
template <typename T>
using MemberPtr = std::unique_ptr<T, MemberDeleter<T>>;

Kyro::ErrorStatus readNothing(const KyRxObject*, KyRxValue&) {
    return Kyro::eNotApplicable;
}

MemberPtr<TestProperty> newProperty(const wchar_t* name) {
    return MemberPtr<TestProperty>(
        new TestProperty(name, KyRxValueType::Desc<double>::value(), readNothing));
}

}  // namespace

TEST(AttributeCollections, GetAnswersTheFirstAttributeOfAClassOrOfAClassDerivedFromIt) {
    KyRxAttributeCollection attributes;
    auto* first = new KyRxAffinityAttribute(L"First");
    auto* placement = new KyRxUiPlacementAttribute(L"General", 3);
    ASSERT_EQ(attributes.add(first), Kyro::eOk);
    ASSERT_EQ(attributes.add(placement), Kyro::eOk);
    ASSERT_EQ(attributes.add(new KyRxAffinityAttribute(L"Second")), Kyro::eOk);

    EXPECT_EQ(attributes.count(), 3);
    EXPECT_EQ(attributes.get(KyRxAffinityAttribute::desc()), first);
    EXPECT_EQ(attributes.get(KyRxUiPlacementAttribute::desc()), placement);
    EXPECT_EQ(attributes.get(KyRxAttribute::desc()), first);
    EXPECT_EQ(attributes.get(KyRxFlagsAttribute::desc()), nullptr);
    EXPECT_EQ(attributes.getAt(1), placement);
    EXPECT_EQ(attributes.getAt(3), nullptr);

    const KyRxAttributeCollection& constant = attributes;
    EXPECT_EQ(constant.get(KyRxUiPlacementAttribute::desc()), placement);
    EXPECT_STREQ(static_cast<const KyRxAffinityAttribute*>(constant.getAt(2))->name(), L"Second");
}

TEST(AttributeCollections, RemoveHandsAnAttributeBackAndTheCollectionDeletesTheRest) {
    int alive = 0;
    auto* kept = new CountedAttribute(alive);
    {
        KyRxAttributeCollection attributes;
        ASSERT_EQ(attributes.add(new CountedAttribute(alive)), Kyro::eOk);
        ASSERT_EQ(attributes.add(kept), Kyro::eOk);
        ASSERT_EQ(attributes.add(new CountedAttribute(alive)), Kyro::eOk);
        EXPECT_EQ(attributes.add(nullptr), Kyro::eInvalidInput);
        EXPECT_EQ(attributes.add(kept), Kyro::eDuplicateKey) << "held once, deleted once";

        EXPECT_EQ(attributes.remove(kept), Kyro::eOk);
        EXPECT_EQ(alive, 3) << "removing deletes nothing";
        EXPECT_EQ(attributes.count(), 2);
        EXPECT_EQ(attributes.remove(kept), Kyro::eKeyNotFound);
        EXPECT_EQ(attributes.remove(nullptr), Kyro::eKeyNotFound);
    }
    EXPECT_EQ(alive, 1);
    delete kept;
    EXPECT_EQ(alive, 0);
}

TEST(AttributeCollections, AMemberDeletesItsAttributesWithItself) {
    int alive = 0;
    MemberPtr<TestProperty> member = newProperty(L"Decorated");
    member->attributes().add(new CountedAttribute(alive));
    member->attributes().add(new CountedAttribute(alive));
    member.reset();
    EXPECT_EQ(alive, 0);
}

class LocalizedTexts : public ::testing::Test {
protected:
    void SetUp() override {
        KyRxResourceInstance::addSearchPath(L"" KYDI_TEST_DATA_DIR);
        KyRxResourceTables::setTableModule(kTestTable, L"kymemberstest");
    }
};

TEST_F(LocalizedTexts, LocalNameFollowsTheCurrentLanguage) {
    MemberPtr<TestProperty> width = newProperty(L"Width");
    width->attributes().add(new KyRxLocalizedNameAttribute(100, kTestTable));

    EXPECT_STREQ(width->localName().kwszPtr(), L"Width of the shape");
    KyRxResourceInstance::setLanguage(L"de");
    EXPECT_STREQ(width->localName().kwszPtr(), L"Breite der Form");
    EXPECT_STREQ(width->name(), L"Width");
    KyRxResourceInstance::setLanguage(L"");
    EXPECT_STREQ(width->localName().kwszPtr(), L"Width of the shape");
}

TEST_F(LocalizedTexts, LocalNameFallsBackToTheName) {
    MemberPtr<TestProperty> plain = newProperty(L"Plain");
    EXPECT_STREQ(plain->localName().kwszPtr(), L"Plain") << "no attribute";

    MemberPtr<TestProperty> missing = newProperty(L"Missing");
    missing->attributes().add(new KyRxLocalizedNameAttribute(999, kTestTable));
    EXPECT_STREQ(missing->localName().kwszPtr(), L"Missing") << "no such text";

    MemberPtr<TestProperty> unmapped = newProperty(L"Unmapped");
    unmapped->attributes().add(new KyRxLocalizedNameAttribute(100, 42));
    EXPECT_STREQ(unmapped->localName().kwszPtr(), L"Unmapped") << "no module for the table";
    EXPECT_TRUE(KyRxResourceTables::text(42, 100).isEmpty());

    KyRxResourceTables::setTableModule(kTestTable, nullptr);
    MemberPtr<TestProperty> width = newProperty(L"Width");
    width->attributes().add(new KyRxLocalizedNameAttribute(100, kTestTable));
    EXPECT_STREQ(width->localName().kwszPtr(), L"Width") << "the table was unmapped";
}

// The texts the palette of a drawing's settings names its values with, by
// table and number: every one is there in both languages.
struct TextId {
    unsigned table;
    unsigned id;
};
const TextId kDrawingSettingTexts[] = {
    {0, 112},  {0, 164},  {0, 196},  {0, 203},  {0, 807},  {0, 81},   {0, 1165}, {0, 1166},
    {0, 1167}, {0, 741},  {0, 1273}, {0, 1274}, {0, 332},  {0, 663},  {0, 557},  {0, 939},
    {0, 621},  {0, 51},   {0, 134},  {0, 1103}, {0, 1104}, {0, 1105}, {0, 1106}, {0, 1107},
    {0, 1108}, {0, 1109}, {0, 1110}, {0, 1111}, {0, 1112}, {0, 1113}, {3, 242},  {3, 244},
    {3, 246},  {3, 149},  {3, 150},  {1, 2308}, {1, 2174}, {1, 2178}, {1, 2222}, {1, 7203},
    {1, 2182}, {1, 6266}, {1, 2720}, {1, 6312}, {1, 7370}, {1, 7371}, {1, 7001}, {1, 6057},
    {1, 2218}, {3, 165},  {3, 166},
};

TEST_F(LocalizedTexts, ThePlatformServesTheTextsOfADrawingsSettingsFromItsOwnTables) {
    std::vector<KyString> base;
    for (const TextId& text : kDrawingSettingTexts) {
        base.push_back(KyRxResourceTables::text(text.table, text.id));
        EXPECT_FALSE(base.back().isEmpty()) << text.id << "," << text.table;
    }
    KyRxResourceInstance::setLanguage(L"de");
    int translated = 0;
    for (std::size_t i = 0; i < std::size(kDrawingSettingTexts); ++i) {
        const TextId& text = kDrawingSettingTexts[i];
        const KyString local = KyRxResourceTables::text(text.table, text.id);
        EXPECT_FALSE(local.isEmpty()) << text.id << "," << text.table;
        translated += local.compare(base[i]) != 0 ? 1 : 0;
    }
    EXPECT_EQ(KyRxResourceTables::text(3, 244), L"Name der Seiteneinrichtung");
    KyRxResourceInstance::setLanguage(L"");
    EXPECT_GE(translated, 45) << "a few names read the same in both languages";
    EXPECT_EQ(KyRxResourceTables::text(3, 244), L"Page setup name");
    EXPECT_EQ(KyRxResourceTables::text(1, 2308), L"Specifies the color of new objects");
    EXPECT_TRUE(KyRxResourceTables::text(0, 244).isEmpty()) << "each table counts apart";
    EXPECT_EQ(KyRxResourceTables::text(0, 9404), L"Color") << "table 0 as before";
}

TEST_F(LocalizedTexts, ClassesHaveLocalNamesAndDescriptionsToo) {
    KyRxClass* shape = TestShape::desc();
    EXPECT_STREQ(KyRxLocalizedNameAttribute::getLocalizedName(shape).kwszPtr(), L"TestShape");
    EXPECT_TRUE(KyRxDescriptionAttribute::getDescription(shape).isEmpty());

    shape->attributes().add(new KyRxLocalizedNameAttribute(102, kTestTable));
    shape->attributes().add(new KyRxDescriptionAttribute(103, kTestTable));
    KyRxResourceInstance::setLanguage(L"de");
    EXPECT_STREQ(KyRxLocalizedNameAttribute::getLocalizedName(shape).kwszPtr(), L"Form");
    EXPECT_STREQ(KyRxDescriptionAttribute::getDescription(shape).kwszPtr(), L"A closed figure.")
        << "a text missing in the language comes from the base language";

    TestShape object;
    EXPECT_TRUE(KyRxLocalizedNameAttribute::getLocalizedName(&object).isEmpty())
        << "only members and classes have names";
    EXPECT_TRUE(KyRxLocalizedNameAttribute::getLocalizedName(nullptr).isEmpty());
}

TEST_F(LocalizedTexts, DescriptionsOfMembers) {
    MemberPtr<TestProperty> width = newProperty(L"Width");
    EXPECT_TRUE(KyRxDescriptionAttribute::getDescription(width.get()).isEmpty());

    width->attributes().add(new KyRxDescriptionAttribute(101, kTestTable));
    EXPECT_STREQ(KyRxDescriptionAttribute::getDescription(width.get()).kwszPtr(),
                 L"How wide the shape is, in drawing units.");
    KyRxResourceInstance::setLanguage(L"de");
    EXPECT_STREQ(KyRxDescriptionAttribute::getDescription(width.get()).kwszPtr(),
                 L"Wie breit die Form ist, in Zeichnungseinheiten.");
    EXPECT_TRUE(KyRxDescriptionAttribute::getDescription(nullptr).isEmpty());
}
