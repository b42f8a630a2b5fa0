#include "KyRefUndoCommand.h"

#include <algorithm>
#include <cwchar>

#include "KyRefCommandContext.h"
#include "KyRefDocument.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbUndoController.h"

namespace {

const KyRefKeyword kOptions[] = {
    {L"Mark", L"Markieren"},
    {L"Back", L"Zurueck"},
};
constexpr int kMark = 0;

}  // namespace

int KyRefUndoCommand::takeBack(KyRefCommandContext& context, int count) {
    KyDbUndoController* undo = context.database()->undoController();
    int done = 0;
    while (done < count) {
        if (!undo->hasUndo()) {
            context.message(L"Everything has been undone.");
            break;
        }
        const KyString label(undo->undoLabel());
        if (undo->undo() != Kyro::eOk) {
            context.message(L"Cannot undo %ls while an object of it is open.", label.kwszPtr());
            break;
        }
        context.message(L"Undone: %ls", label.isEmpty() ? L"change" : label.kwszPtr());
        ++done;
    }
    if (done > 0) {
        context.noteContentChanged();
    }
    // Marks that stood above what is left are gone with what was taken back.
    std::vector<int>& marks = context.document()->undoMarks();
    std::erase_if(marks, [undo](int mark) { return mark > undo->undoCount(); });
    return done;
}

void KyRefUndoCommand::run(KyRefCommandContext& context) {
    const KyString prompt =
        KyString::formatted(L"Enter the number of operations to undo or %ls <1>: ",
                            KyRefKeywords::options(kOptions).kwszPtr());
    for (;;) {
        const KyString answer = context.readWord(prompt);
        if (answer.isEmpty()) {
            takeBack(context, 1);
            return;
        }
        wchar_t* end = nullptr;
        const long count = std::wcstol(answer.kwszPtr(), &end, 10);
        if (end != nullptr && *end == L'\0' && count > 0) {
            takeBack(context, static_cast<int>(count));
            return;
        }
        const int option = KyRefKeywords::match(kOptions, answer);
        if (option < 0) {
            context.message(L"Requires a positive integer or an option keyword.");
            continue;
        }
        KyDbUndoController* undo = context.database()->undoController();
        std::vector<int>& marks = context.document()->undoMarks();
        if (option == kMark) {
            marks.push_back(undo->undoCount());
            return;
        }
        std::erase_if(marks, [undo](int mark) { return mark > undo->undoCount(); });
        if (marks.empty()) {
            takeBack(context, undo->undoCount());
            if (!undo->hasUndo()) {
                context.message(L"Everything has been undone.");
            }
            return;
        }
        const int mark = marks.back();
        marks.pop_back();
        takeBack(context, undo->undoCount() - mark);
        context.message(L"Mark encountered.");
        return;
    }
}
