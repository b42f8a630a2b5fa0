#include "kydi/KyDiDataValueReactor.h"

KyDiDataValueReactor::~KyDiDataValueReactor() = default;

void KyDiDataValueReactor::valueChanged(const resbuf* /*value*/) {}

void KyDiDataValueReactor::activeChanged(bool /*active*/) {}
