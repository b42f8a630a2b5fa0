#include "kydi/KyDiDynamicObjectReactor.h"

KyDiDynamicObjectReactor::~KyDiDynamicObjectReactor() = default;

void KyDiDynamicObjectReactor::changed(KyDiDynamicObject* /*source*/, const wchar_t* /*memberName*/,
                                       void* /*changeData*/) {}
