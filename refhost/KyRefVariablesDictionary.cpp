#include "KyRefVariablesDictionary.h"

#include "KyRefSysVarTable.h"
#include "KyRefVariable.h"

KyRefVariablesDictionary::KyRefVariablesDictionary(KyRefHost& host) {
    for (const KyRefSysVarRow& row : KyRefSysVarTable::rows()) {
        addVariable(new KyRefVariable(row.name, host));
    }
}
