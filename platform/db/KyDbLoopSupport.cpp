#include "db/KyDbLoopSupport.h"

#include "db/KyDbStateFiler.h"

Kyro::ErrorStatus kydbiCheckLoop(const KyDbLoop& loop) {
    return loop.length() >= KyDbRegion::kMinLoopPoints ? Kyro::eOk : Kyro::eInvalidInput;
}

Kyro::ErrorStatus kydbiCheckLoops(const KyDbLoopArray& loops) {
    for (const KyDbLoop& loop : loops) {
        if (const Kyro::ErrorStatus status = kydbiCheckLoop(loop); status != Kyro::eOk) {
            return status;
        }
    }
    return Kyro::eOk;
}

void kydbiSaveLoops(KyDbStateFiler& filer, const KyDbLoopArray& loops) {
    filer.write(loops.length());
    for (const KyDbLoop& loop : loops) {
        filer.writeArray(loop);
    }
}

bool kydbiRestoreLoops(KyDbStateFiler& filer, KyDbLoopArray& loops) {
    int count = 0;
    if (!filer.read(count)) {
        return false;
    }
    KyDbLoopArray restored;
    for (int i = 0; i < count; ++i) {
        KyDbLoop loop;
        if (!filer.readArray(loop)) {
            return false;
        }
        restored.append(loop);
    }
    loops = std::move(restored);
    return true;
}
