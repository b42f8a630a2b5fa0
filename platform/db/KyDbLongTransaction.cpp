#include "db/KyDbLongTransaction.h"

#include "db/KyDbClassSupport.h"

KYDB_DEFINE_MEMBERS(KyDbLongTransaction, KyDbObject)

KyDbLongTransaction::KyDbLongTransaction() = default;

KyDbLongTransaction::~KyDbLongTransaction() = default;
