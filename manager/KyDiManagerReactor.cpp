#include "kydi/KyDiManagerReactor.h"

KyDiManagerReactor::~KyDiManagerReactor() = default;

void KyDiManagerReactor::refreshStarting() {}

void KyDiManagerReactor::refreshEnded() {}
