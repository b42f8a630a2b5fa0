// The data item layer started against the reference host, with one new
// drawing open and the host on its manual clock. The host runs queued
// command text only when the test calls idle(), as a real host does when the
// user pauses.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "KyRefHost.h"
#include "KyRefManualClock.h"
#include "kydi/KyDiManager.h"

namespace kytest {

class RefHostFixture : public ::testing::Test {
protected:
    static KyRefHostOptions options() {
        KyRefHostOptions withClock;
        withClock.manualClock = true;
        return withClock;
    }

    void SetUp() override {
        host.documents().newDocument();
        KyDiManager::initialize(&host);
    }
    void TearDown() override { KyDiManager::uninitialize(); }

    // Past the throttle: the next unforced refresh request is a pass.
    void waitPastTheThrottle() { host.clock()->advance(251); }
    // The host's command line since the last call.
    std::vector<std::wstring> commandLine() {
        std::vector<std::wstring> lines;
        for (const KyString& line : host.commandLine().takeLines()) {
            lines.emplace_back(line.kwszPtr());
        }
        return lines;
    }
    // The texts the layer sent to the host, in order.
    std::vector<std::wstring> sentTexts() {
        std::vector<std::wstring> texts;
        for (const KyRefEditor::SentCommand& sent : host.editor()->takeSentCommands()) {
            texts.emplace_back(sent.text.kwszPtr());
        }
        return texts;
    }
    // Types `text` on the host's command line, as a user would, and lets the
    // host run it.
    void type(const wchar_t* text) {
        host.editor()->interpreter().queue(text);
        host.idle();
    }

    KyRefHost host{options()};
};

}  // namespace kytest
