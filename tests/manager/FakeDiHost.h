// A small host for unit tests of the manager and the system variables: open
// documents by handle, an editor that keeps typed variables, records the
// command texts and prompts it is given and refuses shorts out of a range,
// an optional viewport service, and a manual steady clock. It runs no
// command: a test plays the host's part by setting variables itself.
#pragma once

#include <cstdint>
#include <cstdlib>
#include <cwctype>
#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "base/resbuf.h"
#include "kydi/KyDiHost.h"
#include "pal/KyPal.h"

namespace kytest {

// Variable names are kept in upper case: the host's names ignore case.
inline std::wstring upper(const wchar_t* name) {
    std::wstring text(name != nullptr ? name : L"");
    for (wchar_t& ch : text) {
        ch = static_cast<wchar_t>(std::towupper(ch));
    }
    return text;
}

class FakeEditor final : public KyDiEditorService {
public:
    FakeEditor() = default;
    FakeEditor(const FakeEditor&) = delete;
    FakeEditor& operator=(const FakeEditor&) = delete;
    ~FakeEditor() override {
        for (auto& [name, record] : m_variables) {
            kyutRelRb(record);
        }
    }

    void setShort(const wchar_t* name, short value) {
        resbuf record{};
        record.restype = KYRB_SHORT;
        record.resval.rint = value;
        store(name, record);
    }
    void setReal(const wchar_t* name, double value, short code = KYRB_REAL) {
        resbuf record{};
        record.restype = code;
        record.resval.rreal = value;
        store(name, record);
    }
    void setPoint(const wchar_t* name, double x, double y) {
        resbuf record{};
        record.restype = KYRB_POINT;
        record.resval.rpoint[0] = x;
        record.resval.rpoint[1] = y;
        store(name, record);
    }
    void setText(const wchar_t* name, const wchar_t* value) {
        resbuf record{};
        record.restype = KYRB_STRING;
        record.resval.rstring = const_cast<wchar_t*>(value);
        store(name, record);
    }
    void forget(const wchar_t* name) {
        auto found = m_variables.find(upper(name));
        if (found != m_variables.end()) {
            kyutRelRb(found->second);
            m_variables.erase(found);
        }
    }
    const resbuf* variable(const wchar_t* name) const {
        auto found = m_variables.find(upper(name));
        return found != m_variables.end() ? found->second : nullptr;
    }
    // setVar refuses a short of `name` outside [low, high].
    void limit(const wchar_t* name, short low, short high) { m_limits[upper(name)] = {low, high}; }
    int readsOf(const wchar_t* name) const {
        auto found = m_reads.find(upper(name));
        return found != m_reads.end() ? found->second : 0;
    }

    Kyro::ErrorStatus sendCommand(const wchar_t* text, bool, bool, bool flag3) override {
        commands.emplace_back(text);
        lastFlag3 = flag3;
        return Kyro::eOk;
    }
    int getVar(const wchar_t* name, resbuf* out) override {
        ++m_reads[upper(name)];
        const resbuf* record = variable(name);
        if (record == nullptr) {
            return KYRT_REJECTED;
        }
        resbuf* copy = kyutCopyRb(record);
        *out = *copy;
        std::free(copy);
        return KYRT_NORM;
    }
    int setVar(const wchar_t* name, const resbuf* value) override {
        if (onSetVar) {
            onSetVar(name);
        }
        if (variable(name) == nullptr) {
            return KYRT_REJECTED;
        }
        auto limit = m_limits.find(upper(name));
        if (limit != m_limits.end() && value->restype == KYRB_SHORT &&
            (value->resval.rint < limit->second.first ||
             value->resval.rint > limit->second.second)) {
            return KYRT_REJECTED;
        }
        store(name, *value);
        return KYRT_NORM;
    }
    void prompt(const wchar_t* text) override { prompts.emplace_back(text); }
    void beginCommand(const wchar_t*) override {}
    void endCommand(const wchar_t*) override {}
    const wchar_t* localCommandName(const wchar_t* name) override { return name; }

    std::vector<std::wstring> commands;
    std::vector<std::wstring> prompts;
    bool lastFlag3 = false;
    std::function<void(const wchar_t*)> onSetVar;

private:
    void store(const wchar_t* name, const resbuf& value) {
        forget(name);
        m_variables[upper(name)] = kyutCopyRb(&value);
    }

    std::map<std::wstring, resbuf*> m_variables;
    std::map<std::wstring, std::pair<short, short>> m_limits;
    std::map<std::wstring, int> m_reads;
};

class FakeDocuments final : public KyDiDocumentManager {
public:
    int documentCount() override { return static_cast<int>(open.size()); }
    KyDiDocument document(int index) override {
        return index >= 0 && index < documentCount() ? open[static_cast<size_t>(index)]
                                                     : kKyDiNoDocument;
    }
    KyDiDocument currentDocument() override { return current; }
    KyDiDocument documentOf(KyDbDatabase* database) override {
        for (const auto& [document, db] : databases) {
            if (db == database && database != nullptr) {
                return document;
            }
        }
        return kKyDiNoDocument;
    }
    KyDbDatabase* databaseOf(KyDiDocument document) override {
        auto found = databases.find(document);
        return found != databases.end() ? found->second : nullptr;
    }
    KyDbDatabase* workingDatabase() override { return working; }
    KyString documentName(KyDiDocument) override { return KyString(); }
    bool isDocumentQuiescent(KyDiDocument) override { return true; }
    void longTransactionId(KyDbObjectId& out, KyDiDocument) override { out.setNull(); }

    // Opens a document and makes it current.
    KyDiDocument openDocument(KyDbDatabase* database = nullptr) {
        const KyDiDocument document = static_cast<KyDiDocument>(open.size()) + 0x100;
        open.push_back(document);
        databases[document] = database;
        current = document;
        return document;
    }
    void closeAll() {
        open.clear();
        databases.clear();
        current = kKyDiNoDocument;
        working = nullptr;
    }

    std::vector<KyDiDocument> open;
    std::map<KyDiDocument, KyDbDatabase*> databases;
    KyDiDocument current = kKyDiNoDocument;
    KyDbDatabase* working = nullptr;
};

class FakeDiHost final : public KyDiHost {
public:
    void addReactor(KyDiHostReactor* reactor) override {
        reactors.push_back(reactor);
        if (onAddReactor) {
            onAddReactor(reactor);
        }
    }
    void removeReactor(KyDiHostReactor* reactor) override { std::erase(reactors, reactor); }
    KyDiDocumentManager* documentManager() override { return &documents; }
    KyDiEditorService* editor() override { return withEditor ? &editorService : nullptr; }
    KyDiViewportService* viewportService() override { return nullptr; }
    KyDiVisualStyleService* visualStyleService() override { return nullptr; }
    KyDiSelectionService* selectionService() override { return nullptr; }
    KyDiRegenerationService* regenerationService() override { return nullptr; }
    KyDiUcsService* ucsService() override { return nullptr; }
    KyDiLayerService* layerService() override { return nullptr; }
    KyDiPlotService* plotService() override { return nullptr; }
    KyDiRenderService* renderService() override { return nullptr; }
    KyDiColorService* colorService() override { return nullptr; }
    KyDiScaleListService* scaleListService() override { return nullptr; }
    KyDiImageService* imageService() override { return nullptr; }
    KyDiRecentBlockService* recentBlockService() override { return nullptr; }
    void* reservedService() override { return nullptr; }
    KyDiCountingService* countingService() override { return nullptr; }

    // Raises an event to every registered reactor, on a copy of the list.
    void raise(const std::function<void(KyDiHostReactor*)>& event) {
        const std::vector<KyDiHostReactor*> copy = reactors;
        for (KyDiHostReactor* reactor : copy) {
            event(reactor);
        }
    }

    std::vector<KyDiHostReactor*> reactors;
    FakeDocuments documents;
    FakeEditor editorService;
    // A test can take the editor away.
    bool withEditor = true;
    // Called when a reactor is registered, after it was.
    std::function<void(KyDiHostReactor*)> onAddReactor;
};

// The steady clock of the process, moved by hand; it starts at 1000 s.
class ManualClock {
public:
    static constexpr std::int64_t kMillisecond = 1'000'000;

    ManualClock() { KyPal::SteadyClock::setSource(&ManualClock::read, this); }
    ~ManualClock() { KyPal::SteadyClock::setSource(nullptr, nullptr); }
    ManualClock(const ManualClock&) = delete;
    ManualClock& operator=(const ManualClock&) = delete;

    void advance(std::int64_t nanoseconds) { m_now += nanoseconds; }
    void advanceMs(std::int64_t milliseconds) { advance(milliseconds * kMillisecond); }

private:
    static std::int64_t read(void* context) { return static_cast<ManualClock*>(context)->m_now; }
    std::int64_t m_now = 1000 * 1000 * kMillisecond;
};

}  // namespace kytest
