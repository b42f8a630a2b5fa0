#include "scenarios/HostStorm.h"

#include <gtest/gtest.h>

#include <fstream>
#include <memory>

#include "KyRefDocument.h"
#include "KyRefLayoutViewports.h"
#include "KyRefManualClock.h"
#include "KyRefSelectionService.h"
#include "db/KyCmColor.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbHandle.h"
#include "kydi/KyDiContext.h"
#include "kydi/KyDiContextManager.h"
#include "kydi/KyDiEffectiveProperty.h"
#include "kydi/KyDiFunctions.h"
#include "kydi/KyDiManager.h"
#include "rx/KyRxMemberQueryEngine.h"
#include "rx/KyRxProperty.h"
#include "support/CollectionContract.h"

namespace kytest {

namespace {

// Layers of the sample drawing and of the storm's own making.
const wchar_t* const kLayerNames[] = {
    L"0",       L"Walls",        L"Doors",     L"Windows", L"Text", L"Hatch", L"Grid",
    L"Ébauche", L"Hidden Lines", L"Viewports", L"L0",      L"L1",   L"L2",    L"L3"};
// Patterns of layer names.
const wchar_t* const kLayerPatterns[] = {L"W*", L"L?", L"*s", L"~0"};
const wchar_t* const kLayerStates[] = {L"Walls only", L"Presentation", L"ST0", L"ST1", L"ST2"};
// The kind words of RECORD.
const wchar_t* const kKinds[] = {L"LAYER",
                                 L"LINETYPE",
                                 L"TEXTSTYLE",
                                 L"DIMSTYLE",
                                 L"VIEW",
                                 L"UCS",
                                 L"VIEWPORT",
                                 L"TABLESTYLE",
                                 L"MLEADERSTYLE",
                                 L"SECTIONVIEWSTYLE",
                                 L"DETAILVIEWSTYLE",
                                 L"MATERIAL",
                                 L"LAYOUT",
                                 L"PLOTSETTINGS",
                                 L"VISUALSTYLE"};
// Names the sample drawing has, of one kind or another.
const wchar_t* const kSampleNames[] = {
    L"Walls",        L"Standard",   L"Plan",    L"Details",        L"Concrete",
    L"Entrance",     L"North Wall", L"Callout", L"Metric",         L"Schedule",
    L"A3 Landscape", L"Realistic",  L"DASHED",  L"Kitchen Detail", L"*Active"};
const wchar_t* const kLayouts[] = {L"Model", L"Plan", L"Details", L"S0", L"S1"};
const wchar_t* const kUcsAnswers[] = {L"_World\n",
                                      L"_Top\n",
                                      L"_FRont\n",
                                      L"_RIght\n",
                                      L"_NAmed\n_Restore\nNorth Wall\n",
                                      L"_NAmed\n_Restore\nRotated 30\n",
                                      L"_NAmed\n_Restore\nS0\n"};
const wchar_t* const kVisualStyles[] = {L"2dWireframe\n",  L"Realistic\n",  L"Conceptual\n",
                                        L"ShadesofGray\n", L"_Other\nS0\n", L"_Other\nHidden\n"};
const wchar_t* const kLayerFlags[] = {L"IsOff", L"IsFrozen", L"IsLocked"};

std::string utf8(const std::wstring& text) {
    return KyString(text.c_str()).utf8();
}

// Command text on one line: "-LAYER\nNew\nL1\n\n" as "-LAYER|New|L1||".
std::string oneLine(const std::wstring& text) {
    std::string line = utf8(text);
    for (char& c : line) {
        if (c == '\n') {
            c = '|';
        } else if (c == '\x03') {
            c = '^';
        }
    }
    return line;
}

}  // namespace

HostStorm::HostStorm(KyRefHost& host, StormDice& dice, std::filesystem::path sample,
                     std::filesystem::path scratch, std::filesystem::path batchFile,
                     std::string& where)
    : m_host(host),
      m_dice(dice),
      m_sample(std::move(sample)),
      m_scratch(std::move(scratch)),
      m_batchFile(std::move(batchFile)),
      m_where(where) {}

void HostStorm::announce(const char* kind, const std::string& text) {
    ++m_mix[kind];
    m_where = "step " + std::to_string(m_steps) + " (" + kind + "): " + text;
}

void HostStorm::type(const char* kind, const std::wstring& text) {
    announce(kind, oneLine(text));
    KyRefCommandInterpreter& interpreter = m_host.KyRefHost::editor()->interpreter();
    interpreter.queue(text.c_str());
    m_host.idle();
    if (interpreter.isWaiting()) {
        interpreter.queue(L"\x03");
        m_host.idle();
    }
}

void HostStorm::step() {
    ++m_steps;
    // Without a drawing most of what a user does is refused; more often than
    // not one is opened first.
    if (m_host.documents().count() == 0) {
        ++m_mix["(no drawing open)"];
        if (!m_dice.oneIn(3)) {
            document();
            return;
        }
    }
    const int roll = m_dice.pick(100);
    if (roll < 16) {
        layerCommand();
    } else if (roll < 21) {
        layerState();
    } else if (roll < 25) {
        viewportLayer();
    } else if (roll < 38) {
        record();
    } else if (roll < 47) {
        undo();
    } else if (roll < 50) {
        batch();
    } else if (roll < 52) {
        unfinished();
    } else if (roll < 57) {
        layout();
    } else if (roll < 62) {
        viewport();
    } else if (roll < 67) {
        view();
    } else if (roll < 74) {
        currentItem();
    } else if (roll < 77) {
        layerItem();
    } else if (roll < 80) {
        readItem();
    } else if (roll < 88) {
        document();
    } else if (roll < 91) {
        entity();
    } else if (roll < 95) {
        selection();
    } else {
        refresh();
    }
}

std::wstring HostStorm::layerName() {
    return m_dice.among(kLayerNames);
}

std::wstring HostStorm::layerList() {
    if (m_dice.oneIn(6)) {
        return m_dice.among(kLayerPatterns);
    }
    std::wstring list = layerName();
    for (int more = m_dice.pick(3); more > 0; --more) {
        list += L"," + layerName();
    }
    return list;
}

std::wstring HostStorm::recordName() {
    if (m_dice.oneIn(3)) {
        return m_dice.among(kSampleNames);
    }
    return L"S" + std::to_wstring(m_dice.pick(6));
}

std::wstring HostStorm::randomCommand() {
    switch (m_dice.pick(8)) {
        case 0:
            return L"-LAYER\nNew\n" + layerList() + L"\n\n";
        case 1:
            return L"-LAYER\nColor\n" + std::to_wstring(1 + m_dice.pick(7)) + L"\n" + layerList() +
                   L"\n\n";
        case 2:
            return L"-LAYER\n" + std::wstring(m_dice.oneIn(2) ? L"Freeze" : L"Thaw") + L"\n" +
                   layerList() + L"\n\n";
        case 3:
            return L"-LAYER\nSet\n" + layerName() + L"\n\n";
        case 4:
            return L"VPLAYER\nFreeze\n" + layerList() + L"\nAll\n\n";
        case 5:
            return L"RECORD\n_Rename\n" + std::wstring(m_dice.among(kKinds)) + L"\n" +
                   recordName() + L"\n" + recordName() + L"\n";
        case 6:
            return L"U\n";
        default:
            return L"RECORD\n_New\n" + std::wstring(m_dice.among(kKinds)) + L"\n" + recordName() +
                   L"\n";
    }
}

void HostStorm::layerCommand() {
    std::wstring text = L"-LAYER\n";
    switch (m_dice.pick(12)) {
        case 0:
            text += L"New\n" + layerList() + L"\n";
            break;
        case 1:
            text += L"Make\n" + layerName() + L"\n";
            break;
        case 2:
            text += L"Set\n" + layerName() + L"\n";
            break;
        case 3:
        case 4:
            text += L"Color\n" + std::to_wstring(1 + m_dice.pick(7)) + L"\n" + layerList() + L"\n";
            break;
        case 5:
            text += L"ON\n" + layerList() + L"\n";
            break;
        case 6:
            // Turning the current layer off asks first.
            text += L"OFF\n" + layerList() + L"\n" + (m_dice.oneIn(2) ? L"_Yes\n" : L"");
            break;
        case 7:
            text += L"Freeze\n" + layerList() + L"\n";
            break;
        case 8:
            text += L"Thaw\n" + layerList() + L"\n";
            break;
        case 9:
            text +=
                std::wstring(m_dice.oneIn(2) ? L"LOck" : L"Unlock") + L"\n" + layerList() + L"\n";
            break;
        case 10:
            text += L"Ltype\n" + std::wstring(m_dice.oneIn(2) ? L"DASHED" : L"Continuous") + L"\n" +
                    layerList() + L"\n";
            break;
        default:
            text += L"Description\nStorm " + std::to_wstring(m_dice.pick(100)) + L"\n" +
                    layerList() + L"\n";
            break;
    }
    // Now and then two options in one command.
    if (m_dice.oneIn(4)) {
        text += L"Color\n" + std::to_wstring(1 + m_dice.pick(7)) + L"\n" + layerList() + L"\n";
    }
    type("layer", text + L"\n");
}

void HostStorm::layerState() {
    static const wchar_t* const kOptions[] = {L"Save", L"Save", L"Restore", L"Restore", L"Delete"};
    type("layer state", L"-LAYER\nSTate\n" + std::wstring(m_dice.among(kOptions)) + L"\n" +
                            m_dice.among(kLayerStates) + L"\n\n");
}

void HostStorm::viewportLayer() {
    static const wchar_t* const kWhere[] = {L"Current", L"All", L""};
    type("viewport layer", L"VPLAYER\n" + std::wstring(m_dice.oneIn(2) ? L"Freeze" : L"Thaw") +
                               L"\n" + layerList() + L"\n" + m_dice.among(kWhere) + L"\n\n");
}

void HostStorm::record() {
    const std::wstring kind = m_dice.among(kKinds);
    const std::wstring name = kind == L"LAYER" ? layerName() : recordName();
    switch (m_dice.pick(7)) {
        case 0:
        case 1:
        case 2:
            type("record", L"RECORD\n_New\n" + kind + L"\n" + name + L"\n");
            break;
        case 3:
        case 4:
            type("record", L"RECORD\n_Rename\n" + kind + L"\n" + name + L"\n" +
                               (kind == L"LAYER" ? layerName() : recordName()) + L"\n");
            break;
        default:
            type("record", L"RECORD\n_Erase\n" + kind + L"\n" + name + L"\n");
            break;
    }
}

void HostStorm::undo() {
    switch (m_dice.pick(8)) {
        case 0:
        case 1:
        case 2:
            type("undo", L"U\n");
            break;
        case 3:
            type("undo", L"UNDO\n" + std::to_wstring(1 + m_dice.pick(4)) + L"\n");
            break;
        case 4:
            type("undo", m_dice.oneIn(2) ? L"UNDO\n_Mark\n" : L"UNDO\n_Back\n");
            break;
        default:
            type("undo", L"REDO\n");
            break;
    }
}

void HostStorm::batch() {
    std::wstring text;
    for (int count = 1 + m_dice.pick(4); count > 0; --count) {
        text += randomCommand();
    }
    // Now and then a batch that leaves its last command waiting, or that
    // asks for a batch of its own.
    if (m_dice.oneIn(6)) {
        text += L"-LAYER\nColor\n";
    } else if (m_dice.oneIn(10)) {
        text += L"BATCH\n" + m_batchFile.wstring() + L"\n";
    }
    std::ofstream(m_batchFile) << utf8(text);
    if (m_beforeBatch) {
        m_beforeBatch();
    }
    m_batchRan = true;
    type("batch", L"BATCH\n" + m_batchFile.wstring() + L"\n");
    m_where += " with " + oneLine(text);
}

void HostStorm::unfinished() {
    // A command waits for its next answer while the user does something
    // else: cancels, switches drawings, or closes the one it runs in.
    const std::wstring text = m_dice.oneIn(2) ? L"-LAYER\nColor\n3\n" : L"RECORD\n_New\n";
    announce("unfinished", oneLine(text));
    KyRefCommandInterpreter& interpreter = m_host.KyRefHost::editor()->interpreter();
    interpreter.queue(text.c_str());
    m_host.idle();
    KyRefDocumentManager& documents = m_host.documents();
    switch (m_dice.pick(3)) {
        case 0:
            m_where += " then cancelled";
            interpreter.queue(L"\x03");
            m_host.idle();
            break;
        case 1:
            m_where += " then another drawing";
            if (documents.count() < 2) {
                documents.newDocument();
            } else {
                documents.makeCurrent(documents.at(m_dice.pick(documents.count())));
            }
            break;
        default:
            m_where += " then its drawing closed";
            if (documents.current() != nullptr) {
                documents.closeDocument(documents.current());
            }
            break;
    }
    if (interpreter.isWaiting()) {
        interpreter.queue(L"\x03");
        m_host.idle();
    }
}

void HostStorm::entity() {
    // Entities of the sample drawing, by handle.
    static const wchar_t* const kHandles[] = {L"4A", L"4B", L"4C", L"4E", L"52", L"54"};
    const std::wstring point =
        std::to_wstring(m_dice.pick(20)) + L"," + std::to_wstring(m_dice.pick(20));
    switch (m_dice.pick(6)) {
        case 0:
            type("entity", L"LINE\n" + point + L"\n5,5\n\n");
            break;
        case 1:
            type("entity", L"CIRCLE\n" + point + L"\n2\n");
            break;
        case 2:
            type("entity", L"-INSERT\nDoor\n" + point + L"\n1\n0\n");
            break;
        case 3:
            type("entity", L"ERASE\n" + std::wstring(m_dice.among(kHandles)) + L"\n\n");
            break;
        default:
            type("entity", L"CHPROP\n" + std::wstring(m_dice.among(kHandles)) + L"\n\n_LAyer\n" +
                               layerName() + L"\n\n");
            break;
    }
}

void HostStorm::selection() {
    // Entities of the sample drawing, and a layer record (no entity).
    static const wchar_t* const kHandles[] = {L"4A", L"4B", L"4C", L"4D", L"4E", L"52",
                                              L"54", L"5B", L"5C", L"5E", L"BB", L"30"};
    KyRefSelectionService* selection = m_host.selectionService();
    KyDbDatabase* database = m_host.documents().currentDatabase();
    switch (m_dice.pick(5)) {
        case 0:
            announce("selection", "clear");
            selection->clear();
            break;
        case 1: {
            // What the property bar does: a layer for everything selected.
            KyDiObservableCollection* layers = KyDiManager::getKnownCollection(L"LAYER");
            const int count = layers != nullptr ? layers->getItems().length() : 0;
            KyDiDynamicObject* layer = count > 0 ? layers->getItems()[m_dice.pick(count)] : nullptr;
            announce("selection", "effective layer " + KyDiGetItemName(layer).utf8());
            if (layer != nullptr) {
                KyDiManager::getEffectiveProperty()->setLayer(layer);
            }
            m_host.idle();
            break;
        }
        default: {
            std::vector<KyDbObjectId> ids;
            std::string text;
            for (int count = 1 + m_dice.pick(4); count > 0; --count) {
                const wchar_t* handle = m_dice.among(kHandles);
                KyDbHandle parsed;
                KyDbObjectId id;
                if (database != nullptr && KyDbHandle::fromText(handle, parsed) &&
                    database->getKyDbObjectId(id, parsed) == Kyro::eOk) {
                    ids.push_back(id);
                    text += " " + KyString(handle).utf8();
                }
            }
            announce("selection", "select" + text);
            selection->setSelection(ids);
            break;
        }
    }
}

void HostStorm::layout() {
    const std::wstring name = m_dice.among(kLayouts);
    switch (m_dice.pick(4)) {
        case 0:
        case 1:
            type("layout", L"CTAB\n" + name + L"\n");
            break;
        case 2:
            announce("layout", "setLayoutByName " + utf8(name));
            m_host.plotService()->setLayoutByName(name.c_str());
            break;
        default:
            type("layout", L"TILEMODE\n" + std::wstring(m_dice.oneIn(2) ? L"0" : L"1") + L"\n");
            break;
    }
}

void HostStorm::viewport() {
    KyDbDatabase* database = m_host.documents().currentDatabase();
    switch (m_dice.pick(4)) {
        case 0:
        case 1: {
            const int number = 2 + m_dice.pick(3);
            announce("viewport", "enterViewport " + std::to_string(number));
            const KyDbObjectId id = database != nullptr
                                        ? KyRefLayoutViewports::numbered(database, number)
                                        : KyDbObjectId();
            m_host.enterViewport(id);
            break;
        }
        case 2:
            announce("viewport", "leaveViewport");
            m_host.leaveViewport();
            break;
        default:
            type("viewport", L"CVPORT\n" + std::to_wstring(1 + m_dice.pick(4)) + L"\n");
            break;
    }
}

void HostStorm::view() {
    switch (m_dice.pick(6)) {
        case 0:
            type("view", L"_.UCS\n" + std::wstring(m_dice.among(kUcsAnswers)));
            break;
        case 1:
            type("view", L"VSCURRENT\n" + std::wstring(m_dice.among(kVisualStyles)));
            break;
        case 2:
            type("view", m_dice.oneIn(2)
                             ? L"LUPREC\n" + std::to_wstring(m_dice.pick(5)) + L"\n"
                             : L"VIEWRES\n" + std::to_wstring(500 * (1 + m_dice.pick(4))) + L"\n");
            break;
        case 3:
            type("view", L"REPAINT\n");
            break;
        case 4: {
            const std::filesystem::path& file = m_dice.oneIn(2) ? m_sample : m_scratch;
            type("view", L"-XATTACH\n" + file.wstring() + L"\n");
            break;
        }
        default:
            announce("view", "regenerateAll");
            m_host.regenerateAll();
            break;
    }
}

void HostStorm::currentItem() {
    if (m_collections.empty()) {
        return;
    }
    KyDiObservableCollection* collection = m_collections[m_dice.pick(m_collections.size())];
    const KyDiItemArray& items = collection->getItems();
    if (items.isEmpty()) {
        announce("current item", "none to choose");
        return;
    }
    KyDiDynamicObject* item = items[m_dice.pick(items.length())];
    const std::string text = "collection item " + itemName(item) + " made current";
    announce("current item", text);
    collection->setCurrentItem(item);
    m_host.idle();
}

void HostStorm::layerItem() {
    KyDiObservableCollection* layers = KyDiManager::getKnownCollection(L"LAYER");
    const KyDiItemArray& items = layers->getItems();
    if (items.isEmpty()) {
        announce("layer item", "no layer");
        return;
    }
    KyDiDynamicObject* item = items[m_dice.pick(items.length())];
    const bool color = m_dice.oneIn(3);
    const wchar_t* member = color ? L"Color" : m_dice.among(kLayerFlags);
    const bool on = m_dice.oneIn(2);
    announce("layer item", itemName(item) + " " + utf8(member) + " written");
    const auto* property = kyrxCast<KyRxProperty>(KyDiFindMember(item, member));
    if (property == nullptr) {
        return;
    }
    if (color) {
        KyCmColor value;
        value.setColorIndex(static_cast<unsigned short>(1 + m_dice.pick(7)));
        property->setValue(item, KyRxValue(value));
    } else {
        property->setValue(item, KyRxValue(on));
    }
}

void HostStorm::readItem() {
    KyDiDynamicObject* object = nullptr;
    std::string text;
    if (m_dice.oneIn(4)) {
        object = KyDiManager::getContextManager()->getContext(L"VIEWPORT", false);
        text = "the viewport context";
    } else if (!m_collections.empty()) {
        KyDiObservableCollection* collection = m_collections[m_dice.pick(m_collections.size())];
        const KyDiItemArray& items = collection->getItems();
        if (!items.isEmpty()) {
            object = items[m_dice.pick(items.length())];
            text = itemName(object);
        }
    }
    announce("read", "every member of " + text);
    if (object == nullptr) {
        return;
    }
    const std::unique_ptr<KyRxMemberIterator> members(object->newMemberIterator());
    for (; members != nullptr && !members->done(); members->next()) {
        if (const auto* property = kyrxCast<KyRxProperty>(members->current())) {
            KyRxValue value;
            property->getValue(object, value);
            value.text();
        }
    }
}

void HostStorm::document() {
    KyRefDocumentManager& documents = m_host.documents();
    const int count = documents.count();
    KyString error;
    switch (m_dice.pick(count == 0 ? 3 : 8)) {
        case 0:
            announce("document", "open the sample");
            if (count < 4) {
                documents.openDocument(m_sample.wstring().c_str(), error);
            }
            break;
        case 1:
            announce("document", "open the scratch copy");
            if (count < 4) {
                documents.openDocument(m_scratch.wstring().c_str(), error);
            }
            break;
        case 2:
            announce("document", "new");
            if (count < 4) {
                documents.newDocument();
            }
            break;
        case 3:
            announce("document", "save to the scratch copy");
            documents.saveDocument(documents.current(), m_scratch.wstring().c_str(), error);
            break;
        case 4:
        case 5: {
            const int index = m_dice.pick(count);
            announce("document", "switch to " + std::to_string(index));
            documents.makeCurrent(documents.at(index));
            break;
        }
        default: {
            const int index = m_dice.pick(count);
            announce("document", "close " + std::to_string(index));
            documents.closeDocument(documents.at(index));
            break;
        }
    }
    // A drawing that can't be read is a fault of the storm's own files.
    if (!error.isEmpty()) {
        ADD_FAILURE() << m_where << ": " << error.utf8();
    }
    m_host.idle();
}

void HostStorm::refresh() {
    switch (m_dice.pick(4)) {
        case 0:
            announce("refresh", "forced pass");
            KyDiManager::refresh();
            break;
        case 1:
            announce("refresh", "clock only");
            m_host.clock()->advance(m_dice.pick(400));
            break;
        default: {
            const int milliseconds = m_dice.pick(400);
            announce("refresh", "clock +" + std::to_string(milliseconds) + " and a request");
            m_host.clock()->advance(milliseconds);
            m_host.events().raiseRefreshNeeded(false);
            break;
        }
    }
}

}  // namespace kytest
