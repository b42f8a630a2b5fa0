// The steps of the long storm: one random thing a user or the host does to
// the reference host, as a palette beside it sees it. Commands typed on the
// layers (new, colour, on and off, freeze and thaw, lock, the current layer,
// layer states, freezes in viewports) and on the records of every table and
// dictionary; undo and redo; batches; layouts made current and viewports
// entered and left; the UCS, the visual style, the units and the resolution,
// an external reference, REPAINT; entities drawn, erased and moved to other
// layers; current items set through the collections; layer items written and
// any item read member by member; drawings opened (the sample and a scratch
// copy that the storm saves now and then), made new, switched and closed,
// down to none; objects selected and cleared, and a layer given to what is
// selected through the effective property; refresh requests on the manual clock and forced passes.
#pragma once

#include <functional>

#include <filesystem>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "KyRefHost.h"
#include "kydi/KyDiObservableCollection.h"
#include "support/StormDice.h"

namespace kytest {

class HostStorm {
public:
    // `sample` is read, `scratch` is written and read; `batchFile` holds the
    // text of each batch. `where` gets the number and the text of each step
    // before it runs, for the checks that fail in it.
    HostStorm(KyRefHost& host, StormDice& dice, std::filesystem::path sample,
              std::filesystem::path scratch, std::filesystem::path batchFile, std::string& where);

    // The collections whose current item the storm sets and whose items it
    // reads.
    void setCollections(std::vector<KyDiObservableCollection*> collections) {
        m_collections = std::move(collections);
    }

    // One random step.
    void step();

    // How many steps of each kind ran.
    const std::map<std::string, int>& mix() const { return m_mix; }
    // Whether a batch ran since the last call. A batch starts a busy stretch,
    // which drops what the collections had pending: until they are reset, a
    // change made just before it may be missing from a list, or told late.
    bool takeBatchRan() { return std::exchange(m_batchRan, false); }
    bool batchRan() const { return m_batchRan; }
    // Called before a batch starts, while what the collections had pending
    // is still theirs: the last moment to look at them without a reset.
    void setBeforeBatch(std::function<void()> call) { m_beforeBatch = std::move(call); }

private:
    // Counts a step of `kind` and says what it does in `where`.
    void announce(const char* kind, const std::string& text);
    // Types `text` and lets the host run it; a command left waiting for an
    // answer is cancelled.
    void type(const char* kind, const std::wstring& text);

    void layerCommand();
    void layerState();
    void viewportLayer();
    void record();
    void undo();
    void batch();
    void unfinished();
    void layout();
    void viewport();
    void view();
    void currentItem();
    void layerItem();
    void readItem();
    void document();
    void entity();
    void selection();
    void refresh();

    // A command line text the storm types at random (never BATCH).
    std::wstring randomCommand();
    std::wstring layerName();
    std::wstring layerList();
    std::wstring recordName();

    KyRefHost& m_host;
    StormDice& m_dice;
    std::filesystem::path m_sample;
    std::filesystem::path m_scratch;
    std::filesystem::path m_batchFile;
    std::string& m_where;
    std::vector<KyDiObservableCollection*> m_collections;
    std::map<std::string, int> m_mix;
    long long m_steps = 0;
    bool m_batchRan = false;
    std::function<void()> m_beforeBatch;
};

}  // namespace kytest
