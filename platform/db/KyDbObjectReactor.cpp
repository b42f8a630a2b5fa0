#include "db/KyDbObjectReactor.h"

#include "rx/KyRxClass.h"

KYRX_DEFINE_MEMBERS(KyDbObjectReactor, KyRxObject)

KyDbObjectReactor::~KyDbObjectReactor() = default;

void KyDbObjectReactor::cancelled(const KyDbObject*) {}
void KyDbObjectReactor::copied(const KyDbObject*, const KyDbObject*) {}
void KyDbObjectReactor::erased(const KyDbObject*, bool) {}
void KyDbObjectReactor::goodbye(const KyDbObject*) {}
void KyDbObjectReactor::openedForModify(const KyDbObject*) {}
void KyDbObjectReactor::modified(const KyDbObject*) {}
void KyDbObjectReactor::modifyUndone(const KyDbObject*) {}
void KyDbObjectReactor::modifiedXData(const KyDbObject*) {}
void KyDbObjectReactor::unappended(const KyDbObject*) {}
void KyDbObjectReactor::reappended(const KyDbObject*) {}
void KyDbObjectReactor::objectClosed(KyDbObjectId) {}
