#include "kydi/KyDiCurrencyTracker.h"

KyDiCurrencyTracker::KyDiCurrencyTracker() = default;

KyDiCurrencyTracker::~KyDiCurrencyTracker() = default;

void KyDiCurrencyTracker::update() {}
