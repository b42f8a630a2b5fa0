#include "currency/ScaleListCurrencyTracker.h"

#include "base/resbuf.h"
#include "kydi/KyDiManager.h"
#include "kydi/KyDiSysVar.h"
#include "rx/KyRxValue.h"
#include "sysvars/SysVarValueAccess.h"

KyDiDynamicObject* ScaleListCurrencyTracker::getCurrentItem() {
    // The variable object keeps the value just set through it, or else the
    // last one read; its text stays the object's own.
    KyDiSysVar* sysVar = KyDiManager::getSysVar(sysVarName().kwszPtr());
    resbuf value{};
    if (sysVar == nullptr || sysVar->getValue(value) != Kyro::eOk || value.restype != KYRB_STRING ||
        value.resval.rstring == nullptr) {
        return nullptr;
    }
    const KyString name(value.resval.rstring);
    if (name.isEmpty()) {
        return nullptr;
    }
    return firstItem(
        [&name](KyDiDynamicObject* item) { return valueTextOf(item).compare(name) == 0; });
}

void ScaleListCurrencyTracker::setCurrentItem(KyDiDynamicObject* item) {
    const KyString text = item != nullptr ? valueTextOf(item) : KyString();
    if (!text.isEmpty()) {
        writeSysVar(sysVarName().kwszPtr(), KYRB_STRING, KyRxValue(text));
    }
}
