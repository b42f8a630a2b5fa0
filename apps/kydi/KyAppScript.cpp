#include "KyAppScript.h"

#include <charconv>
#include <optional>

#include "KyAppCollectionWatch.h"
#include "KyAppContextList.h"
#include "KyAppContextWatch.h"
#include "KyAppEffectiveKeys.h"
#include "KyAppEffectiveWatch.h"
#include "KyAppEnumCollectionWatch.h"
#include "KyAppEnumCollections.h"
#include "KyAppHostEventPrinter.h"
#include "KyAppMemberList.h"
#include "KyAppObjectContext.h"
#include "KyAppObjectWatch.h"
#include "KyAppPropertyValue.h"
#include "KyAppSession.h"
#include "KyAppStatementReader.h"
#include "KyAppSubentText.h"
#include "KyAppSysVarValue.h"
#include "KyAppSysVarWatch.h"
#include "KyAppValue.h"
#include "KyRefHost.h"
#include "KyRefManualClock.h"
#include "base/KyRxResourceInstance.h"
#include "db/KyAxDocLock.h"
#include "db/KyCmColor.h"
#include "db/KyCmTransparency.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbHandle.h"
#include "db/KyDbObjectPointer.h"
#include "db/KyDbSubEntityProvider.h"
#include "db/KyDbSymbolTable.h"
#include "db/KyDbTable.h"
#include "kydi/IKyDiSelectionItemProvider.h"
#include "kydi/KyDiColorCollection.h"
#include "kydi/KyDiContext.h"
#include "kydi/KyDiContextManager.h"
#include "kydi/KyDiCurrencyTracker.h"
#include "kydi/KyDiDataItemFactory.h"
#include "kydi/KyDiDbItem.h"
#include "kydi/KyDiDynamicObject.h"
#include "kydi/KyDiEffectiveProperty.h"
#include "kydi/KyDiFunctions.h"
#include "kydi/KyDiLayerService.h"
#include "kydi/KyDiManager.h"
#include "kydi/KyDiObservableCollection.h"
#include "kydi/KyDiObservableEnumCollection.h"
#include "kydi/KyDiSysVar.h"
#include "kydi/KyDiValueTypes.h"
#include "rx/KyRxClass.h"
#include "rx/KyRxDictionary.h"
#include "rx/KyRxDynamicLinker.h"
#include "rx/KyRxMemberQueryEngine.h"
#include "rx/KyRxProperty.h"
#include "rx/KyRxStandardAttributes.h"

namespace {

// A whole word as a number of 0 or more, with an optional leading plus.
bool parseCount(const std::string& word, long long& value) {
    const char* first = word.data() + (!word.empty() && word[0] == '+' ? 1 : 0);
    const char* last = word.data() + word.size();
    const auto [end, failure] = std::from_chars(first, last, value);
    return first != last && failure == std::errc() && end == last && value >= 0;
}

std::string statusText(Kyro::ErrorStatus status) {
    switch (status) {
        case Kyro::eNotApplicable:
            return "not applicable now";
        case Kyro::eInvalidInput:
            return "invalid input";
        case Kyro::eCannotSetSysVar:
            return "the variable can't be set";
        case Kyro::eNoCurrentDocument:
            return "no current document";
        case Kyro::eWasErased:
            return "the object is erased";
        case Kyro::eLockViolation:
            return "the document can't be locked";
        case Kyro::eInvalidName:
            return "the name is not valid";
        case Kyro::eDuplicateRecordName:
        case Kyro::eDuplicateKey:
            return "the name is taken";
        case Kyro::eCannotBeRenamed:
            return "its name is fixed";
        case Kyro::eCannotBeErasedByCaller:
            return "the drawing can't do without it";
        case Kyro::eNotSupported:
            return "not supported";
        case Kyro::eKeyNotFound:
            return "not found";
        case Kyro::eWasOpenedForWrite:
            return "the object is open for write elsewhere";
        case Kyro::eInvalidIndex:
            return "no such row or column";
        case Kyro::eAllObjectsExcluded:
            return "every object is to be left alone";
        default:
            return "status " + std::to_string(static_cast<int>(status));
    }
}

}  // namespace

KyAppScript::KyAppScript(KyAppSession& session, std::ostream& out)
    : m_session(session), m_out(out) {}

KyAppScript::~KyAppScript() {
    m_sysVarWatches.clear();
    m_objectWatches.clear();
    m_collectionWatches.clear();
    m_enumWatches.clear();
    m_contextWatches.clear();
    m_effectiveWatch.reset();
    // Out of the manager before they go, while the layer still runs.
    for (const auto& [name, context] : m_objectContexts) {
        if (KyDiContextManager* contexts = KyDiManager::getContextManager()) {
            contexts->removeContext(KyString::fromUtf8(name).kwszPtr());
        }
    }
    m_objectContexts.clear();
    if (m_hostPrinter != nullptr) {
        m_session.host().removeReactor(m_hostPrinter.get());
    }
}

std::span<const KyAppScript::Row> KyAppScript::rows() {
    using Script = KyAppScript;
    static const Row kRows[] = {
        {"open", 1, 2, "open FILE [read-only]", &Script::open},
        {"new", 0, 0, "new", &Script::newDocument},
        {"switch", 1, 1, "switch N", &Script::switchDocument},
        {"close", 0, 0, "close", &Script::close},
        {"save", 1, 1, "save FILE", &Script::save},
        {"command", 1, -1, "command TEXT", &Script::command},
        {"batch", 1, 1, "batch FILE", &Script::batch},
        {"idle", 0, 0, "idle", &Script::idle},
        {"refresh", 0, 0, "refresh", &Script::refresh},
        {"clock", 1, 1, "clock +MS", &Script::clock},
        {"echo", 0, -1, "echo TEXT", &Script::echo},
        {"select", 0, -1, "select HANDLE|HANDLE/KIND:N...", &Script::select},
        {"selection", 0, -1,
         "selection [groups | filter CLASS [CLASSNAME] | filter off | any CLASS... | only "
         "CLASS...]",
         &Script::selectionStatement},
        {"viewport", 0, 1, "viewport [HANDLE]", &Script::viewport},
        {"log", 0, 0, "log", &Script::log},
        {"watch", 1, 2,
         "watch host|sysvar NAME|object HANDLE|collection NAME|context NAME|contexts|effective",
         &Script::watch},
        {"prompts", 1, 1, "prompts on|off", &Script::prompts},
        {"answer", 2, 2, "answer turnon yes|no", &Script::answer},
        {"sysvar", 1, 2, "sysvar NAME [VALUE]", &Script::sysvar},
        {"language", 1, 1, "language CODE", &Script::language},
        {"module", 2, 2, "module load|unload NAME", &Script::module},
        {"members", 1, 1, "members HANDLE", &Script::members},
        {"collections", 0, 0, "collections", &Script::collections},
        {"items", 1, 1, "items COLLECTION", &Script::collectionStatement},
        {"current", 1, 2, "current COLLECTION [ITEM]", &Script::collectionStatement},
        {"get", 3, 3, "get COLLECTION ITEM PROPERTY", &Script::collectionStatement},
        {"set", 4, 4, "set COLLECTION ITEM PROPERTY VALUE", &Script::collectionStatement},
        {"contexts", 0, 0, "contexts", &Script::contexts},
        {"context", 1, 3, "context NAME [PROPERTY [VALUE]]", &Script::context},
        {"effective", 0, 2, "effective [KEY [VALUE]]", &Script::effective},
    };
    return kRows;
}

bool KyAppScript::runLine(const std::string& line) {
    KyAppStatement statement;
    std::string error;
    if (!KyAppStatementReader::read(line, statement, error)) {
        return error.empty() || fail(error);
    }
    for (const Row& row : rows()) {
        if (statement.name != row.name) {
            continue;
        }
        const int count = static_cast<int>(statement.words.size());
        if (count < row.minimumWords || (row.maximumWords >= 0 && count > row.maximumWords)) {
            return fail(std::string("usage: ") + row.usage);
        }
        return (this->*row.run)(statement);
    }
    return fail("unknown statement " + statement.name);
}

void KyAppScript::runAll(std::istream& in, const char* prompt) {
    std::string line;
    while (true) {
        if (prompt != nullptr) {
            m_out << prompt;
        }
        m_out.flush();
        if (!std::getline(in, line)) {
            break;
        }
        runLine(line);
    }
    if (prompt != nullptr) {
        m_out << '\n';
    }
    m_out.flush();
}

bool KyAppScript::fail(const std::string& reason) {
    m_out << "error: " << reason << '\n';
    m_anyFailed = true;
    return false;
}

KyRefDocument* KyAppScript::currentDocument() {
    KyRefDocument* document = m_session.host().documents().current();
    return document != nullptr && document->database() != nullptr ? document : nullptr;
}

bool KyAppScript::open(const KyAppStatement& statement) {
    using Mode = KyRefDocumentManager::OpenMode;
    Mode mode = Mode::kWrite;
    if (statement.words.size() == 2) {
        if (statement.words[1].text != "read-only") {
            return fail("unknown option " + statement.words[1].text + " (only read-only)");
        }
        mode = Mode::kReadOnly;
    }
    KyString error;
    if (m_session.host().documents().openDocument(KyString::fromUtf8(statement.words[0].text),
                                                  error, mode) == nullptr) {
        return fail(error.utf8());
    }
    return true;
}

bool KyAppScript::newDocument(const KyAppStatement&) {
    m_session.host().documents().newDocument();
    return true;
}

bool KyAppScript::switchDocument(const KyAppStatement& statement) {
    KyRefDocumentManager& documents = m_session.host().documents();
    long long number = 0;
    if (!parseCount(statement.words[0].text, number) || number < 1 || number > documents.count()) {
        return fail("no document " + statement.words[0].text + " (" +
                    std::to_string(documents.count()) + " open)");
    }
    documents.makeCurrent(documents.at(static_cast<int>(number) - 1));
    return true;
}

bool KyAppScript::close(const KyAppStatement&) {
    KyRefDocument* document = currentDocument();
    if (document == nullptr) {
        return fail("no document is open");
    }
    KyRefDocumentManager& documents = m_session.host().documents();
    documents.closeDocument(document);
    documents.releaseClosedDocuments();
    return true;
}

bool KyAppScript::save(const KyAppStatement& statement) {
    KyRefDocument* document = currentDocument();
    if (document == nullptr) {
        return fail("no document is open");
    }
    KyString error;
    if (!m_session.host().documents().saveDocument(
            document, KyString::fromUtf8(statement.words[0].text), error)) {
        return fail(error.utf8());
    }
    return true;
}

bool KyAppScript::command(const KyAppStatement& statement) {
    KyRefEditor* editor = m_session.host().editor();
    if (editor == nullptr) {
        return fail("the host has no command line");
    }
    const std::string text = KyAppStatementReader::commandText(statement.rest);
    editor->interpreter().queue(KyString::fromUtf8(text));
    return true;
}

bool KyAppScript::batch(const KyAppStatement& statement) {
    KyRefEditor* editor = m_session.host().editor();
    if (editor == nullptr) {
        return fail("the host has no command line");
    }
    const std::string text = "_BATCH\n" + statement.words[0].text + "\n";
    editor->interpreter().queue(KyString::fromUtf8(text));
    return true;
}

bool KyAppScript::idle(const KyAppStatement&) {
    m_session.host().idle();
    return true;
}

bool KyAppScript::refresh(const KyAppStatement&) {
    KyDiManager::refresh();
    return true;
}

bool KyAppScript::clock(const KyAppStatement& statement) {
    KyRefManualClock* clock = m_session.host().clock();
    if (clock == nullptr) {
        return fail("the clock is the real one here; only a script run moves it");
    }
    long long milliseconds = 0;
    if (!parseCount(statement.words[0].text, milliseconds)) {
        return fail("usage: clock +MS, with MS a whole number of milliseconds");
    }
    clock->advance(milliseconds);
    return true;
}

bool KyAppScript::echo(const KyAppStatement& statement) {
    m_out << statement.rest << '\n';
    return true;
}

bool KyAppScript::select(const KyAppStatement& statement) {
    KyRefDocument* document = currentDocument();
    KyRefSelectionService* selection = m_session.host().selectionService();
    if (document == nullptr) {
        return fail("no document is open");
    }
    if (selection == nullptr) {
        return fail("the host has no selection");
    }
    std::vector<KyDbObjectId> ids;
    std::vector<KyDbFullSubentPath> paths;
    for (const KyAppWord& word : statement.words) {
        KyDbObjectId id;
        std::string error;
        if (KyAppSubentText::isCells(word.text)) {
            return statement.words.size() == 1 ? selectCells(word, *selection)
                                               : fail("cells are selected alone: " + word.text);
        }
        if (!KyAppSubentText::isSubent(word.text)) {
            if (!objectOf(word, id, error)) {
                return fail(error);
            }
            ids.push_back(id);
            continue;
        }
        KyAppWord handle;
        KyDbSubentId subentId;
        if (!KyAppSubentText::parse(word.text, handle.text, subentId)) {
            return fail(word.text +
                        " is no sub-entity: HANDLE/face:N, edge:N, vertex:N or attribute:N");
        }
        if (!objectOf(handle, id, error) || !hasPart(id, subentId, error)) {
            return fail(error);
        }
        paths.emplace_back(id, subentId);
    }
    selection->setSelection(ids, paths);
    return true;
}

bool KyAppScript::selectCells(const KyAppWord& cellsWord, KyRefSelectionService& selection) {
    const std::string& word = cellsWord.text;
    KyAppWord handle;
    KyDbCellRange cells;
    if (!KyAppSubentText::parseCells(word, handle.text, cells)) {
        return fail(word + " names no cells: HANDLE/cells:ROW,COLUMN[,ROW,COLUMN]");
    }
    KyDbObjectId id;
    std::string error;
    if (!objectOf(handle, id, error)) {
        return fail(error);
    }
    const Kyro::ErrorStatus status = selection.selectCells(id, cells);
    if (status == Kyro::eNotThatKindOfClass) {
        return fail(KyAppValue::object(id.handle()).format() + " is no table");
    }
    if (status != Kyro::eOk) {
        return fail("the cells of " + KyAppValue::object(id.handle()).format() +
                    " can't be selected: " + statusText(status));
    }
    return true;
}

bool KyAppScript::hasPart(KyDbObjectId id, const KyDbSubentId& subentId, std::string& error) {
    KyDbObjectPointer<KyDbObject> object(id, KyDb::kForRead);
    if (object.openStatus() != Kyro::eOk) {
        error = "can't open " + KyAppValue::object(id.handle()).format() + ": " +
                statusText(object.openStatus());
        return false;
    }
    KyRxObject* part = nullptr;
    const Kyro::ErrorStatus status =
        KyDbSubEntityProvider::open(object.object(), part, subentId, KyDb::kForRead);
    if (status == Kyro::eOk) {
        KyDbSubEntityProvider::close(object.object(), part);
        return true;
    }
    const std::string name = KyAppValue::object(id.handle()).format();
    error = status == Kyro::eNullSubentity ? name + " has no " + KyAppSubentText::describe(subentId)
                                           : "can't open " + KyAppSubentText::describe(subentId) +
                                                 " of " + name + ": " + statusText(status);
    return false;
}

bool KyAppScript::selectionStatement(const KyAppStatement& statement) {
    if (statement.words.empty()) {
        return printSelection(statement);
    }
    auto* kinds = dynamic_cast<IKyDiSelectionItemProvider*>(
        KyDiManager::getContextManager()->getContext(L"SELECTION", true));
    if (kinds == nullptr) {
        return fail("there is no SELECTION context");
    }
    const std::string& what = statement.words[0].text;
    if (what == "groups" && statement.words.size() == 1) {
        for (int i = 0; i < kinds->getItemCount(); ++i) {
            const KyDiSelectionItem group = kinds->getItem(i);
            m_out << KyString(group.objectClass->name()).utf8() << ' '
                  << KyAppValue::text(group.className.utf8()).format() << ' '
                  << KyAppValue::text(group.localizedName.utf8()).format() << ' ' << group.count
                  << ' ' << group.analysis << '\n';
        }
        m_out << "all " << kinds->getAllGroupsFlag() << '\n';
        return true;
    }
    if (what == "filter" && statement.words.size() == 2 && statement.words[1].text == "off") {
        kinds->setFilterClass(nullptr);
        return true;
    }
    if (what == "filter" && (statement.words.size() == 2 || statement.words.size() == 3)) {
        KyRxClass* cls = kyrxFindKyRxClass(KyString::fromUtf8(statement.words[1].text).kwszPtr());
        if (cls == nullptr) {
            return fail("no class " + statement.words[1].text);
        }
        const KyString name =
            statement.words.size() == 3 ? KyString::fromUtf8(statement.words[2].text) : KyString();
        if (!kinds->setFilter(cls, name)) {
            return fail("nothing selected is of " + statement.words[1].text +
                        (name.isEmpty() ? std::string() : " " + statement.words[2].text));
        }
        return true;
    }
    if ((what == "any" || what == "only") && statement.words.size() >= 2) {
        KyArray<KyString> names;
        for (std::size_t i = 1; i < statement.words.size(); ++i) {
            names.append(KyString::fromUtf8(statement.words[i].text));
        }
        const bool answer =
            what == "any" ? kinds->containsAnyClass(names) : kinds->containsOnlyClasses(names);
        m_out << "selection " << what << ' ' << (answer ? "true" : "false") << '\n';
        return true;
    }
    return fail(
        "selection takes groups, filter CLASS [CLASSNAME], filter off, any CLASS... or "
        "only CLASS...");
}

bool KyAppScript::printSelection(const KyAppStatement&) {
    KyRefSelectionService* selection = m_session.host().selectionService();
    if (currentDocument() == nullptr) {
        return fail("no document is open");
    }
    if (selection == nullptr) {
        return fail("the host has no selection");
    }
    KyArray<KyDbObjectId> ids;
    KyDiSelectionService::SubentPathArray paths;
    selection->getSelection(ids, paths);
    if (ids.isEmpty() && paths.isEmpty()) {
        m_out << "nothing is selected\n";
    }
    for (const KyDbObjectId& id : ids) {
        m_out << KyAppValue::object(id.handle()).format();
        // A table whose cells are selected shows them.
        KyDbObjectPointer<KyDbTable> table(id, KyDb::kForRead);
        if (table.openStatus() == Kyro::eOk && table->hasSubSelection()) {
            m_out << '/' << KyAppSubentText::formatCells(table->subSelection());
        }
        m_out << '\n';
    }
    for (const KyDbFullSubentPath& path : paths) {
        m_out << KyAppSubentText::format(path) << '\n';
    }
    return true;
}

bool KyAppScript::viewport(const KyAppStatement& statement) {
    if (currentDocument() == nullptr) {
        return fail("no document is open");
    }
    KyString reason;
    if (statement.words.empty()) {
        return m_session.host().leaveViewport(&reason) == Kyro::eOk || fail(reason.utf8());
    }
    KyDbObjectId id;
    std::string error;
    if (!objectOf(statement.words[0], id, error)) {
        return fail(error);
    }
    return m_session.host().enterViewport(id, &reason) == Kyro::eOk || fail(reason.utf8());
}

bool KyAppScript::log(const KyAppStatement&) {
    for (const KyString& line : m_session.host().commandLine().takeLines()) {
        m_out << "| " << line.utf8() << '\n';
    }
    return true;
}

bool KyAppScript::watch(const KyAppStatement& statement) {
    const std::string& what = statement.words[0].text;
    const std::string name = statement.words.size() > 1 ? statement.words[1].text : std::string();
    if (what == "host" && statement.words.size() == 1) {
        if (m_hostPrinter == nullptr) {
            m_hostPrinter = std::make_unique<KyAppHostEventPrinter>(m_session.host(), m_out);
            m_session.host().addReactor(m_hostPrinter.get());
        }
        return true;
    }
    if (what == "sysvar" && !name.empty()) {
        KyDiSysVar* sysVar = KyDiManager::getSysVar(KyString::fromUtf8(name));
        if (sysVar == nullptr) {
            return fail("unknown system variable " + name);
        }
        for (const auto& watch : m_sysVarWatches) {
            if (watch->name() == name) {
                return true;
            }
        }
        m_sysVarWatches.push_back(std::make_unique<KyAppSysVarWatch>(sysVar, m_out));
        return true;
    }
    if (what == "object" && !name.empty()) {
        KyDbObjectId id;
        std::string error;
        if (!objectOf(statement.words[1], id, error)) {
            return fail(error);
        }
        auto watch = std::make_unique<KyAppObjectWatch>(id, m_out);
        if (const Kyro::ErrorStatus status = watch->start(); status != Kyro::eOk) {
            return fail("can't watch " + name + ": " + statusText(status));
        }
        m_objectWatches.push_back(std::move(watch));
        return true;
    }
    if (what == "collection" && !name.empty()) {
        if (const IKyRxEnumeration* values = KyAppEnumCollections::find(name)) {
            return watchEnumCollection(name, values);
        }
        KyDiObservableCollection* collection =
            KyDiManager::getKnownCollection(KyString::fromUtf8(name));
        if (collection == nullptr) {
            return fail("unknown collection " + name);
        }
        for (const auto& watch : m_collectionWatches) {
            if (watch->name() == name) {
                return true;
            }
        }
        m_collectionWatches.push_back(
            std::make_unique<KyAppCollectionWatch>(name, collection, m_out));
        return true;
    }
    if ((what == "context" && !name.empty()) || (what == "contexts" && name.empty())) {
        if (what == "context" && KyAppContextList::find(name) == nullptr) {
            return fail("unknown context " + name);
        }
        for (const auto& watch : m_contextWatches) {
            if (watch->name() == name) {
                return true;
            }
        }
        m_contextWatches.push_back(std::make_unique<KyAppContextWatch>(name, m_out));
        return true;
    }
    if (what == "effective" && name.empty()) {
        if (m_effectiveWatch == nullptr) {
            // A value is followed once it has been read.
            KyDiEffectiveProperty* effective = KyDiManager::getEffectiveProperty();
            for (const KyAppEffectiveKeys::Row& row : KyAppEffectiveKeys::rows()) {
                KyDiDynamicObject* item = nullptr;
                (effective->*row.get)(item);
            }
            m_effectiveWatch = std::make_unique<KyAppEffectiveWatch>(effective, m_out);
        }
        return true;
    }
    return fail(
        "usage: watch "
        "host|sysvar NAME|object HANDLE|collection NAME|context NAME|contexts|effective");
}

bool KyAppScript::sysvar(const KyAppStatement& statement) {
    const std::string& name = statement.words[0].text;
    KyDiSysVar* sysVar = KyDiManager::getSysVar(KyString::fromUtf8(name));
    if (sysVar == nullptr) {
        return fail("unknown system variable " + name);
    }
    // The value stays the variable object's own: nothing here frees it.
    resbuf current{};
    const bool hasValue = sysVar->getValue(current) == Kyro::eOk;
    if (statement.words.size() == 1) {
        m_out << name << ' '
              << (hasValue ? KyAppSysVarValue::toValue(current).format() : std::string("none"))
              << '\n';
        return true;
    }
    if (!hasValue) {
        return fail(name + " has no value whose type a new one could take");
    }
    std::string error;
    const KyAppWord& word = statement.words[1];
    const std::optional<KyAppValue> value = KyAppValue::parse(word.text, word.quoted, error);
    KyRefResbufPtr record;
    if (!value.has_value() || !KyAppSysVarValue::toRecord(*value, current.restype, record, error)) {
        return fail(error);
    }
    const Kyro::ErrorStatus status = sysVar->setValue(*record, true);
    if (status != Kyro::eOk) {
        return fail(name + " was not set: " + statusText(status));
    }
    return true;
}

bool KyAppScript::language(const KyAppStatement& statement) {
    const KyString code = KyString::fromUtf8(statement.words[0].text);
    const KyRxResourceInstance texts(L"kyplatform");
    if (!texts.hasLanguage(code)) {
        return fail("the platform has no texts in " + statement.words[0].text);
    }
    KyRxResourceInstance::setLanguage(code);
    return true;
}

bool KyAppScript::module(const KyAppStatement& statement) {
    const std::string& action = statement.words[0].text;
    if (action != "load" && action != "unload") {
        return fail("usage: module load|unload NAME");
    }
    const std::string& name = statement.words[1].text;
    const KyString wideName = KyString::fromUtf8(name);
    const auto* linker = kyrxCast<KyRxDynamicLinker>(kyrxSysRegistry()->at(KYRX_DYNAMIC_LINKER));
    if (linker == nullptr || !linker->isModuleRegistered(wideName)) {
        return fail("the host has no module " + name);
    }
    if (action == "load" && !kyrxLoadModule(wideName, false)) {
        return fail("the module " + name + " refused to start");
    }
    if (action == "unload") {
        kyrxUnloadModule(wideName);
    }
    m_out << "module " << name << (linker->isModuleLoaded(wideName) ? " loaded" : " not loaded")
          << '\n';
    return true;
}

bool KyAppScript::members(const KyAppStatement& statement) {
    KyDbObjectId id;
    std::string error;
    if (!objectOf(statement.words[0], id, error)) {
        return fail(error);
    }
    KyDiDynamicObject* item = createDataItem(KyString(), KyRxValue(id));
    m_out << KyAppValue::object(id.handle()).format() << ' '
          << KyString(id.objectClass()->name()).utf8() << '\n';
    KyAppMemberList::print(item, m_out);
    deleteItem(item);
    return true;
}

bool KyAppScript::objectOf(const KyAppWord& word, KyDbObjectId& id, std::string& error) {
    KyRefDocument* document = currentDocument();
    if (document == nullptr) {
        error = "no document is open";
        return false;
    }
    const std::string digits = word.text.rfind('#', 0) == 0 ? word.text.substr(1) : word.text;
    KyDbHandle handle;
    if (!KyDbHandle::fromText(KyString::fromUtf8(digits), handle)) {
        error = word.text + " is no handle";
        return false;
    }
    if (document->database()->getKyDbObjectId(id, handle) != Kyro::eOk || id.isErased()) {
        error = "no object #" + KyString(handle.text()).utf8() + " in the drawing";
        return false;
    }
    return true;
}

KyDiDynamicObject* KyAppScript::itemOf(KyDiCollection* collection,
                                       const std::string& collectionName, const std::string& name,
                                       std::string& error) {
    const KyString wanted = KyString::fromUtf8(name);
    const KyDiItemArray& items = collection->getItems();
    for (int i = 0; i < items.length(); ++i) {
        if (KyDiGetItemName(items[i]).compare(wanted) == 0) {
            return items[i];
        }
    }
    error = collectionName + " has no item " + KyAppValue::text(name).format();
    return nullptr;
}

bool KyAppScript::propertyStatement(const KyAppStatement& statement, KyDiDynamicObject* item,
                                    std::size_t at) {
    const std::string& name = statement.words[at].text;
    const KyString wanted = KyString::fromUtf8(name);
    const auto* property = kyrxCast<KyRxProperty>(KyDiFindMember(item, wanted));
    // A context may have properties it doesn't list: they are read by name.
    if (property == nullptr && kyrxCast<KyDiContext>(static_cast<KyRxObject*>(item)) != nullptr) {
        KyRxMemberQueryEngine* engine = KyRxMemberQueryEngine::theEngine();
        property = kyrxCast<KyRxProperty>(engine->find(item, wanted, engine->promotingContext()));
    }
    if (property == nullptr) {
        return fail(KyAppValue::text(statement.words[at - 1].text).format() + " has no property " +
                    name);
    }
    if (statement.words.size() == at + 1) {
        KyRxValue value;
        if (const Kyro::ErrorStatus status = property->getValue(item, value); status != Kyro::eOk) {
            return fail(name + " can't be read: " + statusText(status));
        }
        m_out << KyAppValue::text(statement.words[at - 1].text).format() << ' ' << name << ' '
              << KyAppPropertyValue::format(value) << '\n';
        return true;
    }
    std::string error;
    const KyAppWord& word = statement.words[at + 1];
    KyRxValue value;
    // The marker of values that differ, as a property panel writes it back.
    if (!word.quoted && word.text == "varies") {
        if (const Kyro::ErrorStatus status = property->setValue(item, KyRxValue::varies());
            status != Kyro::eOk) {
            return fail(name + " was not set: " + statusText(status));
        }
        return true;
    }
    const std::optional<KyAppValue> typed = KyAppValue::parse(word.text, word.quoted, error);
    if (!typed.has_value()) {
        return fail(error);
    }
    if (!referredItem(*property, *typed, value, error) &&
        (!error.empty() || !KyAppPropertyValue::toValue(
                               *typed, property->type(),
                               m_session.host().documents().currentDatabase(), value, error))) {
        return fail(error);
    }
    if (const Kyro::ErrorStatus status = property->setValue(item, value); status != Kyro::eOk) {
        return fail(name + " was not set: " + statusText(status));
    }
    return true;
}

void KyAppScript::printItems(const KyDiCollection* collection) {
    const KyDiItemArray& items = collection->getItems();
    for (int i = 0; i < items.length(); ++i) {
        KyRxValue value;
        items[i]->value(value);
        m_out << KyAppCollectionWatch::itemText(items[i]) << ' '
              << KyAppPropertyValue::format(value) << '\n';
    }
}

bool KyAppScript::collectionStatement(const KyAppStatement& statement) {
    const std::string& name = statement.words[0].text;
    if (const IKyRxEnumeration* values = KyAppEnumCollections::find(name)) {
        return enumStatement(statement, KyDiManager::getCollection(values));
    }
    KyDiObservableCollection* collection =
        KyDiManager::getKnownCollection(KyString::fromUtf8(name));
    std::string error;
    if (collection == nullptr) {
        return fail("unknown collection " + name);
    }
    if (statement.name == "items") {
        printItems(collection);
        return true;
    }
    if (statement.name == "current") {
        if (!collection->hasTracker()) {
            return fail(name + " has no current item");
        }
        if (statement.words.size() == 1) {
            m_out << name << ' ' << KyAppCollectionWatch::itemText(collection->getCurrentItem())
                  << '\n';
            return true;
        }
        KyDiDynamicObject* item = itemOf(collection, name, statement.words[1].text, error);
        if (item == nullptr) {
            return fail(error);
        }
        collection->setCurrentItem(item);
        return true;
    }
    KyDiDynamicObject* item = itemOf(collection, name, statement.words[1].text, error);
    return item != nullptr ? propertyStatement(statement, item, 2) : fail(error);
}

bool KyAppScript::enumStatement(const KyAppStatement& statement, KyDiCollection* collection) {
    const std::string& name = statement.words[0].text;
    if (collection == nullptr) {
        return fail("unknown collection " + name);
    }
    if (statement.name == "items") {
        printItems(collection);
        return true;
    }
    std::string error;
    KyDiDynamicObject* item = statement.words.size() > 1
                                  ? itemOf(collection, name, statement.words[1].text, error)
                                  : nullptr;
    if (statement.words.size() > 1 && item == nullptr) {
        return fail(error);
    }
    if (statement.name != "current") {
        return propertyStatement(statement, item, 2);
    }
    // A collection with a current item answers as of the last refresh; a
    // plain list's tracker answers as of now.
    auto* observable = dynamic_cast<KyDiObservableEnumCollection*>(collection);
    KyDiCurrencyTracker* tracker =
        observable == nullptr ? KyDiGetCurrencyTracker(KyString::fromUtf8(name)) : nullptr;
    if (observable == nullptr && tracker == nullptr) {
        return fail(name + " has no current item");
    }
    if (item == nullptr) {
        m_out << name << ' '
              << KyAppCollectionWatch::itemText(observable != nullptr ? observable->getCurrentItem()
                                                                      : tracker->getCurrentItem())
              << '\n';
        return true;
    }
    if (observable != nullptr) {
        observable->setCurrentItem(item);
        return true;
    }
    // The lock a collection takes for its tracker.
    const KyAxDocLock lock;
    if (lock.lockStatus() != Kyro::eOk) {
        return fail(name + " can't be set: " + statusText(lock.lockStatus()));
    }
    tracker->setCurrentItem(item);
    return true;
}

bool KyAppScript::watchEnumCollection(const std::string& name, const IKyRxEnumeration* values) {
    auto* observable =
        dynamic_cast<KyDiObservableEnumCollection*>(KyDiManager::getCollection(values));
    if (observable == nullptr) {
        return fail(name + " never changes: its items are fixed and it has no current item");
    }
    for (const auto& watch : m_enumWatches) {
        if (watch->name() == name) {
            return true;
        }
    }
    m_enumWatches.push_back(std::make_unique<KyAppEnumCollectionWatch>(name, observable, m_out));
    return true;
}

bool KyAppScript::collections(const KyAppStatement&) {
    const KyDiKnownCollectionNames names = KyDiGetKnownCollectionNames();
    for (int i = 0; i < names.length(); ++i) {
        m_out << names[i].name.utf8() << ' '
              << (names[i].built       ? "built"
                  : names[i].available ? "can be made"
                                       : "not available")
              << '\n';
    }
    return true;
}

bool KyAppScript::prompts(const KyAppStatement& statement) {
    const std::string& word = statement.words[0].text;
    if (word != "on" && word != "off") {
        return fail("usage: prompts on|off");
    }
    m_session.host().documents().setPromptsAllowed(word == "on");
    return true;
}

bool KyAppScript::answer(const KyAppStatement& statement) {
    const std::string& answer = statement.words[1].text;
    if (statement.words[0].text != "turnon" || (answer != "yes" && answer != "no")) {
        return fail("usage: answer turnon yes|no");
    }
    KyRefLayerService* layers = m_session.host().layerService();
    if (layers == nullptr) {
        return fail("the host has no layer service");
    }
    layers->setTurnOnAnswer(answer == "yes" ? KyDiLayerService::kTurnLayerOn
                                            : KyDiLayerService::kLeaveLayerOff);
    return true;
}

bool KyAppScript::contexts(const KyAppStatement&) {
    KyAppContextList::makeAll();
    for (const auto& [name, context] : KyAppContextList::inNameOrder()) {
        m_out << name << " priority " << context->priority()
              << (context->isActive() ? " active" : " inactive") << '\n';
    }
    return true;
}

KyDiContext* KyAppScript::objectContext(const KyAppWord& word, std::string& error) {
    KyDbObjectId id;
    if (!objectOf(word, id, error)) {
        return nullptr;
    }
    const std::string name = KyAppValue::object(id.handle()).format();
    auto found = m_objectContexts.find(name);
    if (found == m_objectContexts.end()) {
        auto context = std::make_unique<KyAppObjectContext>(KyString::fromUtf8(name).kwszPtr(), id);
        KyDiManager::getContextManager()->addContext(KyString::fromUtf8(name).kwszPtr(),
                                                     context.get());
        // A context binds to its object when asked whether it is active, as
        // the manager asks at every pass; the first statement needs it now.
        context->isActive();
        found = m_objectContexts.emplace(name, std::move(context)).first;
    }
    return found->second.get();
}

bool KyAppScript::context(const KyAppStatement& statement) {
    const std::string& name = statement.words[0].text;
    std::string error;
    KyDiContext* context = name.rfind('#', 0) == 0 ? objectContext(statement.words[0], error)
                                                   : KyAppContextList::find(name);
    if (context == nullptr) {
        return fail(error.empty() ? "unknown context " + name : error);
    }
    if (statement.words.size() == 1) {
        for (const auto& [property, value] : KyAppContextList::properties(context)) {
            m_out << name << ' ' << property << ' ' << value << '\n';
        }
        return true;
    }
    return propertyStatement(statement, context, 1);
}

bool KyAppScript::referredItem(const KyRxProperty& property, const KyAppValue& value,
                               KyRxValue& out, std::string& error) {
    const auto* refersTo = static_cast<const KyRxRefersToAttribute*>(
        property.attributes().get(KyRxRefersToAttribute::desc()));
    if (refersTo == nullptr || value.kind() != KyAppValue::Kind::kText ||
        property.type() == KyRxValueType::Desc<KyString>::value()) {
        return false;
    }
    KyDiObservableCollection* list = KyDiManager::getKnownCollectionFromPath(refersTo->path());
    if (list == nullptr) {
        return false;
    }
    KyDiDynamicObject* item =
        itemOf(list, KyString(refersTo->path()).utf8(), value.asText(), error);
    if (item == nullptr) {
        return false;
    }
    // A record's item is written as the record's id.
    out = KyRxValue(item);
    return true;
}

bool KyAppScript::effective(const KyAppStatement& statement) {
    if (statement.words.empty()) {
        bool allRead = true;
        for (const KyAppEffectiveKeys::Row& row : KyAppEffectiveKeys::rows()) {
            allRead = printEffective(row.key) && allRead;
        }
        return allRead;
    }
    const std::string& key = statement.words[0].text;
    const KyAppEffectiveKeys::Row* row = KyAppEffectiveKeys::find(key);
    if (row == nullptr) {
        return fail("unknown effective key " + key);
    }
    if (statement.words.size() == 1) {
        return printEffective(key);
    }
    std::string error;
    KyDiDynamicObject* item = effectiveItem(key, statement.words[1], error);
    if (item == nullptr) {
        return fail(error);
    }
    const Kyro::ErrorStatus status = (KyDiManager::getEffectiveProperty()->*row->set)(item);
    if (status != Kyro::eOk) {
        return fail(key + " was not set: " + statusText(status));
    }
    return true;
}

bool KyAppScript::printEffective(const std::string& key) {
    KyDiDynamicObject* item = nullptr;
    const Kyro::ErrorStatus status =
        (KyDiManager::getEffectiveProperty()->*KyAppEffectiveKeys::find(key)->get)(item);
    if (status != Kyro::eOk) {
        return fail(key + " can't be read: " + statusText(status));
    }
    // No item with success: the selected objects differ, or, with nothing
    // selected, nothing is current.
    std::string text;
    if (item != nullptr) {
        text = KyAppCollectionWatch::itemText(item);
    } else {
        text = m_session.host().selectionService()->hasSelection() ? "varies" : "none";
    }
    m_out << key << ' ' << text << '\n';
    return true;
}

KyDiDynamicObject* KyAppScript::effectiveItem(const std::string& key, const KyAppWord& word,
                                              std::string& error) {
    KyDiCollection* list = nullptr;
    if (const IKyRxEnumeration* values = KyAppEnumCollections::find(key)) {
        list = KyDiManager::getCollection(values);
    } else {
        list = KyDiManager::getKnownCollection(KyString::fromUtf8(key));
    }
    if (list != nullptr) {
        if (KyDiDynamicObject* item = itemOf(list, key, word.text, error)) {
            return item;
        }
    }
    const std::optional<KyAppValue> value = KyAppValue::parse(word.text, word.quoted, error);
    if (!value.has_value()) {
        return nullptr;
    }
    KyCmColor color;
    KyCmTransparency transparency;
    if (key == "COLOR" && value->toColor(color)) {
        // A colour the list doesn't hold yet enters it.
        if (auto* colors = dynamic_cast<KyDiColorCollection*>(list)) {
            return colors->addItem(color);
        }
    } else if (key == "TRANSPARENCY" && value->toTransparency(transparency)) {
        // The one item of the value, which the item cache keeps.
        return createDataItem(KyString(), KyRxValue(transparency));
    } else if (value->kind() == KyAppValue::Kind::kObject && list != nullptr) {
        const KyDiItemArray& items = list->getItems();
        for (int i = 0; i < items.length(); ++i) {
            const auto* record = kyrxCast<KyDiDbItem>(static_cast<KyRxObject*>(items[i]));
            if (record != nullptr && record->objectId().handle() == value->handle()) {
                return items[i];
            }
        }
    }
    error = key + " has no item " + value->format();
    return nullptr;
}
