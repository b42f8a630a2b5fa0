// Support for the reference host's tests: a spy that records every host event
// as one line ("sysVarChanged CLAYER true"), so that a test asserts the whole
// sequence after the act; and a fixture with a host and a new drawing, and
// helpers that run command text and build drawing content in a line.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "KyRefHost.h"
#include "KyRefHostEventLines.h"
#include "db/KyDbObjectReactor.h"

namespace refhost {

using Lines = std::vector<std::string>;

std::string utf8(const wchar_t* text);
Lines utf8(const std::vector<KyString>& texts);

// Records each host event with its arguments, documents by their number in
// the order the test names them (see name()).
class EventSpy : public KyRefHostEventLines {
public:
    // Events from now on show `document` as `label`.
    void name(KyDiDocument document, std::string label);
    void add(std::string line) { m_lines.push_back(std::move(line)); }
    Lines take();
    const Lines& lines() const { return m_lines; }

protected:
    void line(const std::string& text) override { add(text); }
    std::string documentText(KyDiDocument document) const override;

private:
    Lines m_lines;
    std::vector<std::pair<KyDiDocument, std::string>> m_names;
};

// Writes "goodbye <class>" and the erase notifications of the objects it
// watches to an event spy's record, so that they stand among the host's events.
class ObjectSpy : public KyDbObjectReactor {
public:
    explicit ObjectSpy(EventSpy& spy) : m_spy(spy) {}
    void goodbye(const KyDbObject* object) override;
    void erased(const KyDbObject* object, bool erasing) override;

private:
    EventSpy& m_spy;
};

// A host on a manual clock with one new drawing, and the event spy on it.
class RefHostTest : public ::testing::Test {
protected:
    RefHostTest();
    explicit RefHostTest(const KyRefHostOptions& options);
    ~RefHostTest() override;

    static KyRefHostOptions testOptions();

    KyDbDatabase* db() const { return host->documents().currentDatabase(); }
    KyRefEditor& editor() const { return *host->editor(); }

    // Queues `text` and lets the host run it.
    void run(const wchar_t* text);
    // The command line since the last take.
    Lines takeLog();

    // Variables read through the editor, as the data item layer reads them.
    short getShort(const wchar_t* name) const;
    std::string getString(const wchar_t* name) const;
    int getVarStatus(const wchar_t* name) const;

    // Drawing content, made under the document lock and not recorded for
    // undo (a drawing the test starts from).
    KyDbObjectId addLayer(const wchar_t* name, bool locked = false, bool frozen = false);
    KyDbObjectId addEntity(const wchar_t* layer = L"0");
    static std::wstring handleOf(KyDbObjectId id);
    static bool isErased(KyDbObjectId id) { return id.isErased(); }

    std::unique_ptr<KyRefHost> host;
    EventSpy spy;
};

}  // namespace refhost
