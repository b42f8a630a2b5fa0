#include "KyRefDrawingExtras.h"

#include <algorithm>

#include "db/KyDbDatabase.h"

namespace {

// The extras of each database that has some. An entry leaves when its
// database says goodbye.
std::unordered_map<const KyDbDatabase*, KyRefDrawingExtras*>& registry() {
    static std::unordered_map<const KyDbDatabase*, KyRefDrawingExtras*> extras;
    return extras;
}

const KyRefJson& nullJson() {
    static const KyRefJson none;
    return none;
}

}  // namespace

KyRefDrawingExtras* KyRefDrawingExtras::find(const KyDbDatabase* database) {
    const auto found = registry().find(database);
    return found != registry().end() ? found->second : nullptr;
}

KyRefDrawingExtras& KyRefDrawingExtras::attach(KyDbDatabase* database) {
    if (KyRefDrawingExtras* existing = find(database)) {
        return *existing;
    }
    auto* extras = new KyRefDrawingExtras();
    registry()[database] = extras;
    database->addReactor(extras);
    return *extras;
}

KyRefDrawingExtras::~KyRefDrawingExtras() = default;

void KyRefDrawingExtras::goodbye(const KyDbDatabase* database) {
    // The database walks a copy of its reactors, so this one may leave now.
    const_cast<KyDbDatabase*>(database)->removeReactor(this);
    registry().erase(database);
    delete this;
}

const KyRefDrawingExtras::Form* KyRefDrawingExtras::form(KyDbHandle handle) const {
    const auto found = m_forms.find(handle.value());
    return found != m_forms.end() ? &found->second : nullptr;
}

void KyRefDrawingExtras::setForm(KyDbHandle handle, Form&& form) {
    m_forms[handle.value()] = std::move(form);
}

const std::string* KyRefDrawingExtras::entityType(KyDbHandle handle) const {
    const auto found = m_entityTypes.find(handle.value());
    return found != m_entityTypes.end() ? &found->second : nullptr;
}

void KyRefDrawingExtras::setEntityType(KyDbHandle handle, std::string type) {
    m_entityTypes[handle.value()] = std::move(type);
}

std::vector<KyDbHandle> KyRefDrawingExtras::holdersOf(KyDbObjectId id) const {
    std::vector<KyDbHandle> holders;
    for (const auto& [handle, form] : m_forms) {
        for (const Reference& reference : form.references) {
            if (reference.id == id) {
                holders.emplace_back(handle);
                break;
            }
        }
    }
    return holders;
}

bool KyRefDrawingExtras::hadMember(const std::string& name) const {
    return std::find(m_members.begin(), m_members.end(), name) != m_members.end();
}

const KyRefJson& KyRefDrawingExtras::layerFilters() const {
    const auto found = m_topLevel.find("layerFilters");
    return found != m_topLevel.end() ? *found : nullJson();
}

void KyRefDrawingExtras::setLayerFilters(KyRefJson filters) {
    if (filters.is_null()) {
        m_topLevel.erase("layerFilters");
    } else {
        m_topLevel["layerFilters"] = std::move(filters);
    }
}

bool KyRefDrawingExtras::isAdded(KyDbHandle handle) const {
    return m_addedIndex.find(handle.value()) != m_addedIndex.end();
}

void KyRefDrawingExtras::noteAdded(KyDbHandle handle, KyRefJson json) {
    m_addedIndex[handle.value()] = m_added.size();
    m_added.emplace_back(handle.value(), std::move(json));
}
