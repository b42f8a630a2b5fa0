#include "kydi/KyDiContext.h"

#include "manager/KyDiReflectedClasses.h"

KYDI_DEFINE_CLASS_MEMBERS(KyDiContext, kContext)

KyDiContext::KyDiContext() = default;

KyDiContext::~KyDiContext() = default;

bool KyDiContext::subIsActive() const {
    return false;
}

void KyDiContext::subReset() {}

short KyDiContext::subPriority() const {
    return -1;
}
