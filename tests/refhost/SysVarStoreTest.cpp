// The host's system variables: the statuses of getVar and setVar, the checks
// of a write, the drawing's typed header values behind CLAYER, CECOLOR ...,
// the events of a write outside a command, and the variables dictionary.
#include "KyRefSysVarTable.h"
#include "KyRefTransparencyText.h"
#include "RefHostTestSupport.h"
#include "base/KyRxResourceInstance.h"
#include "db/KyAxDocLock.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbHostApplicationServices.h"
#include "rx/KyRxVariablesDictionary.h"

namespace refhost {
namespace {

class SysVarStoreTest : public RefHostTest {
protected:
    int setShort(const wchar_t* name, short value) {
        const KyRefResbufPtr record = KyRefResbuf::makeShort(value);
        return editor().setVar(name, record.get());
    }
    int setString(const wchar_t* name, const wchar_t* value) {
        const KyRefResbufPtr record = KyRefResbuf::makeString(value);
        return editor().setVar(name, record.get());
    }
    int setReal(const wchar_t* name, double value) {
        const KyRefResbufPtr record = KyRefResbuf::makeReal(value);
        return editor().setVar(name, record.get());
    }
};

// Every name the data item layer reads or writes through the host.
const wchar_t* const kNamesTheSystemUses[] = {
    L"CLAYER",
    L"CELTYPE",
    L"CECOLOR",
    L"CETRANSPARENCY",
    L"CELWEIGHT",
    L"CMATERIAL",
    L"TEXTSTYLE",
    L"DIMSTYLE",
    L"CTABLESTYLE",
    L"CMLEADERSTYLE",
    L"CVIEWDETAILSTYLE",
    L"CVIEWSECTIONSTYLE",
    L"CPLOTSTYLE",
    L"TILEMODE",
    L"CVPORT",
    L"BLOCKEDITOR",
    L"LUPREC",
    L"LUNITS",
    L"PROPOBJLIMIT",
    L"VSEDGES",
    L"VSSILHEDGES",
    L"PERSPECTIVE",
    L"HPNAME",
    L"CTAB",
    L"LIGHTINGUNITS",
    L"SUNSTATUS",
    L"UCSNAME",
    L"CMDNAMES",
    L"CANNOSCALE",
    L"CSHADOW",
    L"CELTSCALE",
    L"TEXTSIZE",
    L"HPLAYER",
    L"HATCHTYPE",
    L"HATCHBOUNDSET",
    L"HPRELATIVEPS",
    L"HPBOUNDRETAIN",
    L"HPANG",
    L"HPDOUBLE",
    L"HPSCALE",
    L"HPSPACE",
    L"HPANNOTATIVE",
    L"HPDRAWORDER",
    L"HPISLANDDETECTION",
    L"HPISLANDDETECTIONMODE",
    L"HPTRANSPARENCY",
    L"GFANG",
    L"GFCLR1",
    L"GFCLR2",
    L"GFCLRLUM",
    L"GFCLRSTATE",
    L"GFNAME",
    L"GFSHIFT",
    L"DEFAULTLIGHTING",
    L"SKYSTATUS",
    L"STEPSIZE",
    L"STEPSPERSEC",
    L"VSEDGEOVERHANG",
    L"VSEDGEJITTER",
    L"VSSILHWIDTH",
    L"VSINTERSECTIONEDGES",
    L"VSOBSCUREDEDGES",
    L"VSFACEOPACITY",
    L"VSEDGECOLOR",
    L"VSOBSCUREDCOLOR",
    L"VSINTERSECTIONCOLOR",
    L"VSMATERIALMODE",
    L"VSFACECOLORMODE",
    L"VSLIGHTINGQUALITY",
    L"VSFACESTYLE",
    L"VSEDGELEX",
    L"RASTERDPI",
    L"UCSVP",
    L"HIDEXREFSCALES",
};

TEST_F(SysVarStoreTest, EveryVariableOfTheTableReadsItsInitialValueInItsRange) {
    for (const KyRefSysVarRow& row : KyRefSysVarTable::rows()) {
        KyRefResbufPtr initial;
        ASSERT_TRUE(KyRefSysVarStore::parse(row, row.initial, initial)) << utf8(row.name);
        resbuf value{};
        ASSERT_EQ(editor().getVar(row.name, &value), KYRT_NORM) << utf8(row.name);
        EXPECT_EQ(value.restype, row.type) << utf8(row.name);
        if (value.restype == KYRB_STRING) {
            kyutDelString(value.resval.rstring);
        }
        if (!row.has(kSysVarReadOnly)) {
            // Writing the value it has is accepted and changes nothing, so it
            // needs no lock and tells nobody.
            EXPECT_EQ(host->sysVars().set(row.name, *initial), KyRefSysVarStatus::kOk)
                << utf8(row.name);
        }
    }
    EXPECT_TRUE(spy.lines().empty());
}

TEST_F(SysVarStoreTest, TheHostKnowsEveryVariableTheDataItemLayerUses) {
    for (const wchar_t* name : kNamesTheSystemUses) {
        EXPECT_NE(KyRefSysVarTable::find(name), nullptr) << utf8(name);
    }
}

TEST_F(SysVarStoreTest, GetVarAnswersNormalOrRejectedAndNamesIgnoreCase) {
    EXPECT_EQ(getVarStatus(L"LUPREC"), KYRT_NORM);
    EXPECT_EQ(getVarStatus(L"luprec"), KYRT_NORM);
    EXPECT_EQ(getVarStatus(L"NOSUCHVARIABLE"), KYRT_REJECTED);
    EXPECT_EQ(getShort(L"luprec"), 4);
    EXPECT_EQ(editor().getVar(L"LUPREC", nullptr), KYRT_ERROR);
}

TEST_F(SysVarStoreTest, SetVarRefusesUnknownReadOnlyOutOfRangeAndWrongType) {
    KyAxDocLock lock(db());
    EXPECT_EQ(setShort(L"NOSUCHVARIABLE", 1), KYRT_REJECTED);
    EXPECT_EQ(setShort(L"BLOCKEDITOR", 1), KYRT_REJECTED);
    EXPECT_EQ(setString(L"CMDNAMES", L"LINE"), KYRT_REJECTED);
    EXPECT_EQ(setShort(L"LUPREC", 9), KYRT_REJECTED);
    EXPECT_EQ(setShort(L"LUPREC", -1), KYRT_REJECTED);
    EXPECT_EQ(setString(L"LUPREC", L"3"), KYRT_REJECTED);
    EXPECT_EQ(setShort(L"CELWEIGHT", 24), KYRT_REJECTED);
    EXPECT_EQ(setReal(L"LTSCALE", 0.0), KYRT_REJECTED);
    EXPECT_EQ(getShort(L"LUPREC"), 4);

    EXPECT_EQ(setShort(L"LUPREC", 8), KYRT_NORM);
    EXPECT_EQ(setShort(L"CELWEIGHT", 25), KYRT_NORM);
    EXPECT_EQ(setShort(L"LTSCALE", 2), KYRT_NORM) << "an integer for a real";
    EXPECT_EQ(getShort(L"LUPREC"), 8);
    EXPECT_EQ(db()->celweight(), KyDb::kLnWt025);
}

// LWEIGHTUNITS is the platform's setting, not a value of the store: a write
// sets gLineWeightUnits, a write of the platform shows in a read, and the
// session values a cancelled command puts back include it.
TEST_F(SysVarStoreTest, TheLineweightUnitsAreThePlatformsSetting) {
    EXPECT_EQ(setShort(L"LWEIGHTUNITS", 2), KYRT_REJECTED);
    EXPECT_EQ(setShort(L"LWEIGHTUNITS", -1), KYRT_REJECTED);
    EXPECT_EQ(setString(L"LWEIGHTUNITS", L"0"), KYRT_REJECTED);
    EXPECT_EQ(gLineWeightUnits, 1);
    spy.take();
    const KyRefSysVarStore::SessionValues before = host->sysVars().sessionValues();
    EXPECT_EQ(setShort(L"lweightunits", 0), KYRT_NORM) << "a session variable needs no lock";
    EXPECT_EQ(gLineWeightUnits, 0);
    EXPECT_EQ(spy.take(),
              (Lines{"sysVarWillChange LWEIGHTUNITS", "sysVarChanged LWEIGHTUNITS true"}));
    host->sysVars().restoreSessionValues(before);
    EXPECT_EQ(gLineWeightUnits, 1);
    gLineWeightUnits = 0;
    EXPECT_EQ(getShort(L"LWEIGHTUNITS"), 0);
    gLineWeightUnits = 1;
}

TEST_F(SysVarStoreTest, ADrawingVariableNeedsADrawingAndItsLock) {
    EXPECT_EQ(setShort(L"LUPREC", 2), KYRT_ERROR) << "outside a lock the drawing refuses";
    EXPECT_EQ(getShort(L"LUPREC"), 4);

    host->documents().closeAll();
    EXPECT_EQ(getVarStatus(L"LUPREC"), KYRT_ERROR);
    EXPECT_EQ(setShort(L"LUPREC", 2), KYRT_ERROR);
    EXPECT_EQ(setShort(L"PROPOBJLIMIT", 25), KYRT_NORM) << "a session variable needs none";
    EXPECT_EQ(getShort(L"PROPOBJLIMIT"), 25);
}

TEST_F(SysVarStoreTest, AWriteOutsideACommandIsToldAtOnce) {
    {
        KyAxDocLock lock(db());
        EXPECT_EQ(setShort(L"LUPREC", 2), KYRT_NORM);
        EXPECT_EQ(setShort(L"LUPREC", 2), KYRT_NORM);
        EXPECT_EQ(setShort(L"LUPREC", 12), KYRT_REJECTED);
    }
    EXPECT_EQ(spy.take(), (Lines{"sysVarWillChange LUPREC", "sysVarChanged LUPREC true",
                                 "sysVarWillChange LUPREC", "sysVarWillChange LUPREC",
                                 "sysVarChanged LUPREC false"}));
}

TEST_F(SysVarStoreTest, ADirectWriteOfTheHeaderIsToldAsTheVariablesItChanges) {
    {
        KyAxDocLock lock(db());
        ASSERT_EQ(db()->setTilemode(false), Kyro::eOk);
    }
    // The layout shown is on its paper: the viewport changed too.
    EXPECT_EQ(spy.take(),
              (Lines{"sysVarWillChange TILEMODE", "sysVarChanged TILEMODE true",
                     "sysVarChanged CTAB true", "sysVarChanged CVPORT true", "plotSettingsChanged",
                     "plotSettingsChangedForLayout Layout1", "layoutChanged"}));
}

TEST_F(SysVarStoreTest, CurrentItemsAreTheNamesOfTheDrawingsRecords) {
    const KyDbObjectId walls = addLayer(L"Walls");
    KyAxDocLock lock(db());
    EXPECT_EQ(setString(L"CLAYER", L"walls"), KYRT_NORM);
    EXPECT_EQ(db()->clayer(), walls);
    EXPECT_EQ(getString(L"CLAYER"), "Walls");
    EXPECT_EQ(setString(L"CLAYER", L"Roof"), KYRT_REJECTED);
    EXPECT_EQ(setString(L"CELTYPE", L"Continuous"), KYRT_NORM);
    EXPECT_EQ(getString(L"CELTYPE"), "Continuous");
    EXPECT_EQ(setString(L"CMATERIAL", L"Global"), KYRT_NORM);
    EXPECT_EQ(getString(L"CMATERIAL"), "Global");
    EXPECT_EQ(getString(L"CMLEADERSTYLE"), "Standard");
    EXPECT_EQ(setString(L"CANNOSCALE", L"1:50"), KYRT_NORM);
    EXPECT_EQ(setString(L"CANNOSCALE", L"1:3"), KYRT_REJECTED);
}

TEST_F(SysVarStoreTest, ColorsAndTransparenciesAreWrittenAsAUserTypesThem) {
    KyAxDocLock lock(db());
    EXPECT_EQ(setString(L"CECOLOR", L"1"), KYRT_NORM);
    EXPECT_EQ(db()->cecolor().colorIndex(), 1);
    EXPECT_EQ(setString(L"CECOLOR", L"blue"), KYRT_NORM);
    EXPECT_EQ(getString(L"CECOLOR"), "5");
    EXPECT_EQ(setString(L"CECOLOR", L"rgb:10,20,30"), KYRT_NORM);
    EXPECT_EQ(getString(L"CECOLOR"), "RGB:10,20,30");
    EXPECT_EQ(setString(L"CECOLOR", L"byblock"), KYRT_NORM);
    EXPECT_TRUE(db()->cecolor().isByBlock());
    EXPECT_EQ(setString(L"CECOLOR", L"300"), KYRT_REJECTED);

    EXPECT_EQ(setString(L"CETRANSPARENCY", L"50"), KYRT_NORM);
    EXPECT_EQ(getString(L"CETRANSPARENCY"), "50");
    EXPECT_EQ(setString(L"CETRANSPARENCY", L"91"), KYRT_REJECTED);
    EXPECT_EQ(setString(L"CETRANSPARENCY", L"ByLayer"), KYRT_NORM);
    EXPECT_TRUE(db()->cetransparency().isByLayer());
}

TEST_F(SysVarStoreTest, EveryPercentageOfTransparencySurvivesTheWayThroughAlpha) {
    for (int percent = 0; percent <= 100; ++percent) {
        EXPECT_EQ(KyRefTransparencyText::percentOf(KyRefTransparencyText::alphaOf(percent)),
                  percent);
    }
}

TEST_F(SysVarStoreTest, TheLocalReservedWordsAreUnderstood) {
    KyRxResourceInstance::setLanguage(L"de");
    {
        KyAxDocLock lock(db());
        EXPECT_EQ(setString(L"CECOLOR", L"VonBlock"), KYRT_NORM);
        EXPECT_EQ(setString(L"CETRANSPARENCY", L"vonblock"), KYRT_NORM);
    }
    KyRxResourceInstance::setLanguage(L"");
    EXPECT_TRUE(db()->cecolor().isByBlock());
    EXPECT_TRUE(db()->cetransparency().isByBlock());
}

TEST_F(SysVarStoreTest, DrawingVariablesFollowTheDocument) {
    KyRefDocument* first = host->documents().current();
    run(L"LUPREC\n1\nPROPOBJLIMIT\n10\n");
    host->documents().newDocument();
    EXPECT_EQ(getShort(L"LUPREC"), 4);
    EXPECT_EQ(getShort(L"PROPOBJLIMIT"), 10) << "a session variable stays";
    host->documents().makeCurrent(first);
    EXPECT_EQ(getShort(L"LUPREC"), 1);
}

TEST_F(SysVarStoreTest, TheVariablesDictionaryWritesReadOnlyVariablesThroughTheStore) {
    KyRxVariablesDictionary* dictionary = KyRxVariablesDictionary::get();
    ASSERT_NE(dictionary, nullptr);
    EXPECT_EQ(dictionary->count(), static_cast<int>(KyRefSysVarTable::rows().size()));
    KyRxVariable* hatchType = dictionary->getVariable(L"hatchtype");
    ASSERT_NE(hatchType, nullptr);

    const KyRefResbufPtr two = KyRefResbuf::makeShort(2);
    EXPECT_EQ(editor().setVar(L"HATCHTYPE", two.get()), KYRT_REJECTED);
    EXPECT_EQ(hatchType->setValue(*two, nullptr, nullptr, false), Kyro::eOk);
    EXPECT_EQ(getShort(L"HATCHTYPE"), 2);
    EXPECT_EQ(spy.take(), (Lines{"sysVarWillChange HATCHTYPE", "sysVarChanged HATCHTYPE false",
                                 "sysVarWillChange HATCHTYPE", "sysVarChanged HATCHTYPE true"}));

    const KyRefResbufPtr three = KyRefResbuf::makeShort(3);
    KyString error;
    EXPECT_EQ(hatchType->setValue(*three, nullptr, &error, false), Kyro::eInvalidInput);
    EXPECT_EQ(error, L"Requires an integer between 0 and 2.");
    EXPECT_EQ(dictionary->getVariable(L"CMDNAMES")->setValue(*two, nullptr, nullptr, false),
              Kyro::eCannotSetSysVar);

    host.reset();
    EXPECT_EQ(KyRxVariablesDictionary::get(), nullptr);
}

TEST_F(SysVarStoreTest, AWriteWithoutUndoRecordingCantBeTakenBack) {
    KyRxVariable* luprec = KyRxVariablesDictionary::get()->getVariable(L"LUPREC");
    {
        KyAxDocLock lock(db());
        const KyRefResbufPtr two = KyRefResbuf::makeShort(2);
        EXPECT_EQ(luprec->setValue(*two, nullptr, nullptr, true), Kyro::eOk);
    }
    run(L"U\n");
    EXPECT_EQ(getShort(L"LUPREC"), 2);
}

TEST_F(SysVarStoreTest, PointsAndRealsAreParsedFromText) {
    run(L"INSBASE\n1,2,3\nLIMMAX\n100,50\nLTSCALE\n0.5\nLIMMAX\n1,2,3,4\n\n");
    resbuf value{};
    ASSERT_EQ(editor().getVar(L"INSBASE", &value), KYRT_NORM);
    EXPECT_EQ(value.restype, KYRB_3DPOINT);
    EXPECT_EQ(value.resval.rpoint[2], 3.0);
    ASSERT_EQ(editor().getVar(L"LIMMAX", &value), KYRT_NORM);
    EXPECT_EQ(value.restype, KYRB_POINT);
    EXPECT_EQ(value.resval.rpoint[0], 100.0);
    ASSERT_EQ(editor().getVar(L"LTSCALE", &value), KYRT_NORM);
    EXPECT_EQ(value.resval.rreal, 0.5);
    EXPECT_EQ(takeLog().back(), "Enter new value for LIMMAX <100,50>: ");
}

}  // namespace
}  // namespace refhost
