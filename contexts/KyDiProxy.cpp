#include "kydi/KyDiProxy.h"

KyDiProxy::~KyDiProxy() = default;
