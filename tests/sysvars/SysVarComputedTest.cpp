// Variables that the layer computes instead of reading them from the host:
// the document count, the displayed white, the background overrides; and the
// plot style name, whose reserved names are shown in the user's language.
#include <gtest/gtest.h>

#include "base/KyRxResourceInstance.h"
#include "db/KyAxDocLock.h"
#include "db/KyDbColorService.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbDictionary.h"
#include "db/KyDbHostApplicationServices.h"
#include "db/KyDbObjectPointer.h"
#include "db/KyDbPlaceHolder.h"
#include "kydi/KyDiExternalReferenceHost.h"
#include "kydi/KyDiManager.h"
#include "sysvars/SysVarFixture.h"

namespace {

using kytest::Lines;
using kytest::SysVarSpy;

class ComputedSysVars : public kytest::SysVarFixture {
protected:
    // A named plot style of the drawing, which new objects can be given.
    void addPlotStyle(const wchar_t* name) {
        const KyAxDocLock lock;
        KyDbObjectPointer<KyDbDictionary> styles(
            host.documents().currentDatabase()->plotStyleNameDictionaryId(), KyDb::kForWrite);
        auto* style = new KyDbPlaceHolder();
        KyDbObjectId id;
        ASSERT_EQ(styles->setAt(name, style, id), Kyro::eOk);
        style->close();
    }
    void setPlotStyle(const wchar_t* name) {
        const KyAxDocLock lock;
        ASSERT_EQ(host.setVariable(L"CPLOTSTYLE", kytest::textValue(name)), KyRefSysVarStatus::kOk);
    }
};

// Index 7 shows the colour packed in `white`.
class HostColors final : public KyDbColorService {
public:
    explicit HostColors(unsigned int white) : m_white(white) {}
    unsigned int trueColorOf(int index) const override { return index == 7 ? m_white : 0; }

private:
    unsigned int m_white;
};

class ServicesWithColors final : public KyDbHostApplicationServices {
public:
    explicit ServicesWithColors(unsigned int white) : m_colors(white) {}
    KyDbColorService* colorService() const override { return const_cast<HostColors*>(&m_colors); }

private:
    HostColors m_colors;
};

class RedBehindReferences final : public KyDiExternalReferenceHost {
public:
    Kyro::ErrorStatus getBackgroundOverride(KyCmColor& out, KyDbDatabase*) override {
        out.setColorIndex(KyCmColor::kACIRed);
        return Kyro::eOk;
    }
};

}  // namespace

TEST_F(ComputedSysVars, ZeroDocFollowsTheOpenDocuments) {
    SysVarSpy spy(sysVar(L"ZERODOC"));
    host.documents().closeAll();
    EXPECT_TRUE(spy.lines.empty()) << "the closing drawing still counts in the pass it runs";
    KyDiManager::refresh();
    host.documents().newDocument();
    EXPECT_EQ(spy.lines, (Lines{L"valueChanged ZERODOC 1", L"valueChanged ZERODOC 0"}))
        << "the second through the pass the host asks for with the new drawing";
}

TEST_F(ComputedSysVars, DisplayedWhiteIsWhatIndexSevenShows) {
    EXPECT_EQ(valueOf(L"DISPLAYEDWHITECOLOR"), L"7,0,0") << "no colour service of the host";

    ServicesWithColors services(0xC2000000u);
    services.setWorkingDatabase(host.documents().currentDatabase());
    kydbSetHostApplicationServices(&services);
    KyDiManager::refresh();
    EXPECT_EQ(valueOf(L"DISPLAYEDWHITECOLOR"), L"0,0,0") << "black on a light background";
    kydbSetHostApplicationServices(nullptr);
}

TEST_F(ComputedSysVars, ExternalReferenceBackgroundNamesItsColour) {
    RedBehindReferences references;
    KyDiManager::initializeXRefHost(&references);
    EXPECT_EQ(valueOf(L"XREFOVERRIDEBACKGROUNDCOLOR"), L"red");
    KyDiManager::uninitializeXRefHost();
}

TEST_F(ComputedSysVars, PlotStyleIsShownInTheUsersLanguage) {
    KyRxResourceInstance::setLanguage(L"de");
    addPlotStyle(L"Thick");
    SysVarSpy spy(sysVar(L"CPLOTSTYLE"));
    EXPECT_EQ(hostValue(L"CPLOTSTYLE"), L"ByLayer") << "the host holds the global form";
    EXPECT_EQ(valueOf(L"CPLOTSTYLE"), L"VonLayer");

    for (const wchar_t* style : {L"BYBLOCK", L"Normal", L"Thick"}) {
        setPlotStyle(style);
        KyDiManager::refresh();
    }
    EXPECT_EQ(spy.lines,
              (Lines{L"valueChanged CPLOTSTYLE VonBlock", L"valueChanged CPLOTSTYLE Normalstil",
                     L"valueChanged CPLOTSTYLE Thick"}))
        << "any case of a reserved name; a style of the drawing stays as it is";
    EXPECT_EQ(hostValue(L"CPLOTSTYLE"), L"Thick");
    KyRxResourceInstance::setLanguage(L"");
}
