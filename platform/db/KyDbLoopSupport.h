// Internal to the drawing database; not part of the platform's interface.
//
// What hatches and regions do alike with their loops: the check of a loop,
// and the state filer's form of a list of loops.
#pragma once

#include "base/KyroErrorStatus.h"
#include "db/KyDbRegion.h"

class KyDbStateFiler;

// eInvalidInput when a loop has fewer than KyDbRegion::kMinLoopPoints.
Kyro::ErrorStatus kydbiCheckLoop(const KyDbLoop& loop);
Kyro::ErrorStatus kydbiCheckLoops(const KyDbLoopArray& loops);

// Their number, then each loop as an array of points.
void kydbiSaveLoops(KyDbStateFiler& filer, const KyDbLoopArray& loops);
bool kydbiRestoreLoops(KyDbStateFiler& filer, KyDbLoopArray& loops);
