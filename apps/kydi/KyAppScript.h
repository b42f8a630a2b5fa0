// KyAppScript: runs the statements of `kydi run` and `kydi shell` against a
// session, one line at a time. Each statement prints what it shows on `out`;
// one that fails prints "error: " and the reason, and the next line runs all
// the same. The watches a script sets print there too, as the events come.
//
// Statements (documents are numbered from 1 in the order they were opened):
//   open FILE, new, switch N, close, save FILE
//   command TEXT       queues TEXT as typed (\n a new line, \e the cancel character)
//   batch FILE         queues the host's BATCH command for FILE: at the next
//                      idle the host runs the file's commands between
//                      documentBecameBusy and documentBecameQuiet
//   idle               the host runs what is queued
//   refresh            a forced refresh pass
//   clock +MS          moves the host's manual clock
//   echo TEXT          prints TEXT
//   select HANDLE...   sets the selection of the current document
//   viewport [HANDLE]  enters a viewport of the layout shown, as a click into it
//                      does; alone it goes back to the paper
//   log                the host's command line since the last log, each line behind "| "
//   watch host | sysvar NAME | object HANDLE | collection NAME | context NAME | contexts
//         | effective (reads every effective value first, so that each is followed)
//   prompts on|off     whether the current document can take a prompt
//   answer turnon yes|no  what the host's layer service answers when asked to
//                      turn an off current layer on
//   sysvar NAME [VALUE]
//   language CODE      the platform's texts: "base" or a language of its texts ("de")
//   module load|unload NAME  loads or unloads a module the host made known
//                      ("KYSYNERGYOBJ"), and prints whether it is loaded
//   members HANDLE     the members of a drawing object as a palette sees them
//   collections        the names of the known collections: built, can be made, or not
//                      available in this build
//   items COLLECTION, current COLLECTION [ITEM], get COLLECTION ITEM PROPERTY,
//   set COLLECTION ITEM PROPERTY VALUE   (a known collection, or the values of an
//                      enumeration: LINEWEIGHT, with a current item, and SHADOWDISPLAY,
//                      whose tracker answers the current one)
//   contexts           the contexts by name, with priority and activity
//   context NAME [PROPERTY [VALUE]]  a context's properties, or one read or written
//                      (also one a context doesn't list, by name); an item of the
//                      list a property refers to is named by its display name
//   effective [KEY [VALUE]]  the effective values (the twelve keys LAYER ...
//                      TRANSPARENCY), one of them, or one set to an item of its
//                      list by display name or to a value in the program's forms
#pragma once

#include <istream>
#include <map>
#include <memory>
#include <ostream>
#include <span>
#include <string>
#include <vector>

#include "KyAppStatement.h"

class IKyRxEnumeration;
class KyAppCollectionWatch;
class KyAppContextWatch;
class KyAppEffectiveWatch;
class KyAppEnumCollectionWatch;
class KyAppValue;
class KyAppHostEventPrinter;
class KyDiCollection;
class KyAppObjectWatch;
class KyDbObjectId;
class KyDbSubentId;
class KyDiDynamicObject;
class KyAppObjectContext;
class KyDiContext;
class KyAppSession;
class KyAppSysVarWatch;
class KyRefDocument;
class KyRefSelectionService;
class KyRxProperty;
class KyRxValue;

class KyAppScript {
public:
    KyAppScript(KyAppSession& session, std::ostream& out);
    // Takes back every watch.
    ~KyAppScript();
    KyAppScript(const KyAppScript&) = delete;
    KyAppScript& operator=(const KyAppScript&) = delete;

    // Runs the statement of one line; false when it failed.
    bool runLine(const std::string& line);
    // Runs every line of `in`. A non-null `prompt` is written before each
    // line is read.
    void runAll(std::istream& in, const char* prompt = nullptr);
    // True once any statement failed.
    bool anyFailed() const { return m_anyFailed; }

    struct Row {
        const char* name;
        int minimumWords;
        int maximumWords;  // -1: any number
        const char* usage;
        bool (KyAppScript::*run)(const KyAppStatement& statement);
    };
    static std::span<const Row> rows();

private:
    bool fail(const std::string& reason);
    KyRefDocument* currentDocument();
    // The object of a handle word ("#1F" or "1F") in the current document,
    // not erased; false with `error` otherwise.
    bool objectOf(const KyAppWord& word, KyDbObjectId& id, std::string& error);
    // True when the object `id` has the part `subentId` (a face, an edge, a
    // vertex or an attribute that the provider opens); the reason otherwise.
    // `select HANDLE/cells:...`: the cells of a table, selected alone.
    bool selectCells(const KyAppWord& cellsWord, KyRefSelectionService& selection);
    static bool hasPart(KyDbObjectId id, const KyDbSubentId& subentId, std::string& error);
    // The item `name` of a collection, by its display name; null with
    // `error` when there is none.
    static KyDiDynamicObject* itemOf(KyDiCollection* collection, const std::string& collectionName,
                                     const std::string& name, std::string& error);
    // Reads (or, with a value after it, writes) the property named by word
    // `at` of `item`; the word before names the item.
    bool propertyStatement(const KyAppStatement& statement, KyDiDynamicObject* item,
                           std::size_t at);

    bool open(const KyAppStatement& statement);
    bool newDocument(const KyAppStatement& statement);
    bool switchDocument(const KyAppStatement& statement);
    bool close(const KyAppStatement& statement);
    bool save(const KyAppStatement& statement);
    bool command(const KyAppStatement& statement);
    bool batch(const KyAppStatement& statement);
    bool idle(const KyAppStatement& statement);
    bool refresh(const KyAppStatement& statement);
    bool clock(const KyAppStatement& statement);
    bool echo(const KyAppStatement& statement);
    bool select(const KyAppStatement& statement);
    bool printSelection(const KyAppStatement& statement);
    // `selection groups`, `filter CLASS [CLASSNAME]`, `filter off`, `any`,
    // `only`: the SELECTION context's groups by kind and its filter.
    bool selectionStatement(const KyAppStatement& statement);
    bool viewport(const KyAppStatement& statement);
    bool log(const KyAppStatement& statement);
    bool watch(const KyAppStatement& statement);
    bool sysvar(const KyAppStatement& statement);
    bool language(const KyAppStatement& statement);
    bool module(const KyAppStatement& statement);
    bool members(const KyAppStatement& statement);
    bool collections(const KyAppStatement& statement);
    bool collectionStatement(const KyAppStatement& statement);
    // Each item of `collection` with its value, one a line.
    void printItems(const KyDiCollection* collection);
    // items, current, get and set on the collection of an enumeration.
    bool enumStatement(const KyAppStatement& statement, KyDiCollection* collection);
    // watch collection for the collection of an enumeration: only one with a
    // current item can change.
    bool watchEnumCollection(const std::string& name, const IKyRxEnumeration* values);
    bool prompts(const KyAppStatement& statement);
    bool answer(const KyAppStatement& statement);
    bool contexts(const KyAppStatement& statement);
    bool context(const KyAppStatement& statement);
    // The program's context over the object `word` names ("#4B"), made and
    // added to the manager at its first use; null with `error`.
    KyDiContext* objectContext(const KyAppWord& word, std::string& error);
    // The item of the list that `property` refers to whose display name is
    // `value`'s text, as a value for the property. False, with `error` when
    // the list has no such item, or without `error` when the property refers
    // to no list or `value` is no text.
    static bool referredItem(const KyRxProperty& property, const KyAppValue& value, KyRxValue& out,
                             std::string& error);
    bool effective(const KyAppStatement& statement);
    // Prints KEY and the item of the effective value of `key`.
    bool printEffective(const std::string& key);
    // The item that `word` names for the effective value of `key`: an item of
    // the key's list by display name, a colour, a transparency, or a record
    // by handle.
    static KyDiDynamicObject* effectiveItem(const std::string& key, const KyAppWord& word,
                                            std::string& error);

    KyAppSession& m_session;
    std::ostream& m_out;
    std::unique_ptr<KyAppHostEventPrinter> m_hostPrinter;
    std::vector<std::unique_ptr<KyAppSysVarWatch>> m_sysVarWatches;
    std::vector<std::unique_ptr<KyAppObjectWatch>> m_objectWatches;
    std::vector<std::unique_ptr<KyAppCollectionWatch>> m_collectionWatches;
    std::vector<std::unique_ptr<KyAppEnumCollectionWatch>> m_enumWatches;
    std::vector<std::unique_ptr<KyAppContextWatch>> m_contextWatches;
    std::unique_ptr<KyAppEffectiveWatch> m_effectiveWatch;
    // The object contexts of `context #HANDLE`, by name.
    std::map<std::string, std::unique_ptr<KyAppObjectContext>> m_objectContexts;
    bool m_anyFailed = false;
};
