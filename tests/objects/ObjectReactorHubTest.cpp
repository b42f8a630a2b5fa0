// The object reactor hub: a client watching one object hears at the next
// refresh pass that it changed, was erased, or that its document stopped or
// started being the current one; and may take its watch back while it is
// told. A watched block reference hears of its attributes' edits.
#include <gtest/gtest.h>

#include <functional>

#include "db/KyAxDocLock.h"
#include "db/KyDbAttribute.h"
#include "db/KyDbBlockReference.h"
#include "db/KyDbLine.h"
#include "db/KyDbObjectPointer.h"
#include "kydi/KyDiObjectReactor.h"
#include "objects/ItemFixture.h"

namespace {

using Lines = std::vector<std::wstring>;

// Writes each notification as a line; erased() takes the watch back, as a
// client must. `onCall` runs after each notification.
class WatchSpy : public KyDiObjectReactor {
public:
    WatchSpy(std::wstring name, Lines& lines) : m_name(std::move(name)), m_lines(lines) {}

    Kyro::ErrorStatus watch(KyDbObjectId id) {
        m_id = id;
        return KyDiManager::addObjectReactor(id, this);
    }
    Kyro::ErrorStatus unwatch() { return KyDiManager::removeObjectReactor(m_id, this); }

    void modified(void*) override { note(L"modified"); }
    void activeChanged(bool active) override {
        note(active ? L"activeChanged true" : L"activeChanged false");
    }
    void erased() override {
        note(L"erased");
        unwatch();
    }

    std::function<void()> onCall;

private:
    void note(const wchar_t* what) {
        m_lines.push_back(m_name + L" " + what);
        if (onCall) {
            onCall();
        }
    }
    std::wstring m_name;
    Lines& m_lines;
    KyDbObjectId m_id;
};

class Hub : public kytest::ItemFixture {
protected:
    KyDbObjectId addLine() { return content().addEntity<KyDbLine>(); }
    // A change made as a command would make it: locked, recorded for undo.
    void move(KyDbObjectId line, double x) {
        const KyAxDocLock lock(db());
        KyDbObjectPointer<KyDbLine> opened(line, KyDb::kForWrite);
        opened->setEndPoint(KyGePoint3d(x, 0, 0));
    }
    void erase(KyDbObjectId id) {
        const KyAxDocLock lock(db());
        KyDbObjectPointer<KyDbObject> opened(id, KyDb::kForWrite);
        opened->erase();
    }
    Lines pass() {
        KyDiManager::refresh();
        return std::exchange(lines, {});
    }

    Lines lines;
};

TEST_F(Hub, AChangeIsToldAtTheNextPassAndNotBefore) {
    const KyDbObjectId line = addLine();
    WatchSpy spy(L"line", lines);
    ASSERT_EQ(spy.watch(line), Kyro::eOk);
    EXPECT_EQ(pass(), Lines{}) << "watching in the current document says nothing";
    move(line, 5);
    EXPECT_EQ(lines, Lines{});
    EXPECT_EQ(pass(), (Lines{L"line modified"}));
    EXPECT_EQ(pass(), Lines{});
    EXPECT_EQ(spy.unwatch(), Kyro::eOk);
    move(line, 6);
    EXPECT_EQ(pass(), Lines{});
    EXPECT_NE(spy.unwatch(), Kyro::eOk) << "a pair not watched";
}

TEST_F(Hub, AnEraseIsToldOnceAndTheWatchEndsWithIt) {
    const KyDbObjectId line = addLine();
    WatchSpy spy(L"line", lines);
    spy.watch(line);
    erase(line);
    EXPECT_EQ(pass(), (Lines{L"line erased"}));
    EXPECT_EQ(pass(), Lines{});
    // An erased object can't be watched: the open's status.
    EXPECT_EQ(spy.watch(line), Kyro::eWasErased);
}

TEST_F(Hub, AnEraseAndItsUndoBetweenTwoPassesTellNothing) {
    const KyDbObjectId line = addLine();
    WatchSpy spy(L"line", lines);
    spy.watch(line);
    // A pass now holds back the passes the two commands ask for.
    pass();
    const std::wstring erase =
        L"ERASE\n#" + std::wstring(KyString::formatted(L"%llX", line.handle()).kwszPtr()) + L"\n\n";
    type(erase.c_str());
    ASSERT_TRUE(line.isErased());
    type(L"U\n");
    ASSERT_FALSE(line.isErased());
    EXPECT_EQ(pass(), Lines{});
    // The watch goes on: a later change is told.
    move(line, 3);
    EXPECT_EQ(pass(), (Lines{L"line modified"}));
}

TEST_F(Hub, AWatchedBlockReferenceHearsOfItsAttributesEdits) {
    const KyDbObjectId reference = content().addEntity<KyDbBlockReference>();
    KyDbObjectId attribute;
    {
        const KyAxDocLock lock(db());
        KyDbObjectPointer<KyDbBlockReference> opened(reference, KyDb::kForWrite);
        auto* number = new KyDbAttribute(L"NUMBER", L"D01");
        ASSERT_EQ(opened->appendAttribute(attribute, number), Kyro::eOk);
        number->close();
    }
    WatchSpy spy(L"reference", lines);
    ASSERT_EQ(spy.watch(reference), Kyro::eOk);
    pass();
    {
        const KyAxDocLock lock(db());
        KyDbObjectPointer<KyDbAttribute> opened(attribute, KyDb::kForWrite);
        opened->setTextString(L"D02");
    }
    EXPECT_EQ(pass(), (Lines{L"reference modified"}));
    erase(attribute);
    EXPECT_EQ(pass(), (Lines{L"reference modified"})) << "an attribute fewer";
}

TEST_F(Hub, AWatchOfAnErasedObjectIsFoundByItsIdAndTwoReactorsMakeTwoWatches) {
    const KyDbObjectId line = addLine();
    WatchSpy first(L"first", lines);
    WatchSpy second(L"second", lines);
    first.watch(line);
    second.watch(line);
    move(line, 2);
    EXPECT_EQ(pass(), (Lines{L"second modified", L"first modified"}))
        << "the last watch is told first";
    erase(line);
    EXPECT_EQ(first.unwatch(), Kyro::eOk) << "found by the id it had";
    EXPECT_EQ(pass(), (Lines{L"second erased"}));
}

TEST_F(Hub, ADocumentSwitchIsToldBothWays) {
    const KyDbObjectId line = addLine();
    WatchSpy spy(L"line", lines);
    spy.watch(line);
    KyRefDocument* first = host.documents().current();
    host.documents().newDocument();
    EXPECT_EQ(pass(), (Lines{L"line activeChanged false"}));
    EXPECT_EQ(pass(), Lines{});
    host.documents().makeCurrent(first);
    EXPECT_EQ(pass(), (Lines{L"line activeChanged true"}));
    // Watched from another document, the first pass says where it is.
    WatchSpy other(L"other", lines);
    host.documents().newDocument();
    pass();
    other.watch(line);
    EXPECT_EQ(pass(), (Lines{L"other activeChanged false"}));
    EXPECT_EQ(pass(), Lines{});
}

TEST_F(Hub, ClosingTheDocumentEndsItsWatchesAsErasures) {
    const KyDbObjectId line = addLine();
    WatchSpy spy(L"line", lines);
    spy.watch(line);
    host.documents().closeDocument(host.documents().current());
    host.documents().releaseClosedDocuments();
    KyDiManager::refresh();
    EXPECT_EQ(lines, (Lines{L"line erased"}));
}

TEST_F(Hub, AClientMayTakeBackWatchesWhileItIsTold) {
    const KyDbObjectId line = addLine();
    const KyDbObjectId other = addLine();
    WatchSpy self(L"self", lines);
    WatchSpy victim(L"victim", lines);
    WatchSpy last(L"last", lines);
    victim.watch(other);
    self.watch(line);
    last.watch(line);
    // Told first, "last" takes itself back; "self" takes "victim" back.
    last.onCall = [&] { last.unwatch(); };
    self.onCall = [&] { victim.unwatch(); };
    move(line, 1);
    move(other, 1);
    EXPECT_EQ(pass(), (Lines{L"last modified", L"self modified"}));
    move(line, 2);
    move(other, 2);
    EXPECT_EQ(pass(), (Lines{L"self modified"}));
}

TEST_F(Hub, TakingTheWatchBackInActiveChangedEndsItAfterTheCall) {
    const KyDbObjectId line = addLine();
    WatchSpy spy(L"line", lines);
    spy.watch(line);
    spy.onCall = [&] { EXPECT_EQ(spy.unwatch(), Kyro::eOk); };
    move(line, 1);
    host.documents().newDocument();
    EXPECT_EQ(pass(), (Lines{L"line activeChanged false"})) << "nothing after the watch ended";
    EXPECT_EQ(pass(), Lines{});
}

TEST_F(Hub, WhatAClientDoesWhileItIsToldIsToldAtTheNextPass) {
    const KyDbObjectId line = addLine();
    WatchSpy spy(L"line", lines);
    EXPECT_EQ(KyDiManager::addObjectReactor(line, nullptr), Kyro::eInvalidInput);
    spy.watch(line);
    int calls = 0;
    spy.onCall = [&] {
        // A forced pass from inside a call tells this watch nothing more.
        KyDiManager::refresh();
        if (++calls == 1) {
            move(line, 9);
        } else if (calls == 2) {
            erase(line);
        }
    };
    move(line, 1);
    EXPECT_EQ(pass(), (Lines{L"line modified"}));
    EXPECT_EQ(pass(), (Lines{L"line modified"})) << "the change made while told";
    EXPECT_EQ(pass(), (Lines{L"line erased"}));
    EXPECT_EQ(pass(), Lines{});
}

}  // namespace
