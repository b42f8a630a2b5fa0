// KyRefUcsCommand: UCS. Sets the drawing's current user coordinate system,
// which its variables hold: UCSNAME (empty for World), UCSORG, UCSXDIR and
// UCSYDIR. The answers it takes:
//   World (the default)   the world coordinate system;
//   Top, Bottom, FRont, BAck, Left, RIght
//                         an orthographic plane of the drawing's UCSBASE (the
//                         world when it has none), named after the plane;
//   NAmed, then Restore and a name
//                         a UCS of the drawing's UCS table.
// A UCS by origin and axes, and saving or deleting named ones, are not
// supported. A change of the UCS is told to the host's reactors when the
// command ends (ucsChanged).
#pragma once

#include "KyRefCommand.h"

class KyRefUcsCommand : public KyRefCommand {
public:
    void run(KyRefCommandContext& context) override;
};
