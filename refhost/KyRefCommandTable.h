// KyRefCommandTable: the commands of the reference host, one row each. A new
// command is a class of its own deriving from KyRefCommand, and a row here:
//   {L"ERASE", L"LOESCHEN", 0, &KyRefCommandTable::make<KyRefEraseCommand>},
// The global name is what "_NAME" finds; the local name is what the host's
// second language types (see KyRefLanguage).
#pragma once

#include <memory>
#include <span>

#include "KyRefCommand.h"
#include "KyRefCommandWord.h"

enum KyRefCommandFlag : unsigned {
    // The command may run inside another one that waits at a prompt.
    kCommandTransparent = 0x1,
    // The command runs also when no document is open (no lock, no undo group).
    kCommandWithoutDocument = 0x2,
    // The command never changes the drawing: it runs also in a drawing open
    // read-only, where every other command is refused.
    kCommandKeepsDrawing = 0x4,
};

struct KyRefCommandRow {
    const wchar_t* globalName;
    const wchar_t* localName;
    unsigned flags;
    std::unique_ptr<KyRefCommand> (*make)();
};

class KyRefCommandTable {
public:
    static std::span<const KyRefCommandRow> rows();
    // The row of a command word: the global name after "_", otherwise the
    // local name of the host's language, in any case. Null if none.
    static const KyRefCommandRow* find(const KyRefCommandWord& word);
    // The row whose global name is `name` (any case), with or without "_".
    static const KyRefCommandRow* findGlobal(const wchar_t* name);

    template <typename Command>
    static std::unique_ptr<KyRefCommand> make() {
        return std::make_unique<Command>();
    }
};
