#include "KyRefRepaintCommand.h"

#include "KyRefCommandContext.h"
#include "KyRefHost.h"

void KyRefRepaintCommand::run(KyRefCommandContext& context) {
    context.host().regenerateAll();
}
