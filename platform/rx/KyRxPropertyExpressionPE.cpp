#include "rx/KyRxPropertyExpressionPE.h"

#include "rx/KyRxClass.h"

KYRX_DEFINE_MEMBERS(KyRxPropertyExpressionPE, KyRxObject)

KyRxPropertyExpressionPE::~KyRxPropertyExpressionPE() = default;
