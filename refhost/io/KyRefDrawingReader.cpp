#include "KyRefDrawingReader.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <vector>

#include "KyRefDrawingError.h"
#include "KyRefDrawingExtras.h"
#include "KyRefDrawingWriter.h"
#include "KyRefEntityRows.h"
#include "KyRefHeaderRows.h"
#include "KyRefJsonNode.h"
#include "KyRefLayerStateRows.h"
#include "KyRefObjectRows.h"
#include "KyRefReadContext.h"
#include "KyRefTableRows.h"
#include "KyRefValueForms.h"
#include "KyRefWriteContext.h"
#include "db/KyDbBlockTableRecord.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbDictionary.h"
#include "db/KyDbDictionaryIterator.h"
#include "db/KyDbLayout.h"
#include "db/KyDbObjectPointer.h"
#include "db/KyDbStandardContent.h"
#include "db/KyDbSymbolTable.h"
#include "db/KyDbUndoController.h"

namespace {

using Std = KyDbStandardContent;

// The top-level members the reader models; any other is kept as it is.
bool isModelledMember(const std::string& name) {
    static const char* const kMembers[] = {"format", "version", "header", "objects", "layerStates"};
    for (const char* member : kMembers) {
        if (name == member) {
            return true;
        }
    }
    for (const KyRefTableRow& row : KyRefTableRows::rows()) {
        if (name == row.member) {
            return true;
        }
    }
    return false;
}

// The highest handle of the file's records, entities and objects, so that
// what the reader adds takes handles above them. Faults are left to the
// reading itself.
std::uint64_t highestHandle(const KyRefJson& value) {
    std::uint64_t highest = 0;
    const auto note = [&highest](const KyRefJson& object) {
        const auto handle = object.find("handle");
        KyDbHandle parsed;
        if (handle != object.end() && handle->is_string() &&
            KyDbHandle::fromText(kyrefWide(handle->get_ref<const std::string&>()), parsed)) {
            highest = std::max(highest, parsed.value());
        }
    };
    for (const KyRefTableRow& row : KyRefTableRows::rows()) {
        const auto table = value.find(row.member);
        if (table != value.end() && table->is_array()) {
            for (const KyRefJson& record : *table) {
                if (!record.is_object()) {
                    continue;
                }
                note(record);
                const auto entities = record.find("entities");
                if (entities != record.end() && entities->is_array()) {
                    for (const KyRefJson& entity : *entities) {
                        if (entity.is_object()) {
                            note(entity);
                        }
                    }
                }
            }
        }
    }
    const auto objects = value.find("objects");
    if (objects != value.end()) {
        std::vector<const KyRefJson*> pending{&*objects};
        while (!pending.empty()) {
            const KyRefJson* current = pending.back();
            pending.pop_back();
            if (!current->is_object()) {
                continue;
            }
            note(*current);
            const auto entries = current->find("entries");
            if (entries != current->end() && entries->is_object()) {
                for (const KyRefJson& entry : *entries) {
                    pending.push_back(&entry);
                }
            }
        }
    }
    return highest;
}

// How deep a drawing may nest arrays and objects: far deeper than any drawing
// needs (a layer filter or a dictionary within another takes two levels),
// and shallow enough that nothing that walks a document runs out of stack.
constexpr std::size_t kMaxNesting = 128;

// How deep `document` nests, counted without recursion up to one level past
// `limit`.
std::size_t nestingOf(const KyRefJson& document, std::size_t limit) {
    std::size_t deepest = 0;
    std::vector<std::pair<const KyRefJson*, std::size_t>> pending{{&document, 1}};
    while (!pending.empty()) {
        const auto [value, depth] = pending.back();
        pending.pop_back();
        if (!value->is_structured()) {
            continue;
        }
        deepest = std::max(deepest, depth);
        if (deepest > limit) {
            break;
        }
        for (const KyRefJson& item : *value) {
            pending.emplace_back(&item, depth + 1);
        }
    }
    return deepest;
}

// The database keeps texts that end at their first NUL: a string of the file
// that holds one would lose what follows it. Such a file is refused at the
// string (the nesting is bounded before this runs).
void refuseNul(const KyRefJsonNode& node) {
    const KyRefJson& value = node.value();
    if (value.is_string()) {
        if (value.get_ref<const std::string&>().find('\0') != std::string::npos) {
            node.fail("expected a string without a NUL character, found " + value.dump());
        }
    } else if (value.is_object()) {
        for (auto it = value.begin(); it != value.end(); ++it) {
            if (it.key().find('\0') != std::string::npos) {
                node.fail("expected member names without a NUL character, found " +
                          KyRefJson(it.key()).dump());
            }
            refuseNul(KyRefJsonNode(*it, node, it.key()));
        }
    } else if (value.is_array()) {
        for (std::size_t i = 0; i < value.size(); ++i) {
            refuseNul(node.item(i));
        }
    }
}

class Reading {
public:
    Reading(KyDbDatabase* database, const KyRefJson& document)
        : m_db(database),
          m_root(document),
          m_extras(KyRefDrawingExtras::attach(database)),
          m_context(database, m_extras) {}

    void run() {
        readFormat();
        keepTopLevel();
        makeRoomForAdded();
        readTable(KyRefTableRows::named("linetypes"), nullptr);
        readTable(KyRefTableRows::named("layers"), &m_layers);
        readTable(KyRefTableRows::named("textStyles"), nullptr);
        readTable(KyRefTableRows::named("dimStyles"), nullptr);
        readTable(KyRefTableRows::named("ucs"), nullptr);
        readTable(KyRefTableRows::named("blocks"), &m_blocks);
        if (const auto objects = m_root.optional("objects")) {
            KyRefObjectRows::readRoot(m_context, *objects);
        }
        addStandard(Std::kDictionaries);
        if (const auto states = m_root.optional("layerStates")) {
            KyRefLayerStateRows::read(m_context, *states);
        }
        readTable(KyRefTableRows::named("views"), nullptr);
        readTable(KyRefTableRows::named("viewports"), nullptr);
        readBlockLayouts();
        addStandard(Std::kLayouts);
        KyRefHeaderRows::readDeferred(m_context);
        readEntities();
        readViewportOverrides();
        if (const auto header = m_root.optional("header")) {
            KyRefHeaderRows::read(m_context, *header);
        }
        addStandard(Std::kHeader);
        KyRefHeaderRows::noteFilled(m_context);
        noteAdded();
    }

private:
    void readFormat() {
        if (!m_root.value().is_object()) {
            m_root.fail(std::string("expected a drawing: a JSON object with \"format\": "
                                    "\"kydrawing\", found ") +
                        KyRefJsonNode::describe(m_root.value()));
        }
        const KyRefJsonNode format = m_root.required("format", "\"kydrawing\"");
        if (!format.value().is_string() || format.asString() != "kydrawing") {
            format.fail("expected \"kydrawing\", found " + format.value().dump() +
                        ": the file is not a kydrawing file");
        }
        const KyRefJsonNode version = m_root.required("version", "the version 1");
        if (!version.value().is_number_integer()) {
            version.fail(std::string("expected the version 1, found ") +
                         KyRefJsonNode::describe(version.value()));
        }
        if (version.value() > KyRefDrawingReader::kVersion) {
            version.fail("the file has version " + version.value().dump() +
                         ", newer than version 1 that this program reads");
        }
        if (version.value() < 1) {
            version.fail("expected the version 1, found " + version.value().dump());
        }
    }

    // Notes the top-level members, and keeps those the database does not
    // hold: the source, the layer filters, and unknown ones.
    void keepTopLevel() {
        for (auto it = m_root.value().begin(); it != m_root.value().end(); ++it) {
            m_extras.noteMember(it.key());
            if (isModelledMember(it.key())) {
                continue;
            }
            const KyRefJsonNode member(*it, m_root, it.key());
            if (it.key() == "source") {
                member.asString();
            } else if (it.key() == "layerFilters") {
                member.expectObject();
            }
            m_extras.topLevel()[it.key()] = *it;
        }
    }

    // Moves the handseed above every handle of the file: a table, which has
    // no handle in a file, takes the handle above the highest.
    void makeRoomForAdded() {
        const std::uint64_t highest = highestHandle(m_root.value());
        if (highest + 1 >= m_db->handseed().value()) {
            m_db->setObjectHandle(m_db->UCSTableId(), KyDbHandle(highest + 1));
        }
    }

    void addStandard(unsigned parts) {
        if (parts == 0) {
            return;
        }
        const std::uint64_t first = m_db->handseed().value();
        const Kyro::ErrorStatus status = KyDbStandardContent::add(m_db, parts);
        if (status != Kyro::eOk) {
            m_root.fail("the standard content of a drawing can't be added (status " +
                        std::to_string(static_cast<int>(status)) + ")");
        }
        m_added.emplace_back(first, m_db->handseed().value());
    }

    void readTable(const KyRefTableRow& row, std::vector<KyDbObjectId>* ids) {
        if (const auto table = m_root.optional(row.member)) {
            table->expectArray();
            KyDbObjectPointer<KyDbSymbolTable> open((m_db->*row.table)(), KyDb::kForWrite);
            for (std::size_t i = 0; i < table->size(); ++i) {
                const KyRefJsonNode node = table->item(i);
                node.expectObject();
                std::unique_ptr<KyDbSymbolTableRecord> record(row.make());
                const KyRefJsonNode name = node.required("name", "a name");
                KyRefReadContext::check(record->setName(name.asText()), name, "a valid name");
                row.read(m_context, node, *record);
                const KyDbObjectId id =
                    m_context.addRecord(open.object(), std::move(record), node, row.what);
                m_context.keepForm(id, node, *row.members, {"handle"});
                if (ids != nullptr) {
                    ids->push_back(id);
                }
            }
        }
        addStandard(row.standardPart);
    }

    // A block and its layout name each other: the block's "layout" is the
    // layout whose "block" is that block, and every layout of the file has a
    // block that names it so.
    void readBlockLayouts() {
        const auto blocks = m_root.optional("blocks");
        if (!blocks) {
            return;
        }
        for (std::size_t i = 0; i < blocks->size(); ++i) {
            const KyRefJsonNode node = blocks->item(i);
            if (const auto layout = node.optional("layout")) {
                const KyDbObjectId layoutId =
                    m_context.object(*layout, KyDbLayout::desc(), "a layout (LAYOUT object)");
                const KyDbObjectId blockOfLayout = blockOf(layoutId);
                if (blockOfLayout != m_blocks[i]) {
                    layout->fail("expected the handle of the layout whose block this is, found " +
                                 layout->value().dump() + ", the layout of " +
                                 (blockOfLayout.isNull()
                                      ? std::string("no block")
                                      : "the block \"" + handleText(blockOfLayout) + "\""));
                }
                KyDbObjectPointer<KyDbBlockTableRecord> block(m_blocks[i], KyDb::kForWrite);
                KyRefReadContext::check(block->setLayoutId(layoutId), *layout,
                                        "the handle of a layout");
            }
        }
        KyDbObjectPointer<KyDbDictionary> layouts(m_db->layoutDictionaryId(), KyDb::kForRead);
        if (layouts.openStatus() != Kyro::eOk) {
            return;
        }
        const std::unique_ptr<KyDbDictionaryIterator> it(layouts->newIterator());
        for (; !it->done(); it->next()) {
            const KyDbObjectId layoutId = it->objectId();
            const auto found = std::find(m_blocks.begin(), m_blocks.end(), blockOf(layoutId));
            if (found == m_blocks.end()) {
                continue;
            }
            const KyRefJsonNode block =
                blocks->item(static_cast<std::size_t>(found - m_blocks.begin()));
            KyDbObjectId named;
            {
                KyDbObjectPointer<KyDbBlockTableRecord> record(*found, KyDb::kForRead);
                named = record->getLayoutId();
            }
            if (named.isNull()) {
                KyRefJsonNode(block.value(), block, "layout")
                    .fail("missing; expected the handle of its layout \"" + handleText(layoutId) +
                          "\", which names this block as its own");
            }
            if (named != layoutId) {
                block.required("layout", "a layout")
                    .fail("expected the handle of its one layout, found " +
                          block.value()["layout"].dump() + ", while the layout \"" +
                          handleText(layoutId) + "\" also names this block as its own");
            }
        }
    }

    static KyDbObjectId blockOf(KyDbObjectId layoutId) {
        KyDbObjectPointer<KyDbLayout> layout(layoutId, KyDb::kForRead);
        return layout.openStatus() == Kyro::eOk ? layout->getBlockTableRecordId() : KyDbObjectId();
    }

    static std::string handleText(KyDbObjectId id) {
        return kyrefUtf8(KyDbHandle(id.handle()).text());
    }

    void readEntities() {
        const auto blocks = m_root.optional("blocks");
        if (!blocks) {
            return;
        }
        for (std::size_t i = 0; i < blocks->size(); ++i) {
            const KyRefJsonNode node = blocks->item(i);
            const auto entities = node.optional("entities");
            if (!entities || entities->size() == 0) {
                continue;
            }
            KyDbObjectPointer<KyDbBlockTableRecord> block(m_blocks[i], KyDb::kForWrite);
            for (std::size_t j = 0; j < entities->size(); ++j) {
                KyRefEntityRows::read(m_context, entities->item(j), *block.object());
            }
        }
    }

    void readViewportOverrides() {
        const auto layers = m_root.optional("layers");
        if (!layers) {
            return;
        }
        for (std::size_t i = 0; i < layers->size(); ++i) {
            KyRefTableRows::readViewportOverrides(m_context, layers->item(i), m_layers[i]);
            KyRefTableRows::readXrefOverrides(layers->item(i), m_layers[i]);
            m_context.keepSpellings(m_layers[i], layers->item(i));
        }
    }

    // Keeps the JSON of every object the reader added, to know at a save
    // whether any of them changed.
    void noteAdded() {
        KyRefWriteContext writing(m_db, &m_extras);
        for (const auto& [first, end] : m_added) {
            for (std::uint64_t handle = first; handle < end; ++handle) {
                KyDbObjectId id;
                if (m_db->getKyDbObjectId(id, KyDbHandle(handle)) != Kyro::eOk || id.isErased()) {
                    continue;
                }
                KyRefJson json = KyRefDrawingWriter::objectJson(writing, id);
                if (!json.is_null()) {
                    m_extras.noteAdded(KyDbHandle(handle), std::move(json));
                }
            }
        }
    }

    KyDbDatabase* m_db;
    KyRefJsonNode m_root;
    KyRefDrawingExtras& m_extras;
    KyRefReadContext m_context;
    std::vector<KyDbObjectId> m_layers;
    std::vector<KyDbObjectId> m_blocks;
    std::vector<std::pair<std::uint64_t, std::uint64_t>> m_added;
};

// The message of a parse error without the library's prefix.
std::string parseProblem(const std::exception& error) {
    std::string text = error.what();
    const std::size_t bracket = text.find("] ");
    if (text.rfind("[json.exception", 0) == 0 && bracket != std::string::npos) {
        text.erase(0, bracket + 2);
    }
    return text;
}

}  // namespace

std::unique_ptr<KyDbDatabase> KyRefDrawingReader::readFile(const wchar_t* path, KyString& error) {
    // The path goes to the file system as UTF-8 bytes, whatever the locale.
    std::ifstream in(std::filesystem::path(kyrefUtf8(path)), std::ios::binary);
    if (!in) {
        error = KyString::formatted(L"The file \"%ls\" can't be opened.", path);
        return nullptr;
    }
    std::ostringstream text;
    text << in.rdbuf();
    if (in.bad()) {
        error = KyString::formatted(L"The file \"%ls\" can't be read.", path);
        return nullptr;
    }
    return readText(text.str(), error);
}

std::unique_ptr<KyDbDatabase> KyRefDrawingReader::readText(std::string_view text, KyString& error) {
    KyRefJson document;
    try {
        document = KyRefJson::parse(text);
    } catch (const KyRefJson::exception& problem) {
        // A syntax error, and also a number beyond the range of a double.
        error = kyrefWide("the file is not complete, valid JSON: " + parseProblem(problem));
        return nullptr;
    }
    return readDocument(document, error);
}

std::unique_ptr<KyDbDatabase> KyRefDrawingReader::readDocument(const KyRefJson& document,
                                                               KyString& error) {
    if (nestingOf(document, kMaxNesting) > kMaxNesting) {
        error = KyString::formatted(
            L"the drawing nests arrays and objects more than %d levels "
            L"deep; expected at most %d",
            static_cast<int>(kMaxNesting), static_cast<int>(kMaxNesting));
        return nullptr;
    }
    try {
        refuseNul(KyRefJsonNode(document));
        auto database = std::make_unique<KyDbDatabase>(false);
        KyDbUndoController* undo = database->undoController();
        const bool recording = undo->isRecording();
        undo->setRecording(false);
        Reading(database.get(), document).run();
        undo->setRecording(recording);
        return database;
    } catch (const KyRefDrawingError& problem) {
        error = kyrefWide(problem.what());
    } catch (const KyRefJson::exception& problem) {
        error = kyrefWide("the drawing can't be read: " + parseProblem(problem));
    }
    return nullptr;
}
