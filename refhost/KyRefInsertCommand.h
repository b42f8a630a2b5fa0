// KyRefInsertCommand: -INSERT. A reference to a block of the drawing by its
// name, at an insertion point, with one scale for X, Y and Z (1 when the answer
// is empty) and a rotation in degrees (0 when empty). A layout's block or an
// anonymous block is not inserted.
#pragma once

#include "KyRefCommand.h"

class KyRefInsertCommand : public KyRefCommand {
public:
    void run(KyRefCommandContext& context) override;
};
