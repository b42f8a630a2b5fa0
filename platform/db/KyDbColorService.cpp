#include "db/KyDbColorService.h"

KyDbColorService::~KyDbColorService() = default;
