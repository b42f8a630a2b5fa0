#include "db/KyDbPlaceHolder.h"

#include "db/KyDbClassSupport.h"

KYDB_DEFINE_MEMBERS(KyDbPlaceHolder, KyDbObject)

KyDbPlaceHolder::KyDbPlaceHolder() = default;

KyDbPlaceHolder::~KyDbPlaceHolder() = default;
