#include "KyRefCommandTable.h"

#include "KyRefBatchCommand.h"
#include "KyRefBlockCloseCommand.h"
#include "KyRefBlockEditCommand.h"
#include "KyRefChPropCommand.h"
#include "KyRefCircleCommand.h"
#include "KyRefDimStyleCommand.h"
#include "KyRefEraseCommand.h"
#include "KyRefInsertCommand.h"
#include "KyRefLanguage.h"
#include "KyRefLayerCommand.h"
#include "KyRefLineCommand.h"
#include "KyRefOptChPropCommand.h"
#include "KyRefPageSetupCommand.h"
#include "KyRefPointCommand.h"
#include "KyRefRecordCommand.h"
#include "KyRefRedoCommand.h"
#include "KyRefRepaintCommand.h"
#include "KyRefSelectCommand.h"
#include "KyRefSetVarCommand.h"
#include "KyRefTextCommand.h"
#include "KyRefUCommand.h"
#include "KyRefUcsCommand.h"
#include "KyRefUndoCommand.h"
#include "KyRefVpLayerCommand.h"
#include "KyRefVsCurrentCommand.h"
#include "KyRefXAttachCommand.h"

namespace {

using Table = KyRefCommandTable;

// Global name, local name (the host's second language), flags, maker.
const KyRefCommandRow kRows[] = {
    {L"-DIMSTYLE", L"-BEMSTIL", 0, &Table::make<KyRefDimStyleCommand>},
    {L"-INSERT", L"-EINFUEGE", 0, &Table::make<KyRefInsertCommand>},
    {L"-LAYER", L"-EBENE", kCommandTransparent, &Table::make<KyRefLayerCommand>},
    {L"-PAGESETUP", L"-SEITENEINR", 0, &Table::make<KyRefPageSetupCommand>},
    {L"-XATTACH", L"-XZUORDNEN", 0, &Table::make<KyRefXAttachCommand>},
    {L"BATCH", L"STAPEL", kCommandKeepsDrawing, &Table::make<KyRefBatchCommand>},
    {L"BCLOSE", L"BSCHLIESSEN", kCommandKeepsDrawing, &Table::make<KyRefBlockCloseCommand>},
    {L"BEDIT", L"BBEARB", kCommandKeepsDrawing, &Table::make<KyRefBlockEditCommand>},
    {L"CHPROP", L"EIGAENDR", 0, &Table::make<KyRefChPropCommand>},
    {L"CIRCLE", L"KREIS", 0, &Table::make<KyRefCircleCommand>},
    {L"ERASE", L"LOESCHEN", 0, &Table::make<KyRefEraseCommand>},
    {L"LINE", L"LINIE", 0, &Table::make<KyRefLineCommand>},
    {L"OPTCHPROP", L"OPTEIGAENDR", 0, &Table::make<KyRefOptChPropCommand>},
    {L"POINT", L"PUNKT", 0, &Table::make<KyRefPointCommand>},
    {L"RECORD", L"EINTRAG", 0, &Table::make<KyRefRecordCommand>},
    {L"REDO", L"WIEDERHERSTELLEN", 0, &Table::make<KyRefRedoCommand>},
    {L"REPAINT", L"AUFFRISCHEN", kCommandKeepsDrawing, &Table::make<KyRefRepaintCommand>},
    {L"SELECT", L"WAEHLEN", kCommandKeepsDrawing, &Table::make<KyRefSelectCommand>},
    {L"SETVAR", L"VARSETZEN", kCommandTransparent | kCommandWithoutDocument | kCommandKeepsDrawing,
     &Table::make<KyRefSetVarCommand>},
    {L"TEXT", L"TEXT", 0, &Table::make<KyRefTextCommand>},
    {L"U", L"Z", 0, &Table::make<KyRefUCommand>},
    {L"UCS", L"BKS", 0, &Table::make<KyRefUcsCommand>},
    {L"UNDO", L"ZURUECK", 0, &Table::make<KyRefUndoCommand>},
    {L"VPLAYER", L"AFEBENE", kCommandTransparent, &Table::make<KyRefVpLayerCommand>},
    {L"VSCURRENT", L"VSAKTUELL", 0, &Table::make<KyRefVsCurrentCommand>},
    {L"XATTACH", L"XZUORDNEN", 0, &Table::make<KyRefXAttachCommand>},
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
