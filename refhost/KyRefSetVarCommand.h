// KyRefSetVarCommand: sets a system variable. Typed as the variable's name
// ("CLAYER", "'_clayer", "'LUPREC 4") it asks for the value of that variable;
// as SETVAR it asks for the name first. An empty answer keeps the value.
//
// A number that is no number or out of range is told and asked again, as the
// host does for every number; a text the variable refuses (a layer that isn't
// there) ends the command with an error. A read-only variable is shown.
#pragma once

#include "KyRefCommand.h"

struct KyRefSysVarRow;

class KyRefSetVarCommand : public KyRefCommand {
public:
    // SETVAR: the name is asked for.
    KyRefSetVarCommand() = default;
    explicit KyRefSetVarCommand(const KyRefSysVarRow* variable) : m_variable(variable) {}

    void run(KyRefCommandContext& context) override;

private:
    const KyRefSysVarRow* m_variable = nullptr;
};
