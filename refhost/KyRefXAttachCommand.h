// KyRefXAttachCommand: XATTACH and -XATTACH, which attach another drawing
// file as an external reference. The command asks for the file (found where
// the host's KyRefFileFolder says), reads it with the host's drawing reader,
// and adds a block for the reference, named after the file and holding its
// path as typed, and the reference's layers as layers that depend on it
// ("Site|Walls", KyRefXrefLayers). Those layers come in without the
// notifications of an append: who lists layers refreshes its list when the
// command ends. A file that can't be read or lies outside the host's
// file folder, a name a block has already, or the drawing itself is an error
// line, and nothing changes.
#pragma once

#include "KyRefCommand.h"

class KyRefXAttachCommand : public KyRefCommand {
public:
    void run(KyRefCommandContext& context) override;
};
