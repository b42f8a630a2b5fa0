#include "KyRefDrawingIo.h"

namespace {
KyRefDrawingIo* g_registered = nullptr;
}  // namespace

void KyRefDrawingIo::registerInstance(KyRefDrawingIo* io) {
    g_registered = io;
}

KyRefDrawingIo* KyRefDrawingIo::registered() {
    return g_registered;
}
