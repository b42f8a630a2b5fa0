// The attribute classes of the reflection library, the resource tables behind
// their localised texts, and the reference paths of KyRxRefersToAttribute.
#include "rx/KyRxStandardAttributes.h"

#include <map>
#include <memory>
#include <vector>

#include "base/KyRxResourceInstance.h"
#include "rx/KyRxClass.h"
#include "rx/KyRxMemberQueryEngine.h"
#include "rx/KyRxProperty.h"

KYRX_DEFINE_MEMBERS(KyRxAffinityAttribute, KyRxAttribute)
KYRX_DEFINE_MEMBERS(KyRxCumulativeAttribute, KyRxAttribute)
KYRX_DEFINE_MEMBERS(KyRxFlagsAttribute, KyRxAttribute)
KYRX_DEFINE_MEMBERS(KyRxDescriptionAttribute, KyRxAttribute)
KYRX_DEFINE_MEMBERS(KyRxLocalizedNameAttribute, KyRxAttribute)
KYRX_DEFINE_MEMBERS(KyRxDisplayAsAttribute, KyRxAttribute)
KYRX_DEFINE_MEMBERS(KyRxRefersToAttribute, KyRxAttribute)
KYRX_DEFINE_MEMBERS(KyRxUiPlacementAttribute, KyRxAttribute)
KYRX_DEFINE_MEMBERS(KyRxUnitTypeAttribute, KyRxAttribute)

namespace {

// Which module serves each table, and the modules loaded so far. Kept for the
// whole process: texts are asked for up to its end.
constexpr const wchar_t* kPlatformModule = L"kyplatform";

struct ResourceTableState {
    std::map<unsigned, KyString> modules{{0U, KyString(kPlatformModule)}};
    std::map<KyString, std::unique_ptr<KyRxResourceInstance>, KyStringLess> loaded;
};

ResourceTableState& resourceTables() {
    static auto* s_state = new ResourceTableState();
    return *s_state;
}

// The attributes of a member or a class, with the object's own name; null for
// any other object.
const KyRxAttributeCollection* attributesOf(const KyRxObject* object, const wchar_t*& name) {
    if (const KyRxMember* member = kyrxCast<KyRxMember>(object)) {
        name = member->name();
        return &member->attributes();
    }
    if (const KyRxClass* cls = kyrxCast<KyRxClass>(object)) {
        name = cls->name();
        return &cls->attributes();
    }
    return nullptr;
}

KyRxRefersToAttribute::Hooks g_referenceHooks;

// The steps of a reference path; false for an empty path or an empty step.
bool splitPath(const wchar_t* path, bool& fromRoot, std::vector<KyString>& steps) {
    fromRoot = path[0] == L'/';
    const wchar_t* start = fromRoot ? path + 1 : path;
    for (;;) {
        const wchar_t* end = start;
        while (*end != L'\0' && *end != L'/') {
            ++end;
        }
        if (end == start) {
            return false;
        }
        steps.emplace_back(start, static_cast<int>(end - start));
        if (*end == L'\0') {
            return true;
        }
        start = end + 1;
    }
}

const KyRxPropertyBase* resolveStep(const KyRxObject* object, const wchar_t* name,
                                    KyRxRefersToAttribute::Resolve resolve) {
    if (resolve != nullptr) {
        return resolve(object, name);
    }
    KyRxMemberQueryEngine* engine = KyRxMemberQueryEngine::theEngine();
    return kyrxCast<KyRxPropertyBase>(engine->find(object, name, engine->promotingContext()));
}

// The object that the value read by `property` on `object` stands for, opened
// through the hooks; null when it can't be reached.
KyRxObject* followStep(const KyRxObject* object, const KyRxPropertyBase* found,
                       KyRxRefersToAttribute::Convert convert) {
    const KyRxProperty* property = kyrxCast<KyRxProperty>(found);
    if (property == nullptr || g_referenceHooks.open == nullptr) {
        return nullptr;
    }
    KyRxValue value;
    if (property->getValue(object, value) != Kyro::eOk) {
        return nullptr;
    }
    if (convert != nullptr && !convert(property, value)) {
        return nullptr;
    }
    return g_referenceHooks.open(value);
}

void closeOpened(KyRxObject* object) {
    if (object != nullptr && g_referenceHooks.close != nullptr) {
        g_referenceHooks.close(object);
    }
}

}  // namespace

void KyRxResourceTables::setTableModule(unsigned table, const wchar_t* moduleName) {
    ResourceTableState& state = resourceTables();
    if (moduleName == nullptr || moduleName[0] == L'\0') {
        state.modules.erase(table);
    } else {
        state.modules[table] = KyString(moduleName);
    }
}

KyString KyRxResourceTables::text(unsigned table, unsigned id) {
    ResourceTableState& state = resourceTables();
    // A table no module is named for is served by the platform's own module,
    // from its sections of that table; a named module serves the table from
    // its plain sections.
    const auto named = state.modules.find(table);
    const KyString moduleName =
        named != state.modules.end() ? named->second : KyString(kPlatformModule);
    const unsigned section = named != state.modules.end() ? 0U : table;
    auto loaded = state.loaded.find(moduleName);
    if (loaded == state.loaded.end()) {
        // A module that does not load is not kept: a search path added later
        // may find it.
        auto instance = std::make_unique<KyRxResourceInstance>(moduleName.kwszPtr());
        if (!instance->isLoaded()) {
            return KyString();
        }
        loaded = state.loaded.emplace(moduleName, std::move(instance)).first;
    }
    const wchar_t* found = loaded->second->text(id, section);
    return found != nullptr ? KyString(found) : KyString();
}

KyString KyRxDescriptionAttribute::description() const {
    return KyRxResourceTables::text(m_table, m_id);
}

KyString KyRxDescriptionAttribute::getDescription(const KyRxObject* object) {
    const wchar_t* name = nullptr;
    const KyRxAttributeCollection* attributes = attributesOf(object, name);
    if (attributes == nullptr) {
        return KyString();
    }
    const auto* attribute = static_cast<const KyRxDescriptionAttribute*>(
        attributes->get(KyRxDescriptionAttribute::desc()));
    return attribute != nullptr ? attribute->description() : KyString();
}

KyString KyRxLocalizedNameAttribute::localizedName() const {
    return KyRxResourceTables::text(m_table, m_id);
}

KyString KyRxLocalizedNameAttribute::getLocalizedName(const KyRxObject* object) {
    const wchar_t* name = nullptr;
    const KyRxAttributeCollection* attributes = attributesOf(object, name);
    if (attributes == nullptr) {
        return KyString();
    }
    const auto* attribute = static_cast<const KyRxLocalizedNameAttribute*>(
        attributes->get(KyRxLocalizedNameAttribute::desc()));
    if (attribute != nullptr) {
        KyString text = attribute->localizedName();
        if (!text.isEmpty()) {
            return text;
        }
    }
    return KyString(name);
}

const KyRxPropertyBase* KyRxRefersToAttribute::parseReference(const wchar_t* path,
                                                              const KyRxObject* object,
                                                              Resolve resolve, Convert convert) {
    bool fromRoot = false;
    std::vector<KyString> steps;
    if (path == nullptr || object == nullptr || !splitPath(path, fromRoot, steps)) {
        return nullptr;
    }
    const KyRxObject* current = object;
    if (fromRoot && g_referenceHooks.root != nullptr) {
        current = g_referenceHooks.root(object);
        if (current == nullptr) {
            return nullptr;
        }
    }
    // The object opened for the step in hand, closed once its value is read.
    KyRxObject* opened = nullptr;
    const size_t last = steps.size() - 1;
    for (size_t i = 0; i < last; ++i) {
        KyRxObject* next = followStep(current, resolveStep(current, steps[i], resolve), convert);
        closeOpened(opened);
        if (next == nullptr) {
            return nullptr;
        }
        opened = next;
        current = next;
    }
    const KyRxPropertyBase* property = resolveStep(current, steps[last], resolve);
    closeOpened(opened);
    return property;
}

void KyRxRefersToAttribute::setHooks(const Hooks& hooks) {
    g_referenceHooks = hooks;
}
