// KyDiSysVar: one of the host's system variables as an observable value. The
// object keeps the last value read from the host, whether the variable may be
// offered to the user now, and the bounds a client may show. Refresh passes
// read the host again and tell the reactors what changed. Objects come from
// KyDiManager::getSysVar only, and belong to the manager.
#pragma once

#include "base/KyroErrorStatus.h"
#include "base/resbuf.h"
#include "kydi/KyDiExport.h"

class KyDiDataValueReactor;
class KyUiImpSysVar;

class KYDI_API KyDiSysVar {
public:
    // Wraps `imp` and owns it. Made by the manager.
    explicit KyDiSysVar(KyUiImpSysVar* imp);
    ~KyDiSysVar();
    KyDiSysVar(const KyDiSysVar&) = delete;
    KyDiSysVar& operator=(const KyDiSysVar&) = delete;

    const wchar_t* name() const;
    // Bounds to show to a user; a maximum below the minimum means that the
    // variable has no range. They are never enforced: the host judges values.
    double minimum() const;
    double maximum() const;
    // Whether the variable may be offered to the user, as of the last refresh.
    bool isActive() const;

    // A shallow copy of the value just set through this object, or else of
    // the last value read from the host; a string stays owned by this object.
    // eNotApplicable, with `out` untouched, when there is neither.
    Kyro::ErrorStatus getValue(resbuf& out) const;
    // Sets the variable, as a command typed on the command line (`viaCommand`)
    // or by a direct write. A value equal to the one held is no change: eOk,
    // and the host is not called. The value set is what getValue answers until
    // the next refresh, which takes the host's word.
    Kyro::ErrorStatus setValue(const resbuf& value, bool viaCommand);
    // Forgets the value read from the host, so that the next refresh reports
    // the variable as changed. A value just set stays.
    void clearValue();

    // Reactors are not owned; a reactor added twice is told twice.
    Kyro::ErrorStatus addReactor(KyDiDataValueReactor* reactor);
    // Removes the first occurrence; an unknown reactor is ignored.
    void removeReactor(KyDiDataValueReactor* reactor);

    // The implementation, for the library's own use.
    KyUiImpSysVar* imp() const { return m_imp; }

private:
    KyUiImpSysVar* m_imp;
};
