// KyRefBlockEditor: the host's block editor. Each document has at most one
// block open in it (BEDIT opens it, BCLOSE closes it), and while the document
// in front has one open, BLOCKEDITOR is 1 and the entity commands draw in
// that block. Opening and closing write BLOCKEDITOR as the host writes any
// variable, so inside a command its change is told when the command ends.
// When another document comes in front, BLOCKEDITOR follows that document
// without a report of its own, as the drawing variables do: the switch asks
// for a refresh.
#pragma once

#include "db/KyDbObjectId.h"
#include "kydi/KyDiTypes.h"

class KyRefDocument;
class KyRefHost;

class KyRefBlockEditor {
public:
    explicit KyRefBlockEditor(KyRefHost& host);

    // The block open in the block editor of the document in front; null
    // when none is.
    KyDbObjectId editedBlockId() const;
    void open(KyRefDocument& document, KyDbObjectId blockId);
    void close(KyRefDocument& document);
    // Another document came in front (or none is left).
    void currentDocumentChanged();

private:
    void show(bool open, bool report);

    KyRefHost& m_host;
    // The document whose block editor BLOCKEDITOR shows open.
    KyDiDocument m_shownFor = kKyDiNoDocument;
};
