#include "rx/KyRxVariablesDictionary.h"

#include <gtest/gtest.h>

#include "base/KyString.h"

namespace {

resbuf* stringRb(const wchar_t* text) {
    resbuf* rb = kyutNewRb(KYRB_STRING);
    kyutNewString(text, rb->resval.rstring);
    return rb;
}

// A read-only variable: refuses every write with a reason.
class ReadOnlyVariable : public KyRxVariable {
public:
    using KyRxVariable::KyRxVariable;

protected:
    Kyro::ErrorStatus subSetValue(const resbuf& /*value*/, void* /*sender*/, KyString* error,
                                  bool /*disableUndoRecording*/) override {
        if (error != nullptr) {
            *error = L"read-only";
        }
        return Kyro::eCannotSetSysVar;
    }
};

// Keeps only positive integers.
class PositiveVariable : public KyRxVariable {
public:
    using KyRxVariable::KyRxVariable;

protected:
    Kyro::ErrorStatus subSetValue(const resbuf& value, void* /*sender*/, KyString* /*error*/,
                                  bool /*disableUndoRecording*/) override {
        if (value.restype != KYRB_SHORT || value.resval.rint <= 0) {
            return Kyro::eInvalidInput;
        }
        storeValue(value);
        return Kyro::eOk;
    }
};

TEST(BaseVariables, NoDictionaryUntilTheHostInstallsOne) {
    EXPECT_EQ(nullptr, KyRxVariablesDictionary::get());
    {
        KyRxVariablesDictionary dictionary;
        KyRxVariablesDictionary::install(&dictionary);
        EXPECT_EQ(&dictionary, KyRxVariablesDictionary::get());
        KyRxVariablesDictionary::install(nullptr);
        EXPECT_EQ(nullptr, KyRxVariablesDictionary::get());
        KyRxVariablesDictionary::install(&dictionary);
    }
    // An installed dictionary that goes uninstalls itself.
    EXPECT_EQ(nullptr, KyRxVariablesDictionary::get());
}

TEST(BaseVariables, VariablesAreFoundWithoutRegardToCase) {
    KyRxVariablesDictionary dictionary;
    auto* clayer = new KyRxVariable(L"CLAYER");
    ASSERT_TRUE(dictionary.addVariable(clayer));
    EXPECT_EQ(clayer, dictionary.getVariable(L"clayer"));
    EXPECT_EQ(clayer, dictionary.getVariable(L"CLayer"));
    EXPECT_STREQ(L"CLAYER", dictionary.getVariable(L"clayer")->name());
    EXPECT_EQ(nullptr, dictionary.getVariable(L"CECOLOR"));
    EXPECT_EQ(nullptr, dictionary.getVariable(nullptr));

    KyRxVariable duplicate(L"Clayer");
    EXPECT_FALSE(dictionary.addVariable(&duplicate));  // the name is taken
    EXPECT_FALSE(dictionary.addVariable(nullptr));
    EXPECT_EQ(1, dictionary.count());
}

TEST(BaseVariables, AWriteStoresACopyOfTheValue) {
    KyRxVariable variable(L"CLAYER");
    EXPECT_EQ(nullptr, variable.value());

    resbuf* walls = stringRb(L"Walls");
    EXPECT_EQ(Kyro::eOk, variable.setValue(*walls, nullptr, nullptr, false));
    kyutRelRb(walls);
    ASSERT_NE(nullptr, variable.value());
    EXPECT_EQ(KYRB_STRING, variable.value()->restype);
    EXPECT_STREQ(L"Walls", variable.value()->resval.rstring);

    // Writing the stored record back onto itself keeps it.
    EXPECT_EQ(Kyro::eOk, variable.setValue(*variable.value(), nullptr, nullptr, true));
    EXPECT_STREQ(L"Walls", variable.value()->resval.rstring);

    resbuf* level = kyutNewRb(KYRB_SHORT);
    level->resval.rint = 3;
    EXPECT_EQ(Kyro::eOk, variable.setValue(*level, nullptr, nullptr, false));
    EXPECT_TRUE(kyutRbEqual(level, variable.value()));
    kyutRelRb(level);
}

TEST(BaseVariables, SubclassesDecideWhichWritesTheyTake) {
    ReadOnlyVariable readOnly(L"DRAWINGNAME");
    resbuf* name = stringRb(L"sample.kydrawing");
    KyString error;
    EXPECT_EQ(Kyro::eCannotSetSysVar, readOnly.setValue(*name, nullptr, &error, false));
    EXPECT_STREQ(L"read-only", error.kwszPtr());
    EXPECT_EQ(nullptr, readOnly.value());
    kyutRelRb(name);

    PositiveVariable positive(L"LUPREC");
    resbuf* value = kyutNewRb(KYRB_SHORT);
    value->resval.rint = 4;
    EXPECT_EQ(Kyro::eOk, positive.setValue(*value, nullptr, nullptr, false));
    value->resval.rint = -1;
    EXPECT_EQ(Kyro::eInvalidInput, positive.setValue(*value, nullptr, nullptr, false));
    EXPECT_EQ(4, positive.value()->resval.rint);
    kyutRelRb(value);
}

TEST(BaseVariables, TheDictionaryDeletesItsVariables) {
    // The variables and their values would be reported as leaks otherwise.
    auto* dictionary = new KyRxVariablesDictionary;
    auto* clayer = new KyRxVariable(L"CLAYER");
    dictionary->addVariable(clayer);
    resbuf* walls = stringRb(L"Walls");
    clayer->setValue(*walls, nullptr, nullptr, false);
    kyutRelRb(walls);
    dictionary->addVariable(new PositiveVariable(L"LUPREC"));
    EXPECT_EQ(2, dictionary->count());
    delete dictionary;
}

}  // namespace
