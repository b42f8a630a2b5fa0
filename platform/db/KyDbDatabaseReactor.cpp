#include "db/KyDbDatabaseReactor.h"

#include "rx/KyRxClass.h"

KYRX_DEFINE_MEMBERS(KyDbDatabaseReactor, KyRxObject)

KyDbDatabaseReactor::~KyDbDatabaseReactor() = default;

void KyDbDatabaseReactor::objectAppended(const KyDbDatabase*, const KyDbObject*) {}
void KyDbDatabaseReactor::objectUnAppended(const KyDbDatabase*, const KyDbObject*) {}
void KyDbDatabaseReactor::objectReAppended(const KyDbDatabase*, const KyDbObject*) {}
void KyDbDatabaseReactor::objectOpenedForModify(const KyDbDatabase*, const KyDbObject*) {}
void KyDbDatabaseReactor::objectModified(const KyDbDatabase*, const KyDbObject*) {}
void KyDbDatabaseReactor::objectErased(const KyDbDatabase*, const KyDbObject*, bool) {}
void KyDbDatabaseReactor::headerSysVarWillChange(const KyDbDatabase*, const wchar_t*) {}
void KyDbDatabaseReactor::headerSysVarChanged(const KyDbDatabase*, const wchar_t*, bool) {}
void KyDbDatabaseReactor::goodbye(const KyDbDatabase*) {}
