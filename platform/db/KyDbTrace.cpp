#include "db/KyDbTrace.h"

#include <set>

namespace {

bool g_traceShown = false;
// Never deleted, so it stays usable to the end of the process.
std::set<KyDbObjectId>* g_skipped = nullptr;

}  // namespace

bool kydbiSkipDisplayForTrace(const KyDbObjectId& id) {
    return g_traceShown && g_skipped != nullptr && g_skipped->count(id) != 0;
}

void kydbiSetDrawingTraceShown(bool shown) {
    g_traceShown = shown;
}

bool kydbiIsDrawingTraceShown() {
    return g_traceShown;
}

void kydbiSetSkipDisplayForTrace(const KyDbObjectId& id, bool skip) {
    if (g_skipped == nullptr) {
        g_skipped = new std::set<KyDbObjectId>();
    }
    if (skip) {
        g_skipped->insert(id);
    } else {
        g_skipped->erase(id);
    }
}
