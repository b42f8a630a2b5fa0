#include "KyRefRedoCommand.h"

#include "KyRefCommandContext.h"
#include "KyRefDocument.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbUndoController.h"

void KyRefRedoCommand::run(KyRefCommandContext& context) {
    KyDbUndoController* undo = context.database()->undoController();
    if (context.document()->redoableCount() == 0) {
        context.message(L"Nothing to redo.");
        return;
    }
    const KyString label(undo->redoLabel());
    if (undo->redo() != Kyro::eOk) {
        context.fail(L"Cannot redo %ls while an object of it is open.", label.kwszPtr());
    }
    context.message(L"Redone: %ls", label.isEmpty() ? L"change" : label.kwszPtr());
    context.noteContentChanged();
}
