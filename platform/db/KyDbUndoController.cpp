#include "db/KyDbUndoController.h"

#include <unordered_set>

#include "db/KyDbDatabase.h"
#include "db/KyDbNames.h"
#include "db/KyDbObjectAccess.h"
#include "db/KyDbStateFiler.h"
#include "rx/KyRxValue.h"

// One step of a group. Applying a step swaps what it holds with what the
// object (or header) holds now, so the same step serves undo and redo.
struct KyDbUndoController::Record {
    enum class Kind { kState, kErase, kAppend, kHeader };

    Kind kind = Kind::kState;
    KyDbStub* stub = nullptr;
    std::unique_ptr<KyDbStateFiler> state;  // kState: the state to put back
    bool erasing = false;                   // kErase: what the change did
    KyString name;                          // kHeader: the variable
    KyRxValue value;                        // kHeader: the value to put back
    bool hadValue = false;                  // kHeader: false when it was not set
};

struct KyDbUndoController::Group {
    KyString label;
    bool implicit = false;
    std::vector<Record> records;
    // Objects that have their before-image in the group (or came in with it).
    std::unordered_set<KyDbStub*> imaged;
    // Header variables whose old value the group holds (folded names).
    std::unordered_set<KyString, KyDbNames::Hash, KyDbNames::Equal> headerNames;
};

KyDbUndoController::KyDbUndoController(KyDbDatabase* database) : m_database(database) {}

KyDbUndoController::~KyDbUndoController() = default;

Kyro::ErrorStatus KyDbUndoController::beginUndoGroup(int, const wchar_t* label) {
    if (m_depth == 0) {
        // A change in progress outside any group ends here.
        endImplicitGroup();
        m_group = std::make_unique<Group>();
        m_group->label = KyString(label);
    }
    ++m_depth;
    return Kyro::eOk;
}

Kyro::ErrorStatus KyDbUndoController::endUndoGroup(int) {
    if (m_depth == 0) {
        return Kyro::eNotApplicable;
    }
    if (--m_depth == 0) {
        commitGroup();
    }
    return Kyro::eOk;
}

const wchar_t* KyDbUndoController::undoLabel() const {
    return m_undoGroups.empty() ? L"" : m_undoGroups.back()->label.kwszPtr();
}

const wchar_t* KyDbUndoController::redoLabel() const {
    return m_redoGroups.empty() ? L"" : m_redoGroups.back()->label.kwszPtr();
}

void KyDbUndoController::clear() {
    m_undoGroups.clear();
    m_redoGroups.clear();
    if (m_group != nullptr) {
        m_group->records.clear();
        m_group->imaged.clear();
        m_group->headerNames.clear();
    }
}

bool KyDbUndoController::records() const {
    return m_recording && !m_applying && !KyDbObjectAccess::isDestroying(m_database);
}

KyDbUndoController::Group* KyDbUndoController::currentGroup() {
    if (m_group == nullptr) {
        m_group = std::make_unique<Group>();
        m_group->implicit = m_depth == 0;
    }
    return m_group.get();
}

void KyDbUndoController::recordState(KyDbObject* object) {
    if (!records()) {
        return;
    }
    Group* group = currentGroup();
    if (!group->imaged.insert(object->objectId().stub()).second) {
        return;
    }
    Record record;
    record.kind = Record::Kind::kState;
    record.stub = object->objectId().stub();
    record.state = std::make_unique<KyDbStateFiler>();
    object->saveState(*record.state);
    group->records.push_back(std::move(record));
}

void KyDbUndoController::recordErase(KyDbObject* object, bool erasing) {
    if (!records()) {
        return;
    }
    Record record;
    record.kind = Record::Kind::kErase;
    record.stub = object->objectId().stub();
    record.erasing = erasing;
    currentGroup()->records.push_back(std::move(record));
}

void KyDbUndoController::recordAppend(KyDbObject* object) {
    if (!records()) {
        return;
    }
    Group* group = currentGroup();
    // A new object needs no before-image: undoing its append erases it.
    group->imaged.insert(object->objectId().stub());
    Record record;
    record.kind = Record::Kind::kAppend;
    record.stub = object->objectId().stub();
    group->records.push_back(std::move(record));
}

void KyDbUndoController::recordHeader(const wchar_t* name, const KyRxValue* oldValue) {
    if (!records()) {
        return;
    }
    Group* group = currentGroup();
    if (group->headerNames.insert(KyDbNames::folded(name)).second) {
        Record record;
        record.kind = Record::Kind::kHeader;
        record.name = KyString(name);
        record.hadValue = oldValue != nullptr;
        if (oldValue != nullptr) {
            record.value = *oldValue;
        }
        group->records.push_back(std::move(record));
    }
    // A header write with nothing open for write is a change of its own.
    if (group->implicit && m_database->m_writeOpenCount == 0) {
        endImplicitGroup();
    }
}

void KyDbUndoController::endImplicitGroup() {
    if (m_group != nullptr && m_group->implicit) {
        commitGroup();
    }
}

void KyDbUndoController::commitGroup() {
    std::unique_ptr<Group> group = std::move(m_group);
    if (group != nullptr && !group->records.empty()) {
        m_undoGroups.push_back(std::move(group));
        m_redoGroups.clear();
    }
}

Kyro::ErrorStatus KyDbUndoController::undo() {
    if (m_applying) {
        return Kyro::eNotApplicable;
    }
    if (m_group != nullptr && m_group->implicit) {
        if (m_database->m_writeOpenCount > 0) {
            return Kyro::eWasOpenedForWrite;
        }
        endImplicitGroup();
    }
    return apply(m_undoGroups, m_redoGroups, true);
}

Kyro::ErrorStatus KyDbUndoController::redo() {
    if (m_applying) {
        return Kyro::eNotApplicable;
    }
    return apply(m_redoGroups, m_undoGroups, false);
}

Kyro::ErrorStatus KyDbUndoController::apply(std::vector<std::unique_ptr<Group>>& from,
                                            std::vector<std::unique_ptr<Group>>& to, bool undoing) {
    if (from.empty()) {
        return Kyro::eNotApplicable;
    }
    if (const Kyro::ErrorStatus status = m_database->checkWriteLock(); status != Kyro::eOk) {
        return status;
    }
    Group& group = *from.back();
    const int count = static_cast<int>(group.records.size());
    auto recordAt = [&](int step) -> Record& {
        return group.records[static_cast<std::size_t>(undoing ? count - 1 - step : step)];
    };

    // Every object of the group, in the order the steps reach them. None may
    // be open for read or write: their openers hold them as they are.
    std::vector<KyDbObject*> objects;
    std::unordered_set<KyDbStub*> seen;
    for (int step = 0; step < count; ++step) {
        KyDbStub* stub = recordAt(step).stub;
        if (stub == nullptr || stub->object == nullptr || !seen.insert(stub).second) {
            continue;
        }
        KyDbObject* object = stub->object;
        if (KyDbObjectAccess::isOpenForWrite(object)) {
            return Kyro::eWasOpenedForWrite;
        }
        if (KyDbObjectAccess::isOpenForReadOrWrite(object)) {
            return Kyro::eWasOpenedForRead;
        }
        objects.push_back(object);
    }

    m_applying = true;
    for (KyDbObject* object : objects) {
        KyDbObjectAccess::open(object, KyDb::kForWrite);
        KyDbObjectAccess::setRestoring(object, true);
    }
    for (int step = 0; step < count; ++step) {
        Record& record = recordAt(step);
        KyDbObject* object = record.stub != nullptr ? record.stub->object : nullptr;
        switch (record.kind) {
            case Record::Kind::kState: {
                auto current = std::make_unique<KyDbStateFiler>();
                object->saveState(*current);
                object->restoreState(*record.state);
                record.state = std::move(current);
                KyDbObjectAccess::tellObjectReactors(
                    object, [object](auto* reactor) { reactor->modifyUndone(object); });
                break;
            }
            case Record::Kind::kErase: {
                const bool erased = undoing ? !record.erasing : record.erasing;
                if (object->isErased() != erased) {
                    KyDbObjectAccess::setErased(object, erased, false, false);
                }
                break;
            }
            case Record::Kind::kAppend: {
                if (object->isErased() != undoing) {
                    KyDbObjectAccess::setErased(object, undoing, false, false);
                }
                KyDbDatabase* database = m_database;
                if (undoing) {
                    KyDbObjectAccess::tellObjectReactors(
                        object, [object](auto* reactor) { reactor->unappended(object); });
                    KyDbObjectAccess::tellDatabaseReactors(
                        database, [database, object](KyDbDatabaseReactor* reactor) {
                            reactor->objectUnAppended(database, object);
                        });
                } else {
                    KyDbObjectAccess::tellObjectReactors(
                        object, [object](auto* reactor) { reactor->reappended(object); });
                    KyDbObjectAccess::tellDatabaseReactors(
                        database, [database, object](KyDbDatabaseReactor* reactor) {
                            reactor->objectReAppended(database, object);
                        });
                }
                break;
            }
            case Record::Kind::kHeader: {
                KyRxValue current;
                const bool hasCurrent = m_database->getHeaderVar(record.name, current) == Kyro::eOk;
                m_database->restoreHeaderValue(record.name,
                                               record.hadValue ? &record.value : nullptr);
                record.value = current;
                record.hadValue = hasCurrent;
                break;
            }
        }
    }
    for (KyDbObject* object : objects) {
        KyDbObjectAccess::setRestoring(object, false);
    }
    for (KyDbObject* object : objects) {
        KyDbObjectAccess::close(object);
    }
    m_applying = false;

    to.push_back(std::move(from.back()));
    from.pop_back();
    return Kyro::eOk;
}
