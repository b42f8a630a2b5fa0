#include "KyRefUCommand.h"

#include "KyRefUndoCommand.h"

void KyRefUCommand::run(KyRefCommandContext& context) {
    KyRefUndoCommand::takeBack(context, 1);
}
