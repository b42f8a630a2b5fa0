#include "KyRefPlotSettingsWatch.h"

#include "db/KyDbLayout.h"

bool KyRefPlotSettingsWatch::Settings::operator==(const Settings& other) const {
    return table.compare(other.table) == 0 && pageSetup.compare(other.pageSetup) == 0 &&
           rasterDpi == other.rasterDpi;
}

KyRefPlotSettingsWatch::Settings KyRefPlotSettingsWatch::settingsOf(const KyDbLayout& layout) {
    return Settings{layout.plotStyleTable(), layout.pageSetupName(), layout.rasterDpi()};
}

KyRefPlotSettingsWatch::Entry* KyRefPlotSettingsWatch::find(KyDbObjectId layout) {
    for (Entry& entry : m_entries) {
        if (entry.layout == layout) {
            return &entry;
        }
    }
    return nullptr;
}

void KyRefPlotSettingsWatch::opening(const KyDbLayout& layout) {
    if (find(layout.objectId()) == nullptr) {
        m_entries.push_back(Entry{layout.objectId(), settingsOf(layout), std::nullopt, KyString()});
    }
}

void KyRefPlotSettingsWatch::modified(const KyDbLayout& layout) {
    Entry* entry = find(layout.objectId());
    if (entry == nullptr) {
        m_entries.push_back(Entry{layout.objectId(), std::nullopt, std::nullopt, KyString()});
        entry = &m_entries.back();
    }
    entry->pending = settingsOf(layout);
    entry->name = layout.layoutName();
}

std::vector<KyString> KyRefPlotSettingsWatch::take() {
    std::vector<KyString> names;
    for (Entry& entry : m_entries) {
        if (!entry.pending.has_value()) {
            continue;
        }
        if (!entry.told.has_value() || !(*entry.pending == *entry.told)) {
            entry.told = entry.pending;
            names.push_back(entry.name);
        }
        entry.pending.reset();
    }
    return names;
}
