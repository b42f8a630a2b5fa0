#include "base/KyRxResourceInstance.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

#include "base/KyString.h"

namespace {

const KyString kDataDir = KyString::fromUtf8(KYDI_TEST_DATA_DIR);

KyString dataFile(const wchar_t* name) {
    return kDataDir.concat(L"/").concat(name);
}

class BaseResource : public ::testing::Test {
protected:
    void SetUp() override {
        unsetenv("KYDI_RESOURCE_PATH");
        KyRxResourceInstance::setLanguage(L"");
    }
};

TEST_F(BaseResource, LoadsAModuleByPathInTheBaseLanguage) {
    const KyRxResourceInstance resources(dataFile(L"kytest.kyres"));
    ASSERT_TRUE(resources.isLoaded());
    EXPECT_STREQ(L"Layer", resources.text(1));
    EXPECT_STREQ(L"Color", resources.text(2));
    EXPECT_STREQ(L"a = b", resources.text(6));
    EXPECT_STREQ(L"Größe", resources.text(7));
    EXPECT_EQ(nullptr, resources.text(5));  // only in another language
    EXPECT_EQ(nullptr, resources.text(99));
}

TEST_F(BaseResource, TextsReadTheirEscapes) {
    const KyRxResourceInstance resources(dataFile(L"kytest.kyres"));
    EXPECT_STREQ(L"Line one\nLine two\tTabbed \\ end \\q", resources.text(3));
}

TEST_F(BaseResource, SwitchingTheLanguageFallsBackToTheBaseLanguage) {
    const KyRxResourceInstance resources(dataFile(L"kytest.kyres"));
    KyRxResourceInstance::setLanguage(L"de");
    EXPECT_STREQ(L"de", KyRxResourceInstance::language());
    EXPECT_STREQ(L"Ebene", resources.text(1));
    EXPECT_STREQ(L"Zeile eins\nZeile zwei", resources.text(3));
    EXPECT_STREQ(L"Only in base", resources.text(4));
    EXPECT_STREQ(L"Nur deutsch", resources.text(5));
    EXPECT_STREQ(L"Größe (de)", resources.text(7));

    // A regional tag uses its language.
    KyRxResourceInstance::setLanguage(L"de-CH");
    EXPECT_STREQ(L"Farbe", resources.text(2));

    // A language the module lacks reads the base texts.
    EXPECT_TRUE(resources.hasLanguage(L"DE"));
    EXPECT_TRUE(resources.hasLanguage(L"base"));
    EXPECT_TRUE(resources.hasLanguage(L""));
    EXPECT_FALSE(resources.hasLanguage(L"fr"));
    KyRxResourceInstance::setLanguage(L"fr");
    EXPECT_STREQ(L"Layer", resources.text(1));

    KyRxResourceInstance::setLanguage(L"base");
    EXPECT_STREQ(L"Layer", resources.text(1));
    EXPECT_EQ(nullptr, resources.text(5));
}

TEST_F(BaseResource, TablesOfAModuleCountTheirNumbersApart) {
    const KyRxResourceInstance resources(dataFile(L"kytest.kyres"));
    EXPECT_STREQ(L"Layer", resources.text(1));
    EXPECT_STREQ(L"Layer", resources.text(1, 0));
    EXPECT_STREQ(L"Layout name", resources.text(1, 3));
    EXPECT_STREQ(L"Only in table 3", resources.text(8, 3));
    EXPECT_EQ(nullptr, resources.text(8));
    EXPECT_EQ(nullptr, resources.text(2, 3)) << "table 0's text is not table 3's";
    EXPECT_EQ(nullptr, resources.text(1, 1));
    KyRxResourceInstance::setLanguage(L"de");
    EXPECT_STREQ(L"Layoutname", resources.text(1, 3));
    EXPECT_STREQ(L"Only in table 3", resources.text(8, 3)) << "the base language's";
    EXPECT_STREQ(L"Farbe", resources.text(2)) << "lines under a broken header belong nowhere";
}

TEST_F(BaseResource, LoadStringFillsTheStringOnlyWhenTheTextExists) {
    const KyRxResourceInstance resources(dataFile(L"kytest.kyres"));
    KyString text(L"unchanged");
    EXPECT_FALSE(text.loadString(resources, 99));
    EXPECT_STREQ(L"unchanged", text.kwszPtr());
    EXPECT_TRUE(text.loadString(resources, 2));
    EXPECT_STREQ(L"Color", text.kwszPtr());
    KyRxResourceInstance::setLanguage(L"de");
    EXPECT_TRUE(text.loadString(resources, 2));
    EXPECT_STREQ(L"Farbe", text.kwszPtr());
}

TEST_F(BaseResource, AMissingModuleIsNotLoadedAndHasNoTexts) {
    const KyRxResourceInstance missing(L"kynosuchmodule");
    EXPECT_FALSE(missing.isLoaded());
    EXPECT_EQ(nullptr, missing.text(1));
    KyString text(L"unchanged");
    EXPECT_FALSE(text.loadString(missing, 1));
    EXPECT_STREQ(L"unchanged", text.kwszPtr());

    EXPECT_FALSE(KyRxResourceInstance(dataFile(L"missing.kyres")).isLoaded());
    EXPECT_FALSE(KyRxResourceInstance(L"").isLoaded());
    EXPECT_FALSE(KyRxResourceInstance(nullptr).isLoaded());
}

TEST_F(BaseResource, FindsModulesByNameOnTheSearchPath) {
    EXPECT_FALSE(KyRxResourceInstance(L"kytest").isLoaded());
    KyRxResourceInstance::addSearchPath(kDataDir);
    const KyRxResourceInstance resources(L"kytest");
    ASSERT_TRUE(resources.isLoaded());
    EXPECT_STREQ(L"Layer", resources.text(1));
}

TEST_F(BaseResource, TheEnvironmentComesBeforeAddedDirectories) {
    KyRxResourceInstance::addSearchPath(dataFile(L"second"));
    EXPECT_STREQ(L"second", KyRxResourceInstance(L"kyorder").text(1));

    const std::string first = std::string(KYDI_TEST_DATA_DIR) + "/first";
    setenv("KYDI_RESOURCE_PATH", ("/no/such/dir::" + first).c_str(), 1);
    const KyRxResourceInstance resources(L"kyorder");
    EXPECT_STREQ(L"first", resources.text(1));
    EXPECT_EQ(nullptr, resources.text(2));  // modules are not merged
}

TEST_F(BaseResource, TheModuleIsParsedOnceAndShared) {
    const KyRxResourceInstance a(dataFile(L"kytest.kyres"));
    KyRxResourceInstance::addSearchPath(kDataDir);
    const KyRxResourceInstance b(L"kytest");
    ASSERT_TRUE(b.isLoaded());
    EXPECT_EQ(a.text(1), b.text(1));
}

TEST_F(BaseResource, ThePlatformModuleIsFoundWithoutASearchPath) {
    EXPECT_TRUE(KyRxResourceInstance(L"kyplatform").isLoaded());
}

}  // namespace
