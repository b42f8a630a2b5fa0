// The host reactor's exported constructor and destructor; the data item
// layer's own reactor derives from it.
#include "kydi/KyDiHostReactor.h"

KyDiHostReactor::KyDiHostReactor() = default;
KyDiHostReactor::~KyDiHostReactor() = default;
