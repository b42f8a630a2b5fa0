#include "KyRefLayerFilters.h"

#include "io/KyRefDrawingExtras.h"
#include "io/KyRefJson.h"

namespace {

const KyRefJson* findFilter(const KyRefJson& filter, const KyString& name) {
    if (!filter.is_object()) {
        return nullptr;
    }
    const auto own = filter.find("name");
    if (own != filter.end() && own->is_string() &&
        kyrefWide(own->get<std::string>()).compareNoCase(name) == 0) {
        return &filter;
    }
    const auto nested = filter.find("filters");
    if (nested == filter.end() || !nested->is_array()) {
        return nullptr;
    }
    for (const KyRefJson& child : *nested) {
        if (const KyRefJson* found = findFilter(child, name)) {
            return found;
        }
    }
    return nullptr;
}

}  // namespace

bool KyRefLayerFilters::find(const KyDbDatabase* database, const wchar_t* name,
                             KyString& spelling) {
    const KyRefDrawingExtras* extras = KyRefDrawingExtras::find(database);
    if (extras == nullptr || name == nullptr || name[0] == L'\0') {
        return false;
    }
    const KyRefJson* filter = findFilter(extras->layerFilters(), KyString(name));
    if (filter == nullptr) {
        return false;
    }
    spelling = kyrefWide((*filter)["name"].get<std::string>());
    return true;
}

bool KyRefLayerFilters::setCurrent(const KyDbDatabase* database, const wchar_t* name) {
    KyString spelling;
    if (!find(database, name, spelling)) {
        return false;
    }
    KyRefDrawingExtras* extras = KyRefDrawingExtras::find(database);
    KyRefJson root = extras->layerFilters();
    root["current"] = kyrefUtf8(spelling);
    extras->setLayerFilters(std::move(root));
    return true;
}

KyString KyRefLayerFilters::current(const KyDbDatabase* database) {
    const KyRefDrawingExtras* extras = KyRefDrawingExtras::find(database);
    if (extras == nullptr) {
        return KyString();
    }
    const KyRefJson& root = extras->layerFilters();
    if (!root.is_object()) {
        return KyString();
    }
    const auto current = root.find("current");
    return current != root.end() && current->is_string() ? kyrefWide(current->get<std::string>())
                                                         : KyString();
}
