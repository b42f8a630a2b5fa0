// Layer names as a user types them on the command line (-LAYER, VPLAYER):
// the pattern elements, "all but", sets and ranges, backquotes, comma lists,
// and the literal "=" form the data item layer sends, which reaches every
// layer exactly, also one whose name is a pattern of others.
#include <string>

#include "LayerTestSupport.h"

namespace refhost {
namespace {

const std::string kOptions =
    "Enter an option [?/Make/Set/New/ON/OFF/Color/Ltype/LWeight/TRansparency/Plot/PStyle/"
    "Freeze/Thaw/LOck/Unlock/Description/Filter/STate]: ";
const std::string kListHeader = "Layer name: state, color, linetype, lineweight";

// The layers beside those of kLayerDrawing (0, Walls, Doors, Frozen), in the
// table's order after them.
const wchar_t* const kAddedLayers[] = {
    L"A1", L"A2", L"A#", L"Ab", L"A-", L"A.", L"A@", L"Outer walls", L"~Old", L"[Tmp]",
};

class LayerNamePatternTest : public LayerFixture {
protected:
    LayerNamePatternTest() {
        openDrawing(kLayerDrawing);
        for (const wchar_t* name : kAddedLayers) {
            addLayer(name);
        }
    }

    // The layers "-LAYER ?" lists for `names`, in the order listed; when the
    // command fails, its error line instead.
    Lines listed(const std::wstring& names) {
        takeLog();
        run((L"-LAYER\n?\n" + names + L"\n\n").c_str());
        const Lines log = takeLog();
        Lines layers;
        bool listing = false;
        for (const std::string& line : log) {
            if (line == kListHeader) {
                listing = true;
            } else if (listing && line == kOptions) {
                return layers;
            } else if (listing) {
                layers.push_back(line.substr(0, line.find(": ")));
            }
        }
        return Lines{log.empty() ? std::string() : log.back()};
    }

    // The layers that are locked, in table order.
    Lines locked() const {
        Lines names;
        for (const wchar_t* name : {L"0", L"Walls", L"Doors", L"Frozen"}) {
            if (state(name).find("locked=1") != std::string::npos) {
                names.push_back(utf8(name));
            }
        }
        for (const wchar_t* name : kAddedLayers) {
            if (state(name).find("locked=1") != std::string::npos) {
                names.push_back(utf8(name));
            }
        }
        return names;
    }
};

TEST_F(LayerNamePatternTest, EachElementMatchesItsKindOfCharacterInAnyCase) {
    EXPECT_EQ(listed(L"A#"), (Lines{"A1", "A2"}));
    EXPECT_EQ(listed(L"A@"), (Lines{"Ab"}));
    EXPECT_EQ(listed(L"a."), (Lines{"A#", "A-", "A.", "A@"}));
    EXPECT_EQ(listed(L"A?"), (Lines{"A1", "A2", "A#", "Ab", "A-", "A.", "A@"}));
    EXPECT_EQ(listed(L"*S"), (Lines{"Walls", "Doors", "Outer walls"}));
    EXPECT_EQ(listed(L"A1*"), (Lines{"A1"})) << "a run may be empty";
    EXPECT_EQ(listed(L"*r*w*"), (Lines{"Outer walls"}));
    EXPECT_EQ(listed(L"walls"), (Lines{"Walls"}));
    EXPECT_EQ(listed(L"A#?"), (Lines{"No layer matches \"A#?\"."}));
}

TEST_F(LayerNamePatternTest, ATildeFirstMatchesAllButWhatTheRestMatches) {
    EXPECT_EQ(listed(L"~A*"),
              (Lines{"0", "Walls", "Doors", "Frozen", "Outer walls", "~Old", "[Tmp]"}));
    EXPECT_EQ(listed(L"~[a-z]*"), (Lines{"0", "~Old", "[Tmp]"}));
    EXPECT_EQ(listed(L"A~"), (Lines{"Cannot find layer \"A~\"."})) << "later, it is itself";
    EXPECT_EQ(listed(L"~*"), (Lines{"No layer matches \"~*\"."}));
}

TEST_F(LayerNamePatternTest, ASetMatchesOneOfItsCharactersOrRangesOrNoneOfThem) {
    EXPECT_EQ(listed(L"A[2b]"), (Lines{"A2", "Ab"}));
    EXPECT_EQ(listed(L"A[0-9]"), (Lines{"A1", "A2"}));
    EXPECT_EQ(listed(L"[a-c]#"), (Lines{"A1", "A2"})) << "a range in any case";
    EXPECT_EQ(listed(L"A[~0-9a-z]"), (Lines{"A#", "A-", "A.", "A@"}));
    EXPECT_EQ(listed(L"A[-.]"), (Lines{"A-", "A."})) << "a leading \"-\" is itself";
    EXPECT_EQ(listed(L"A[.-]"), (Lines{"A-", "A."})) << "a trailing \"-\" is itself";
    EXPECT_EQ(listed(L"[Tmp]"), (Lines{"No layer matches \"[Tmp]\"."}));
    EXPECT_EQ(listed(L"[Tmp"), (Lines{"Cannot find layer \"[Tmp\"."})) << "an open \"[\" is itself";
}

TEST_F(LayerNamePatternTest, ABackquoteReadsTheCharacterAfterItAsItself) {
    EXPECT_EQ(listed(L"A`#"), (Lines{"A#"}));
    EXPECT_EQ(listed(L"A`@"), (Lines{"A@"}));
    EXPECT_EQ(listed(L"A`."), (Lines{"A."}));
    EXPECT_EQ(listed(L"`~Old"), (Lines{"~Old"}));
    EXPECT_EQ(listed(L"`[Tmp]"), (Lines{"[Tmp]"}));
    EXPECT_EQ(listed(L"A[`-`#]"), (Lines{"A#", "A-"}));
    EXPECT_EQ(listed(L"A`,Walls"), (Lines{"Cannot find layer \"A`,Walls\"."}))
        << "a comma behind a backquote does not split";
}

TEST_F(LayerNamePatternTest, ACommaListNamesEachLayerOnceInTableOrder) {
    EXPECT_EQ(listed(L"outer walls, Doors ,A#,walls"),
              (Lines{"Walls", "Doors", "A1", "A2", "Outer walls"}));
    EXPECT_EQ(listed(L"A#,A?,,A1"), (Lines{"A1", "A2", "A#", "Ab", "A-", "A.", "A@"}));
    EXPECT_EQ(listed(L"\"Doors\",\"A`#\""), (Lines{"Doors", "A#"})) << "quotes are dropped";
}

TEST_F(LayerNamePatternTest, ANameOfSeveralThatMatchesNothingFailsTheCommandAndChangesNothing) {
    run(L"-LAYER\nLO\nWalls,Nowhere,A#\n");
    EXPECT_EQ(takeLog().back(), "Cannot find layer \"Nowhere\".");
    run(L"-LAYER\nLO\nWalls,Z#\n");
    EXPECT_EQ(takeLog().back(), "No layer matches \"Z#\".");
    EXPECT_EQ(locked(), Lines{});
    EXPECT_TRUE(host->commandNames().isEmpty());
}

TEST_F(LayerNamePatternTest, TheLiteralFormReachesEveryNameExactly) {
    run(L"'_.-LAYER\n_LOCK\n=A#, A. ,A@,~Old,[Tmp],Outer walls\n\n");
    EXPECT_EQ(locked(), (Lines{"A#", "A.", "A@", "Outer walls", "~Old", "[Tmp]"}));
    run(L"'_.-LAYER\n_UNLOCK\n=\"Outer walls\",a#\n\n");
    EXPECT_EQ(locked(), (Lines{"A.", "A@", "~Old", "[Tmp]"}));

    EXPECT_EQ(listed(L"=A*"), (Lines{"Cannot find layer \"A*\"."}));
    EXPECT_EQ(listed(L"=A`#"), (Lines{"Cannot find layer \"A`#\"."})) << "no backquote is read";
    EXPECT_EQ(listed(L"=~A*"), (Lines{"Cannot find layer \"~A*\"."}));
}

TEST_F(LayerNamePatternTest, ALayerNamedLikeAPatternIsReachedAloneOnlyAsItselfNotAsAPattern) {
    const auto off = [this](const wchar_t* name) {
        return state(name).find("off=1") != std::string::npos;
    };
    run(L"-LAYER\nOFF\nA#\n\n");
    EXPECT_TRUE(off(L"A1") && off(L"A2"));
    EXPECT_FALSE(off(L"A#"));
    run(L"'_.-LAYER\n_OFF\n=A#\n\n");
    EXPECT_TRUE(off(L"A#"));
    run(L"-LAYER\nON\nA`#\n\n");
    EXPECT_FALSE(off(L"A#"));
    EXPECT_TRUE(off(L"A1") && off(L"A2"));
}

TEST_F(LayerNamePatternTest, VpLayerReadsTheSameNames) {
    run(L"VPLAYER\nFreeze\nA[~#]\nAll\n\n");
    EXPECT_EQ(overrides(L"A1", L"41"), "frozen=1");
    EXPECT_EQ(overrides(L"A1", L"42"), "frozen=1");
    EXPECT_EQ(overrides(L"A#", L"41"), "");
    run(L"'_.VPLAYER\n_COLOR\n1\n=A#\n_ALL\n\n");
    EXPECT_EQ(overrides(L"A#", L"41"), "color=1");
    EXPECT_EQ(overrides(L"A1", L"41"), "frozen=1");
    run(L"VPLAYER\nThaw\n~Old\nAll\nFreeze\nB#\n");
    EXPECT_EQ(takeLog().back(), "No layer matches \"B#\".");
    EXPECT_EQ(overrides(L"A1", L"41"), "frozen=1") << "the failed command took back its thaw";
}

TEST_F(LayerNamePatternTest, NewTakesItsNamesAsTheyStandWithBackquotesRead) {
    run(L"-LAYER\nNew\nC#,C`@\n\n");
    EXPECT_NE(state(L"C#"), "missing");
    EXPECT_NE(state(L"C@"), "missing");
    run(L"-LAYER\nNew\nD1,D`,E\n");
    EXPECT_EQ(takeLog().back(), "Invalid layer name \"D,E\".");
    EXPECT_EQ(state(L"D1"), "missing");
}

}  // namespace
}  // namespace refhost
