// KyRefTextCommand: TEXT. One line of text in the current text style: its
// start point, its height (TEXTSIZE when the answer is empty), its rotation in
// degrees (0 when empty) and the text itself, which may hold blanks. An empty
// text makes nothing.
#pragma once

#include "KyRefCommand.h"

class KyRefTextCommand : public KyRefCommand {
public:
    void run(KyRefCommandContext& context) override;
};
