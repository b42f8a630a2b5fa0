#include "manager/KyDiManagerState.h"

namespace {

// Built by the static constructors at load, before any call can reach it.
KyDiManagerState g_state;

}  // namespace

KyDiManagerState& kydiManagerState() {
    return g_state;
}
