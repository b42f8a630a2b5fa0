// Not part of the interface: the refresh pass, the main loop of the data item
// layer.
//
// Host events only leave marks; one pass reads what changed and tells the
// clients. Unforced passes come at most once in 250 milliseconds, however
// often the host asks.
#pragma once

#include <cstdint>

class RefreshPass {
public:
    // The shortest distance between two unforced passes, in nanoseconds.
    static constexpr std::int64_t kMinimumGap = 250'000'000;

    // Runs a pass. Without `force` the pass is held back while the last one
    // is no more than kMinimumGap ago.
    static void run(bool force);

    // The state that the last pass read: the paper space viewport of a layout
    // is current; the block editor is open.
    static bool inPaperSpace();
    static bool inBlockEditor();

private:
    // Answers whether the pass goes on, and notes its time when it does.
    static bool passesThrottle(bool force);
    static void readEditingState();
    static void tellRefreshStarting();
    static void refreshSysVars();
    // Each built context's own refresh, in the order they were built.
    static void refreshContexts();
    // "LAYER", then "BLOCK", then the other known collections by name.
    static void updateCollections();
    // The enumeration collections follow the current document and tracker.
    static void refreshEnumCollections();
    static void tellRefreshEnded();
    static void callNotifyHandlers();
};
