// KyRefPlotSettingsWatch: what the host last told of the plot settings of the
// layouts of one drawing (plot style table, page setup, raster resolution),
// and the changes it has not told yet. The document's database reactor hands
// it each layout before the layout's first change in a write-open (its
// values, as told, when the watch has none of it yet) and after each change
// (its values now, also after an undo or redo). take() answers the layouts
// whose settings differ from what was told and takes their values as told:
// a change taken back before it was told (a command that failed) tells
// nothing, and a layout changed twice is told once.
#pragma once

#include <optional>
#include <vector>

#include "base/KyString.h"
#include "db/KyDbObjectId.h"

class KyDbLayout;

class KyRefPlotSettingsWatch {
public:
    void opening(const KyDbLayout& layout);
    void modified(const KyDbLayout& layout);
    // The names of the layouts whose settings changed since they were last
    // told, in the order the watch first met them.
    std::vector<KyString> take();

private:
    struct Settings {
        KyString table;
        KyString pageSetup;
        short rasterDpi = 0;
        bool operator==(const Settings& other) const;
    };
    struct Entry {
        KyDbObjectId layout;
        // Null for a layout changed before the watch saw it as it was.
        std::optional<Settings> told;
        std::optional<Settings> pending;
        KyString name;  // the layout's name at its last change
    };
    static Settings settingsOf(const KyDbLayout& layout);
    Entry* find(KyDbObjectId layout);

    std::vector<Entry> m_entries;
};
