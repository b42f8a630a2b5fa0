// The data item layer started against the reference host, with one new
// drawing open (unless the test asks for none) and the host on its manual
// clock. The host runs queued command text only when the test calls idle(),
// as a real host does when the user pauses. The layer stops at the end of the
// test, unless the test stopped it itself.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "KyRefHost.h"
#include "KyRefManualClock.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbHandle.h"
#include "kydi/KyDiManager.h"
#include "manager/RecordingReactors.h"

namespace kytest {

class RefHostFixture : public ::testing::Test {
protected:
    enum class Drawing { kNew, kNone };

    RefHostFixture() : RefHostFixture(onManualClock()) {}
    explicit RefHostFixture(const KyRefHostOptions& options, Drawing drawing = Drawing::kNew)
        : RefHostFixture(std::make_unique<KyRefHost>(options), drawing) {}
    // A host of a class derived from the reference host, built on the manual
    // clock by the test.
    explicit RefHostFixture(std::unique_ptr<KyRefHost> owned, Drawing drawing = Drawing::kNew)
        : m_host(std::move(owned)), m_drawing(drawing), host(*m_host) {}

    // `options` with the manual clock.
    static KyRefHostOptions onManualClock(KyRefHostOptions options = KyRefHostOptions()) {
        options.manualClock = true;
        return options;
    }
    // The manual clock and no editor, as in an application without a command
    // line.
    static KyRefHostOptions withoutEditor() {
        KyRefHostOptions options = onManualClock();
        options.editor = false;
        return options;
    }

    void SetUp() override {
        if (m_drawing == Drawing::kNew) {
            host.documents().newDocument();
        }
        KyDiManager::initialize(&host);
    }
    void TearDown() override { stop(); }

    void stop() {
        if (!m_stopped) {
            m_stopped = true;
            KyDiManager::uninitialize();
        }
    }

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
    // The texts the layer sent to the host since the last call, in order.
    // The host's editor is asked by its own name: a test host may hide it
    // from the layer.
    std::vector<std::wstring> sentTexts() {
        std::vector<std::wstring> texts;
        for (const KyRefEditor::SentCommand& sent : host.KyRefHost::editor()->takeSentCommands()) {
            texts.emplace_back(sent.text.kwszPtr());
        }
        return texts;
    }
    // Types `text` on the host's command line, as a user would, and lets the
    // host run it.
    void type(const wchar_t* text) {
        host.KyRefHost::editor()->interpreter().queue(text);
        host.idle();
    }
    // The object of the drawing in front with this handle ("4B"); the null id
    // when there is none.
    KyDbObjectId object(const wchar_t* handle) {
        KyDbObjectId id;
        KyDbHandle parsed;
        KyDbDatabase* db = host.documents().currentDatabase();
        if (db != nullptr && KyDbHandle::fromText(handle, parsed)) {
            db->getKyDbObjectId(id, parsed);
        }
        return id;
    }
    // The value the host holds, in the spies' notation.
    std::wstring hostValue(const wchar_t* name) {
        KyRefResbufPtr value;
        host.sysVars().get(name, value);
        return valueText(value.get());
    }

private:
    std::unique_ptr<KyRefHost> m_host;
    Drawing m_drawing;
    bool m_stopped = false;

protected:
    KyRefHost& host;
};

}  // namespace kytest
