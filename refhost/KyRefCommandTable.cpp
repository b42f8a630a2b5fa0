#include "KyRefCommandTable.h"

#include "KyRefEraseCommand.h"
#include "KyRefLanguage.h"
#include "KyRefRedoCommand.h"
#include "KyRefSelectCommand.h"
#include "KyRefSetVarCommand.h"
#include "KyRefUCommand.h"
#include "KyRefUndoCommand.h"

namespace {

using Table = KyRefCommandTable;

// Global name, local name (the host's second language), flags, maker.
const KyRefCommandRow kRows[] = {
    {L"ERASE", L"LOESCHEN", 0, &Table::make<KyRefEraseCommand>},
    {L"REDO", L"WIEDERHERSTELLEN", 0, &Table::make<KyRefRedoCommand>},
    {L"SELECT", L"WAEHLEN", 0, &Table::make<KyRefSelectCommand>},
    {L"SETVAR", L"VARSETZEN", kCommandTransparent | kCommandWithoutDocument,
     &Table::make<KyRefSetVarCommand>},
    {L"U", L"Z", 0, &Table::make<KyRefUCommand>},
    {L"UNDO", L"ZURUECK", 0, &Table::make<KyRefUndoCommand>},
};

}  // namespace

std::span<const KyRefCommandRow> KyRefCommandTable::rows() {
    return kRows;
}

const KyRefCommandRow* KyRefCommandTable::find(const KyRefCommandWord& word) {
    for (const KyRefCommandRow& row : kRows) {
        const wchar_t* name =
            word.global ? row.globalName : KyRefLanguage::pick(row.globalName, row.localName);
        if (word.name.compareNoCase(name) == 0) {
            return &row;
        }
    }
    return nullptr;
}

const KyRefCommandRow* KyRefCommandTable::findGlobal(const wchar_t* name) {
    KyRefCommandWord word = KyRefCommandWord::parse(name);
    word.global = true;
    return find(word);
}
