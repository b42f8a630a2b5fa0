#include "KyRefReadContext.h"

#include <utility>

#include "KyRefValueForms.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbDictionary.h"
#include "db/KyDbObjectPointer.h"
#include "db/KyDbSymbolTable.h"
#include "db/KyDbSymbolTableRecord.h"
#include "rx/KyRxClass.h"

namespace {

std::string statusText(Kyro::ErrorStatus status) {
    switch (status) {
        case Kyro::eInvalidInput:
            return "a value the drawing can't take";
        case Kyro::eInvalidName:
            return "an invalid name";
        case Kyro::eNotThatKindOfClass:
            return "a reference to the wrong kind of object";
        case Kyro::eCannotBeRenamed:
            return "a name that a standard record can't take";
        default:
            return "a refusal (status " + std::to_string(static_cast<int>(status)) + ")";
    }
}

}  // namespace

KyRefReadContext::KyRefReadContext(KyDbDatabase* database, KyRefDrawingExtras& extras)
    : m_database(database), m_extras(extras) {}

KyRefReadContext::Found KyRefReadContext::lookUp(KyDbObjectId containerId, const std::string& name,
                                                 bool dictionary) {
    Names& names = m_names[containerId.stub()];
    const auto cached = names.find(name);
    if (cached != names.end()) {
        return cached->second;
    }
    Found found;
    const KyString wide = kyrefWide(name);
    if (wide.isEmpty() || containerId.isNull()) {
        return found;
    }
    // Names and keys are found in any case; the file may write them so.
    KyString actual;
    if (dictionary) {
        KyDbObjectPointer<KyDbDictionary> container(containerId, KyDb::kForRead);
        if (container.openStatus() == Kyro::eOk && container->getAt(wide, found.id) == Kyro::eOk) {
            container->nameAt(found.id, actual);
        }
    } else {
        KyDbObjectPointer<KyDbSymbolTable> container(containerId, KyDb::kForRead);
        if (container.openStatus() == Kyro::eOk && container->getAt(wide, found.id) == Kyro::eOk) {
            KyDbObjectPointer<KyDbSymbolTableRecord> record(found.id, KyDb::kForRead);
            if (record.openStatus() == Kyro::eOk) {
                actual = record->name();
            }
        }
    }
    if (!found.id.isNull()) {
        found.exact = actual == wide;
        names.emplace(name, found);
    }
    return found;
}

KyDbObjectId KyRefReadContext::noted(const Found& found, const KyRefJsonNode& node) {
    if (!found.id.isNull() && !found.exact) {
        m_spelled.push_back(&node.value());
    }
    return found.id;
}

KyDbObjectId KyRefReadContext::record(KyDbObjectId tableId, const KyRefJsonNode& node,
                                      const char* what) {
    const std::string name = node.asString();
    const KyDbObjectId id = noted(lookUp(tableId, name, false), node);
    if (id.isNull()) {
        node.fail(std::string("expected the name of a ") + what + ", found \"" + name +
                  "\", which the drawing does not have");
    }
    return id;
}

KyDbObjectId KyRefReadContext::record(KyDbObjectId tableId, const wchar_t* name,
                                      const KyRefJsonNode& node, const char* member,
                                      const char* what) {
    const KyDbObjectId id = lookUp(tableId, kyrefUtf8(name), false).id;
    if (id.isNull()) {
        KyRefJsonNode(node.value(), node, member)
            .fail(std::string("left out, which means the ") + what + " \"" + kyrefUtf8(name) +
                  "\", which the drawing does not have");
    }
    return id;
}

KyDbObjectId KyRefReadContext::entry(KyDbObjectId dictionaryId, const KyRefJsonNode& node,
                                     const char* what) {
    const std::string key = node.asString();
    const KyDbObjectId id = noted(lookUp(dictionaryId, key, true), node);
    if (id.isNull()) {
        node.fail(std::string("expected the name of a ") + what + ", found \"" + key +
                  "\", which the drawing does not have");
    }
    return id;
}

KyDbObjectId KyRefReadContext::entry(KyDbObjectId dictionaryId, const wchar_t* key,
                                     const KyRefJsonNode& node, const char* member,
                                     const char* what) {
    const KyDbObjectId id = lookUp(dictionaryId, kyrefUtf8(key), true).id;
    if (id.isNull()) {
        KyRefJsonNode(node.value(), node, member)
            .fail(std::string("left out, which means the ") + what + " \"" + kyrefUtf8(key) +
                  "\", which the drawing does not have");
    }
    return id;
}

KyDbObjectId KyRefReadContext::object(const KyRefJsonNode& node, const KyRxClass* objectClass,
                                      const char* what) const {
    const KyDbHandle handle = KyRefValueForms::handle(node);
    KyDbObjectId id;
    if (m_database->getKyDbObjectId(id, handle) != Kyro::eOk) {
        node.fail(std::string("expected the handle of ") + what + ", found \"" +
                  kyrefUtf8(handle.text()) + "\", which no object of the drawing has");
    }
    if (objectClass != nullptr &&
        (id.objectClass() == nullptr || !id.objectClass()->isDerivedFrom(objectClass))) {
        node.fail(std::string("expected the handle of ") + what + ", found \"" +
                  kyrefUtf8(handle.text()) + "\", which is another kind of object");
    }
    return id;
}

void KyRefReadContext::check(Kyro::ErrorStatus status, const KyRefJsonNode& node,
                             const char* expected) {
    if (status != Kyro::eOk) {
        node.fail(std::string("expected ") + expected + "; the drawing refused it as " +
                  statusText(status));
    }
}

KyDbObjectId KyRefReadContext::addRecord(KyDbSymbolTable* table,
                                         std::unique_ptr<KyDbSymbolTableRecord> record,
                                         const KyRefJsonNode& node, const char* what) {
    const KyRefJsonNode handleNode = node.required("handle", "a handle");
    const KyDbHandle handle = KyRefValueForms::handle(handleNode);
    KyDbObjectId id;
    const Kyro::ErrorStatus status = table->add(id, record.get(), handle);
    if (status == Kyro::eHandleInUse) {
        handleNode.fail("the handle \"" + kyrefUtf8(handle.text()) +
                        "\" is taken by another object; expected a handle of its own");
    }
    if (status == Kyro::eDuplicateRecordName) {
        node.required("name", "a name")
            .fail(std::string("another ") + what + " has the name \"" + kyrefUtf8(record->name()) +
                  "\"; expected a name of its own (in any case)");
    }
    check(status, node.required("name", "a name"), "a valid name");
    record.release()->close();
    return id;
}

KyDbObjectId KyRefReadContext::addEntry(KyDbDictionary* dictionary, const std::string& key,
                                        std::unique_ptr<KyDbObject> object,
                                        const KyRefJsonNode& node) {
    const KyRefJsonNode handleNode = node.required("handle", "a handle");
    const KyDbHandle handle = KyRefValueForms::handle(handleNode);
    const KyString wideKey = kyrefWide(key);
    if (dictionary->has(wideKey)) {
        node.fail("another entry has the key \"" + key +
                  "\"; expected a key of its own (in any case)");
    }
    KyDbObjectId id;
    const Kyro::ErrorStatus status = dictionary->setAt(wideKey, object.get(), id, handle);
    if (status == Kyro::eHandleInUse) {
        handleNode.fail("the handle \"" + kyrefUtf8(handle.text()) +
                        "\" is taken by another object; expected a handle of its own");
    }
    check(status, node, "an entry the dictionary can hold");
    object.release()->close();
    return id;
}

void KyRefReadContext::keepForm(KyDbObjectId id, const KyRefJsonNode& node,
                                const KyRefMemberList& members,
                                std::initializer_list<std::string_view> alsoKnown) {
    KyRefDrawingExtras::Form form = members.formOf(node.value(), alsoKnown);
    if (!m_pending.is_null()) {
        if (!form.unknown) {
            form.unknown = std::make_unique<KyRefJson>(KyRefJson::object());
        }
        KyRefMemberList::mergeUnknown(*form.unknown, m_pending);
        m_pending = KyRefJson();
    }
    keepSpellings(form, node);
    if (form.holdsAnything()) {
        m_extras.setForm(KyDbHandle(id.handle()), std::move(form));
    }
}

namespace {

bool holds(const KyRefJson& value, const KyRefJson* part) {
    if (&value == part) {
        return true;
    }
    if (value.is_structured()) {
        for (const KyRefJson& item : value) {
            if (holds(item, part)) {
                return true;
            }
        }
    }
    return false;
}

}  // namespace

void KyRefReadContext::keepSpellings(KyRefDrawingExtras::Form& form, const KyRefJsonNode& node) {
    if (m_spelled.empty()) {
        return;
    }
    const KyRefJson& object = node.value();
    for (auto it = object.begin(); object.is_object() && it != object.end(); ++it) {
        for (const KyRefJson* spelled : m_spelled) {
            if (holds(*it, spelled)) {
                if (!form.spelled) {
                    form.spelled = std::make_unique<KyRefJson>(KyRefJson::object());
                }
                (*form.spelled)[it.key()] = *it;
                break;
            }
        }
    }
    m_spelled.clear();
}

void KyRefReadContext::keepSpellings(KyDbObjectId id, const KyRefJsonNode& node) {
    if (!m_spelled.empty()) {
        keepSpellings(m_extras.formOf(KyDbHandle(id.handle())), node);
    }
}

void KyRefReadContext::keepUnknown(const std::string& name, KyRefJson value) {
    m_pending[name] = std::move(value);
}

void KyRefReadContext::keepReference(const std::string& member, KyDbObjectId id, bool entry) {
    m_references.push_back({member, id, entry});
}

std::vector<KyRefDrawingExtras::Reference> KyRefReadContext::takeReferences() {
    return std::exchange(m_references, {});
}
