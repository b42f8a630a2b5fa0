// KyRefRecordCommand: RECORD. Makes, renames and erases the named records of
// the drawing's symbol tables and the entries of its named dictionaries, one
// command for every kind (KyRefRecordKind). Its answers: an option, a kind
// word, then the names:
//   New, kind, name              a new record with the properties of a new one
//   Rename, kind, name, new name a record takes another name; a dictionary
//                                entry's key and its own name change together
//                                (it stays the same object)
//   Erase, kind, name            erases the record
// The kind words: LAYER, LINETYPE, TEXTSTYLE, DIMSTYLE, VIEW, UCS, VIEWPORT,
// TABLESTYLE, MLEADERSTYLE, SECTIONVIEWSTYLE, DETAILVIEWSTYLE, MATERIAL,
// LAYOUT, PLOTSETTINGS, VISUALSTYLE (with "_" before the option and the kind
// word in the host's second language). For example:
//   RECORD\n_New\nLINETYPE\nDashed\n
//   RECORD\n_Rename\nLINETYPE\nDashed\nDotted\n
//   RECORD\n_Erase\nLINETYPE\nDotted\n
//
// A name is one name taken as it stands, never a pattern ("=" and double
// quotes around it are dropped); an existing one is found in any case, and a
// reserved name in its local form too. An empty answer ends the command and
// changes nothing.
//
// An unknown option or kind, an invalid name (empty, too long, with one of
// < > / " : ; ? , = ` | or "*" after the first character), a new name that
// is taken, a name that names nothing, a record of an external reference, a
// record of the drawing's own (its name begins with "*": the active viewport
// configuration "*Active"), and what the drawing refuses to rename or erase
// are each an error line, and nothing changes. The drawing refuses layer "0", the standard
// linetypes, the "Standard" styles, the standard materials and visual styles and the model layout,
// and it can't erase what is current (the current layer, linetype, text style, dimension style,
// table style ...). The host refuses besides to erase the current UCS, to rename or erase the
// current visual style, to erase the layout of the paper space, the only one it shows, and to erase
// what something of the drawing refers to (a layer with entities on it, a
// linetype of a layer, the text style of a dimension style ...), so that a
// saved drawing never names what it lacks.
//
// A new layout gets a paper space block of its own and the next tab order;
// an erased layout takes its block and what that holds with it. Renaming the
// current UCS renames it in UCSNAME too. The command is one undo step.
#pragma once

#include "KyRefCommand.h"

class KyRefRecordCommand : public KyRefCommand {
public:
    void run(KyRefCommandContext& context) override;
};
