#include "kydi/KyDiDataItemReactor.h"

KyDiDataItemReactor::~KyDiDataItemReactor() = default;
