#include "kydi/KyDiObjectReactor.h"

KyDiObjectReactor::~KyDiObjectReactor() = default;

void KyDiObjectReactor::modified(void* /*reserved*/) {}

void KyDiObjectReactor::activeChanged(bool /*active*/) {}

void KyDiObjectReactor::erased() {}
